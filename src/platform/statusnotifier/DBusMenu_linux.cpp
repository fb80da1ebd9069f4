#include "DBusMenu_linux.h"

#include <QActionEvent>
#include <QGuiApplication>
#include <QMenu>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int rootId = 0;

QVariantMap propertiesOf(const QAction* action)
{
    return action ? menuItemProperties(*action) : QVariantMap{{u"children-display"_s, u"submenu"_s}};
}

void appendAll(const MenuLayout& layout, QList<MenuItemProperties>& items)
{
    items.append({layout.id, layout.properties});
    for (const MenuLayout& child : layout.children)
        appendAll(child, items);
}

} // namespace

DBusMenu::DBusMenu(const QDBusConnection& bus, const QString& path, ShowsWhatWaits showsWhatWaits)
    : bus_(bus)
    , path_(path)
    , showsWhatWaits_(std::move(showsWhatWaits))
{
    registerMenuTypes();
    bus_.registerObject(path_, this, QDBusConnection::ExportScriptableContents);
}

DBusMenu::~DBusMenu()
{
    bus_.unregisterObject(path_);
}

QString DBusMenu::textDirection() const
{
    return QGuiApplication::isRightToLeft() ? u"rtl"_s : u"ltr"_s;
}

void DBusMenu::setMenu(QMenu* menu)
{
    if (menu_ == menu)
        return;
    if (menu_)
        menu_->removeEventFilter(this);
    menu_ = menu;
    if (menu_)
        follow(*menu_);
    changedLayouts_.insert(rootId);
    tellSoon();
}

uint DBusMenu::GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames, MenuLayout& layout)
{
    if (const auto entry = findOrRefuse(parentId))
        layout = layoutOf(parentId, *entry, recursionDepth, propertyNames);
    return revision_;
}

QList<MenuItemProperties> DBusMenu::GetGroupProperties(const QList<int>& ids, const QStringList& propertyNames)
{
    QList<MenuItemProperties> found;
    if (ids.isEmpty())
        appendAll(layoutOf(rootId, {nullptr, menu_}, -1, propertyNames), found);
    for (const int id : ids) {
        if (const auto entry = find(id))
            found.append({id, filtered(propertiesOf(entry->action), propertyNames)});
    }
    return found;
}

QDBusVariant DBusMenu::GetProperty(int id, const QString& name)
{
    const auto entry = findOrRefuse(id);
    const QVariantMap properties = entry ? propertiesOf(entry->action) : QVariantMap();
    if (entry && !properties.contains(name))
        sendErrorReply(QDBusError::InvalidArgs, u"item %1 has no property \"%2\""_s.arg(id).arg(name));
    return QDBusVariant(properties.value(name, QString()));
}

void DBusMenu::Event(int id, const QString& eventId, const QDBusVariant& /*data*/, uint /*timestamp*/)
{
    if (const auto entry = findOrRefuse(id))
        takeEvent(id, *entry, eventId);
}

QList<int> DBusMenu::EventGroup(const QList<MenuEvent>& events)
{
    QList<int> unknown;
    for (const MenuEvent& event : events) {
        if (const auto entry = find(event.id))
            takeEvent(event.id, *entry, event.name);
        else
            unknown.append(event.id);
    }
    return unknown;
}

bool DBusMenu::AboutToShow(int id)
{
    const auto entry = findOrRefuse(id);
    return entry && prepare(id, *entry);
}

QList<int> DBusMenu::AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors)
{
    QList<int> changed;
    for (const int id : ids) {
        const auto entry = find(id);
        if (!entry)
            idErrors.append(id);
        else if (prepare(id, *entry))
            changed.append(id);
    }
    return changed;
}

/// Hosts take an item's kind only once, so that an action of another kind is a new item to them.
int DBusMenu::idOf(const QAction& action)
{
    const QVariantMap kind = menuItemKind(action);
    auto known = identities_.find(&action);
    if (known == identities_.end()) {
        connect(&action, &QObject::destroyed, this, [this](const QObject* gone) { identities_.remove(gone); });
        known = identities_.insert(&action, {++latestId_, kind});
    } else if (known->kind != kind) {
        *known = {++latestId_, kind};
    }
    return known->id;
}

/// Nothing for a menu that no known item opens.
std::optional<int> DBusMenu::idOf(const QMenu& menu) const
{
    if (&menu == menu_)
        return rootId;
    const auto known = identities_.find(menu.menuAction());
    return known == identities_.end() ? std::nullopt : std::optional(known->id);
}

std::optional<DBusMenu::Entry> DBusMenu::find(int id)
{
    if (id == rootId)
        return Entry{nullptr, menu_};
    return menu_ ? findIn(*menu_, id) : std::nullopt;
}

std::optional<DBusMenu::Entry> DBusMenu::findIn(const QMenu& menu, int id)
{
    const auto actions = menu.actions();
    for (QAction* action : actions) {
        if (idOf(*action) == id)
            return Entry{action, action->menu()};
        if (action->menu()) {
            if (const auto below = findIn(*action->menu(), id))
                return below;
        }
    }
    return std::nullopt;
}

std::optional<DBusMenu::Entry> DBusMenu::findOrRefuse(int id)
{
    const auto entry = find(id);
    if (!entry)
        sendErrorReply(QDBusError::InvalidArgs, u"there is no item %1"_s.arg(id));
    return entry;
}

MenuLayout DBusMenu::layoutOf(int id, const Entry& entry, int depth, const QStringList& names)
{
    MenuLayout layout{id, filtered(propertiesOf(entry.action), names), {}};
    if (depth == 0 || !entry.menu) // a negative depth is without end
        return layout;
    const auto actions = entry.menu->actions();
    for (QAction* action : actions)
        layout.children.append(layoutOf(idOf(*action), {action, action->menu()}, depth - 1, names));
    return layout;
}

void DBusMenu::follow(QMenu& menu)
{
    menu.installEventFilter(this);
    const auto actions = menu.actions();
    for (const QAction* action : actions) {
        if (action->menu())
            follow(*action->menu());
    }
}

bool DBusMenu::eventFilter(QObject* watched, QEvent* event)
{
    const bool changed = event->type() == QEvent::ActionChanged;
    auto* menu = qobject_cast<QMenu*>(watched);
    if (menu && changed) {
        actionChanged(*menu, *static_cast<QActionEvent*>(event)->action());
    } else if (menu && (event->type() == QEvent::ActionAdded || event->type() == QEvent::ActionRemoved)) {
        follow(*menu);
        if (const auto id = idOf(*menu)) {
            changedLayouts_.insert(*id);
            tellSoon();
        }
    }
    return QObject::eventFilter(watched, event);
}

void DBusMenu::actionChanged(const QMenu& menu, const QAction& action)
{
    const auto known = identities_.find(&action);
    const auto parent = idOf(menu);
    if (known == identities_.end() || !parent)
        return; // no host has asked for it yet
    if (known->kind == menuItemKind(action)) {
        changedItems_.insert(known->id);
    } else {
        changedLayouts_.insert(*parent);
        if (action.menu())
            follow(*action.menu());
    }
    tellSoon();
}

/// What changes in one turn of the event loop is told at once.
void DBusMenu::tellSoon()
{
    if (!std::exchange(tellsSoon_, true))
        QMetaObject::invokeMethod(this, &DBusMenu::tell, Qt::QueuedConnection);
}

void DBusMenu::tell()
{
    tellsSoon_ = false;
    const auto layouts = std::exchange(changedLayouts_, {});
    if (!layouts.isEmpty())
        ++revision_;
    for (const int id : layouts)
        Q_EMIT LayoutUpdated(revision_, id);
    if (!changedItems_.isEmpty())
        Q_EMIT ItemsPropertiesUpdated(GetGroupProperties(std::exchange(changedItems_, {}).values(), {}), {});
}

void DBusMenu::takeEvent(int id, const Entry& entry, const QString& name)
{
    if (name == "clicked"_L1) {
        // What an item does may take its time, and the host waits for an answer.
        QMetaObject::invokeMethod(
            this, [this, id] { click(id); }, Qt::QueuedConnection);
    } else if (name == "opened"_L1) {
        open(id, entry);
    } else if (name == "closed"_L1 && entry.menu) {
        Q_EMIT entry.menu->aboutToHide();
    }
}

/// Whether the host has to ask for the layout anew.
bool DBusMenu::prepare(int id, const Entry& entry)
{
    open(id, entry);
    const bool changed = !changedLayouts_.isEmpty();
    tell();
    return changed;
}

/// Some hosts say that a menu is about to show, some that it has opened, many both: the menu is told each time.
void DBusMenu::open(int id, const Entry& entry)
{
    if (id == rootId)
        showsWhatWaits_();
    if (entry.menu)
        Q_EMIT entry.menu->aboutToShow();
}

void DBusMenu::click(int id)
{
    const auto entry = find(id);
    if (!entry || !entry->action || !entry->action->isEnabled() || !entry->action->isVisible())
        return;
    if (!showsWhatWaits_()) {
        entry->action->trigger();
    } else {
        changedItems_.insert(id); // the host may have toggled its mark
        tellSoon();
    }
}

} // namespace quillon
