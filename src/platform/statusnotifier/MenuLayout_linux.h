#pragma once

#include <QDBusArgument>
#include <QDBusVariant>
#include <QList>
#include <QStringList>
#include <QVariantMap>

class QAction;

namespace quillon {

// What com.canonical.dbusmenu says of a menu, in the shapes in which it goes over the bus:
// https://github.com/AyatanaIndicators/libdbusmenu/blob/master/libdbusmenu-glib/dbus-menu.xml

/// "(ia{sv}av)": an item with those below it.
struct MenuLayout {
    int id = 0;
    QVariantMap properties;
    QList<MenuLayout> children;
};

/// "(ia{sv})"
struct MenuItemProperties {
    int id = 0;
    QVariantMap properties;
};

/// "(ias)"
struct MenuItemPropertyNames {
    int id = 0;
    QStringList names;
};

/// "(isvu)": what has happened to an item in the host's menu.
struct MenuEvent {
    int id = 0;
    QString name;
    QDBusVariant data;
    uint timestamp = 0;
};

QDBusArgument& operator<<(QDBusArgument& argument, const MenuLayout& layout);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuLayout& layout);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuItemProperties& item);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuItemProperties& item);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuItemPropertyNames& item);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuItemPropertyNames& item);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuEvent& event);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEvent& event);

/// Makes these shapes known to Qt's D-Bus module.
void registerMenuTypes();

/// The label for an action's text. An underscore marks the access key, as an ampersand does in Qt, and two stand for
/// one; what follows a tabulator is a shortcut and no part of the label.
QString menuLabel(const QString& actionText);

/// Whether an item is a separator, a check box, a radio button or opens a submenu. Hosts take these from an item that
/// is new to them and never again.
QVariantMap menuItemKind(const QAction& action);

/// All properties of an item, its kind among them.
QVariantMap menuItemProperties(const QAction& action);

/// Those of the properties that were asked for; no names ask for all.
QVariantMap filtered(const QVariantMap& properties, const QStringList& names);

} // namespace quillon
