#include "ControllerFixture.h"

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class Commands : public ControllerFixture {
protected:
    qsizetype callsIn(double seconds)
    {
        const auto before = machine.launched().size();
        wait(seconds);
        return machine.launched().size() - before;
    }
};

TEST_F(Commands, AClickStartsOneBackupWhateverIsKnownAndIsFollowedClosely)
{
    defaults.stored[settingskeys::rotateBackupDisks] = 0LL;
    launch();
    spoilNext(Fault::None, 2, u"status"_s); // reported twice, by the exit status and by the reader
    click();
    // told that nobody knows, and that the start was accepted
    after(2.2 * machine.callDuration, "startbackup; 1, 0.0% Starting, Skip This Backup, next 21 12:00");
    after(0.5, "2, 0.0% Starting, Skip This Backup, next 21 12:00");
    wait(120);
    openMenuAndWait();
    defaults.stored[settingskeys::rotateBackupDisks] = 1LL;
    menu().backupNowMenuItem->menu()->actions().first()->trigger();
    after(1, "startbackup -r; 2, 0.0% Starting, Skip This Backup, next 21 12:00");
}

TEST_F(Commands, ARequestFromElsewhereStartsOneAndLeavesARunAlone)
{
    launch();
    for (const double pause : {0.05, 0.1, 5.0, 1.0}) {
        controller->backupNowRequested();
        wait(pause);
    }
    wait(120);
    runElsewhere(0);
    controller->backupNowRequested();
    after(1, "startbackup -r; 2, 0.0% Starting, Skip This Backup, next 21 12:00");
}

TEST_F(Commands, AClickInARunStopsItAndTheUserWantedItSo)
{
    launch();
    runElsewhere(20);
    spoilNext(Fault::None, 3, u"stopbackup"_s);
    click();
    after(1, "stopbackup; 2, 23.5% 45s, Skip This Backup, next 21 12:00"); // it was refused
    spoilNext(Fault::NotUtf8, 0, u"status"_s);
    click();
    after(0.2, "2, 23.5% 45s, Skip This Backup, next 21 12:00"); // nobody knows what to do
    click();
    after(1, "stopbackup; 2, 25.4% Stopping, (Stopping...), next 21 12:00");
    controller->backupNowClicked(); // the menu may have been opened before
    after(30, "stopbackup; 1, Next: 1h 59m, Back Up Now, next 21 12:00");
    EXPECT_TRUE(manager->latestBackupInfo().isEmpty());
    machine.phases = {{u"Copying"_s, 20, true}, {u"Finishing"_s, 6.5}};
    runElsewhere(27);
    click(); // nobody has looked since it ended
    after(1, "1, Next: 1h 58m, Back Up Now, next 21 12:00");
    EXPECT_EQ(manager->latestBackupInfo().size(), 1);
}

TEST_F(Commands, AClickAndAScheduledStartAtATimeMakeOneBackup)
{
    machine.callDuration = 2;
    launch();
    until(today(12, 0, 1));
    for (int times = 0; times < 5; ++times) { // by somebody who sees nothing happen
        controller->backupNowClicked();       // as the submenu does that was open before
        controller->backupNowSubMenuItemClicked(u"B"_s);
        wait(0.5);
        EXPECT_FALSE(menu().backupNowMenuItem->isEnabled()) << "it has no effect";
    }
    after(10, "startbackup -r; 2, 1.7% 59s, Skip This Backup, next 22 12:00");
    wait(80);
    sleepUntil(today(35, 59, 59));
    click();
    after(20, "startbackup -r; 2, 16.7% 50s, Skip This Backup, next 23 12:00");
    wait(80);
    sleepUntil(today(59, 59, 59));
    spoilNext(Fault::None, 17, u"startbackup"_s);
    click(); // the scheduled start waits, and is made when this one is refused
    after(20, "startbackup -r; startbackup -r; 2, 6.7% 56s, Skip This Backup, next 24 12:00");
    wait(80);
    openMenuAndWait();
    wait(2);
    const QAction* first = menu().backupNowMenuItem->menu()->actions().first();
    EXPECT_TRUE(first->isEnabled());
    for (int times = 0; times < 2; ++times) {
        controller->backupNowSubMenuItemClicked(u"B"_s);
        wait(0.5);
        EXPECT_FALSE(first->isEnabled());
    }
    after(11, "startbackup -d B; 2, 6.7% 56s, Skip This Backup, next 24 12:00");
}

TEST_F(Commands, AScheduledStartIsDroppedWhenTheScheduleIsPausedOrSwitchedOffBeforeTheAnswer)
{
    launch();
    machine.callDuration = 1;
    until(today(12) + 500ms);
    controller->pauseForClicked(3600);
    after(60, "1, Next: 23h 59m, Back Up Now, next 22 12:00");
    controller->resumeScheduleClicked();
    sleepUntil(today(36) - 1min);
    until(today(36) + 500ms);
    manager->setIsScheduleEnabled(false);
    after(60, "1, Next: Disabled, Back Up Now, next never");
}

TEST_F(Commands, AScheduledStartThatIsRefusedIsSilentAndAQuestionThatCannotBeReadChangesNothing)
{
    launch();
    spoilNext(Fault::None, 30, u"startbackup"_s);
    until(today(12, 0, 3));
    expect("startbackup -r; 1, Next: 23h 59m, Back Up Now, next 22 12:00");
    EXPECT_TRUE(alerts.presented.empty());
    sleepUntil(today(36) - 20s);
    runElsewhere(20);
    spoilNext(Fault::NotUtf8);
    after(0.2, "2, 20.1% 47s, Skip This Backup, next 23 12:00");
}

TEST_F(Commands, AScheduledStartKeepsTheRunThatItFindsOrThatHasJustEndedApart)
{
    wait(7); // no poll comes between the run's begin and the start
    launch();
    until(today(12) - 8s);
    machine.start(u"B"_s);
    until(today(12) + 200ms);
    expect("2, 3.3% 57s, Skip This Backup, next 22 12:00");
    EXPECT_EQ(row(menu().backupDiskMenuItem), u"(Backup Disk: Second)"_s);
    wait(80);
    sleepUntil(today(36) - 85s);
    runElsewhere(95); // it ended a second before the scheduled time, between two polls
    expect("startbackup -r; 2, 5.2% 56s, Skip This Backup, next 23 12:00");
    EXPECT_EQ(manager->latestBackupInfo().size(), 2) << "the first run is recorded";
}

TEST_F(Commands, AStartThatNoRunFollowsIsLookedForAMinuteCloselyAndStopsNoLaterOne)
{
    machine.phases = {{u"Copying"_s, 0}};
    launch();
    until(today(12, 0, 40));
    EXPECT_EQ(callsIn(10), 50);
    until(today(12, 2));
    EXPECT_EQ(callsIn(60), 20);
    expect("startbackup -r; 1, 0.0% Starting, Skip This Backup, next 22 12:00");
    sleepUntil(today(36) - 5s);
    after(10, "startbackup -r; 1, 0.0% Starting, Skip This Backup, next 23 12:00");
    click(); // it offers to skip
    after(5, "stopbackup; 1, Next: 23h 59m, Back Up Now, next 23 12:00");
    EXPECT_EQ(callsIn(60), 4);
}

TEST_F(Commands, ARefusedStartIsToldWithItsCodeAndWhatItMeans)
{
    launch();
    const QString refused = u"The backup could not be started. Time Machine answered with error code %1."_s;
    for (const auto& [status, reason] :
         {std::pair{9, u"\n\nThe program restic, which makes the b"_s}, {17, QString()}}) {
        spoilNext(Fault::None, status, u"startbackup"_s);
        click();
        wait(1);
        const auto alert = takeAlert().first;
        EXPECT_EQ(alert.messageText + alert.buttons.join(u' '), u"WarningClose"_s);
        EXPECT_TRUE(alert.informativeText.startsWith(refused.arg(status) + reason));
        EXPECT_EQ(alert.informativeText.contains(u'\n'), status != 17);
    }
    EXPECT_EQ(row(menu().backupNowMenuItem), u"Back Up Now >"_s);
}

TEST_F(Commands, AToolThatHangsIsAskedNothingMoreUntilItIsEndedAfterAMinute)
{
    launch();
    spoilNext(Fault::Hang);
    wait(20);
    EXPECT_EQ(callsIn(50), 0) << "no polls pile up behind it";
    EXPECT_EQ(callsIn(20), 1);
    expect("1, Next: 1h 58m, Back Up Now, next 21 12:00");
}

} // namespace quillon
