#include "ControllerFixture.h"
#include "StatusItemFace.h"

#include <functional>

namespace quillon {

using namespace Qt::StringLiterals;

class RunCycle : public ControllerFixture {};

TEST_F(RunCycle, AFailureEarnsARetryAlsoWithTheScheduleOffButNotWhereNobodyWantsIt)
{
    letRunsFail();
    launch();
    runElsewhere(60);
    expect("5, Retry: 5m, Back Up Now, retry 21 10:06");
    EXPECT_EQ(row(menu().skipRetryAttemptMenuItem), u"Skip Retry"_s);
    menu().skipRetryAttemptMenuItem->trigger();
    runLoop.settle();
    expect("5, Next: 1h 58m, Back Up Now, next 21 12:00");
    EXPECT_EQ(row(menu().skipRetryAttemptMenuItem), QString());
    for (const auto& [key, unwanted, wanted] :
         {std::tuple{settingskeys::pauseUntilTag, 3600LL, 0LL}, {settingskeys::enableRetryAtFailure, 0LL, 1LL}}) {
        defaults.stored[key] = unwanted;
        runElsewhere(60);
        EXPECT_FALSE(manager->retryBackupDate());
        defaults.stored[key] = wanted;
    }
    manager->setIsScheduleEnabled(false);
    runElsewhere(60);
    expect("5, Retry: Disabled, Back Up Now, retry 21 10:09");
    EXPECT_EQ(row(menu().pauseScheduleMenuItem), u"(Pause Schedule For >)"_s);
}

TEST_F(RunCycle, QuestionsForTheStatusDoNotPileUp)
{
    machine.callDuration = 10;
    spoilNext(Fault::None, 3, u"status"_s); // of which the queue tells twice
    RunFollower follower(runLoop, tmutil);
    follower.start();
    for (int fired = 0; fired < 3; ++fired)
        follower.fire();
    wait(25);
    EXPECT_EQ(machine.launched().size(), 2) << "one, and one more that was asked for later";
}

TEST_F(RunCycle, ARunStoppedElsewhereOrLostFromSightHasFailedUntilItIsFoundAgain)
{
    launch();
    runElsewhere(78); // cleaning up: marked as complete
    machine.stop();
    after(23, "5, Retry: 5m, Back Up Now, retry 21 10:07");
    EXPECT_TRUE(manager->latestBackupInfo().isEmpty());
    runElsewhere(30);
    spoilNext(Fault::NotUtf8);
    after(3, "5, , Back Up Now, retry 21 10:08");
    EXPECT_EQ(controller->uiState(), TMState::Unknown);
    after(15, "2, 65.3% 20s, Skip This Backup, next 21 12:00");
}

TEST_F(RunCycle, SleepIsHeldOffWhileABackupThatWasStartedHereRuns)
{
    launch();
    runElsewhere(30);
    EXPECT_TRUE(awakeLock.reason.isEmpty());
    wait(90);
    const std::function<void()> ends[] = {
        [] {},
        [this] { click(); },
        [this] { machine.stop(); },
        [this] {
            machine.phases = {{u"Copying"_s, 60, true}};
        },
        [this] { defaults.stored[settingskeys::stayAwake] = 0LL; },
    };
    for (const auto& end : ends) {
        click();
        wait(20);
        EXPECT_EQ(awakeLock.reason, u"A backup is running."_s);
        spoilNext(Fault::NotUtf8);
        wait(3);
        EXPECT_TRUE(awakeLock.reason.isEmpty());
        wait(20);
        EXPECT_FALSE(awakeLock.reason.isEmpty());
        end();
        wait(100);
        EXPECT_TRUE(awakeLock.reason.isEmpty());
    }
    defaults.stored.remove(settingskeys::stayAwake);
    runElsewhere(30);
    EXPECT_TRUE(awakeLock.reason.isEmpty());
    wait(90);
    machine.phases = {{u"Finishing"_s, 0.05}}; // too short to be seen
    click();
    wait(20);
    EXPECT_EQ(controller->tmState(), TMState::Starting);
    EXPECT_TRUE(awakeLock.reason.isEmpty());
}

TEST_F(RunCycle, AScheduledBackupIsStartedFollowedAndRecorded)
{
    defaults.stored[settingskeys::lastMenuBarIconState] = 6LL;
    launch();
    after(60, "6, Next: 1h 58m, Back Up Now, next 21 12:00"); // a mark of trouble survives
    until(today(12) + std::chrono::milliseconds(400));
    expect("startbackup -r; 2, 0.0% Starting, Skip This Backup, next 22 12:00");
    // in the middle of copying
    after(30, "2, 40.2% 35s, Skip This Backup, next 22 12:00");
    EXPECT_EQ(item.image->percent, item.title.section(u'.', 0, 0).toInt());
    EXPECT_EQ(row(menu().backupDiskMenuItem), u"(Backup Disk: First)"_s);
    QList<MenuBarIconState> icons;
    QObject::connect(controller.get(), &StatusMenuController::menuBarIconStateChanged, &item,
                     [&] { icons.append(icon()); });
    after(90, "1, Next: 23h 58m, Back Up Now, next 22 12:00");
    EXPECT_EQ(icons, (QList{MenuBarIconState::Completed, MenuBarIconState::Idle}));
    ASSERT_EQ(manager->latestBackupInfo().size(), 1);
    const BackupInfo& record = manager->latestBackupInfo().first();
    EXPECT_EQ(record.diskIdentifier() + record.diskName(), u"AFirst"_s);
    EXPECT_GT(record.totalBytes(), 4'500'000);
    EXPECT_EQ(defaults.date(settingskeys::lastBackupDate), record.date());
    EXPECT_EQ(defaults.integer(settingskeys::lastBackupBytesCopied), record.totalBytes());
    EXPECT_EQ(defaults.string(settingskeys::lastBackupDiskIdentifier), u"A"_s);
    EXPECT_EQ(defaults.integer(settingskeys::lastMenuBarIconState), 1) << "an idle refresh follows the completed mark";
}

TEST_F(RunCycle, TheItemFollowsSettingsUpdatesAndTheSystemsVersion)
{
    defaults.stored[settingskeys::showMenuBarIconOnly] = 1LL;
    defaults.stored[settingskeys::showDetailedTime] = 0LL;
    launch();
    expect("1, , Back Up Now, next 21 12:00");
    EXPECT_EQ(item.menu, &menu());
    notifications.post(notifications::appUpdateAvailable, {{u"latestAppVersion"_s, u"2.0"_s}});
    runLoop.settle();
    EXPECT_EQ(icon(), MenuBarIconState::UpdateAvailable);
    defaults.stored[settingskeys::showMenuBarIconOnly] = 0LL;
    defaults.stored[settingskeys::enableMenuBarColors] = 0LL;
    notifications.post(notifications::shouldUpdateStatusBar);
    runLoop.settle();
    EXPECT_EQ(item.attributed, (AttributedTitle{u"Next: 🟢\n1h"_s, 9.5, -5.0, -5.0}));
    notifications.post(notifications::appUpdateAvailable, {});
    controller->setMenuBarIconState(MenuBarIconState::Failed);
    runLoop.settle();
    EXPECT_EQ(item.attributed->text, u"Next:\n1h"_s);
    EXPECT_EQ(item.image->paletteColor, std::nullopt);
    defaults.stored.remove(settingskeys::enableMenuBarColors);
    notifications.post(notifications::shouldUpdateStatusBar);
    runLoop.settle();
    EXPECT_TRUE(item.image->paletteColor) << "the mark of a failure is drawn anew";
    for (const auto& [version, size, isColoured] :
         {std::tuple{"12.0", 11.0, true}, {"11.7", 11.0, false}, {"10.15", 12.0, false}}) {
        const ScopedEnvironment system("QUILLON_SYSTEM_VERSION", version);
        launch();
        EXPECT_EQ(item.fontSize, size) << version;
        EXPECT_EQ(item.image->paletteColor.has_value(), isColoured) << version;
    }
}

TEST(MenuBarIcon, IsSymbolColourAndMeaningOfItsState)
{
    const QString clock = u"clock.arrow.circlepath"_s;
    const QString mark = u"exclamationmark.arrow.circlepath"_s;
    using enum MenuBarIconState;
    const struct {
        MenuBarIconState state;
        SymbolImage image;
    } cases[] = {
        {Idle, {clock, {}, false}},
        {Running, {u"clock.arrow.2.circlepath"_s, {}, false, u"A backup is running."_s, false, 42}},
        {UpdateAvailable, {mark, SymbolColor::SystemGreen, true, u"An update is available."_s}},
        {Failed,
         {u"exclamationmark.arrow.triangle.2.circlepath"_s, SymbolColor::SystemOrange, true,
          u"The latest backup failed."_s, true}},
        {MissedSchedule, {mark, SymbolColor::SystemYellow, true, u"A scheduled backup was missed."_s}},
    };
    for (const auto& [state, image] : cases)
        EXPECT_EQ(menuBarIcon(state, true, 0.429), image) << int(state);
    EXPECT_EQ(menuBarIcon(None, true, 0), std::nullopt);
    EXPECT_EQ(menuBarIcon(Running, true, 0.0099)->percent, std::nullopt);
    EXPECT_EQ(menuBarIcon(Running, true, 0.01)->percent, 1);
    EXPECT_EQ(menuBarIcon(Running, true, 1.5)->percent, 100);
}

} // namespace quillon
