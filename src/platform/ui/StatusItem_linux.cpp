#include "ColorScheme_linux.h"
#include "MenuBarWindow_linux.h"
#include "StatusNotifierHostWatcher_linux.h"
#include "TrayStatusItem_linux.h"
#include "XEmbedHostWatcher_linux.h"

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
    StatusItemFace* face() const;
    bool trayIsThere() const;
    void choose();
    void showInTray();
    void hideInTray();
    void showInBar();

    const StatusItemPlacement placement_;
    ColorScheme colorScheme_{QDBusConnection::sessionBus()};
    StatusNotifierHostWatcher statusNotifierHost_{QDBusConnection::sessionBus()};
    XEmbedHostWatcher xembedHost_;

    StatusItemContent content_;
    double fontSize_ = 0;
    QPointer<QMenu> menu_;
    std::unique_ptr<TrayStatusItem> tray_; ///< kept once it was made
    std::unique_ptr<MenuBarWindow> bar_;   ///< there while it is shown
    bool inTray_ = false;
    QTimer barDelay_;
};

LinuxStatusItem::LinuxStatusItem(StatusItemPlacement placement)
    : placement_(placement)
{
    applyColorScheme(colorScheme_.preference());
    connect(&colorScheme_, &ColorScheme::changed, this, applyColorScheme);
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
    if (face())
        face()->setContent(content_);
}

void LinuxStatusItem::setImage(const std::optional<SymbolImage>& image)
{
    if (content_.image == image)
        return;
    content_.image = image;
    if (face())
        face()->setContent(content_);
}

void LinuxStatusItem::setMenu(QMenu* menu)
{
    menu_ = menu;
    if (face())
        face()->setMenu(menu_);
}

PopoverAnchor LinuxStatusItem::anchor() const
{
    return face() ? face()->anchor() : PopoverAnchor();
}

StatusItemFace* LinuxStatusItem::face() const
{
    if (inTray_)
        return tray_.get();
    return bar_.get();
}

bool LinuxStatusItem::trayIsThere() const
{
    // Before the first tray icon any kind will do, afterwards only the kind that Qt has decided for.
    if (!tray_)
        return statusNotifierHost_.isPresent() || xembedHost_.isPresent();
    return tray_->protocol() == TrayProtocol::XEmbed ? xembedHost_.isPresent() : statusNotifierHost_.isPresent();
}

void LinuxStatusItem::choose()
{
    if (placement_ == StatusItemPlacement::Bar) {
        showInBar();
        return;
    }
    if (!statusNotifierHost_.isKnown()) // a bar that gives way at once would only flash
        return;
    if (trayIsThere()) {
        barDelay_.stop();
        bar_.reset();
        showInTray();
    } else if (placement_ == StatusItemPlacement::Automatic) {
        // A host that is started anew is back soon, and a window that comes up meanwhile would take the keyboard.
        if (inTray_)
            barDelay_.start(hostReturns);
        else if (!barDelay_.isActive())
            showInBar();
        hideInTray();
    } else {
        hideInTray();
    }
}

void LinuxStatusItem::showInTray()
{
    if (inTray_)
        return;
    inTray_ = true;
    if (!tray_)
        tray_ = std::make_unique<TrayStatusItem>();
    tray_->setContent(content_);
    tray_->setMenu(menu_);
    tray_->setShown(true);
}

void LinuxStatusItem::hideInTray()
{
    inTray_ = false;
    if (tray_)
        tray_->setShown(false);
}

void LinuxStatusItem::showInBar()
{
    if (bar_)
        return;
    bar_ = std::make_unique<MenuBarWindow>();
    bar_->setContent(content_);
    bar_->setMenu(menu_);
}

} // namespace

std::unique_ptr<StatusItem> makeStatusItem(StatusItemPlacement placement)
{
    return std::make_unique<LinuxStatusItem>(placement);
}

} // namespace quillon
