#include "ColorScheme_linux.h"
#include "ShownStatusItem_linux.h"
#include "StatusNotifierItem_linux.h"

#include <QDBusConnection>
#include <QMenu>
#include <QPointer>
#include <QTimer>

#include <chrono>

namespace quillon {

namespace {

constexpr std::chrono::seconds hostReturns{2};

class LinuxStatusItem final : public StatusItem {
public:
    explicit LinuxStatusItem(StatusItemPlacement placement);
    ~LinuxStatusItem() override;

    void setFontSize(double pointSize) override { fontSize_ = pointSize; }
    void setTitle(const QString& title) override { setAttributedTitle({.text = title, .pointSize = fontSize_}); }
    void setAttributedTitle(const AttributedTitle& title) override;
    void setImage(const std::optional<SymbolImage>& image) override;
    void setMenu(QMenu* menu) override;
    PopoverAnchor anchor() const override;

private:
    void choose();
    ShownStatusItem* preferred();

    const StatusItemPlacement placement_;
    ColorScheme colorScheme_{QDBusConnection::sessionBus()};
    StatusNotifierHostWatcher statusNotifierHost_{QDBusConnection::sessionBus()};
    XEmbedHostWatcher xembedHost_;

    StatusItemContent content_;
    double fontSize_ = 0;
    QPointer<QMenu> menu_;
    std::unique_ptr<NotifierStatusItem> notifier_; ///< kept once it was made, as is the next
    std::unique_ptr<XEmbedStatusItem> xembed_;
    std::unique_ptr<MenuBarWindow> bar_; ///< there while it is shown
    ShownStatusItem* shown_ = nullptr;   ///< the one of them that is shown
    QTimer barDelay_;
};

LinuxStatusItem::LinuxStatusItem(StatusItemPlacement placement)
    : placement_(placement)
{
    applyColorScheme(colorScheme_.preference());
    connect(&colorScheme_, &ColorScheme::changed, this, applyColorScheme);
    connect(&colorScheme_, &ColorScheme::known, this, &LinuxStatusItem::choose);
    connect(&statusNotifierHost_, &StatusNotifierHostWatcher::changed, this, &LinuxStatusItem::choose);
    connect(&xembedHost_, &XEmbedHostWatcher::changed, this, &LinuxStatusItem::choose);
    barDelay_.setSingleShot(true);
    connect(&barDelay_, &QTimer::timeout, this, &LinuxStatusItem::choose);
    choose();
}

LinuxStatusItem::~LinuxStatusItem() = default;

void LinuxStatusItem::setAttributedTitle(const AttributedTitle& title)
{
    if (content_.title == title)
        return;
    content_.title = title;
    if (shown_)
        shown_->setContent(content_);
}

void LinuxStatusItem::setImage(const std::optional<SymbolImage>& image)
{
    if (content_.image == image)
        return;
    content_.image = image;
    if (shown_)
        shown_->setContent(content_);
}

void LinuxStatusItem::setMenu(QMenu* menu)
{
    menu_ = menu;
    if (shown_)
        shown_->setMenu(menu_);
}

PopoverAnchor LinuxStatusItem::anchor() const
{
    return shown_ ? shown_->anchor() : PopoverAnchor();
}

void LinuxStatusItem::choose()
{
    if (placement_ != StatusItemPlacement::Bar && !statusNotifierHost_.isKnown())
        return; // a bar that gives way at once would only flash
    if (!colorScheme_.isKnown())
        return;
    ShownStatusItem* const chosen = preferred();
    if (shown_ == chosen)
        return;
    shown_ = chosen;
    if (xembed_ && shown_ != xembed_.get())
        xembed_->hide();
    if (shown_ != bar_.get())
        bar_.reset();
    if (!shown_)
        return;
    shown_->setContent(content_);
    shown_->setMenu(menu_);
}

/// Nothing where there is no tray and the bar is unwanted.
ShownStatusItem* LinuxStatusItem::preferred()
{
    const bool trayIsWanted = placement_ != StatusItemPlacement::Bar;
    if (trayIsWanted && statusNotifierHost_.isPresent()) {
        if (!notifier_)
            notifier_ = std::make_unique<NotifierStatusItem>(QDBusConnection::sessionBus());
        return notifier_.get();
    }
    if (trayIsWanted && xembedHost_.isPresent()) {
        if (!xembed_)
            xembed_ = std::make_unique<XEmbedStatusItem>();
        xembed_->setContent(content_);
        if (xembed_->show())
            return xembed_.get();
    }
    if (placement_ == StatusItemPlacement::Tray)
        return nullptr;
    // A host that is started anew is back soon, and a window that comes up meanwhile would take the keyboard.
    if (shown_ && shown_ != bar_.get())
        barDelay_.start(hostReturns);
    if (barDelay_.isActive())
        return nullptr;
    if (!bar_)
        bar_ = std::make_unique<MenuBarWindow>();
    return bar_.get();
}

} // namespace

std::unique_ptr<StatusItem> makeStatusItem(StatusItemPlacement placement)
{
    return std::make_unique<LinuxStatusItem>(placement);
}

} // namespace quillon
