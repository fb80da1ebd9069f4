#pragma once

#include "MenuLayout_linux.h"
#include "StatusNotifierItem_linux.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QStringList>

namespace quillon {

/// A tray of the StatusNotifier kind: the watcher that items register with, and the host that shows them and draws
/// their menus. What is asked about an item is asked about the one that came first.
class FakeStatusNotifierTray final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost)

public:
    /// Puts the watcher on the bus, its host with it unless that comes later.
    explicit FakeStatusNotifierTray(const QDBusConnection& bus, bool withHost = true);
    ~FakeStatusNotifierTray() override;

    void setHost(bool present);

    /// Bus names of the items in the tray.
    QStringList items() const { return items_; }
    /// A property of the item.
    QVariant property(const QString& name);
    QString text(const QString& name) { return property(name).toString(); }
    QString toolTip() { return qdbus_cast<NotifierToolTip>(property(QStringLiteral("ToolTip"))).text; }
    NotifierPixmaps pixmaps(const QString& name) { return qdbus_cast<NotifierPixmaps>(property(name)); }
    /// Names of the signals of items so far.
    QStringList signalsOfItems() const { return signals_; }

    /// The items of the menu, top level.
    QList<MenuLayout> menu();
    /// Tells of what has happened to an item of the menu.
    void menuEvent(int id, const QString& event);
    /// Calls a method of the item that takes a place on the screen; the error's name when it is refused.
    QString callAtPlace(const QString& method);

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString& service); // NOLINT: names of the protocol

Q_SIGNALS:
    void StatusNotifierHostRegistered();
    void StatusNotifierHostUnregistered();

private Q_SLOTS:
    void noteSignal(const QDBusMessage& signal) { signals_.append(signal.member()); }

private:
    bool hasHost() const { return host_; }
    QDBusMessage call(const QString& path, const QString& interface, const QString& method,
                      const QVariantList& arguments);
    QDBusMessage callMenu(const QString& method, const QVariantList& arguments);

    QDBusConnection bus_;
    QDBusServiceWatcher itemWatcher_;
    QStringList items_;
    QStringList signals_;
    bool host_;
};

} // namespace quillon
