#pragma once

#include "Services.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusServiceWatcher>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QString>
#include <QVariantMap>

#include <optional>

namespace quillon {

/// Where logind is found; names and signatures: org.freedesktop.login1(5).
namespace logind {

inline constexpr QLatin1StringView service{"org.freedesktop.login1"};
inline constexpr QLatin1StringView path{"/org/freedesktop/login1"};
inline constexpr QLatin1StringView interface {
    "org.freedesktop.login1.Manager"
};

} // namespace logind

/// An inhibitor lock of logind's against sleep. logind may be absent, come late or restart; no call waits for it.
class LogindSleepLock final : public QObject {
    Q_OBJECT

public:
    enum class Mode {
        Delay, ///< sleep waits for it a few seconds
        Block, ///< sleep is refused to everybody but the administrator and a closed lid
    };

    /// Without a connected bus no lock is ever had.
    LogindSleepLock(const QDBusConnection& systemBus, Mode mode);

    /// `reason` is what logind tells users who ask, already localised.
    void hold(const QString& reason);
    void release();

Q_SIGNALS:
    /// logind has gone or another one has come, which knows of no lock: one that was wanted is asked for again.
    void ownerChanged();

private Q_SLOTS:
    void take(const QDBusUnixFileDescriptor& lock);
    void goWithout(const QDBusError&) {}

private:
    void request();

    QDBusConnection bus_;
    const Mode mode_;
    std::optional<QString> reason_; ///< none while no lock is wanted
    QDBusServiceWatcher owner_;
    QDBusUnixFileDescriptor lock_;
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

/// The power as UPower tells it. It may be absent, come late, restart or fall silent; no call waits for it, and who
/// does not answer has nothing to say against mains.
class UPowerSupply final : public PowerSupply {
    Q_OBJECT

public:
    /// Without a connected bus the machine is on mains for ever.
    explicit UPowerSupply(const QDBusConnection& systemBus);

    PowerState state() const override { return state_; }
    void setWatching(bool watching) override;

public Q_SLOTS:
    void refresh() override;

private:
    void ask(const QString& path, const QString& interface, void (UPowerSupply::*take)(const QVariantMap& properties));
    void takeSource(const QVariantMap& properties);
    void takeBattery(const QVariantMap& properties);
    void set(const PowerState& state);

    QDBusConnection bus_;
    QDBusServiceWatcher owner_;
    bool isWatching_ = false;
    PowerState state_;
};

} // namespace quillon
