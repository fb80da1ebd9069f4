#include "XEmbedStatusItem_linux.h"

#include "ModalWindow.h"
#include "Symbol_linux.h"

#include <QApplication>
#include <QEvent>
#include <QMenu>
#include <QScreen>

namespace quillon {

using namespace Qt::StringLiterals;

XEmbedStatusItem::XEmbedStatusItem()
{
    icon_.setIcon(trayIcon(image_));
    qApp->installEventFilter(this);
    connect(&icon_, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger) // Qt answers the context click
            openMenu();
    });
}

XEmbedStatusItem::~XEmbedStatusItem() = default;

bool XEmbedStatusItem::show()
{
    icon_.show();
    // Only an embedded icon knows where it is.
    if (icon_.geometry().isNull())
        icon_.hide();
    return icon_.isVisible();
}

void XEmbedStatusItem::hide()
{
    icon_.hide();
}

void XEmbedStatusItem::setContent(const StatusItemContent& content)
{
    icon_.setToolTip(u"%1\n%2"_s.arg(QGuiApplication::applicationDisplayName(), content.text()).trimmed());
    if (image_ == content.image)
        return;
    image_ = content.image;
    icon_.setIcon(trayIcon(image_));
}

void XEmbedStatusItem::setMenu(QMenu* menu)
{
    menu_ = menu;
    icon_.setContextMenu(menu);
}

PopoverAnchor XEmbedStatusItem::anchor() const
{
    return {nullptr, icon_.geometry()};
}

bool XEmbedStatusItem::eventFilter(QObject* watched, QEvent* event)
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

void XEmbedStatusItem::openMenu()
{
    if (!bringModalWindowToFront() && menu_)
        menu_->popup(besideIcon(icon_.geometry()));
}

/// Never over the icon: a second click there is to close the menu, not to choose from it.
QPoint XEmbedStatusItem::besideIcon(const QRect& icon) const
{
    const QScreen* screen = QGuiApplication::screenAt(icon.center());
    const int height = menu_->sizeHint().height();
    const bool fitsBelow = !screen || icon.bottom() + height <= screen->geometry().bottom();
    return {icon.left(), fitsBelow ? icon.bottom() + 1 : icon.top() - height};
}

} // namespace quillon
