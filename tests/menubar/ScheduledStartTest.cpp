#include "ControllerFixture.h"

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class ScheduledStart : public ControllerFixture {
protected:
    QList<QStringList> startCommands() const
    {
        QList<QStringList> commands;
        for (const auto& request : machine.launched()) {
            if (request.arguments.first() == u"startbackup"_s)
                commands.append(request.arguments);
        }
        return commands;
    }
};

TEST_F(ScheduledStart, RotatesDisksExactlyWhenTheSettingSaysSo)
{
    launch();
    runLoop.advanceTo(local(2026, 11, 21, 12, 5));
    defaults.setObject(settingskeys::rotateBackupDisks, 0LL);
    runLoop.advanceTo(local(2026, 11, 22, 12, 5));
    EXPECT_EQ(startCommands(), (QList<QStringList>{{u"startbackup"_s, u"-r"_s}, {u"startbackup"_s}}));
}

TEST_F(ScheduledStart, LeavesARunningBackupAlone)
{
    launch();
    runLoop.advanceTo(local(2026, 11, 21, 11, 59, 50));
    machine.start(u"A"_s);
    runLoop.advance(Seconds(300));
    EXPECT_TRUE(startCommands().isEmpty());
    EXPECT_EQ(machine.starts(), 1);
}

TEST_F(ScheduledStart, IsDroppedWhenThePauseOrTheSwitchChangesBeforeTheAnswer)
{
    launch();
    machine.callDuration = 1;
    runLoop.advanceTo(local(2026, 11, 21, 12) + 500ms);
    controller->pauseForClicked(3600);
    runLoop.advance(Seconds(60));
    EXPECT_TRUE(startCommands().isEmpty());
    controller->resumeScheduleClicked();

    runLoop.advanceTo(local(2026, 11, 22, 12) + 500ms);
    manager->setIsScheduleEnabled(false);
    runLoop.advance(Seconds(60));
    EXPECT_TRUE(startCommands().isEmpty());
}

TEST_F(ScheduledStart, ARuleEditedWithTheScheduleOffArmsTheTimerAndItStarts)
{
    defaults.stored[settingskeys::enableSchedule] = 0LL;
    launch();
    EXPECT_FALSE(manager->nextScheduledBackupDate());
    manager->updateBackupScheduleAtIndex(0, 11 * 3600, u"time"_s);
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 21, 11));
    runLoop.advanceTo(local(2026, 11, 21, 11, 1));
    EXPECT_EQ(startCommands().size(), 1);
    EXPECT_FALSE(manager->nextScheduledBackupDate());
}

TEST_F(ScheduledStart, RightAfterAnotherRunKeepsTheTwoApart)
{
    launch();
    runLoop.advanceTo(local(2026, 11, 21, 12) - 85s);
    machine.start(u"A"_s); // ends a second before the scheduled time, between two polls
    runLoop.advanceTo(local(2026, 11, 21, 12) + 10s);
    EXPECT_EQ(machine.starts(), 2);
    ASSERT_EQ(manager->latestBackupInfo().size(), 1) << "the first run is recorded";
    EXPECT_LT(controller->progress().percentage(), 0.5) << "and its progress is not the second one's";
}

TEST_F(ScheduledStart, AStartThatIsRefusedIsSilent)
{
    launch();
    runLoop.advanceTo(local(2026, 11, 21, 11, 59, 59));
    const auto icon = controller->menuBarIconState();
    machine.injection = {1, TmutilScript::Fault::None, 30, u"startbackup"_s};
    runLoop.advance(Seconds(3));
    ASSERT_EQ(startCommands().size(), 1);
    EXPECT_EQ(machine.starts(), 0);
    EXPECT_EQ(controller->menuBarIconState(), icon);
    EXPECT_NE(controller->tmState(), TMState::Starting);
    EXPECT_TRUE(alerts.presented.empty());
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 22, 12));
}

TEST_F(ScheduledStart, AToolThatHangsHoldsUpNeitherThePollsNorTheInterface)
{
    launch();
    machine.injection = {int(machine.launched().size()) + 1, TmutilScript::Fault::Hang, 0};
    runLoop.advance(Seconds(20));
    EXPECT_EQ(machine.liveChildren(), 1);
    const auto calls = machine.launched().size();
    runLoop.advance(Seconds(30));
    EXPECT_EQ(machine.launched().size(), calls) << "no polls pile up behind it";
    runLoop.advance(Seconds(40));
    EXPECT_EQ(machine.liveChildren(), 0) << "it is ended after a minute";
    EXPECT_GT(machine.launched().size(), calls);
    EXPECT_EQ(controller->tmState(), TMState::NotRunning);
}

} // namespace quillon
