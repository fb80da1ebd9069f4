#pragma once

#include "AwakeLock.h"
#include "Logind_linux.h"

#include <QDBusConnection>

namespace quillon {

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
