#include "LogindSleepWatch_linux.h"

#include <QDBusMessage>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// Names and signatures: org.freedesktop.login1(5).
constexpr auto service = "org.freedesktop.login1"_L1;
constexpr auto path = "/org/freedesktop/login1"_L1;
constexpr auto interface = "org.freedesktop.login1.Manager"_L1;

} // namespace

LogindSleepWatch::LogindSleepWatch(const QDBusConnection& systemBus)
    : bus_(systemBus)
{
    if (!bus_.isConnected())
        return; // Qt would ask who owns the name, and libdbus ends a program that asks over a lost connection
    qRegisterMetaType<QDBusUnixFileDescriptor>(); // Qt D-Bus looks the type of a slot's argument up by its name
    bus_.connect(service, path, interface, u"PrepareForSleep"_s, this, SLOT(prepareForSleep(bool)));
    owner_.setConnection(bus_);
    owner_.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    owner_.addWatchedService(service);
    connect(&owner_, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& newOwner) { changeOwner(newOwner); });
    requestLock();
}

void LogindSleepWatch::prepareForSleep(bool start)
{
    sleeping_ = start;
    if (start) {
        Q_EMIT willSleep();
        lock_ = {};
    } else {
        requestLock();
        Q_EMIT didWake();
    }
}

void LogindSleepWatch::requestLock()
{
    auto call = QDBusMessage::createMethodCall(service, path, interface, u"Inhibit"_s);
    call << u"sleep"_s << u"Quillon"_s << u"Putting the backup schedule on hold"_s << u"delay"_s;
    call.setAutoStartService(false);
    bus_.callWithCallback(call, this, SLOT(takeLock(QDBusUnixFileDescriptor)), SLOT(goWithoutLock(QDBusError)));
}

void LogindSleepWatch::takeLock(const QDBusUnixFileDescriptor& lock)
{
    if (!sleeping_) // else the handlers have run, and nothing would release it
        lock_ = lock;
}

void LogindSleepWatch::changeOwner(const QString& newOwner)
{
    lock_ = {};
    if (!newOwner.isEmpty())
        requestLock();
    if (sleeping_) {
        // Who announced the sleep cannot announce the wake any more. A wake too many does no harm, a missing one
        // would leave the schedule on hold.
        sleeping_ = false;
        Q_EMIT didWake();
    }
}

} // namespace quillon
