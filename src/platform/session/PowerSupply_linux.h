#pragma once

#include "PowerSupply.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QString>
#include <QVariantMap>

namespace quillon {

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
