#include "ControllerFixture.h"

namespace quillon {

using namespace Qt::StringLiterals;

class RunCycle : public ControllerFixture {};

TEST_F(RunCycle, AScheduledBackupIsStartedFollowedAndRecorded)
{
    launch();
    EXPECT_EQ(item.title, u"Next:\n1h 59m"_s);

    runLoop.advanceTo(local(2026, 11, 21, 12) + std::chrono::milliseconds(400));
    EXPECT_EQ(controller->tmState(), TMState::Running);
    runLoop.advance(Seconds(1));
    ASSERT_EQ(machine.starts(), 1);
    EXPECT_LT(machine.startDates().first() - local(2026, 11, 21, 12), std::chrono::milliseconds(200));
    EXPECT_EQ(item.image->name, u"clock.arrow.2.circlepath"_s);
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 22, 12)) << "the following date is armed at once";

    runLoop.advance(Seconds(30)); // in the middle of copying
    EXPECT_TRUE(text(menu().phaseMenuItem).startsWith(u"Phase: Copying (4"_s));
    EXPECT_EQ(text(menu().backupNowMenuItem), u"Skip This Backup"_s);
    EXPECT_TRUE(item.title.contains(u"%\n3"_s)) << item.title.toStdString();
    EXPECT_EQ(item.image->percent, item.title.section(u'.', 0, 0).toInt());

    QList<MenuBarIconState> icons;
    QObject::connect(controller.get(), &StatusMenuController::menuBarIconStateChanged, &item,
                     [this, &icons] { icons.append(icon()); });
    runLoop.advance(Seconds(90));
    EXPECT_EQ(icons, (QList<MenuBarIconState>{MenuBarIconState::Completed, MenuBarIconState::Idle}));
    EXPECT_EQ(controller->uiState(), TMState::NotRunning);
    ASSERT_EQ(manager->latestBackupInfo().size(), 1);
    const BackupInfo& record = manager->latestBackupInfo().first();
    EXPECT_EQ(record.diskIdentifier(), u"A"_s);
    EXPECT_EQ(record.diskName(), u"First Disk"_s);
    EXPECT_GT(record.totalBytes(), 4'500'000);
    EXPECT_EQ(record.date(), defaults.date(settingskeys::lastBackupDate));
    EXPECT_EQ(defaults.string(settingskeys::lastBackupDiskIdentifier), u"A"_s);
    EXPECT_EQ(defaults.integer(settingskeys::lastMenuBarIconState), 1) << "an idle refresh follows the completed mark";
    EXPECT_FALSE(manager->retryBackupDate());
    EXPECT_TRUE(text(menu().phaseMenuItem).startsWith(u"Latest Backup: Today, "_s));
}

TEST_F(RunCycle, ARunThatEndsBeforeItsFinishingPhaseIsAFailureWithARetryAtAWholeMinute)
{
    machine.phases = {{u"Copying"_s, 20, true}};
    launch();
    machine.start(u"A"_s);
    runLoop.advance(Seconds(60));
    EXPECT_EQ(icon(), MenuBarIconState::Failed);
    EXPECT_EQ(item.image->paletteColor, SymbolColor::SystemOrange);
    ASSERT_TRUE(manager->retryBackupDate());
    const auto retry = *manager->retryBackupDate();
    EXPECT_EQ(retry.time_since_epoch() % std::chrono::minutes(1), std::chrono::milliseconds(0));
    EXPECT_TRUE(manager->latestBackupInfo().isEmpty());
    EXPECT_TRUE(item.title.startsWith(u"Retry:"_s));
    EXPECT_TRUE(menu().skipRetryAttemptMenuItem->isVisible());
    EXPECT_TRUE(text(menu().remainingTimeMenuItem).endsWith(u")"_s));

    const int before = machine.starts();
    runLoop.advanceTo(retry + std::chrono::seconds(2));
    EXPECT_EQ(machine.starts(), before + 1) << "the retry starts a backup";
    EXPECT_EQ(icon(), MenuBarIconState::Running);
    EXPECT_FALSE(manager->retryBackupDate());
}

TEST_F(RunCycle, AFailureWhilePausedOrWithRetryOffEarnsNoRetry)
{
    machine.phases = {{u"Copying"_s, 20, true}};
    launch();
    controller->pauseForClicked(3600);
    machine.start(u"A"_s);
    runLoop.advance(Seconds(60));
    EXPECT_EQ(icon(), MenuBarIconState::Failed);
    EXPECT_FALSE(manager->retryBackupDate());

    controller->resumeScheduleClicked();
    defaults.setObject(settingskeys::enableRetryAtFailure, 0LL);
    machine.start(u"A"_s);
    runLoop.advance(Seconds(60));
    EXPECT_EQ(icon(), MenuBarIconState::Failed);
    EXPECT_FALSE(manager->retryBackupDate());
}

TEST_F(RunCycle, ARetryIsArmedAlthoughTheScheduleIsOff)
{
    machine.phases = {{u"Copying"_s, 20, true}};
    defaults.stored[settingskeys::enableSchedule] = 0LL;
    launch();
    EXPECT_EQ(item.title, u"Next:\nDisabled"_s);
    machine.start(u"A"_s);
    runLoop.advance(Seconds(60));
    ASSERT_TRUE(manager->retryBackupDate());
    runLoop.advance(Seconds(400));
    EXPECT_EQ(machine.starts(), 2);
}

TEST_F(RunCycle, AStoppedRunIsNeverRecordedAsCompleted)
{
    launch();
    machine.start(u"A"_s);
    runLoop.advance(Seconds(78)); // cleaning up: marked as complete
    machine.stop();
    runLoop.advance(Seconds(3));
    EXPECT_EQ(controller->tmState(), TMState::Stopping);
    EXPECT_TRUE(item.title.endsWith(u"Stopping"_s)) << item.title.toStdString();
    EXPECT_FALSE(menu().backupNowMenuItem->isEnabled());
    runLoop.advance(Seconds(20));
    EXPECT_TRUE(manager->latestBackupInfo().isEmpty());
    EXPECT_TRUE(menu().backupNowMenuItem->isEnabled());
}

TEST_F(RunCycle, AnUnreadableStatusEndsARunAndDrawsNoIdleTitle)
{
    launch();
    machine.start(u"A"_s);
    runLoop.advance(Seconds(30));
    ASSERT_EQ(controller->uiState(), TMState::Running);
    machine.injection = {int(machine.launched().size()) + 1, TmutilScript::Fault::NotUtf8, 0};
    runLoop.advance(Seconds(3));
    EXPECT_EQ(controller->tmState(), TMState::Unknown);
    EXPECT_EQ(controller->uiState(), TMState::Unknown);
    EXPECT_EQ(icon(), MenuBarIconState::Failed);
    EXPECT_EQ(item.title, u""_s);
    runLoop.advance(Seconds(15));
    EXPECT_EQ(icon(), MenuBarIconState::Running) << "the run is found again";
    EXPECT_FALSE(manager->retryBackupDate()) << "and cancels the retry";
}

TEST_F(RunCycle, AMarkOfTroubleSurvivesIdleRefreshesAndRestart)
{
    defaults.stored[settingskeys::lastMenuBarIconState] = 6LL;
    launch();
    runLoop.advance(Seconds(60));
    EXPECT_EQ(icon(), MenuBarIconState::MissedSchedule);
    EXPECT_EQ(item.image->paletteColor, SymbolColor::SystemYellow);
    defaults.setObject(settingskeys::enableMenuBarColors, 0LL);
    notifications.post(notifications::shouldUpdateStatusBar);
    runLoop.settle();
    EXPECT_EQ(item.image->paletteColor, std::nullopt);
    machine.start(u"A"_s);
    runLoop.advance(Seconds(120));
    EXPECT_EQ(icon(), MenuBarIconState::Idle);
}

TEST_F(RunCycle, IconOnlyModeShowsNoTitleAndMarksAnUpdate)
{
    defaults.stored[settingskeys::showMenuBarIconOnly] = 1LL;
    launch();
    EXPECT_EQ(item.title, u""_s);
    notifications.post(notifications::appUpdateAvailable, {{u"latestAppVersion"_s, u"2.0"_s}});
    runLoop.settle();
    EXPECT_EQ(icon(), MenuBarIconState::UpdateAvailable);
    EXPECT_TRUE(menu().updateAvailableMenuItem->isVisible());
    defaults.setObject(settingskeys::showMenuBarIconOnly, 0LL);
    notifications.post(notifications::shouldUpdateStatusBar);
    runLoop.settle();
    EXPECT_EQ(item.title.section(u'\n', 0, 0), u"Next: 🟢"_s);
    EXPECT_EQ(item.attributed->baselineOffset, -5.0);
    notifications.post(notifications::appUpdateAvailable, {{u"latestAppVersion"_s, u""_s}});
    runLoop.settle();
    EXPECT_FALSE(menu().updateAvailableMenuItem->isVisible());
}

TEST_F(RunCycle, TheDiskInUseIsNamedOnceThereAreTwo)
{
    machine.destinations = {{u"A"_s, u"50%1 disk & more"_s}, {u"B"_s, u"Second%20Disk"_s}};
    launch();
    EXPECT_TRUE(menu().backupDiskMenuItem->isVisible()) << "the first menu is whole as it opens";
    EXPECT_EQ(text(menu().backupDiskMenuItem), u"Backup Disk: N/A"_s);
    machine.start(u"B"_s);
    runLoop.advance(Seconds(30));
    EXPECT_EQ(text(menu().backupDiskMenuItem), u"Backup Disk: Second Disk"_s);
    runLoop.advance(Seconds(90));
    machine.start(u"A"_s);
    runLoop.advance(Seconds(30));
    EXPECT_EQ(text(menu().backupDiskMenuItem), u"Backup Disk: 50%1 disk && more"_s);
    runLoop.advance(Seconds(90));
    ASSERT_EQ(manager->latestBackupInfo().size(), 2);
    EXPECT_EQ(manager->latestBackupInfo()[0].diskIdentifier(), u"A"_s);
    machine.start(u"B"_s);
    runLoop.advance(Seconds(120));
    EXPECT_EQ(manager->latestBackupInfo()[0].diskIdentifier(), u"B"_s) << "newest first";
    EXPECT_EQ(manager->latestBackupInfo().size(), 2);
}

TEST_F(RunCycle, AStartThatIsNeverReportedEndsItsFastPollingWhenTheStatusIsLost)
{
    launch();
    machine.phases = {{u"Copying"_s, 0.0, true}};
    runLoop.advanceTo(local(2026, 11, 21, 12, 0, 1));
    ASSERT_EQ(controller->tmState(), TMState::Starting);
    EXPECT_EQ(item.title, u"0.0%\nStarting"_s);
    runLoop.advance(Seconds(10));
    EXPECT_EQ(controller->tmState(), TMState::Starting) << "there is no time limit on it";
    machine.injection = {int(machine.launched().size()) + 2, TmutilScript::Fault::Crash, 0};
    runLoop.advance(Seconds(2));
    EXPECT_NE(controller->tmState(), TMState::Starting);
    const auto calls = machine.launched().size();
    runLoop.advance(Seconds(15));
    EXPECT_LE(machine.launched().size() - calls, 2);
}

} // namespace quillon
