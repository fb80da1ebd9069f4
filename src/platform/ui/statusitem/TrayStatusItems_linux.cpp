#include "Alert.h"
#include "ShownStatusItem_linux.h"
#include "Symbol_linux.h"
#include "TrayProtocols_linux.h"

#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QFile>
#include <QGuiApplication>
#include <QMenu>
#include <QScreen>
#include <QStandardPaths>

#include <xcb/xfixes.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// In the prefix that the program runs from.
QDir shareFolder()
{
    return QDir(QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../share"_L1));
}

/// Where hosts look for themes they need not be told of.
QString iconThemePath(const QDir& share)
{
    const bool isKnown = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation).contains(share.path());
    return isKnown ? QString() : share.filePath(u"icons"_s);
}

/// A label stands in one line: "Next: 5h 12m", "45.3% – 2m".
QString singleLine(const QString& title)
{
    QString line = title;
    line.replace(u":\n"_s, u": "_s);
    return line.replace(u"\n"_s, u" – "_s);
}

QString iconName(const SymbolImage& image, const QDir& share)
{
    const QString name = u"%1.%2-symbolic"_s.arg(QGuiApplication::desktopFileName(), image.name);
    const bool isInstalled = share.exists(u"icons/hicolor/symbolic/apps/%1.svg"_s.arg(name));
    return isInstalled && !image.paletteColor && !image.percent ? name : QString();
}

} // namespace

NotifierContent notifierContent(const StatusItemContent& content, const QDir& share)
{
    NotifierContent shown;
    shown.name = QGuiApplication::applicationDisplayName();
    shown.toolTip = content.text();
    shown.label = singleLine(content.title.text);
    if (content.image)
        shown.iconName = iconName(*content.image, share);
    shown.iconDescription = content.description();
    shown.needsAttention = content.image && content.image->needsAttention;
    return shown;
}

NotifierStatusItem::NotifierStatusItem(const QDBusConnection& bus)
    : share_(shareFolder())
    , exported_(bus, u"/MenuBar"_s, bringModalWindowToFront)
    , item_(bus, exported_.path(), iconThemePath(share_))
    , pixmaps_(notifierPixmaps(trayIcon(image_)))
{
    connect(&item_, &StatusNotifierItem::menuRequested, this, &NotifierStatusItem::openMenu);
}

NotifierStatusItem::~NotifierStatusItem() = default;

void NotifierStatusItem::setContent(const StatusItemContent& content)
{
    if (image_ != content.image) {
        image_ = content.image;
        pixmaps_ = notifierPixmaps(trayIcon(image_));
    }
    NotifierContent shown = notifierContent(content, share_);
    shown.pixmaps = pixmaps_;
    item_.setContent(shown);
}

void NotifierStatusItem::setMenu(QMenu* menu)
{
    menu_ = menu;
    exported_.setMenu(menu);
}

void NotifierStatusItem::openMenu()
{
    if (bringModalWindowToFront() || !menu_)
        return;
    // Wayland does not tell where the pointer is.
    const bool pointerKnown = !QGuiApplication::platformName().startsWith("wayland"_L1);
    menu_->popup(pointerKnown ? QCursor::pos() : QGuiApplication::primaryScreen()->availableGeometry().topRight());
}

xcb_connection_t* x11Connection()
{
    // Platforms without a display have the interface too, and no connection behind it.
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

XEmbedHostWatcher::XEmbedHostWatcher()
    : connection_(x11Connection())
{
    if (!connection_ || !watchSelection())
        return;
    qGuiApp->installNativeEventFilter(this);
    present_ = isOwned(connection_, selection_);
}

XEmbedHostWatcher::~XEmbedHostWatcher() = default;

bool XEmbedHostWatcher::watchSelection()
{
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(connection_, &xcb_xfixes_id);
    if (!extension || !extension->present)
        return false;
    // The server knows the extension's other requests only after the client has told its version.
    const XcbReply<xcb_xfixes_query_version_reply_t> version(xcb_xfixes_query_version_reply(
        connection_, xcb_xfixes_query_version(connection_, XCB_XFIXES_MAJOR_VERSION, XCB_XFIXES_MINOR_VERSION),
        nullptr));
    selection_ = internAtom(connection_, trayprotocols::traySelection);
    if (!version || selection_ == XCB_ATOM_NONE)
        return false;
    selectionNotify_ = static_cast<std::uint8_t>(extension->first_event + XCB_XFIXES_SELECTION_NOTIFY);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
    xcb_xfixes_select_selection_input(connection_, root, selection_,
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    return true;
}

bool XEmbedHostWatcher::nativeEventFilter(const QByteArray& /*eventType*/, void* message, qintptr* /*result*/)
{
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    constexpr std::uint8_t sentFlag = 0x80; // set in events that another client has sent
    if ((event->response_type & ~sentFlag) != selectionNotify_)
        return false;
    const auto* notice = static_cast<const xcb_xfixes_selection_notify_event_t*>(message);
    if (notice->selection == selection_) {
        const bool owned =
            notice->subtype == XCB_XFIXES_SELECTION_EVENT_SET_SELECTION_OWNER && notice->owner != XCB_NONE;
        QMetaObject::invokeMethod(
            this, [this, owned] { setPresent(owned); }, Qt::QueuedConnection);
    }
    return false;
}

void XEmbedHostWatcher::setPresent(bool present)
{
    if (present_ == present)
        return;
    present_ = present;
    Q_EMIT changed();
}

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
