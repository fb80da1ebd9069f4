#include "EventLoop.h"
#include "LogindSleepWatch_linux.h"
#include "PlayedLogind.h"

#include <QSignalSpy>

#include <gtest/gtest.h>
#include <optional>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

const QStringList held{u"sleep delay"_s};
const QStringList none;

class LogindSleepWatchIntegrationTest : public testing::Test {
protected:
    bool holdsLock()
    {
        return runUntil([this] { return logind->locks() == held; });
    }
    bool holdsNoLock()
    {
        return runUntil([this] { return logind->locks() == none; });
    }

    /// Announces sleep; the locks that the handlers saw.
    QStringList locksSeenBySleepHandlers(const LogindSleepWatch& watch)
    {
        std::optional<QStringList> seen;
        const auto connection =
            QObject::connect(&watch, &LogindSleepWatch::willSleep, &watch, [&] { seen = logind->locks(); });
        logind->prepareForSleep(true);
        EXPECT_TRUE(runUntil([&] { return seen.has_value(); }));
        QObject::disconnect(connection);
        return seen.value_or(none);
    }

    PrivateBus bus;
    std::optional<PlayedLogind> logind;
    /// The program's own connection: it must not share one with the side that plays.
    QDBusConnection client = bus.connect(u"client"_s);

    void TearDown() override { QDBusConnection::disconnectFromBus(u"client"_s); }
};

} // namespace

TEST_F(LogindSleepWatchIntegrationTest, SleepWaitsForTheHandlersEachTimeAlsoUnderALogindThatComesLateOrRestarts)
{
    LogindSleepWatch watch(client);
    const QSignalSpy woke(&watch, &LogindSleepWatch::didWake);
    for (int wakes = 1; wakes <= 4; ++wakes) {
        if (wakes % 2 == 1)
            logind.emplace(bus);
        ASSERT_TRUE(holdsLock());
        EXPECT_EQ(locksSeenBySleepHandlers(watch), held);
        EXPECT_TRUE(holdsNoLock());
        logind->prepareForSleep(false);
        EXPECT_TRUE(runUntil([&] { return woke.size() == wakes; }));
        if (wakes % 2 == 0)
            logind.reset();
    }
}

TEST_F(LogindSleepWatchIntegrationTest, ALogindThatIsGoneWhenTheSystemWakesDoesNotLeaveItAsleep)
{
    logind.emplace(bus);
    LogindSleepWatch watch(client);
    const QSignalSpy woke(&watch, &LogindSleepWatch::didWake);
    locksSeenBySleepHandlers(watch);

    logind.reset();
    EXPECT_TRUE(runUntil([&] { return woke.size() == 1; }));
    logind.emplace(bus);
    EXPECT_TRUE(holdsLock());
    EXPECT_EQ(woke.size(), 1);
}

TEST_F(LogindSleepWatchIntegrationTest, ABusThatIsLostOrNeverWasDoesNoHarm)
{
    const LogindSleepWatch earlier(client);
    bus.crash();
    ASSERT_TRUE(runUntil([this] { return !client.isConnected(); }));
    const LogindSleepWatch later(client);
    const LogindSleepWatch never(QDBusConnection(u"no such connection"_s));
}

TEST_F(LogindSleepWatchIntegrationTest, NothingWaitsForALogindThatHangs)
{
    logind.emplace(bus);
    logind->stop();
    LogindSleepWatch watch(client);
    // A constructor that waited has given up by now: the lock that comes is nobody's and is gone at once.
    logind->resume();
    ASSERT_TRUE(holdsLock());
    EXPECT_EQ(locksSeenBySleepHandlers(watch), held);
}

} // namespace quillon
