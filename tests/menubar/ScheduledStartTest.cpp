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

TEST_F(ScheduledStart, AnAcceptedStartThatNoRunFollowsStopsNoLaterOne)
{
    machine.phases = {{u"Copying"_s, 0}};
    launch();
    runLoop.advanceTo(local(2026, 11, 21, 12, 2));
    EXPECT_EQ(controller->tmState(), TMState::Starting);
    const auto calls = machine.launched().size();
    runLoop.advance(Seconds(60));
    EXPECT_EQ(machine.launched().size(), calls + 20) << "nobody looks for the run five times a second any more";
    runLoop.advanceTo(local(2026, 11, 22, 12, 0, 5));
    EXPECT_EQ(machine.starts(), 2);
    EXPECT_EQ(controller->tmState(), TMState::Starting) << "the tool reports no run, which is no end of starting";
    menu().backupNowMenuItem->trigger(); // it offers to skip
    runLoop.advance(Seconds(5));
    EXPECT_EQ(controller->tmState(), TMState::NotRunning);
    EXPECT_EQ(machine.starts(), 2);
    EXPECT_EQ(machine.launched().last().arguments, QStringList{u"status"_s});
    EXPECT_TRUE(menu().backupNowMenuItem->isEnabled());
}

TEST_F(ScheduledStart, LooksForTheRunBeforeItAsksForTheDisks)
{
    launch();
    runLoop.advanceTo(local(2026, 11, 21, 12, 0, 5));
    QStringList commands;
    for (const auto& request : machine.launched())
        commands.append(request.arguments.first());
    const auto start = commands.indexOf(u"startbackup"_s);
    EXPECT_EQ(commands.value(start + 1), u"status"_s) << "a short run would be over before a slow list is there";
    EXPECT_EQ(commands.sliced(start).count(u"destinationinfo"_s), 1);
}

TEST_F(ScheduledStart, AQuestionThatCannotBeReadChangesNothing)
{
    launch();
    runLoop.advanceTo(local(2026, 11, 21, 12) - 20s);
    machine.start(u"A"_s);
    runLoop.advanceTo(local(2026, 11, 21, 12));
    ASSERT_EQ(icon(), MenuBarIconState::Running);
    machine.injection = {int(machine.launched().size()) + 1, TmutilScript::Fault::NotUtf8};
    int iconChanges = 0;
    QObject::connect(controller.get(), &StatusMenuController::menuBarIconStateChanged, [&] { ++iconChanges; });
    runLoop.advance(Seconds(5));
    EXPECT_EQ(iconChanges, 0);
}

TEST_F(ScheduledStart, ARunThatItsQuestionFindsIsShownWhole)
{
    machine.destinations = {{u"A"_s, u"First"_s}, {u"B"_s, u"Second"_s}};
    runLoop.advance(Seconds(7)); // no poll comes between the run's begin and the start
    launch();
    runLoop.advanceTo(local(2026, 11, 21, 12) - 8s);
    machine.start(u"B"_s);
    runLoop.advanceTo(local(2026, 11, 21, 12) + 100ms);
    EXPECT_TRUE(text(menu().phaseMenuItem).startsWith(u"Phase: Copying (3."_s))
        << text(menu().phaseMenuItem).toStdString();
    runLoop.advance(Seconds(0.1));
    EXPECT_EQ(text(menu().backupDiskMenuItem), u"Backup Disk: Second"_s);
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
