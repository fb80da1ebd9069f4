#include "Logind_linux.h"

#include <QCoreApplication>
#include <QDBusMessage>

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

} // namespace quillon
