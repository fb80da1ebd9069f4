#include "ApplicationIdentity.h"
#include "ControllerFixture.h"

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class Menu : public ControllerFixture {
protected:
    QStringList history() const { return rows(menu().phaseMenuItem->menu()).sliced(2); }
    QStringList disks() const { return rows(menu().backupNowMenuItem->menu()); }
    bool hasSubmenus() const { return menu().phaseMenuItem->menu() || menu().backupNowMenuItem->menu(); }
};

TEST_F(Menu, IsTitledAsTheSystemsVersionNamesThings)
{
    defaults.stored[settingskeys::startWhenDiskAppears] = 0LL; // nobody else asks for the disks ahead of the menu
    const ScopedEnvironment ventura("QUILLON_SYSTEM_VERSION", "13.0");
    launch();
    EXPECT_EQ(rows(&menu()),
              (QStringList{u"Latest Backup: N/A >"_s, u"(Backup Disk: N/A)"_s, u"-"_s, u"Pause Schedule For >"_s,
                           u"(Next Backup: Today, 12:00 )"_s, u"-"_s, u"Back Up Now >"_s,
                           u"Browse Time Machine Backups"_s, u"-"_s, u"Open Time Machine Settings..."_s,
                           u"Settings..."_s, u"About Quillon..."_s, u"-"_s, u"Quit Quillon"_s}));
    QStringList names;
    for (const QAction* action : menu().actions()) {
        names.append(action->objectName());
        EXPECT_TRUE(action->isSeparator() || action->menuRole() == QAction::NoRole) << "it would move to another menu";
    }
    names.removeAll(QString());
    EXPECT_EQ(names.replaceInStrings(u"MenuItem"_s, QString()).join(u' '),
              u"phase backupDisk pauseSchedule resumeSchedule remainingTime skipRetryAttempt backupNow "
              "enterTimeMachine updateAvailable openSystemPreferences preferences about quit"_s);
    EXPECT_EQ(rows(menu().pauseScheduleMenuItem->menu()).join(u", "_s),
              u"1 Hour, 2 Hours, 4 Hours, 8 Hours, 12 Hours, 1 Day, 2 Days, 3 Days, 4 Days, 5 Days, 6 Days, 1 Week, "
              "2 Weeks, 3 Weeks, 4 Weeks"_s);
    QStringList seconds;
    for (const QAction* duration : menu().pauseDurationItems()) {
        seconds.append(duration->data().toString());
        EXPECT_EQ(duration->menuRole(), QAction::NoRole);
    }
    EXPECT_EQ(seconds.join(u' '),
              u"3600 7200 14400 28800 43200 86400 172800 259200 345600 432000 518400 604800 1209600 "
              "1814400 2419200"_s);
    const ScopedEnvironment monterey("QUILLON_SYSTEM_VERSION", "12.6.1");
    launch();
    EXPECT_EQ(row(menu().enterTimeMachineMenuItem), u"Enter Time Machine"_s);
    EXPECT_EQ(row(menu().openSystemPreferencesMenuItem), u"Open Time Machine Preferences..."_s);
    runElsewhere(15);
    EXPECT_EQ(row(menu().backupNowMenuItem), u"Skip This Backup"_s);
    for (const bool enabled : {false, true}) {
        controller->enableMenuButtons(enabled);
        wait(20); // and it stays so
        EXPECT_EQ(menu().backupNowMenuItem->isEnabled(), enabled);
        EXPECT_EQ(menu().preferencesMenuItem->isEnabled(), enabled);
    }
}

TEST_F(Menu, TwoDisksAreOfferedAndTheirLatestBackupsListedWhileASingleOneNeedsNeither)
{
    const auto second = machine.destinations.takeLast();
    launch();
    openMenuAndWait();
    EXPECT_FALSE(hasSubmenus() || menu().phaseMenuItem->isEnabled() || menu().backupDiskMenuItem->isVisible());
    machine.destinations.append(second);
    machine.start(u"B"_s);
    wait(120);
    openMenuAndWait();
    EXPECT_EQ(disks(), (QStringList{u"Let Time Machine Choose"_s, u"-"_s, u"First"_s, u"Second (most recent)"_s}));
    EXPECT_EQ(history(), (QStringList{u"Second: Today, 10:01 (4.9 MB)"_s, u"First: N/A"_s}));
    for (const QAction* opener : {menu().backupNowMenuItem, menu().phaseMenuItem})
        EXPECT_EQ(opener->menu()->actions().at(2)->menuRole(), QAction::NoRole) << "it would move";
    EXPECT_TRUE(menu().phaseMenuItem->isEnabled());
    EXPECT_EQ(menu().phaseMenuItem->menu()->actions().at(2)->data(), u"B"_s);
    machine.destinations.removeLast();
    openMenuAndWait();
    EXPECT_FALSE(menu().backupNowMenuItem->menu()) << "one disk is left";
    EXPECT_EQ(history(), (QStringList{u"Second: Today, 10:01 (4.9 MB)"_s, u"First: N/A"_s})) << "the record stays";
}

TEST_F(Menu, NamesAreShownAsTheyAreAndDisksThatAreGoneFirst)
{
    machine.destinations = {{u"A"_s, u"Tom%20%26%20Jerry"_s}, {u"B"_s, u"50%1 & 100% 💾"_s}, {u"C"_s, u"גיבוי"_s}};
    launch();
    manager->recordLatestBackup(u"gone"_s, u"Gone"_s, 0, local(2026, 11, 1, 9));
    manager->recordLatestBackup(u"too"_s, u"Gone\ttoo"_s, -1, local(2026, 10, 1, 9));
    openMenuAndWait();
    EXPECT_EQ(disks().sliced(2), (QStringList{u"Tom && Jerry"_s, u"50%1 && 100% 💾"_s, u"גיבוי"_s}));
    EXPECT_EQ(history().join(u'|').toStdString(), "Gone too: 1 October 2026, 09:00|Gone: 1 November 2026, 09:00|"
                                                  "Tom && Jerry: N/A|50%1 && 100% 💾: N/A|גיבוי: N/A");
}

TEST_F(Menu, TheSingleRecordOfEarlierVersionsOpensTheList)
{
    defaults.setDate(settingskeys::lastBackupDate, local(2026, 11, 19, 8));
    defaults.stored[settingskeys::lastBackupDiskIdentifier] = u"B"_s;
    defaults.stored[settingskeys::lastBackupBytesCopied] = 1'000'000'000LL;
    launch();
    openMenuAndWait();
    openMenuAndWait();
    EXPECT_EQ(history().value(0), u"Second: Thursday, 08:00 (1.00 GB)"_s);
    EXPECT_EQ(manager->loadLatestBackupInfo().size(), 1) << "stored at once";
}

TEST_F(Menu, DuringARunNothingIsOfferedButToStopIt)
{
    launch();
    openMenuAndWait();
    ASSERT_TRUE(hasSubmenus());
    runElsewhere(20);
    EXPECT_FALSE(hasSubmenus());
    const auto calls = machine.launched().size();
    controller->menuWillOpen();
    EXPECT_EQ(machine.launched().size(), calls) << "no disks are asked for";
    wait(100);
    machine.callDuration = 1;
    controller->menuWillOpen();
    controller->backupNowClicked(); // overtakes the answer
    wait(10);
    ASSERT_EQ(controller->tmState(), TMState::Running);
    EXPECT_FALSE(hasSubmenus() || menu().phaseMenuItem->isEnabled());
}

TEST_F(Menu, AToolThatFailsOrHangsLeavesAPlainMenuThatRecovers)
{
    launch();
    openMenuAndWait();
    for (const auto fault : {Fault::Hang, Fault::Crash, Fault::Half}) {
        spoilNext(fault);
        const auto calls = machine.launched().size();
        for (int opened = 0; opened < 3; ++opened)
            controller->menuWillOpen();
        EXPECT_TRUE(menu().backupNowMenuItem->menu()) << "it keeps what it had";
        wait(1);
        EXPECT_EQ(machine.launched().size(), calls + 1) << "it has been asked once";
        wait(70);
        EXPECT_FALSE(menu().backupNowMenuItem->menu());
        openMenuAndWait();
        EXPECT_TRUE(menu().backupNowMenuItem->menu());
    }
}

TEST_F(Menu, TimeMachineSettingsAndQuittingAreReachedAndAnUpdateOpensItsPageAndThenQuits)
{
    int terminations = 0;
    launch();
    QObject::connect(controller.get(), &StatusMenuController::terminate, &workspace, [&] { ++terminations; });
    menu().enterTimeMachineMenuItem->trigger();
    EXPECT_EQ(workspace.openedApplications, QStringList{u"com.apple.backup.launcher"_s});
    menu().openSystemPreferencesMenuItem->trigger();
    EXPECT_EQ(workspace.opened, QList<QUrl>{TimeMachineSettings::address()});
    menu().quitMenuItem->trigger();
    EXPECT_EQ(terminations, 1);
    notifications.post(notifications::appUpdateAvailable, {{u"latestAppVersion"_s, u"9.1"_s}});
    runLoop.settle();
    EXPECT_EQ(row(menu().updateAvailableMenuItem), u"🟢 Update Available..."_s);
    menu().updateAvailableMenuItem->trigger();
    const auto [alert, take] = takeAlert();
    EXPECT_EQ(alert.messageText, u"Quillon 9.1 is available"_s);
    EXPECT_TRUE(alert.informativeText.startsWith(u"You have version %1. The"_s.arg(bundleShortVersion())));
    EXPECT_EQ(alert.buttons, (QStringList{u"Get Update"_s, u"Cancel"_s}));
    take(alertSecondButtonReturn);
    EXPECT_EQ(workspace.opened.size(), 1);
    for (const bool opens : {false, true}) {
        workspace.opens = opens;
        take(alertFirstButtonReturn);
        runLoop.settle();
        EXPECT_EQ(terminations, opens ? 2 : 1) << "it stays where the page could not be opened";
    }
    EXPECT_EQ(workspace.opened.last().path(), u"/quillon/download/"_s);
    EXPECT_EQ(workspace.opened.last().scheme(), u"https"_s);
}

} // namespace quillon
