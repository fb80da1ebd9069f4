#include "ControllerFixture.h"

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class Pause : public ControllerFixture {
protected:
    qlonglong checkedDuration() const
    {
        qlonglong checked = 0;
        for (const QAction* duration : menu().pauseDurationItems())
            checked += duration->isChecked() ? duration->data().toLongLong() : 0;
        return checked;
    }
};

TEST_F(Pause, ALengthChosenInTheMenuPausesUntilTheGraceAfterItsEnd)
{
    launch();
    menu().pauseDurationItems()[2]->trigger(); // four hours
    EXPECT_TRUE(menu().pauseScheduleMenuItem->isChecked());
    EXPECT_TRUE(menu().resumeScheduleMenuItem->isVisible());
    EXPECT_EQ(checkedDuration(), 14400);
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 22, 12));
    runLoop.advance(Seconds(14400 + 9));
    EXPECT_EQ(checkedDuration(), 14400);
    runLoop.advance(Seconds(2));
    EXPECT_EQ(checkedDuration(), 0);
    EXPECT_EQ(text(menu().pauseScheduleMenuItem), u"Pause Schedule For"_s);
    EXPECT_EQ(machine.starts(), 0);
}

TEST_F(Pause, AnotherLengthReplacesThePauseFromNowOn)
{
    launch();
    controller->pauseForClicked(3600);
    runLoop.advance(Seconds(1800));
    controller->pauseForClicked(172800);
    EXPECT_EQ(checkedDuration(), 172800);
    EXPECT_EQ(defaults.date(settingskeys::pauseUntilDate), runLoop.now() + 48h);
    runLoop.advance(Seconds(7200));
    EXPECT_EQ(checkedDuration(), 172800) << "the timer of the first pause is gone";
}

TEST_F(Pause, FourWeeksHoldAcrossARestart)
{
    launch();
    controller->pauseForClicked(2419200);
    const auto end = *defaults.date(settingskeys::pauseUntilDate);
    controller->stopTimer(); // weeks of polls would only take long
    runLoop.advance(Seconds(86400 * 20));
    controller.reset();
    launch();
    controller->stopTimer();
    EXPECT_TRUE(menu().pauseScheduleMenuItem->isChecked());
    EXPECT_EQ(checkedDuration(), 2419200);
    runLoop.advanceTo(end);
    EXPECT_EQ(machine.starts(), 0);
    EXPECT_EQ(checkedDuration(), 2419200);
    runLoop.advance(Seconds(11));
    EXPECT_EQ(checkedDuration(), 0);
}

TEST_F(Pause, APauseThatEndedWhileTheProgramWasNotRunningIsOverAtStart)
{
    defaults.stored[settingskeys::pauseUntilTag] = 3600LL;
    defaults.setDate(settingskeys::pauseUntilDate, local(2026, 11, 21, 9));
    launch();
    EXPECT_FALSE(defaults.date(settingskeys::pauseUntilDate));
    EXPECT_EQ(defaults.integer(settingskeys::pauseUntilTag), 0);
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 21, 12));
}

TEST_F(Pause, ResumingEarlyAndTheOldTimerLaterChangeNothingMore)
{
    launch();
    controller->pauseForClicked(3600);
    menu().resumeScheduleMenuItem->trigger();
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 21, 12));
    runLoop.advance(Seconds(3700));
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 21, 12));
    EXPECT_FALSE(menu().resumeScheduleMenuItem->isVisible());
}

TEST_F(Pause, TheTimerOfAPauseThatWasEndedEarlyLeavesALaterRetryAlone)
{
    machine.phases = {{u"Copying"_s, 20, true}};
    launch();
    controller->pauseForClicked(3600);
    controller->resumeScheduleClicked();
    runLoop.advanceTo(local(2026, 11, 21, 10, 57));
    machine.start(u"A"_s);
    runLoop.advanceTo(local(2026, 11, 21, 11, 1));
    EXPECT_EQ(manager->retryBackupDate(), local(2026, 11, 21, 11, 3));
}

TEST_F(Pause, AnEndThatTheScheduleFindsFirstIsShownAfterASleepToo)
{
    launch();
    controller->pauseForClicked(3600);
    runLoop.advance(Seconds(3603));
    manager->scheduleNextBackup(); // forgets the pause
    sleepUntil(local(2026, 11, 21, 11, 0, 5));
    EXPECT_FALSE(menu().pauseScheduleMenuItem->isChecked());
    EXPECT_FALSE(menu().resumeScheduleMenuItem->isVisible());
    EXPECT_EQ(checkedDuration(), 0);
}

TEST_F(Pause, FollowsAClockThatIsSet)
{
    launch();
    controller->pauseForClicked(7200);
    const auto end = *defaults.date(settingskeys::pauseUntilDate);
    runLoop.stepWallClock(-30min);
    runLoop.advance(Seconds(5400));
    EXPECT_EQ(checkedDuration(), 7200) << "the end is a date";
    sleepUntil(end - 10min);
    EXPECT_EQ(checkedDuration(), 7200) << "a pause that outlasts a sleep goes on";
    runLoop.stepWallClock(15min);
    runLoop.advance(Seconds(16));
    EXPECT_EQ(checkedDuration(), 0);
    EXPECT_FALSE(defaults.date(settingskeys::pauseUntilDate));
}

TEST_F(Pause, APauseDropsAPendingRetry)
{
    machine.phases = {{u"Copying"_s, 20, true}};
    launch();
    machine.start(u"A"_s);
    runLoop.advance(Seconds(60));
    ASSERT_TRUE(manager->retryBackupDate());
    controller->pauseForClicked(3600);
    EXPECT_FALSE(manager->retryBackupDate());
    runLoop.advance(Seconds(3500));
    EXPECT_EQ(machine.starts(), 1);
}

TEST_F(Pause, ARuleAtTheVeryEndOfThePauseStartsOnce)
{
    defaults.stored[settingskeys::pauseUntilTag] = 3600LL;
    defaults.setDate(settingskeys::pauseUntilDate, local(2026, 11, 21, 12));
    launch();
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 21, 12));
    runLoop.advanceTo(local(2026, 11, 21, 12, 10));
    EXPECT_EQ(machine.starts(), 1);
}

} // namespace quillon
