#include "EventLoop.h"
#include "PrivateBus.h"
#include "VirtualRunLoop.h"
#include "Workspace_linux.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QSignalSpy>

#include <csignal>
#include <gtest/gtest.h>
#include <optional>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

const auto service = u"org.freedesktop.login1"_s;
const auto manager = u"org.freedesktop.login1.Manager"_s;

/// logind as python-dbusmock plays it: the locks that it hands out are real file descriptors.
class PlayedLogind {
public:
    explicit PlayedLogind(const PrivateBus& bus)
        : bus_(bus.connect(u"logind"_s))
        , mock_(u"/usr/bin/python3"_s, {u"-m"_s, u"dbusmock"_s, u"--template"_s, u"logind"_s},
                {bus.variable().replace(u"SESSION"_s, u"SYSTEM"_s)})
    {
        EXPECT_TRUE(runUntil([this] { return bus_.interface()->isServiceRegistered(service).value(); }))
            << "no python3-dbusmock";
    }
    PlayedLogind(const PlayedLogind&) = delete;
    PlayedLogind& operator=(const PlayedLogind&) = delete;
    ~PlayedLogind()
    {
        mock_.crash();
        EXPECT_TRUE(runUntil([this] { return !bus_.interface()->isServiceRegistered(service).value(); }));
        QDBusConnection::disconnectFromBus(u"logind"_s);
    }

    /// Announces sleep (true) or wake (false).
    void prepareForSleep(bool start)
    {
        call(u"org.freedesktop.DBus.Mock"_s, u"EmitSignal"_s,
             {manager, u"PrepareForSleep"_s, u"b"_s, QVariantList{start}});
    }

    /// The locks held right now, each as "what mode".
    QStringList locks()
    {
        QStringList result;
        const auto list = call(manager, u"ListInhibitors"_s, {}).arguments().value(0).value<QDBusArgument>();
        list.beginArray();
        while (!list.atEnd()) {
            QString what, who, why, mode;
            list.beginStructure();
            list >> what >> who >> why >> mode;
            list.endStructure();
            result << what + u' ' + mode;
        }
        list.endArray(); // lets go of the reader's state
        return result;
    }

    void send(int signal) { ::kill(static_cast<pid_t>(mock_.process().processId()), signal); }

private:
    QDBusMessage call(const QString& interface, const QString& method, const QVariantList& arguments)
    {
        auto message = QDBusMessage::createMethodCall(service, u"/org/freedesktop/login1"_s, interface, method);
        message.setArguments(arguments);
        const auto reply = bus_.call(message);
        EXPECT_EQ(reply.type(), QDBusMessage::ReplyMessage) << reply.errorMessage().toStdString();
        return reply;
    }

    QDBusConnection bus_;
    ChildProgram mock_;
};

class SleepIntegrationTest : public testing::Test {
protected:
    void TearDown() override { QDBusConnection::disconnectFromBus(u"client"_s); }

    bool comesToHold(const QStringList& locks)
    {
        return runUntil([&] { return logind->locks() == locks; });
    }

    /// Announces sleep; the locks that the handlers saw.
    std::optional<QStringList> locksSeenBySleepHandlers(const Workspace& workspace)
    {
        std::optional<QStringList> seen;
        const auto connection = QObject::connect(&workspace, &Workspace::willSleep, [&] { seen = logind->locks(); });
        logind->prepareForSleep(true);
        EXPECT_TRUE(runUntil([&] { return seen.has_value(); }));
        QObject::disconnect(connection);
        return seen;
    }

    const QStringList held{u"sleep delay"_s};
    VirtualRunLoop runLoop{Date{}};
    PrivateBus bus;
    std::optional<PlayedLogind> logind;
    /// The program's own connection: it must not share one with the side that plays.
    QDBusConnection client = bus.connect(u"client"_s);
};

TEST_F(SleepIntegrationTest, WaitsForTheHandlersEachTimeAlsoUnderALogindThatComesLateOrRestarts)
{
    const LinuxWorkspace workspace(runLoop, client);
    const QSignalSpy woke(&workspace, &Workspace::didWake);
    for (int wakes = 1; wakes <= 4; ++wakes) {
        if (wakes % 2 == 1)
            logind.emplace(bus);
        ASSERT_TRUE(comesToHold(held));
        EXPECT_EQ(locksSeenBySleepHandlers(workspace), held);
        EXPECT_TRUE(comesToHold({}));
        logind->prepareForSleep(false);
        EXPECT_TRUE(runUntil([&] { return woke.size() == wakes; }));
        if (wakes % 2 == 0)
            logind.reset();
    }
}

TEST_F(SleepIntegrationTest, EndsForTheProgramWithALogindThatIsGoneWhenTheSystemWakes)
{
    logind.emplace(bus);
    const LinuxWorkspace workspace(runLoop, client);
    const QSignalSpy woke(&workspace, &Workspace::didWake);
    locksSeenBySleepHandlers(workspace);
    logind.reset();
    EXPECT_TRUE(runUntil([&] { return woke.size() == 1; }));
    logind.emplace(bus);
    EXPECT_TRUE(comesToHold(held));
    EXPECT_EQ(woke.size(), 1);
}

TEST_F(SleepIntegrationTest, ABusThatIsLostOrNeverWasDoesNoHarm)
{
    const LinuxWorkspace earlier(runLoop, client);
    bus.crash();
    ASSERT_TRUE(runUntil([this] { return !client.isConnected(); }));
    const LinuxWorkspace later(runLoop, client);
    const LinuxWorkspace never(runLoop, QDBusConnection(u"no such connection"_s));
}

TEST_F(SleepIntegrationTest, NothingWaitsForALogindThatHangs)
{
    logind.emplace(bus);
    logind->send(SIGSTOP);
    const LinuxWorkspace workspace(runLoop, client);
    // A constructor that waited has given up by now: the lock that comes is nobody's and is gone at once.
    logind->send(SIGCONT);
    ASSERT_TRUE(comesToHold(held));
    EXPECT_EQ(locksSeenBySleepHandlers(workspace), held);
}

} // namespace
} // namespace quillon
