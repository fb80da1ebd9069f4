#pragma once

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusServiceWatcher>
#include <QDBusUnixFileDescriptor>
#include <QObject>

namespace quillon {

/// Sleep and wake as logind announces them, org.freedesktop.login1(5).
///
/// Holds a delay lock while the system is awake, so that sleep waits for the slots of willSleep(). logind may be
/// absent, come late or restart; no call waits for it. Main thread only.
class LogindSleepWatch final : public QObject {
    Q_OBJECT

public:
    /// Without a connected bus nothing is ever announced.
    explicit LogindSleepWatch(const QDBusConnection& systemBus);

Q_SIGNALS:
    /// The lock is released when the slots connected directly have returned.
    void willSleep();
    void didWake();

private Q_SLOTS:
    void prepareForSleep(bool start);
    void takeLock(const QDBusUnixFileDescriptor& lock);
    void goWithoutLock(const QDBusError&) {}

private:
    void requestLock();
    void changeOwner(const QString& newOwner);

    QDBusConnection bus_;
    QDBusServiceWatcher owner_;
    QDBusUnixFileDescriptor lock_;
    bool sleeping_ = false;
};

} // namespace quillon
