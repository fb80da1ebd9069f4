#include "TrayStatusItem_linux.h"

#include "ModalWindow.h"
#include "Symbol_linux.h"

#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QMenu>
#include <QScreen>

namespace quillon {

using namespace Qt::StringLiterals;

TrayStatusItem::TrayStatusItem()
{
    updateIcon();
    qApp->installEventFilter(this);
    connect(&icon_, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        // The context click is answered by Qt or by the host itself.
        if (reason == QSystemTrayIcon::Trigger)
            openMenu();
    });
}

TrayStatusItem::~TrayStatusItem() = default;

void TrayStatusItem::setShown(bool shown)
{
    icon_.setVisible(shown);
    // Only an embedded icon knows where it is.
    if (shown && !protocol_) {
        protocol_ = icon_.geometry().isNull() ? TrayProtocol::StatusNotifier : TrayProtocol::XEmbed;
        attachMenu();
    }
}

void TrayStatusItem::setContent(const StatusItemContent& content)
{
    const QString name = QGuiApplication::applicationDisplayName();
    icon_.setToolTip(content.title.text.isEmpty() ? name : name + u'\n' + content.title.text);
    if (image_ == content.image)
        return;
    image_ = content.image;
    updateIcon();
}

void TrayStatusItem::setMenu(QMenu* menu)
{
    menu_ = menu;
    attachMenu();
}

void TrayStatusItem::attachMenu()
{
    const bool hostDrawsIt = protocol_ == TrayProtocol::StatusNotifier;
    auto exported = hostDrawsIt && menu_ ? std::make_unique<ExportedMenu>(*menu_) : nullptr;
    icon_.setContextMenu(exported ? exported.get() : menu_.data());
    exported_ = std::move(exported);
}

PopoverAnchor TrayStatusItem::anchor() const
{
    return {nullptr, icon_.geometry()};
}

bool TrayStatusItem::eventFilter(QObject* watched, QEvent* event)
{
    // An embedded icon is a window of Qt's own, which a modal one would leave dead.
    const bool isClick = event->type() == QEvent::MouseButtonPress;
    if ((isClick || event->type() == QEvent::WindowBlocked) && watched->inherits("QSystemTrayIconSys")) {
        if (isClick)
            return bringModalWindowToFront();
        letClicksThrough(*static_cast<QWidget*>(watched));
    }
    return QObject::eventFilter(watched, event);
}

void TrayStatusItem::updateIcon()
{
    if (image_) {
        icon_.setIcon(symbolIcon(*image_));
        return;
    }
    constexpr int side = 22;
    QPixmap nothing(side, side); // keeps the item's place
    nothing.fill(Qt::transparent);
    icon_.setIcon(nothing);
}

void TrayStatusItem::openMenu()
{
    if (bringModalWindowToFront() || !menu_)
        return;
    const QRect icon = icon_.geometry();
    // A StatusNotifier host does not tell where it shows the icon, and Wayland does not tell where the pointer is.
    const bool pointerKnown = QGuiApplication::platformName() != "wayland"_L1;
    menu_->popup(!icon.isNull() ? besideIcon(icon)
                 : pointerKnown ? QCursor::pos()
                                : QGuiApplication::primaryScreen()->availableGeometry().topRight());
}

/// Never over the icon: a second click there is to close the menu, not to choose from it.
QPoint TrayStatusItem::besideIcon(const QRect& icon) const
{
    const QScreen* screen = QGuiApplication::screenAt(icon.center());
    const int height = menu_->sizeHint().height();
    const bool fitsBelow = !screen || icon.bottom() + height <= screen->geometry().bottom();
    return {icon.left(), fitsBelow ? icon.bottom() + 1 : icon.top() - height};
}

} // namespace quillon
