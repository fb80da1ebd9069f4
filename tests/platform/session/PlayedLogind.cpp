#include "PlayedLogind.h"

#include "EventLoop.h"

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

PlayedLogind::PlayedLogind(const PrivateBus& bus)
    : bus_(bus.connect(u"logind"_s))
    , mock_(u"/usr/bin/python3"_s, {u"-m"_s, u"dbusmock"_s, u"--template"_s, u"logind"_s},
            {bus.variable().replace(u"SESSION"_s, u"SYSTEM"_s)})
{
    EXPECT_TRUE(runUntil([this] { return hasOwner(); })) << "no python3-dbusmock";
}

PlayedLogind::~PlayedLogind()
{
    mock_.crash();
    EXPECT_TRUE(runUntil([this] { return !hasOwner(); }));
    QDBusConnection::disconnectFromBus(u"logind"_s);
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
    ::kill(static_cast<pid_t>(mock_.process().processId()), SIGSTOP);
}

void PlayedLogind::resume()
{
    ::kill(static_cast<pid_t>(mock_.process().processId()), SIGCONT);
}

} // namespace quillon
