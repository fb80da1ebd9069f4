#include "ControllerFixture.h"

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class SleepAndClock : public ControllerFixture {
protected:
    void completeABackup()
    {
        machine.start(u"A"_s);
        runLoop.advance(Seconds(120));
        ASSERT_TRUE(defaults.date(settingskeys::lastBackupDate));
    }
};

TEST_F(SleepAndClock, AScheduledTimeMissedInSleepIsMadeUpForByARetry)
{
    launch();
    completeABackup();
    sleepUntil(local(2026, 11, 21, 14, 0, 30));
    EXPECT_EQ(icon(), MenuBarIconState::MissedSchedule);
    EXPECT_EQ(manager->retryBackupDate(), local(2026, 11, 21, 14, 6));
    sleepUntil(local(2026, 11, 21, 14, 2));
    EXPECT_EQ(manager->retryBackupDate(), local(2026, 11, 21, 14, 8)) << "each later wake sets a fresh retry date";
    runLoop.advanceTo(local(2026, 11, 21, 14, 9));
    EXPECT_EQ(machine.starts(), 2);
    EXPECT_EQ(icon(), MenuBarIconState::Running);
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 22, 12));
}

TEST_F(SleepAndClock, WithoutALastBackupNoScheduleCountsAsMissed)
{
    launch();
    sleepUntil(local(2026, 11, 21, 14));
    EXPECT_EQ(icon(), MenuBarIconState::Idle);
    EXPECT_FALSE(manager->retryBackupDate());
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 22, 12));
}

TEST_F(SleepAndClock, AScheduleMissedWithoutARetryStillGoesOn)
{
    defaults.stored[settingskeys::enableRetryAtMissedSchedule] = 0LL;
    launch();
    completeABackup();
    sleepUntil(local(2026, 11, 21, 14));
    EXPECT_EQ(icon(), MenuBarIconState::MissedSchedule);
    EXPECT_FALSE(manager->retryBackupDate());
    {
        const ScopedEnvironment travel("TZ", "Europe/London");
        runLoop.advance(Seconds(16));
        EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 22, 12)) << "noon of the new zone";
    }
    for (int hour = 8; hour < 12; ++hour) {
        sleepUntil(local(2026, 11, 22, hour));
        EXPECT_EQ(icon(), MenuBarIconState::MissedSchedule) << "the mark stands";
    }
    runLoop.advanceTo(local(2026, 11, 22, 12, 0, 5));
    EXPECT_EQ(machine.starts(), 2);
}

TEST_F(SleepAndClock, AScheduleMissedInAPauseGoesOnAfterIt)
{
    launch();
    completeABackup();
    sleepUntil(local(2026, 11, 21, 14));
    controller->pauseForClicked(24 * 3600);
    sleepUntil(local(2026, 11, 21, 16));
    EXPECT_EQ(icon(), MenuBarIconState::MissedSchedule);
    EXPECT_FALSE(manager->retryBackupDate());
    runLoop.advanceTo(local(2026, 11, 23, 12, 0, 5));
    EXPECT_EQ(machine.starts(), 2);
}

TEST_F(SleepAndClock, ASetClockPlansNoRetryAnewThatTheUserHasSkipped)
{
    launch();
    completeABackup();
    sleepUntil(local(2026, 11, 21, 14));
    ASSERT_TRUE(manager->retryBackupDate());
    controller->skipRetryAttemptClicked();
    runLoop.stepWallClock(10min);
    runLoop.advance(Seconds(16));
    EXPECT_EQ(icon(), MenuBarIconState::MissedSchedule);
    EXPECT_FALSE(manager->retryBackupDate());
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 22, 12));
}

TEST_F(SleepAndClock, NothingStartsWhileAsleepAndTheTimersStandStill)
{
    launch();
    workspace.sleep();
    EXPECT_FALSE(manager->startBackupTimer().isValid());
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 21, 12));
    runLoop.stepWallClock(3h);
    runLoop.advance(Seconds(30));
    EXPECT_EQ(machine.starts(), 0);
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 21, 12));
    runLoop.advance(Seconds(45)); // nobody tells that the system is awake again
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 22, 12));
}

TEST_F(SleepAndClock, ARetryThatIsNotArmedIsNoneToKeep)
{
    machine.phases = {{u"Copying"_s, 20, true}};
    launch();
    machine.start(u"A"_s);
    runLoop.advance(Seconds(40));
    ASSERT_TRUE(manager->retryBackupDate());
    manager->setIsScheduleEnabled(false);
    runLoop.stepWallClock(1h);
    runLoop.advance(Seconds(60));
    EXPECT_EQ(machine.starts(), 1) << "the schedule is off";
}

TEST_F(SleepAndClock, AWakeUpThatNobodyAnnouncesIsNoticedAtTheNextPoll)
{
    launch();
    completeABackup();
    runLoop.stepWallClock(4h);
    runLoop.advance(Seconds(16));
    EXPECT_EQ(icon(), MenuBarIconState::MissedSchedule);
    ASSERT_TRUE(manager->retryBackupDate());
    const auto retry = *manager->retryBackupDate();
    runLoop.advance(Seconds(60));
    EXPECT_EQ(manager->retryBackupDate(), retry) << "a jump is handled once";
}

TEST_F(SleepAndClock, AStartPassedOverByLessThanAMinuteIsMade)
{
    launch();
    completeABackup();
    runLoop.advanceTo(local(2026, 11, 21, 11, 59, 50));
    runLoop.stepWallClock(30s);
    runLoop.advance(Seconds(16));
    EXPECT_EQ(machine.starts(), 2);
    EXPECT_FALSE(manager->retryBackupDate());
}

TEST_F(SleepAndClock, AStartTimerThatRunsAMinuteLateCountsAsMissed)
{
    launch();
    completeABackup();
    runLoop.advanceTo(local(2026, 11, 21, 11, 59, 59));
    runLoop.stepWallClock(90s); // asleep without notice; the timer comes before the next poll
    runLoop.advance(Seconds(2));
    EXPECT_EQ(machine.starts(), 1);
    EXPECT_EQ(icon(), MenuBarIconState::MissedSchedule);
    EXPECT_TRUE(manager->retryBackupDate());
}

TEST_F(SleepAndClock, APendingRetryOutlivesAClockThatIsSet)
{
    machine.phases = {{u"Copying"_s, 20, true}};
    launch();
    machine.start(u"A"_s);
    runLoop.advance(Seconds(40));
    ASSERT_TRUE(manager->retryBackupDate());
    runLoop.stepWallClock(-10min);
    runLoop.advance(Seconds(16));
    ASSERT_TRUE(manager->retryBackupDate());
    const auto retry = *manager->retryBackupDate();
    EXPECT_LE(retry - runLoop.now(), 6min) << "no farther ahead than before";
    runLoop.advanceTo(retry - 1s);
    EXPECT_EQ(machine.starts(), 1);
    runLoop.stepWallClock(5min);
    runLoop.advance(Seconds(16));
    EXPECT_EQ(machine.starts(), 2) << "a retry that a jump has passed is made at once";
}

TEST_F(SleepAndClock, AClockSetBackByUpToThreeHoursRepeatsNoStartAndByMoreItDoes)
{
    launch();
    runLoop.advanceTo(local(2026, 11, 21, 12, 30));
    ASSERT_EQ(machine.starts(), 1);
    runLoop.stepWallClock(-2h);
    runLoop.advanceTo(local(2026, 11, 21, 13));
    EXPECT_EQ(machine.starts(), 1);
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 22, 12));
    runLoop.stepWallClock(-4h);
    runLoop.advanceTo(local(2026, 11, 21, 12, 30));
    EXPECT_EQ(machine.starts(), 2);
}

TEST_F(SleepAndClock, ANewTimeZoneMovesTheNextBackup)
{
    launch();
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 21, 12));
    const ScopedEnvironment travel("TZ", "Europe/London");
    runLoop.advance(Seconds(16));
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 21, 12)) << "noon of the new zone";
}

TEST_F(SleepAndClock, APauseThatEndsInSleepEndsOnWake)
{
    launch();
    controller->pauseForClicked(3600);
    EXPECT_EQ(text(menu().pauseScheduleMenuItem), u"Schedule Paused Until: Today, 11:00\u202FAM"_s);
    sleepUntil(local(2026, 11, 21, 11, 30));
    EXPECT_EQ(defaults.integer(settingskeys::pauseUntilTag), 0);
    EXPECT_FALSE(menu().pauseScheduleMenuItem->isChecked());
    EXPECT_FALSE(menu().resumeScheduleMenuItem->isVisible());
}

} // namespace quillon
