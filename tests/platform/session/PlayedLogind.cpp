#include "PlayedLogind.h"

#include "EventLoop.h"
#include "SessionTestSupport.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

#include <csignal>
#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr auto service = "org.freedesktop.login1"_L1;
constexpr auto path = "/org/freedesktop/login1"_L1;
constexpr auto manager = "org.freedesktop.login1.Manager"_L1;

} // namespace

PrivateBus::PrivateBus()
{
    tieToThisProcess(daemon_);
    daemon_.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s,
                                     u"--address=unix:path="_s + folder_.filePath(u"bus"_s)});
    EXPECT_TRUE(runUntil([this] { return daemon_.canReadLine(); })) << "no dbus-daemon";
    address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
    EXPECT_TRUE(QDBusConnection::connectToBus(address_, address_).isConnected());
}

PrivateBus::~PrivateBus()
{
    QDBusConnection::disconnectFromBus(address_);
    crash();
}

void PrivateBus::crash()
{
    daemon_.kill();
    daemon_.waitForFinished(-1);
}

PlayedLogind::PlayedLogind(const PrivateBus& bus)
    : bus_(bus.connection())
{
    tieToThisProcess(mock_);
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DBUS_SYSTEM_BUS_ADDRESS"_s, bus.address());
    mock_.setProcessEnvironment(environment);
    mock_.setStandardOutputFile(QProcess::nullDevice());
    mock_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    mock_.start(u"/usr/bin/python3"_s, {u"-m"_s, u"dbusmock"_s, u"--template"_s, u"logind"_s});
    EXPECT_TRUE(runUntil([this] { return hasOwner(); })) << "no python3-dbusmock";
}

PlayedLogind::~PlayedLogind()
{
    mock_.kill();
    mock_.waitForFinished(-1);
    EXPECT_TRUE(runUntil([this] { return !hasOwner(); }));
}

bool PlayedLogind::hasOwner() const
{
    return bus_.interface()->isServiceRegistered(service);
}

void PlayedLogind::prepareForSleep(bool start)
{
    auto call = QDBusMessage::createMethodCall(service, path, u"org.freedesktop.DBus.Mock"_s, u"EmitSignal"_s);
    call << manager << u"PrepareForSleep"_s << u"b"_s << QVariantList{start};
    const auto reply = bus_.call(call);
    EXPECT_EQ(reply.type(), QDBusMessage::ReplyMessage) << reply.errorMessage().toStdString();
}

QStringList PlayedLogind::locks()
{
    const auto reply = bus_.call(QDBusMessage::createMethodCall(service, path, manager, u"ListInhibitors"_s));
    EXPECT_EQ(reply.type(), QDBusMessage::ReplyMessage) << reply.errorMessage().toStdString();
    QStringList result;
    const auto list = reply.arguments().value(0).value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        QString what;
        QString who;
        QString why;
        QString mode;
        list.beginStructure();
        list >> what >> who >> why >> mode;
        list.endStructure();
        result << what + u' ' + mode;
    }
    list.endArray(); // lets go of the reader's state
    return result;
}

void PlayedLogind::stop()
{
    ::kill(static_cast<pid_t>(mock_.processId()), SIGSTOP);
}

void PlayedLogind::resume()
{
    ::kill(static_cast<pid_t>(mock_.processId()), SIGCONT);
}

} // namespace quillon
