#pragma once

#include "MenuLayout_linux.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>

#include <functional>
#include <optional>

class QAction;
class QMenu;

namespace quillon {

/// A menu for hosts that draw it themselves, over com.canonical.dbusmenu: it follows a QMenu with its submenus, opens
/// and closes it as the host does its own, and triggers what is clicked on there.
class DBusMenu final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version CONSTANT)
    Q_PROPERTY(QString TextDirection READ textDirection CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT)

public:
    /// Asked as the menu opens and ahead of a click: shows the user what has to be answered first, if anything has to,
    /// for the host knows nothing of windows that block all others.
    using ShowsWhatWaits = std::function<bool()>;

    DBusMenu(const QDBusConnection& bus, const QString& path, ShowsWhatWaits showsWhatWaits);
    ~DBusMenu() override;

    QString path() const { return path_; }
    /// The menu stays the caller's and may go first.
    void setMenu(QMenu* menu);

    uint version() const { return 3; }
    QString textDirection() const;
    QString status() const { return QStringLiteral("normal"); }
    QStringList iconThemePath() const { return {}; }

Q_SIGNALS:
    // Signals of the protocol.
    Q_SCRIPTABLE void ItemsPropertiesUpdated(const QList<quillon::MenuItemProperties>& updated,
                                             const QList<quillon::MenuItemPropertyNames>& removed);
    Q_SCRIPTABLE void LayoutUpdated(uint revision, int parent);

public Q_SLOTS:
    // Methods of the protocol; item 0 is the menu itself. Qt's D-Bus module knows types by their full names.
    Q_SCRIPTABLE uint GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames,
                                quillon::MenuLayout& layout);
    Q_SCRIPTABLE QList<quillon::MenuItemProperties> GetGroupProperties(const QList<int>& ids,
                                                                       const QStringList& propertyNames);
    Q_SCRIPTABLE QDBusVariant GetProperty(int id, const QString& name);
    Q_SCRIPTABLE void Event(int id, const QString& eventId, const QDBusVariant& data, uint timestamp);
    Q_SCRIPTABLE QList<int> EventGroup(const QList<quillon::MenuEvent>& events);
    Q_SCRIPTABLE bool AboutToShow(int id);
    Q_SCRIPTABLE QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// An item of the menu or, without an action, the menu itself.
    struct Entry {
        QAction* action = nullptr;
        QMenu* menu = nullptr; ///< that it opens
    };
    struct Identity {
        int id;
        QVariantMap kind;
    };

    int idOf(const QAction& action);
    std::optional<int> idOf(const QMenu& menu) const;
    std::optional<Entry> find(int id);
    std::optional<Entry> findIn(const QMenu& menu, int id);
    std::optional<Entry> findOrRefuse(int id);
    MenuLayout layoutOf(int id, const Entry& entry, int depth, const QStringList& names);

    void follow(QMenu& menu);
    void actionChanged(const QMenu& menu, const QAction& action);
    void tellSoon();
    void tell();

    void takeEvent(int id, const Entry& entry, const QString& name);
    bool prepare(int id, const Entry& entry);
    void open(int id, const Entry& entry);
    void click(int id);

    QDBusConnection bus_;
    const QString path_;
    const ShowsWhatWaits showsWhatWaits_;
    QPointer<QMenu> menu_;
    QHash<const QObject*, Identity> identities_; ///< of actions, never followed from here
    int latestId_ = 0;
    uint revision_ = 1;
    QSet<int> changedItems_;
    QSet<int> changedLayouts_; ///< by the item that opens the menu
    bool tellsSoon_ = false;
};

} // namespace quillon
