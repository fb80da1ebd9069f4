#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QStringList>

namespace quillon {

/// A tray of the StatusNotifier kind: the watcher that items register with, and the host that would show them.
class FakeStatusNotifierTray final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost)
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ items)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion)

public:
    /// Puts the watcher on the bus, its host with it unless that comes later.
    explicit FakeStatusNotifierTray(const QDBusConnection& bus, bool withHost = true);
    ~FakeStatusNotifierTray() override;

    void setHost(bool present);

    /// Bus names of the items in the tray.
    QStringList items() const { return items_; }
    QString toolTip(const QString& item);
    /// The pixels of the item's icon, all sizes one after the other.
    QByteArray iconData(const QString& item);
    /// The labels of the item's exported menu, top level, as the host shows them.
    QStringList menuLabels(const QString& item);
    void activate(const QString& item);

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString& service); // NOLINT: names of the protocol
    void RegisterStatusNotifierHost(const QString& /*service*/) {}

Q_SIGNALS:
    void StatusNotifierItemRegistered(const QString& service);
    void StatusNotifierItemUnregistered(const QString& service);
    void StatusNotifierHostRegistered();
    void StatusNotifierHostUnregistered();

private:
    bool hasHost() const { return host_; }
    int protocolVersion() const { return 0; }
    QDBusArgument itemProperty(const QString& item, const QString& name);
    QVariantList call(const QString& item, const QString& path, const QString& interface, const QString& method,
                      const QVariantList& arguments);

    QDBusConnection bus_;
    QDBusServiceWatcher itemWatcher_;
    QStringList items_;
    bool host_;
};

} // namespace quillon
