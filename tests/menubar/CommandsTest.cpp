#include "ControllerFixture.h"

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class Commands : public ControllerFixture {
protected:
    /// Clicks on everything that starts a backup, by somebody who sees nothing happen.
    void clickImpatiently()
    {
        for (int times = 0; times < 5; ++times) {
            controller->backupNowClicked(); // as the submenu does that was open before
            controller->backupNowSubMenuItemClicked(u"B"_s);
            wait(0.5);
            EXPECT_FALSE(menu().backupNowMenuItem->isEnabled()) << "it has no effect";
        }
        wait(10);
    }
    qsizetype callsIn(double seconds)
    {
        const auto before = machine.launched().size();
        wait(seconds);
        return machine.launched().size() - before;
    }
};

TEST_F(Commands, AClickStartsABackupAndIsFollowedClosely)
{
    defaults.stored[settingskeys::rotateBackupDisks] = 0LL;
    launch();
    click();
    wait(2.2 * machine.callDuration); // told that no backup runs, and that the start was accepted
    expect("startbackup; 1, 0.0% Starting, Skip This Backup, next 21 12:00");
    wait(0.5);
    expect("2, 0.0% Starting, Skip This Backup, next 21 12:00");
    wait(120);
    openMenuAndWait();
    defaults.stored[settingskeys::rotateBackupDisks] = 1LL;
    menu().backupNowMenuItem->menu()->actions().first()->trigger();
    wait(1);
    expect("startbackup -r; 2, 0.0% Starting, Skip This Backup, next 21 12:00");
}

TEST_F(Commands, ARequestFromElsewhereStartsOneAndLeavesARunAlone)
{
    launch();
    for (const double pause : {0.05, 0.1, 5.0, 1.0}) {
        controller->backupNowRequested();
        wait(pause);
    }
    expect("startbackup -r; 2, 0.0% Starting, Skip This Backup, next 21 12:00");
    wait(120);
    runElsewhere(0);
    controller->backupNowRequested();
    wait(1);
    expect("2, 0.0% Starting, Skip This Backup, next 21 12:00");
}

TEST_F(Commands, AClickInARunStopsItAndTheUserWantedItSo)
{
    launch();
    runElsewhere(20);
    spoilNext(Fault::None, 3, u"stopbackup"_s);
    click();
    wait(1);
    expect("stopbackup; 2, 23.5% 45s, Skip This Backup, next 21 12:00"); // it was refused
    spoilNext(Fault::NotUtf8, 0, u"status"_s);
    click();
    wait(0.2);
    expect("2, 23.5% 45s, Skip This Backup, next 21 12:00"); // nobody knows what to do
    click();
    wait(1);
    expect("stopbackup; 2, 25.4% Stopping, (Stopping...), next 21 12:00");
    controller->backupNowClicked(); // the menu may have been opened before
    wait(30);
    expect("stopbackup; 1, Next: 1h 59m, Back Up Now, next 21 12:00");
    EXPECT_TRUE(manager->latestBackupInfo().isEmpty());
    machine.phases = {{u"Copying"_s, 20, true}, {u"Finishing"_s, 6.5}};
    runElsewhere(27);
    click(); // nobody has looked since it ended
    wait(1);
    expect("1, Next: 1h 58m, Back Up Now, next 21 12:00");
    EXPECT_EQ(manager->latestBackupInfo().size(), 1);
}

TEST_F(Commands, AnAnswerThatCannotBeReadLeadsToOneStart)
{
    launch();
    spoilNext(Fault::None, 2, u"status"_s); // reported twice, by the exit status and by the reader
    click();
    wait(10);
    expect("startbackup -r; 2, 5.2% 56s, Skip This Backup, next 21 12:00");
}

TEST_F(Commands, ClicksWhileTheScheduleStartsABackupNeitherStopNorRepeatIt)
{
    machine.callDuration = 2;
    launch();
    until(today(12, 0, 1));
    clickImpatiently();
    expect("startbackup -r; 2, 1.7% 59s, Skip This Backup, next 22 12:00");
}

TEST_F(Commands, AScheduledStartWaitsForTheUsersAndIsMadeWhenThatIsRefused)
{
    machine.callDuration = 2;
    launch();
    until(today(11, 59, 59));
    click();
    wait(20);
    expect("startbackup -r; 2, 16.7% 50s, Skip This Backup, next 22 12:00");
    wait(80);
    sleepUntil(today(35, 59, 59));
    spoilNext(Fault::None, 17, u"startbackup"_s);
    click();
    wait(20);
    expect("startbackup -r; startbackup -r; 2, 6.7% 56s, Skip This Backup, next 23 12:00");
}

TEST_F(Commands, AScheduledStartIsDroppedWhenTheScheduleIsPausedOrSwitchedOffBeforeTheAnswer)
{
    launch();
    machine.callDuration = 1;
    until(today(12) + 500ms);
    controller->pauseForClicked(3600);
    wait(60);
    expect("1, Next: 23h 59m, Back Up Now, next 22 12:00");
    sleepUntil(today(35, 59, 59));
    wait(1.5);
    manager->setIsScheduleEnabled(false);
    wait(60);
    expect("1, Next: Disabled, Back Up Now, next never");
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
    wait(0.2);
    expect("2, 20.1% 47s, Skip This Backup, next 23 12:00");
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
    wait(10);
    expect("startbackup -r; 1, 0.0% Starting, Skip This Backup, next 23 12:00");
    click(); // it offers to skip
    wait(5);
    expect("stopbackup; 1, Next: 23h 59m, Back Up Now, next 23 12:00");
    EXPECT_EQ(callsIn(60), 4);
}

TEST_F(Commands, ARefusedStartIsToldWithItsCodeAndWhatItMeans)
{
    launch();
    const QString refused = u"The backup could not be started. Time Machine answered with error code %1."_s;
    for (const auto& [status, reason] :
         {std::pair{2, u"\n\nNo backup disk is set up yet, and without one no backup can start. Add one in the Time "
                       "Machine settings."_s},
          {4, u"\n\nThe backup disk is not connected."_s},
          {9, u"\n\nThe program restic, which makes the backups, is not installed."_s},
          {17, QString()}}) {
        spoilNext(Fault::None, status, u"startbackup"_s);
        click();
        wait(1);
        const auto alert = takeAlert().first;
        EXPECT_EQ(alert.messageText, u"Warning"_s);
        EXPECT_EQ(alert.informativeText, refused.arg(status) + reason);
        EXPECT_EQ(alert.buttons, QStringList{u"Close"_s});
    }
    expect(
        "startbackup -r; startbackup -r; startbackup -r; startbackup -r; 1, Next: 1h 59m, Back Up Now, next 21 12:00");
}

TEST_F(Commands, TheRunOfAScheduledStartIsLookedForBeforeTheDisksAreAskedFor)
{
    launch();
    until(today(12, 0, 5));
    QString words;
    for (const auto& request : machine.launched())
        words += request.arguments.first() + u' ';
    EXPECT_TRUE(words.contains(u"startbackup status destinationinfo status"_s)) << "a slow list hides no short run";
    EXPECT_EQ(words.count(u"destinationinfo"_s), 2) << "once at launch";
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
