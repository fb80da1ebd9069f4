#include "MenuLayout_linux.h"

#include <QAction>
#include <QActionGroup>
#include <QDBusMetaType>
#include <QMenu>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

template<typename... Fields>
QDBusArgument& write(QDBusArgument& argument, const Fields&... fields)
{
    argument.beginStructure();
    (argument << ... << fields);
    argument.endStructure();
    return argument;
}

template<typename... Fields>
const QDBusArgument& read(const QDBusArgument& argument, Fields&... fields)
{
    argument.beginStructure();
    (argument >> ... >> fields);
    argument.endStructure();
    return argument;
}

} // namespace

QDBusArgument& operator<<(QDBusArgument& argument, const MenuLayout& layout)
{
    argument.beginStructure();
    argument << layout.id << layout.properties;
    argument.beginArray(QMetaType::fromType<QDBusVariant>());
    for (const MenuLayout& child : layout.children)
        argument << QDBusVariant(QVariant::fromValue(child));
    argument.endArray();
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuLayout& layout)
{
    argument.beginStructure();
    argument >> layout.id >> layout.properties;
    argument.beginArray();
    while (!argument.atEnd()) {
        QDBusVariant child;
        argument >> child;
        layout.children.append(qdbus_cast<MenuLayout>(child.variant()));
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuItemProperties& item)
{
    return write(argument, item.id, item.properties);
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuItemProperties& item)
{
    return read(argument, item.id, item.properties);
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuItemPropertyNames& item)
{
    return write(argument, item.id, item.names);
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuItemPropertyNames& item)
{
    return read(argument, item.id, item.names);
}

QDBusArgument& operator<<(QDBusArgument& argument, const MenuEvent& event)
{
    return write(argument, event.id, event.name, event.data, event.timestamp);
}

const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEvent& event)
{
    return read(argument, event.id, event.name, event.data, event.timestamp);
}

void registerMenuTypes()
{
    qDBusRegisterMetaType<MenuLayout>();
    qDBusRegisterMetaType<MenuItemProperties>();
    qDBusRegisterMetaType<QList<MenuItemProperties>>();
    qDBusRegisterMetaType<MenuItemPropertyNames>();
    qDBusRegisterMetaType<QList<MenuItemPropertyNames>>();
    qDBusRegisterMetaType<MenuEvent>();
    qDBusRegisterMetaType<QList<MenuEvent>>();
}

QString menuLabel(const QString& actionText)
{
    QString label;
    bool marked = false;
    bool hasAccessKey = false;
    for (const QChar c : actionText.section(u'\t', 0, 0)) {
        if (c == u'&' && !marked) {
            marked = true;
            continue;
        }
        if (marked && c != u'&' && !hasAccessKey) {
            hasAccessKey = true;
            label += u'_';
        }
        marked = false;
        label += c;
        if (c == u'_')
            label += c;
    }
    return label;
}

QVariantMap menuItemKind(const QAction& action)
{
    QVariantMap kind;
    if (action.isSeparator())
        kind[u"type"_s] = u"separator"_s;
    if (action.menu())
        kind[u"children-display"_s] = u"submenu"_s;
    if (action.isCheckable()) {
        const QActionGroup* group = action.actionGroup();
        kind[u"toggle-type"_s] = group && group->isExclusive() ? u"radio"_s : u"checkmark"_s;
    }
    return kind;
}

QVariantMap menuItemProperties(const QAction& action)
{
    QVariantMap properties = menuItemKind(action);
    properties[u"visible"_s] = action.isVisible();
    if (action.isSeparator())
        return properties;
    properties[u"label"_s] = menuLabel(action.text());
    properties[u"enabled"_s] = action.isEnabled();
    if (action.isCheckable())
        properties[u"toggle-state"_s] = action.isChecked() ? 1 : 0;
    return properties;
}

QVariantMap filtered(const QVariantMap& properties, const QStringList& names)
{
    if (names.isEmpty())
        return properties;
    QVariantMap chosen;
    for (const QString& name : names) {
        if (properties.contains(name))
            chosen[name] = properties[name];
    }
    return chosen;
}

} // namespace quillon
