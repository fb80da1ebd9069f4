#include "ControllerFixture.h"
#include "ScheduleWatch.h"
#include "ScopedEnvironment.h"

#include <functional>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class SleepAndClock : public ControllerFixture {
protected:
    /// A program that has backed up before: without that nothing counts as missed.
    void launchLater()
    {
        defaults.setDate(settingskeys::lastBackupDate, today(9));
        launch();
    }
    /// Somebody sets the clock; the next poll finds it out.
    void setClock(Seconds step, const char* expected, int line = __builtin_LINE())
    {
        runLoop.stepWallClock(step);
        after(16, expected, line);
    }
};

TEST_F(SleepAndClock, AStartMissedInSleepIsMadeUpForByARetry)
{
    launchLater();
    sleepUntil(today(14, 0, 30));
    expect("6, Retry: 5m, Back Up Now, retry 21 14:06");
    sleepUntil(today(14, 2)); // sets a fresh one
    expect("6, Retry: 6m, Back Up Now, retry 21 14:08");
    defaults.stored[settingskeys::enableRetryAtMissedSchedule] = 0LL;
    sleepUntil(today(16)); // the schedule goes on below the mark
    expect("6, Next: 20h 0m, Back Up Now, next 22 12:00");
}

TEST_F(SleepAndClock, NothingStartsWhileAsleepUntilAWakeUpThatNobodyTellsOfShows)
{
    defaults.stored[settingskeys::showMenuBarIconOnly] = 1LL; // nobody looks
    launchLater();
    workspace.sleep();
    EXPECT_FALSE(manager->startBackupTimer().isValid());
    runLoop.stepWallClock(3h);
    after(59, "1, , Back Up Now, next 21 12:00");
    after(16, "6, , Back Up Now, retry 21 13:07");
}

TEST_F(SleepAndClock, AStartPassedOverByLessThanAMinuteIsMadeAndOneByMoreMissed)
{
    launchLater();
    until(today(11, 59, 45));
    setClock(30s, "startbackup -r; 2, 0.0% Starting, Skip This Backup, next 22 12:00");
    wait(100);
    sleepUntil(today(35, 59, 59));
    runLoop.stepWallClock(90s); // asleep without notice; the timer comes before the next poll
    after(2, "6, Retry: 5m, Back Up Now, retry 22 12:07");
}

TEST_F(SleepAndClock, ARetryOutlivesASetClockNoFartherAheadThanBefore)
{
    letRunsFail();
    launch();
    runElsewhere(40);
    setClock(-10min, "5, Retry: 5m, Back Up Now, retry 21 09:56");
    setClock(10s, "5, Retry: 4m, Back Up Now, retry 21 09:56");
    manager->setNextScheduledBackupDate({});
    setClock(2s, "5, Retry: N/A, Back Up Now, retry never");      // a drift
    setClock(2.5s, "5, Next: 2h 8m, Back Up Now, next 21 12:00"); // one that is not armed is none to keep
}

TEST_F(SleepAndClock, AClockSetBackByMoreThanThreeHoursRepeatsAStartAndANewZoneMovesIt)
{
    launch();
    until(today(12, 30));
    setClock(-3h, "startbackup -r; 1, Next: 1d 2h, Back Up Now, next 22 12:00");
    setClock(-3h - 1ms, "1, Next: 5h 29m, Back Up Now, next 21 12:00");
    const ScopedEnvironment travel("TZ", "Europe/London");
    after(16, "1, Next: 6h 29m, Back Up Now, next 21 12:00");
}

TEST(ClockWatch, TellsOfANewZoneOnce)
{
    const ScopedEnvironment home("TZ", "Europe/Berlin");
    VirtualRunLoop runLoop(local(2026, 11, 21, 10));
    ClockWatch clock(runLoop);
    const ScopedEnvironment travel("TZ", "Europe/London");
    EXPECT_TRUE(clock.look().newTimeZone);
    EXPECT_FALSE(clock.look().newTimeZone);
}

class Pause : public ControllerFixture {
protected:
    /// What the menu shows of it, what is stored of it, and when the next backup is due.
    std::string paused() const
    {
        QStringList checked;
        for (const QAction* duration : menu().pauseDurationItems())
            checked += duration->isChecked() ? QStringList(duration->text()) : QStringList();
        const auto end = defaults.date(settingskeys::pauseUntilDate);
        return u"%1, %2, %3, %4, %5, next %6"_s
            .arg(row(menu().pauseScheduleMenuItem),
                 row(menu().resumeScheduleMenuItem) + row(menu().resumeScheduleSeparator), checked.join(u'+'),
                 end ? DateFormatter::string(*end, u"d HH:mm"_s) : u"never"_s,
                 defaults.object(settingskeys::pauseUntilTag).toString(),
                 DateFormatter::string(*manager->nextScheduledBackupDate(), u"d HH:mm"_s))
            .toStdString();
    }
    const std::string over = "Pause Schedule For >, , , never, 0, next 22 12:00";
};

TEST_F(Pause, LastsUntilTheGraceAfterItsEndAndIsReplacedByAnother)
{
    launch();
    menu().pauseDurationItems()[2]->trigger(); // four hours
    const std::string fourHours =
        "*Schedule Paused Until: Today, 14:00 >, Resume Schedule-, 4 Hours, 21 14:00, 14400, next 22 12:00";
    wait(14400 + 9);
    EXPECT_EQ(paused(), fourHours);
    wait(2);
    EXPECT_EQ(paused(), over);
    controller->pauseForClicked(3600);
    wait(1800);
    controller->pauseForClicked(172800);
    wait(7200);
    EXPECT_EQ(paused(),
              "*Schedule Paused Until: Monday, 23 November 2026, 14:30 >, Resume Schedule-, 2 Days, 23 14:30, "
              "172800, next 24 12:00")
        << "the timer of the first one is gone";
    until(local(2026, 11, 22, 0, 1));
    EXPECT_EQ(row(menu().pauseScheduleMenuItem), u"*Schedule Paused Until: Tomorrow, 14:30 >"_s);
    EXPECT_EQ(machine.starts(), 0);
}

TEST_F(Pause, HoldsAcrossARestartAndEndsWhileNobodyLooks)
{
    launch();
    controller->pauseForClicked(2419200);
    controller->stopTimer(); // weeks of polls would only take long
    runLoop.advance(20 * 24h);
    controller.reset();
    launch();
    EXPECT_EQ(paused(), "*Schedule Paused Until: Saturday, 19 December 2026, 10:00 >, Resume Schedule-, 4 Weeks, 19 "
                        "10:00, 2419200, next 19 12:00");
    controller.reset();
    runLoop.advance(9 * 24h);
    launch();
    const std::string none = "Pause Schedule For >, , , never, 0, next 20 12:00";
    EXPECT_EQ(paused(), none);
    controller->pauseForClicked(3600);
    runLoop.settle();
    launch();
    wait(3612);
    EXPECT_EQ(paused(), none);
    EXPECT_EQ(machine.starts(), 0);
}

TEST_F(Pause, ResumedEarlyIsOverAndItsTimerLeavesALaterRetryAlone)
{
    launch();
    controller->pauseForClicked(3600);
    menu().resumeScheduleMenuItem->trigger();
    runLoop.settle();
    EXPECT_EQ(paused(), "Pause Schedule For >, , , never, 0, next 21 12:00");
    manager->setRetryBackupDate(today(11, 3));
    until(today(11, 1));
    EXPECT_EQ(manager->retryBackupDate(), today(11, 3));
    controller->pauseForClicked(3600);
    EXPECT_FALSE(manager->retryBackupDate()) << "a pause drops it";
}

TEST_F(Pause, FollowsSleepAndASetClock)
{
    launch();
    controller->pauseForClicked(7200);
    const std::string twoHours = paused();
    runLoop.stepWallClock(-30min);
    wait(5400); // the end is a date
    sleepUntil(today(11, 50));
    EXPECT_EQ(paused(), twoHours) << "one that outlasts a sleep goes on";
    sleepUntil(today(12, 5));
    EXPECT_EQ(paused(), over);
    const std::function<void()> moments[] = {[this] { sleepUntil(runLoop.now() + 1s); }, [this] { wait(10); }};
    for (const auto& pass : moments) {
        controller->pauseForClicked(3600);
        wait(3603);
        manager->scheduleNextBackup(); // forgets the pause before its timer has run
        pass();
        EXPECT_EQ(paused(), over);
    }
    controller->pauseForClicked(3600);
    wait(3595);
    workspace.sleep();
    wait(30); // the machine looks after its mail
    EXPECT_FALSE(manager->startBackupTimer().isValid()) << "an end in sleep plans nothing";
}

} // namespace quillon
