#include "Power_linux.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace quillon {

using namespace Qt::StringLiterals;

LogindSleepLock::LogindSleepLock(const QDBusConnection& systemBus, Mode mode)
    : bus_(systemBus)
    , mode_(mode)
{
    if (!bus_.isConnected())
        return; // Qt would ask who owns the name, and libdbus ends a program that asks over a lost connection
    qRegisterMetaType<QDBusUnixFileDescriptor>(); // Qt D-Bus looks the type of a slot's argument up by its name
    owner_.setConnection(bus_);
    owner_.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    owner_.addWatchedService(logind::service);
    connect(&owner_, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& newOwner) {
                lock_ = {};
                if (!newOwner.isEmpty())
                    request();
                Q_EMIT ownerChanged();
            });
}

void LogindSleepLock::hold(const QString& reason)
{
    if (reason_)
        return;
    reason_ = reason;
    request();
}

void LogindSleepLock::release()
{
    reason_.reset();
    lock_ = {};
}

void LogindSleepLock::request()
{
    if (!reason_ || !bus_.isConnected())
        return;
    auto call = QDBusMessage::createMethodCall(logind::service, logind::path, logind::interface, u"Inhibit"_s);
    call << u"sleep"_s << QCoreApplication::applicationName() << *reason_
         << (mode_ == Mode::Delay ? u"delay"_s : u"block"_s);
    call.setAutoStartService(false);
    bus_.callWithCallback(call, this, SLOT(take(QDBusUnixFileDescriptor)), SLOT(goWithout(QDBusError)));
}

void LogindSleepLock::take(const QDBusUnixFileDescriptor& lock)
{
    if (reason_) // else it was let go of meanwhile, and nothing would release it
        lock_ = lock;
}

std::unique_ptr<AwakeLock> makeAwakeLock()
{
    return std::make_unique<LogindAwakeLock>(QDBusConnection::systemBus());
}

namespace upower {

// Names and meanings: the documentation of UPower's D-Bus interfaces.
constexpr auto service = "org.freedesktop.UPower"_L1;
constexpr auto path = "/org/freedesktop/UPower"_L1;
constexpr auto interface = "org.freedesktop.UPower"_L1;
constexpr auto allBatteries = "/org/freedesktop/UPower/devices/DisplayDevice"_L1;
constexpr auto deviceInterface = "org.freedesktop.UPower.Device"_L1;
constexpr auto properties = "org.freedesktop.DBus.Properties"_L1;

} // namespace upower

UPowerSupply::UPowerSupply(const QDBusConnection& systemBus)
    : bus_(systemBus)
{
    owner_.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    connect(&owner_, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& newOwner) {
                if (newOwner.isEmpty())
                    set({});
                else
                    refresh();
            });
}

void UPowerSupply::setWatching(bool watching)
{
    // Over a lost connection Qt would ask who owns the name, and libdbus ends a program that does.
    if (watching == isWatching_ || !bus_.isConnected())
        return;
    isWatching_ = watching;
    const auto signal = u"PropertiesChanged"_s;
    for (const auto& object : {upower::path, upower::allBatteries}) {
        if (watching)
            bus_.connect(upower::service, object, upower::properties, signal, this, SLOT(refresh()));
        else
            bus_.disconnect(upower::service, object, upower::properties, signal, this, SLOT(refresh()));
    }
    owner_.setConnection(bus_);
    owner_.setWatchedServices(watching ? QStringList(upower::service) : QStringList());
    if (watching)
        refresh();
    else
        set({});
}

void UPowerSupply::refresh()
{
    if (!isWatching_)
        return;
    ask(upower::path, upower::interface, &UPowerSupply::takeSource);
    ask(upower::allBatteries, upower::deviceInterface, &UPowerSupply::takeBattery);
}

void UPowerSupply::ask(const QString& path, const QString& interface,
                       void (UPowerSupply::*take)(const QVariantMap& properties))
{
    auto call = QDBusMessage::createMethodCall(upower::service, path, upower::properties, u"GetAll"_s);
    call << interface;
    auto* answer = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, take] {
        answer->deleteLater();
        const QDBusPendingReply<QVariantMap> reply = *answer;
        if (isWatching_)
            (this->*take)(reply.isValid() ? reply.value() : QVariantMap());
    });
}

void UPowerSupply::takeSource(const QVariantMap& properties)
{
    PowerState state = state_;
    state.onMains = !properties.value(u"OnBattery"_s).toBool();
    set(state);
}

void UPowerSupply::takeBattery(const QVariantMap& properties)
{
    PowerState state = state_;
    state.charge.reset();
    if (properties.value(u"IsPresent"_s).toBool())
        state.charge = qBound(0, qRound(properties.value(u"Percentage"_s).toDouble()), 100);
    set(state);
}

void UPowerSupply::set(const PowerState& state)
{
    if (state == state_)
        return;
    state_ = state;
    Q_EMIT changed();
}

std::unique_ptr<PowerSupply> makePowerSupply()
{
    return std::make_unique<UPowerSupply>(QDBusConnection::systemBus());
}

} // namespace quillon
