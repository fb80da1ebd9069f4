#pragma once

#include "DBusMenu_linux.h"
#include "StatusItem.h"
#include "StatusNotifierItem_linux.h"
#include "TrayProtocols_linux.h"

#include <QAbstractNativeEventFilter>
#include <QDir>
#include <QObject>
#include <QPointer>
#include <QPushButton>
#include <QStringList>
#include <QSystemTrayIcon>
#include <QWidget>

#include <cstdint>
#include <optional>

class QScreen;
struct xcb_connection_t;

// The ways of showing the status item: in a slim bar (`MenuBarWindow_linux.cpp`), and in trays of either protocol
// (`TrayStatusItems_linux.cpp`).

namespace quillon {

/// What the item says, whichever way it is shown.
struct StatusItemContent {
    AttributedTitle title;
    std::optional<SymbolImage> image;

    QString description() const { return image ? image->description : QString(); }
    /// The title's lines, and what the image stands for below them.
    QString text() const
    {
        const QStringList lines{title.text, description()};
        return lines.join(u'\n').trimmed();
    }
};

/// One way of showing the status item.
class ShownStatusItem {
public:
    ShownStatusItem() = default;
    ShownStatusItem(const ShownStatusItem&) = delete;
    ShownStatusItem& operator=(const ShownStatusItem&) = delete;
    virtual ~ShownStatusItem() = default;

    virtual void setContent(const StatusItemContent& content) = 0;
    /// The menu stays the caller's.
    virtual void setMenu(QMenu* menu) = 0;
    virtual PopoverAnchor anchor() const = 0;
};

/// The item inside the bar: a title of one or two lines, an image to the right of it; opens its menu on a press of the
/// mouse, the space bar, Return or Down, or brings the window to the front that has to be answered first.
class MenuBarButton final : public QPushButton {
    Q_OBJECT

public:
    explicit MenuBarButton(QWidget* parent);

    void setContent(const StatusItemContent& content);
    void setPopupMenu(QMenu* menu);
    void openMenu();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QFont titleFont() const;
    QStringList lines() const;
    qreal linePitch() const;
    qreal blockHeight() const;
    int titleWidth() const;
    int imageSide() const;
    void paintGround(QPainter& painter) const;
    void paintTitle(QPainter& painter, const QRect& area) const;

    StatusItemContent content_;
    QPointer<QMenu> menu_;
};

/// Makes a window that has not been shown yet a panel of the desktop, for the X11 window manager: it is on every
/// desktop, stays when the desktop is shown, and is no window among others. Does nothing on other platforms.
void makeDock(WId window);

/// Asks the X11 window manager to keep other windows off the part of the screen above the lower edge of `bar`, for as
/// long as the window lives. Does nothing on other platforms, and where another monitor lies above.
/// @param bar geometry of the window in logical pixels, at the top of the screen
void reserveTopStrip(WId window, const QScreen& screen, const QRect& bar);

/// The item in a slim bar of our own at the top of the primary screen, for desktops without a tray. Where clients
/// cannot place windows (Wayland) it is a normal small window with a title.
class MenuBarWindow final : public QWidget, public ShownStatusItem {
    Q_OBJECT

public:
    MenuBarWindow();

    void setContent(const StatusItemContent& content) override;
    void setMenu(QMenu* menu) override;
    PopoverAnchor anchor() const override;

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void followPrimaryScreen();
    void place();

    bool isBar_;
    MenuBarButton* button_;
    QPointer<QScreen> screen_; ///< the one that the bar lies on
    QRect strip_;              ///< where it lies
};

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
