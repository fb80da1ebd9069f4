#include "Bundle.h"
#include "ControllerFixture.h"
#include "LocalizedString.h"

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class Commands : public ControllerFixture {
protected:
    void SetUp() override { machine.destinations = {{u"A"_s, u"First"_s}, {u"B"_s, u"Second"_s}}; }

    /// The arguments of every call of that command so far.
    QList<QStringList> calls(const QString& command) const
    {
        QList<QStringList> found;
        for (const auto& request : machine.launched()) {
            if (request.arguments.first() == command)
                found.append(request.arguments.mid(1));
        }
        return found;
    }

    void openMenu()
    {
        controller->menuWillOpen();
        runLoop.advance(Seconds(0.3));
    }

    const AlertRequest& onlyAlert()
    {
        EXPECT_EQ(alerts.presented.size(), 1U);
        return alerts.presented.back().first;
    }
};

TEST_F(Commands, BackUpNowStartsAndIsFollowedClosely)
{
    defaults.stored[settingskeys::rotateBackupDisks] = 0LL;
    launch();
    menu().backupNowMenuItem->trigger();
    runLoop.advance(Seconds(2.2 * machine.callDuration)); // told that no backup runs, and that the start was accepted
    EXPECT_EQ(controller->tmState(), TMState::Starting);
    EXPECT_EQ(controller->tmPhase(), u"Starting"_s);
    runLoop.advance(Seconds(0.5));
    EXPECT_EQ(icon(), MenuBarIconState::Running);
    EXPECT_EQ(calls(u"startbackup"_s), (QList<QStringList>{{}}));
    runLoop.advance(Seconds(120));
    EXPECT_EQ(manager->latestBackupInfo().size(), 1);
}

TEST_F(Commands, ABackupAskedForFromElsewhereIsStartedAsByTheItemAndARunIsLeftAlone)
{
    launch();
    controller->backupNowRequested();
    runLoop.advance(Seconds(2.2 * machine.callDuration));
    EXPECT_EQ(machine.starts(), 1);
    EXPECT_EQ(controller->tmState(), TMState::Starting);
    controller->backupNowRequested();
    runLoop.advance(Seconds(5));
    controller->backupNowRequested();
    runLoop.advance(Seconds(1));
    EXPECT_EQ(calls(u"stopbackup"_s).size(), 0);
    runLoop.advance(Seconds(120));

    machine.start(u"A"_s); // by somebody else, and not yet found out
    controller->backupNowRequested();
    runLoop.advance(Seconds(1));
    EXPECT_EQ(calls(u"stopbackup"_s).size(), 0);
    EXPECT_EQ(calls(u"startbackup"_s).size(), 1);
    EXPECT_EQ(controller->tmState(), TMState::Running);
}

TEST_F(Commands, DisksRotateOnlyWhenTheSystemChooses)
{
    machine.phases = {{u"Copying"_s, 1, true}, {u"Finishing"_s, 6}};
    defaults.stored[settingskeys::rotateBackupDisks] = 1LL;
    launch();
    openMenu();
    const auto entries = menu().backupNowMenuItem->menu()->actions();
    ASSERT_EQ(entries.size(), 4);
    entries[0]->trigger();
    runLoop.advance(Seconds(60));
    openMenu();
    menu().backupNowMenuItem->menu()->actions().at(3)->trigger();
    runLoop.advance(Seconds(60));
    EXPECT_EQ(calls(u"startbackup"_s), (QList<QStringList>{{u"-r"_s}, {u"-d"_s, u"B"_s}}));
    EXPECT_EQ(defaults.string(settingskeys::lastBackupDiskIdentifier), u"B"_s);
}

TEST_F(Commands, AClickDuringARunStopsItAndAnotherOneAsksAgain)
{
    launch();
    machine.start(u"A"_s);
    runLoop.advance(Seconds(20));
    menu().backupNowMenuItem->trigger();
    runLoop.advance(Seconds(1));
    EXPECT_EQ(text(menu().backupNowMenuItem), u"Stopping..."_s);
    EXPECT_FALSE(menu().backupNowMenuItem->isEnabled());
    EXPECT_EQ(controller->tmState(), TMState::Stopping);
    controller->backupNowClicked(); // the menu may have been opened before
    runLoop.advance(Seconds(30));
    EXPECT_EQ(calls(u"stopbackup"_s).size(), 2);
    EXPECT_EQ(machine.starts(), 1);
    EXPECT_EQ(icon(), MenuBarIconState::Idle) << "the user wanted it so: no failure";
    EXPECT_FALSE(manager->retryBackupDate());
    EXPECT_TRUE(manager->latestBackupInfo().isEmpty());
    EXPECT_TRUE(menu().backupNowMenuItem->isEnabled());
}

TEST_F(Commands, AStopThatComesTooLateLeavesTheItemUsable)
{
    machine.phases = {{u"Copying"_s, 0.4, true}};
    machine.callDuration = 0.3;
    launch();
    machine.start(u"A"_s);
    menu().backupNowMenuItem->trigger(); // told that a backup runs; by the time of the stop it has ended
    runLoop.advance(Seconds(20));
    EXPECT_EQ(calls(u"stopbackup"_s).size(), 1);
    EXPECT_TRUE(menu().backupNowMenuItem->isEnabled());
    EXPECT_EQ(text(menu().backupNowMenuItem), u"Back Up Now"_s);
}

TEST_F(Commands, AStopThatIsRefusedChangesNothing)
{
    launch();
    machine.start(u"A"_s);
    runLoop.advance(Seconds(20));
    machine.injection = {1, TmutilScript::Fault::None, 3, u"stopbackup"_s};
    menu().backupNowMenuItem->trigger();
    runLoop.advance(Seconds(1));
    EXPECT_EQ(text(menu().backupNowMenuItem), u"Skip This Backup"_s);
    EXPECT_TRUE(menu().backupNowMenuItem->isEnabled());
    EXPECT_TRUE(alerts.presented.empty());
    menu().backupNowMenuItem->trigger();
    runLoop.advance(Seconds(1));
    EXPECT_EQ(controller->tmState(), TMState::Stopping);
}

TEST_F(Commands, AnUnreadableStatusLeadsToOneStart)
{
    launch();
    // Reported twice: by the exit status and by the reader of what was printed.
    machine.injection = {int(calls(u"status"_s).size()) + 1, TmutilScript::Fault::None, 2, u"status"_s};
    menu().backupNowMenuItem->trigger();
    runLoop.advance(Seconds(10));
    EXPECT_EQ(calls(u"startbackup"_s).size(), 1);
    EXPECT_EQ(machine.starts(), 1);
    EXPECT_EQ(icon(), MenuBarIconState::Running);
}

TEST_F(Commands, ImpatientClicksStartOneBackup)
{
    machine.callDuration = 2;
    launch();
    runLoop.advance(Seconds(3));
    for (int click = 0; click < 5; ++click) {
        controller->backupNowClicked(); // as the submenu does that was open before
        controller->backupNowSubMenuItemClicked(u"B"_s);
        runLoop.advance(Seconds(0.5));
        EXPECT_FALSE(menu().backupNowMenuItem->isEnabled()) << "it has no effect";
    }
    runLoop.advance(Seconds(10));
    EXPECT_EQ(calls(u"startbackup"_s).size(), 1);
    EXPECT_TRUE(calls(u"stopbackup"_s).isEmpty());
    EXPECT_TRUE(menu().backupNowMenuItem->isEnabled());
}

TEST_F(Commands, AClickWhileTheScheduleStartsABackupNeitherStopsNorRepeatsIt)
{
    machine.callDuration = 2;
    launch();
    runLoop.advanceTo(local(2026, 11, 21, 12, 0, 1));
    for (int click = 0; click < 5; ++click) {
        controller->backupNowClicked(); // as the submenu does that was open before
        controller->backupNowSubMenuItemClicked(u"B"_s);
        runLoop.advance(Seconds(0.5));
    }
    runLoop.advance(Seconds(10));
    EXPECT_EQ(machine.starts(), 1);
    EXPECT_TRUE(calls(u"stopbackup"_s).isEmpty());
    EXPECT_EQ(calls(u"startbackup"_s).size(), 1);
    EXPECT_TRUE(alerts.presented.empty());
}

TEST_F(Commands, AScheduledStartThatMeetsTheUsersWaitsForItsOutcome)
{
    for (const bool refused : {false, true}) {
        machine.callDuration = 2;
        launch();
        runLoop.advanceTo(local(2026, 11, refused ? 22 : 21, 11, 59, 59));
        const auto starts = calls(u"startbackup"_s).size();
        if (refused)
            machine.injection = {int(starts) + 1, TmutilScript::Fault::None, 17, u"startbackup"_s};
        menu().backupNowMenuItem->trigger();
        runLoop.advance(Seconds(20));
        EXPECT_EQ(calls(u"startbackup"_s).size(), starts + (refused ? 2 : 1));
        EXPECT_EQ(icon(), MenuBarIconState::Running);
        while (machine.liveChildren() > 0)
            runLoop.advance(Seconds(0.1));
    }
    EXPECT_EQ(machine.starts(), 2);
}

TEST_F(Commands, ARefusedStartIsToldWithItsCodeAndWhatItMeans)
{
    launch();
    openMenu();
    int starts = 0;
    for (const auto& [status, key] :
         {std::pair{2, "setupNoDiskMessage"}, {4, "startDiskAwayMessage"}, {9, "startResticMissingMessage"}}) {
        machine.injection = {++starts, TmutilScript::Fault::None, status, u"startbackup"_s};
        controller->backupNowClicked();
        runLoop.advance(Seconds(1));
        EXPECT_TRUE(onlyAlert().informativeText.contains(QString::number(status)));
        EXPECT_TRUE(onlyAlert().informativeText.endsWith(u"\n\n"_s + localizedString(key))) << status;
        alerts.presented.clear();
    }
    machine.injection = {++starts, TmutilScript::Fault::None, 17, u"startbackup"_s};
    menu().backupNowMenuItem->menu()->actions().at(2)->trigger();
    runLoop.advance(Seconds(1));
    EXPECT_EQ(onlyAlert().messageText, u"Warning"_s);
    EXPECT_EQ(onlyAlert().informativeText, localizedString("failedToStartBackupMessage").arg(17));
    EXPECT_EQ(onlyAlert().style, AlertStyle::Informational);
    EXPECT_EQ(onlyAlert().buttons, QStringList{u"Close"_s});
    EXPECT_EQ(controller->tmState(), TMState::NotRunning);
    controller->backupNowClicked();
    runLoop.advance(Seconds(1));
    EXPECT_EQ(machine.starts(), 1) << "the next click works";
}

TEST_F(Commands, AStartThatHangsIsToldAfterItsTimeAndPollingGoesOn)
{
    launch();
    machine.injection = {1, TmutilScript::Fault::Hang, 0, u"startbackup"_s};
    controller->backupNowClicked();
    runLoop.advance(Seconds(180));
    EXPECT_EQ(alerts.presented.size(), 1U);
    EXPECT_EQ(machine.liveChildren(), 0);
    const auto polls = calls(u"status"_s).size();
    runLoop.advance(Seconds(31));
    EXPECT_EQ(calls(u"status"_s).size(), polls + 2);
}

TEST_F(Commands, SkippingARunThatHasEndedStartsNoOtherOne)
{
    machine.phases = {{u"Copying"_s, 20, true}, {u"Finishing"_s, 6.5}};
    launch();
    machine.start(u"A"_s);
    runLoop.advance(Seconds(27));
    ASSERT_FALSE(machine.isRunning());
    ASSERT_EQ(controller->uiState(), TMState::Running) << "nobody has looked since it ended";
    menu().backupNowMenuItem->trigger();
    runLoop.advance(Seconds(1));
    EXPECT_EQ(machine.starts(), 1);
    EXPECT_EQ(manager->latestBackupInfo().size(), 1);
    EXPECT_EQ(text(menu().backupNowMenuItem), u"Back Up Now"_s);
    EXPECT_TRUE(menu().backupNowMenuItem->isEnabled());
}

TEST_F(Commands, AClickDuringARunThatCannotBeAnsweredLeavesItAlone)
{
    launch();
    machine.start(u"A"_s);
    runLoop.advance(Seconds(20));
    machine.injection = {int(calls(u"status"_s).size()) + 1, TmutilScript::Fault::NotUtf8, 0, u"status"_s};
    int iconChanges = 0;
    QObject::connect(controller.get(), &StatusMenuController::menuBarIconStateChanged, [&] { ++iconChanges; });
    menu().backupNowMenuItem->trigger();
    runLoop.advance(Seconds(5));
    EXPECT_EQ(iconChanges, 0);
    EXPECT_TRUE(calls(u"startbackup"_s).isEmpty());
    EXPECT_TRUE(menu().backupNowMenuItem->isEnabled());
}

TEST_F(Commands, SkippingTheRetryBringsTheRegularDateBack)
{
    machine.phases = {{u"Copying"_s, 20, true}};
    launch();
    EXPECT_FALSE(menu().skipRetryAttemptMenuItem->isVisible());
    machine.start(u"A"_s);
    runLoop.advance(Seconds(60));
    ASSERT_TRUE(menu().skipRetryAttemptMenuItem->isVisible());
    menu().skipRetryAttemptMenuItem->trigger();
    runLoop.settle();
    EXPECT_FALSE(menu().skipRetryAttemptMenuItem->isVisible());
    EXPECT_EQ(manager->nextScheduledBackupDate(), local(2026, 11, 21, 12));
    EXPECT_EQ(text(menu().remainingTimeMenuItem), u"Next Backup: Today, 12:00\u202FPM "_s);
}

TEST_F(Commands, TimeMachineIsOpenedOrTheCommandsThatTakeItsPlaceAreShown)
{
    const ScopedEnvironment tool("QUILLON_TMUTIL", "/opt/it's/tmutil");
    launch();
    menu().enterTimeMachineMenuItem->trigger();
    EXPECT_EQ(workspace.openedApplications, QStringList{u"com.apple.backup.launcher"_s});
    EXPECT_TRUE(alerts.presented.empty());
    workspace.opens = false;
    openMenu(); // which asks for the disks
    menu().enterTimeMachineMenuItem->trigger();
    EXPECT_FALSE(onlyAlert().informativeText.contains(u"restore"_s)) << "there is nothing to restore yet";
    EXPECT_TRUE(onlyAlert().informativeText.contains(u"tmutil' listbackups"_s));
    alerts.presented.clear();
    machine.start(u"A"_s);
    runLoop.advance(Seconds(120));
    menu().enterTimeMachineMenuItem->trigger();
    const QString guide = onlyAlert().informativeText;
    EXPECT_TRUE(guide.contains(u"First: Today, 10:0"_s)) << guide.toStdString();
    EXPECT_TRUE(guide.contains(uR"x('/opt/it'\''s/tmutil' listbackups)x"_s)) << guide.toStdString();
    EXPECT_TRUE(guide.contains(uR"x('/opt/it'\''s/tmutil' restore "$('/opt/it'\''s/tmutil' latestbackup)"')x"_s));
}

TEST_F(Commands, TimeMachinesSettingsAreOpened)
{
    launch();
    menu().openSystemPreferencesMenuItem->trigger();
    EXPECT_EQ(workspace.opened, QList<QUrl>{TMUtil::settingsAddress()});
}

TEST_F(Commands, AnUpdateOpensItsPageAndThenQuits)
{
    int terminations = 0;
    launch();
    QObject::connect(controller.get(), &StatusMenuController::terminate, &workspace, [&] { ++terminations; });
    notifications.post(notifications::appUpdateAvailable, {{u"latestAppVersion"_s, u"9.1"_s}});
    runLoop.settle();
    ASSERT_TRUE(menu().updateAvailableMenuItem->isVisible());
    const auto answer = [&](int response) {
        alerts.presented.clear();
        menu().updateAvailableMenuItem->trigger();
        EXPECT_EQ(onlyAlert().messageText, u"Quillon 9.1 is available"_s);
        EXPECT_TRUE(onlyAlert().informativeText.contains(bundleShortVersion()));
        EXPECT_FALSE(onlyAlert().informativeText.contains(u"9.1"_s));
        EXPECT_EQ(onlyAlert().style, AlertStyle::Informational);
        EXPECT_EQ(onlyAlert().buttons, (QStringList{u"Get Update"_s, u"Cancel"_s}));
        alerts.presented.back().second(response);
        runLoop.settle();
    };
    answer(alertSecondButtonReturn);
    EXPECT_TRUE(workspace.opened.isEmpty());
    workspace.opens = false;
    answer(alertFirstButtonReturn);
    EXPECT_EQ(terminations, 0) << "the page could not be opened";
    workspace.opens = true;
    answer(alertFirstButtonReturn);
    EXPECT_EQ(terminations, 1);
    EXPECT_EQ(workspace.opened.last().path(), u"/quillon/download/"_s);
    EXPECT_EQ(workspace.opened.last().scheme(), u"https"_s);
}

TEST_F(Commands, QuitEndsTheProgram)
{
    int terminations = 0;
    launch();
    QObject::connect(controller.get(), &StatusMenuController::terminate, &workspace, [&] { ++terminations; });
    EXPECT_EQ(text(menu().quitMenuItem), u"Quit Quillon"_s);
    menu().quitMenuItem->trigger();
    EXPECT_EQ(terminations, 1);
}

TEST_F(Commands, ItemsAreTitledAsTheSystemsVersionNamesThings)
{
    {
        const ScopedEnvironment monterey("QUILLON_SYSTEM_VERSION", "12.6.1");
        launch();
        EXPECT_EQ(text(menu().enterTimeMachineMenuItem), u"Enter Time Machine"_s);
        EXPECT_EQ(text(menu().openSystemPreferencesMenuItem), u"Open Time Machine Preferences..."_s);
        EXPECT_EQ(text(menu().preferencesMenuItem), u"Settings..."_s);
    }
    const ScopedEnvironment ventura("QUILLON_SYSTEM_VERSION", "13.0");
    launch();
    EXPECT_EQ(text(menu().enterTimeMachineMenuItem), u"Browse Time Machine Backups"_s);
    EXPECT_EQ(text(menu().openSystemPreferencesMenuItem), u"Open Time Machine Settings..."_s);
}

TEST_F(Commands, DisabledMenuButtonsStayDisabledUntilTheyAreEnabledAgain)
{
    launch();
    controller->enableMenuButtons(false);
    runLoop.advance(Seconds(31)); // polls in between
    const QList<QAction*> buttons{menu().backupNowMenuItem, menu().enterTimeMachineMenuItem, menu().preferencesMenuItem,
                                  menu().openSystemPreferencesMenuItem};
    for (const QAction* button : buttons)
        EXPECT_FALSE(button->isEnabled()) << button->objectName().toStdString();
    EXPECT_TRUE(menu().quitMenuItem->isEnabled());
    manager->setIsScheduleEnabled(false);
    controller->enableMenuButtons(true);
    runLoop.settle();
    for (const QAction* button : buttons)
        EXPECT_TRUE(button->isEnabled()) << button->objectName().toStdString();
    EXPECT_FALSE(menu().pauseScheduleMenuItem->isEnabled()) << "the schedule is off";
}

} // namespace quillon
