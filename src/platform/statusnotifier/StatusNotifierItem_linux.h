#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QIcon>
#include <QList>
#include <QObject>
#include <QString>

#include <memory>

namespace quillon {

// What org.kde.StatusNotifierItem says of pictures and tool tips, in the shapes in which it goes over the bus:
// https://www.freedesktop.org/wiki/Specifications/StatusNotifierItem/Icons/

/// "(iiay)": a picture's pixels, row by row, each as alpha, red, green and blue.
struct NotifierPixmap {
    int width = 0;
    int height = 0;
    QByteArray pixels;

    bool operator==(const NotifierPixmap&) const = default;
};

/// One picture in several sizes.
using NotifierPixmaps = QList<NotifierPixmap>;

/// "(sa(iiay)ss)", of which the icon stays empty.
struct NotifierToolTip {
    QString title;
    QString text; ///< HTML
};

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierPixmap& pixmap);
const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierPixmap& pixmap);
QDBusArgument& operator<<(QDBusArgument& argument, const NotifierToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierToolTip& toolTip);

/// Makes these shapes known to Qt's D-Bus module.
void registerNotifierTypes();

/// The icon in each of its sizes.
NotifierPixmaps notifierPixmaps(const QIcon& icon);

/// Knows whether a tray of the StatusNotifier protocol takes items; asks and listens, never waits.
class StatusNotifierHostWatcher final : public QObject {
    Q_OBJECT

public:
    explicit StatusNotifierHostWatcher(const QDBusConnection& bus);
    ~StatusNotifierHostWatcher() override;

    /// Whether the first answer has come; without a bus it is there from the beginning.
    bool isKnown() const { return known_; }
    bool isPresent() const { return present_; }

Q_SIGNALS:
    /// The first answer has come, or the answer has changed.
    void changed();

private Q_SLOTS:
    void ask();

private:
    void settle(bool present);

    QDBusConnection bus_;
    QDBusServiceWatcher serviceWatcher_;
    std::unique_ptr<QDBusPendingCallWatcher> question_;
    bool known_ = false;
    bool present_ = false;
};

/// What a host shows of a program.
struct NotifierContent {
    QString name;            ///< of the program
    QString toolTip;         ///< plain text of one line or more, shown below the name
    QString label;           ///< beside the icon, on one line; hosts of Ayatana's kind show it
    QString iconName;        ///< in a theme; empty where only the pixels tell all
    NotifierPixmaps pixmaps; ///< for hosts that find no icon of that name
    QString iconDescription; ///< what the icon stands for; empty where it says nothing but the name
    bool needsAttention = false;

    bool operator==(const NotifierContent&) const = default;
};

/// A program's item on D-Bus for StatusNotifier hosts, which draw its menu themselves. It registers with every watcher
/// that comes, from its construction on.
class StatusNotifierItem final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category CONSTANT)
    Q_PROPERTY(QString Id READ id CONSTANT)
    Q_PROPERTY(QString Title READ title NOTIFY NewTitle)
    Q_PROPERTY(QString Status READ status NOTIFY NewStatus)
    Q_PROPERTY(QString IconThemePath READ iconThemePath CONSTANT)
    Q_PROPERTY(QString IconName READ iconName NOTIFY NewIcon)
    Q_PROPERTY(quillon::NotifierPixmaps IconPixmap READ iconPixmap NOTIFY NewIcon)
    Q_PROPERTY(QString IconAccessibleDesc READ iconAccessibleDesc NOTIFY NewIcon)
    Q_PROPERTY(QString AttentionIconName READ attentionIconName NOTIFY NewAttentionIcon)
    Q_PROPERTY(quillon::NotifierPixmaps AttentionIconPixmap READ attentionIconPixmap NOTIFY NewAttentionIcon)
    Q_PROPERTY(QString AttentionAccessibleDesc READ iconAccessibleDesc NOTIFY NewAttentionIcon)
    Q_PROPERTY(quillon::NotifierToolTip ToolTip READ toolTip NOTIFY NewToolTip)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu READ menu CONSTANT)
    Q_PROPERTY(QString XAyatanaLabel READ label NOTIFY XAyatanaNewLabel)
    Q_PROPERTY(QString XAyatanaLabelGuide READ labelGuide CONSTANT)

public:
    /// @param iconThemePath where themes lie that hold the icons; empty when hosts look there anyway
    StatusNotifierItem(const QDBusConnection& bus, const QString& menuPath, const QString& iconThemePath);
    ~StatusNotifierItem() override;

    void setContent(const NotifierContent& content);

    QString category() const { return QStringLiteral("SystemServices"); }
    QString id() const;
    QString title() const;
    QString status() const;
    QString iconThemePath() const { return iconThemePath_; }
    QString iconName() const { return content_.iconName; }
    NotifierPixmaps iconPixmap() const { return content_.pixmaps; }
    QString iconAccessibleDesc() const { return content_.iconDescription; }
    QString attentionIconName() const { return content_.needsAttention ? content_.iconName : QString(); }
    NotifierPixmaps attentionIconPixmap() const;
    NotifierToolTip toolTip() const;
    bool itemIsMenu() const { return true; }
    QDBusObjectPath menu() const { return menuPath_; }
    QString label() const { return content_.label; }
    QString labelGuide() const { return {}; }

Q_SIGNALS:
    /// The item is to show its menu itself.
    void menuRequested();

    // Signals of the protocol.
    Q_SCRIPTABLE void NewTitle();
    Q_SCRIPTABLE void NewIcon();
    Q_SCRIPTABLE void NewAttentionIcon();
    Q_SCRIPTABLE void NewToolTip();
    Q_SCRIPTABLE void NewStatus(const QString& status);
    Q_SCRIPTABLE void XAyatanaNewLabel(const QString& label, const QString& guide);

public Q_SLOTS:
    // Methods of the protocol, called by hosts that draw no menus themselves.
    Q_SCRIPTABLE void Activate(int x, int y);
    Q_SCRIPTABLE void ContextMenu(int x, int y);

private:
    void registerWithWatcher();

    QDBusConnection bus_;
    QDBusServiceWatcher watchers_;
    const QDBusObjectPath menuPath_;
    const QString iconThemePath_;
    NotifierContent content_;
};

} // namespace quillon
