#pragma once

#include "DBusMenu_linux.h"
#include "ShownStatusItem_linux.h"
#include "StatusNotifierItem_linux.h"
#include "TrayProtocols_linux.h"

#include <QAbstractNativeEventFilter>
#include <QDir>
#include <QObject>
#include <QPointer>
#include <QSystemTrayIcon>

#include <cstdint>

struct xcb_connection_t;

namespace quillon {

/// What a host is told of the item, but for the pixels of its icon. A host that finds an icon by its name looks at no
/// pixels: the name stays empty where the icon shows a colour or a progress.
/// @param share where `icons/` lies that the program was installed with
NotifierContent notifierContent(const StatusItemContent& content, const QDir& share);

/// The item as StatusNotifier hosts show it, which tint the icon, draw the menu and may show the title beside it.
class NotifierStatusItem final : public QObject, public ShownStatusItem {
    Q_OBJECT

public:
    explicit NotifierStatusItem(const QDBusConnection& bus);
    ~NotifierStatusItem() override;

    void setContent(const StatusItemContent& content) override;
    void setMenu(QMenu* menu) override;
    /// Hosts do not tell where they show the item.
    PopoverAnchor anchor() const override { return {}; }

private:
    void openMenu();

    const QDir share_;
    QPointer<QMenu> menu_;
    DBusMenu exported_;
    StatusNotifierItem item_;
    std::optional<SymbolImage> image_;
    NotifierPixmaps pixmaps_; ///< of the image
};

/// Qt's own connection to the X11 display; nothing on other platforms.
xcb_connection_t* x11Connection();

/// Knows whether a tray of the XEmbed protocol is on the X11 display: whether somebody owns the selection that stands
/// for it. On other platforms there is none.
class XEmbedHostWatcher final : public QObject, private QAbstractNativeEventFilter {
    Q_OBJECT

public:
    XEmbedHostWatcher();
    ~XEmbedHostWatcher() override;

    bool isPresent() const { return present_; }

Q_SIGNALS:
    /// Emitted from the event loop, never from within the handling of an X11 event.
    void changed();

private:
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;
    bool watchSelection();
    void setPresent(bool present);

    xcb_connection_t* connection_;
    std::uint32_t selection_ = 0;
    std::uint8_t selectionNotify_ = 0; ///< event number of the extension's notice
    bool present_ = false;
};

/// The item as an icon of an XEmbed tray, its tool tip being the program's name and what the item says.
///
/// Qt looks for a StatusNotifier host when the first tray icon of a process is made, and stays with XEmbed or with
/// StatusNotifier for good. So this is made only once an XEmbed tray is there and no host, and then kept: hidden while
/// the tray is away, shown again when one returns.
class XEmbedStatusItem final : public QObject, public ShownStatusItem {
    Q_OBJECT

public:
    XEmbedStatusItem();
    ~XEmbedStatusItem() override;

    /// False, and nothing is shown, where a host has come so shortly ago that Qt has decided for it.
    bool show();
    void hide();
    void setContent(const StatusItemContent& content) override;
    void setMenu(QMenu* menu) override;
    PopoverAnchor anchor() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void openMenu();
    QPoint besideIcon(const QRect& icon) const;

    QSystemTrayIcon icon_;
    std::optional<SymbolImage> image_;
    QPointer<QMenu> menu_;
};

} // namespace quillon
