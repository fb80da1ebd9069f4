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
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ items)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion)

public:
    /// Puts the watcher on the bus, its host with it unless that comes later. Where there is a watcher, this one waits
    /// to take its place.
    explicit FakeStatusNotifierTray(const QDBusConnection& bus, bool withHost = true);
    ~FakeStatusNotifierTray() override;

    void setHost(bool present);
    /// The host is there, and nobody has been told yet.
    void setHostSilently() { host_ = true; }

    /// Bus names of the items in the tray.
    QStringList items() const { return items_; }
    /// A property of the item, of that D-Bus type.
    QVariant property(const QString& name, const QString& signature);
    QString text(const QString& name) { return property(name, QStringLiteral("s")).toString(); }
    NotifierToolTip toolTip();
    NotifierPixmaps pixmaps(const QString& name);
    /// Names of the signals of items since the last call.
    QStringList takeSignals() { return std::exchange(signals_, {}); }

    /// The items of the menu, top level.
    QList<MenuLayout> menu();
    /// Tells of what has happened to an item of the menu.
    void menuEvent(int id, const QString& event);
    /// Calls a method of the item that takes a place on the screen; the error's name when it is refused.
    QString callAtPlace(const QString& method);

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString& service); // NOLINT: names of the protocol
    void RegisterStatusNotifierHost(const QString& /*service*/) {}

Q_SIGNALS:
    void StatusNotifierItemRegistered(const QString& service);
    void StatusNotifierItemUnregistered(const QString& service);
    void StatusNotifierHostRegistered();
    void StatusNotifierHostUnregistered();

private Q_SLOTS:
    void noteSignal(const QDBusMessage& signal) { signals_.append(signal.member()); }

private:
    bool hasHost() const { return host_; }
    int protocolVersion() const { return 0; }
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
