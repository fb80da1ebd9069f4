#pragma once

#include "Logind_linux.h"
#include "Power.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QVariantMap>

class QDBusPendingCallWatcher;

namespace quillon {

/// The power as UPower tells it. It may be absent, come late or restart; no call waits for it.
class UPowerSupply final : public PowerSupply {
    Q_OBJECT

public:
    /// Without a connected bus the machine is on mains for ever.
    explicit UPowerSupply(const QDBusConnection& systemBus);

    PowerState state() const override { return state_; }

private Q_SLOTS:
    void ask();

private:
    void askFor(const QString& path, const QString& interface,
                void (UPowerSupply::*take)(const QVariantMap& properties));
    void takeSource(const QVariantMap& properties);
    void takeBattery(const QVariantMap& properties);
    void set(const PowerState& state);

    QDBusConnection bus_;
    QDBusServiceWatcher owner_;
    PowerState state_;
};

/// Blocks sleep with logind. It refuses nobody that matters: a closed lid sleeps all the same, and an empty battery is
/// the administrator's business (LidSwitchIgnoreInhibited in logind.conf(5); org.freedesktop.login1(5)).
class LogindAwakeLock final : public AwakeLock {
public:
    explicit LogindAwakeLock(const QDBusConnection& systemBus)
        : lock_(systemBus, LogindSleepLock::Mode::Block)
    {
    }

    void hold(const QString& reason) override { lock_.hold(reason); }
    void release() override { lock_.release(); }

private:
    LogindSleepLock lock_;
};

} // namespace quillon
