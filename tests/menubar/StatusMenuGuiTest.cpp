#include "AboutViewController.h"
#include "Accessibility.h"
#include "ColorScheme_linux.h"
#include "ControllerFixture.h"
#include "Controls.h"
#include "EventLoop.h"
#include "LogWindow.h"
#include "Popover.h"
#include "ShownAlerts.h"

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QTest>
#include <QTextDocument>
#include <QWidgetAction>

#include <functional>

namespace quillon {

using namespace Qt::StringLiterals;

/// The real menu on the screen, clicked and typed into, in front of a played Time Machine.
class StatusMenuGui : public ControllerFixture {
protected:
    void TearDown() override
    {
        menu().close();
        controller.reset();
    }

    /// Launches the program, opens the menu and waits for what it asks for, as nobody else does.
    void launchAndOpen()
    {
        defaults.stored[settingskeys::startWhenDiskAppears] = 0LL;
        launch();
        openMenu();
        wait(0.5);
    }
    void openMenu(const QPoint& place = {20, 20})
    {
        menu().popup(place);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu()));
    }
    static void click(QMenu& menu, QAction* opener)
    {
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(opener).center());
    }
    QMenu& openByMouse(QAction* opener)
    {
        click(menu(), opener);
        EXPECT_TRUE(runUntil([&] { return opener->menu()->isVisible(); }));
        return *opener->menu();
    }
    QMenu& openByKeyboard(QAction* opener)
    {
        menu().setActiveAction(opener);
        QTest::keyClick(&menu(), Qt::Key_Right);
        EXPECT_TRUE(runUntil([&] { return opener->menu()->isVisible(); }));
        return *opener->menu();
    }
    static QWidget* viewOf(const QMenu& history, int row)
    {
        return qobject_cast<QWidgetAction*>(history.actions().at(row))->defaultWidget();
    }
    static qsizetype shownLogs()
    {
        return std::ranges::count_if(QApplication::topLevelWidgets(), [](const QWidget* window) {
            return qobject_cast<const LogWindow*>(window) && window->isVisible();
        });
    }
    /// The popover that is up, or nothing.
    static Popover* popover()
    {
        const auto windows = QApplication::topLevelWidgets();
        for (QWidget* window : windows) {
            if (auto* found = qobject_cast<Popover*>(window); found && found->isShown())
                return found;
        }
        return nullptr;
    }
};

TEST_F(StatusMenuGui, ADiskChosenWithTheMouseIsBackedUpTo)
{
    launchAndOpen();
    QMenu& disks = openByMouse(menu().backupNowMenuItem);
    EXPECT_EQ(machine.starts(), 0) << "the item only opens its submenu";
    EXPECT_EQ(disks.accessibleName(), u"Back Up Now"_s);
    click(disks, disks.actions().at(3));
    EXPECT_FALSE(menu().isVisible());
    after(1, "startbackup -d B; 2, 0.0% Starting, Skip This Backup, next 21 12:00");
    EXPECT_EQ(row(menu().backupDiskMenuItem), u"(Backup Disk: Second)"_s);
}

TEST_F(StatusMenuGui, EverythingIsReachedByKeyboardAlsoWhatOnlyInforms)
{
    applyColorScheme(ColorSchemePreference::None); // whose style goes to what cannot be chosen
    launchAndOpen();
    EXPECT_EQ(menu().accessibleName(), QApplication::applicationDisplayName());
    EXPECT_EQ(menu().font(), withColorEmoji(QApplication::font(&menu())));
    QList<QAction*> expected = menu().actions();
    expected.removeIf([](const QAction* action) { return !action->isVisible() || action->isSeparator(); });
    QList<QAction*> reached;
    for (qsizetype i = 0; i < expected.size(); ++i) {
        QTest::keyClick(&menu(), Qt::Key_Down);
        reached += menu().activeAction();
    }
    EXPECT_EQ(reached, expected);
    menu().setActiveAction(menu().remainingTimeMenuItem);
    QTest::keyClick(&menu(), Qt::Key_Return);
    EXPECT_TRUE(menu().isVisible()) << "there is nothing to choose";

    QMenu& durations = openByKeyboard(menu().pauseScheduleMenuItem);
    QTest::keyClick(&durations, Qt::Key_Down);
    QTest::keyClick(&durations, Qt::Key_Return);
    EXPECT_EQ(row(menu().pauseScheduleMenuItem), u"*Schedule Paused Until: Today, 12:00 >"_s);
}

TEST_F(StatusMenuGui, TheHistorysHelpIsOpenedInEveryWay)
{
    const std::function<void()> ways[] = {
        [this] { QTest::keyClick(openByKeyboard(menu().phaseMenuItem).focusWidget(), Qt::Key_Return); },
        [this] { QTest::mouseClick(openByMouse(menu().phaseMenuItem).findChild<HelpButton*>(), Qt::LeftButton); },
        [this] { menu().phaseMenuItem->menu()->actions().first()->trigger(); }, // a tray draws the menu
    };
    for (const auto& open : ways) {
        launchAndOpen();
        open();
        ASSERT_TRUE(runUntil([] { return alertButton(u"Close"_s); }));
        EXPECT_FALSE(menu().isVisible()) << "it would hold the pointer";
        controller->allBackupInfoHelpButtonPressed(); // pressed again while it is there
        EXPECT_TRUE(shownAlertText().startsWith(u"This list shows the latest backup"_s));
        answerAlert(u"Close"_s);
        EXPECT_FALSE(popover());
    }
}

TEST_F(StatusMenuGui, RowsOfTheHistoryShowNamesAsHeadingsAndTellAssistiveTechnology)
{
    machine.destinations = {{u"A"_s, u"<b>Bold</b> & %20"_s}, {u"B"_s, u"Second"_s}};
    launchAndOpen();
    QMenu& history = openByKeyboard(menu().phaseMenuItem);
    EXPECT_EQ(history.focusWidget()->accessibleName(), u"Help"_s) << "the first row's button has the keyboard at once";
    EXPECT_EQ(viewOf(history, 0)->findChild<QLabel*>()->text(), u"Latest Backup of Each Disk"_s);
    EXPECT_EQ(history.actions().first()->text(), u"Latest Backup of Each Disk"_s) << "as a tray draws it";
    auto* row = viewOf(history, 2);
    const QImage plain = row->grab().toImage();
    const QImage other = viewOf(history, 3)->grab().toImage();
    QTest::keyClick(history.focusWidget(), Qt::Key_Down);
    EXPECT_NE(row->grab().toImage(), plain) << "it shows that it is chosen";
    EXPECT_EQ(viewOf(history, 3)->grab().toImage(), other);
    EXPECT_EQ(history.focusWidget(), &history) << "the button is not pressed from another row";
    EXPECT_EQ(row->accessibleName(), u"<b>Bold</b> &  : N/A"_s);
    const auto* label = row->findChild<QLabel*>();
    EXPECT_GT(row->sizeHint().height(), label->sizeHint().height());
    QTextDocument shown;
    shown.setHtml(label->text());
    EXPECT_EQ(shown.toPlainText(), row->accessibleName());
    const QPalette dark(Qt::black);
    row->setPalette(dark);
    EXPECT_TRUE(label->text().contains(systemBlueColor(dark).name()));
}

TEST_F(StatusMenuGui, SubmenusFollowWhileTheMenuIsOpen)
{
    launchAndOpen();
    QMenu& disks = openByMouse(menu().backupNowMenuItem);
    machine.destinations.append({u"C"_s, u"Third"_s});
    openMenuAndWait();
    EXPECT_TRUE(disks.isVisible()) << "more disks do not close it";
    EXPECT_EQ(disks.actions().size(), 4) << "nor move what somebody is about to click";
    disks.close();
    openByMouse(menu().backupNowMenuItem);
    EXPECT_EQ(disks.actions().size(), 5);
    QMenu& history = openByMouse(menu().phaseMenuItem);
    const auto rows = history.actions().size();
    machine.destinations.append({u"D"_s, u"Fourth"_s});
    openMenuAndWait();
    EXPECT_EQ(history.actions().size(), rows);
    history.close();
    openByMouse(menu().phaseMenuItem);
    EXPECT_EQ(history.actions().size(), rows + 1);
    openByMouse(menu().backupNowMenuItem);
    machine.start(u"A"_s);
    wait(16);
    EXPECT_FALSE(disks.isVisible()) << "a backup has begun: there is nothing to choose";
    EXPECT_TRUE(menu().isVisible());
    click(menu(), menu().backupNowMenuItem);
    wait(0.5);
    EXPECT_EQ(controller->tmState(), TMState::Stopping);
}

TEST_F(StatusMenuGui, AnOpenMenuKeepsItsRowsAndItsPlaceOnTheScreen)
{
    launch();
    const QRect screen = menu().screen()->availableGeometry();
    openMenu({screen.right() - 5, 20});
    const QRect before = menu().geometry();
    manager->setRetryBackupDate(runLoop.now() + std::chrono::minutes(5));
    notifications.post(notifications::appUpdateAvailable, {{u"latestAppVersion"_s, u"2.0"_s}});
    wait(0.5);
    StatusMenu::setTitle(menu().quitMenuItem, u"Quit, and much more that nobody has ever read in a menu"_s);
    ASSERT_TRUE(runUntil([&] { return menu().width() > before.width(); }));
    EXPECT_EQ(menu().geometry().height(), before.height());
    EXPECT_EQ(menu().geometry().topRight(), QPoint(screen.right(), before.top()));
    menu().close();
    EXPECT_TRUE(menu().skipRetryAttemptMenuItem->isVisible());
    EXPECT_TRUE(menu().updateAvailableMenuItem->isVisible());
}

TEST_F(StatusMenuGui, AClickOnAnItemThatHasJustBecomeAnotherOneDoesNothing)
{
    machine.destinations.removeLast();
    launch();
    for (const double seconds : {0.4, 0.6}) {
        openMenu();
        machine.start(u"A"_s);
        while (menu().backupNowMenuItem->text() == u"Back Up Now"_s)
            wait(0.01);
        wait(seconds / 2);
        menu().backupNowMenuItem->setToolTip(QString::number(seconds)); // its title says the same as before
        wait(seconds / 2);
        click(menu(), menu().backupNowMenuItem);
        EXPECT_FALSE(menu().isVisible());
        wait(0.5);
        EXPECT_EQ(controller->tmState(), seconds > 0.5 ? TMState::Stopping : TMState::Running);
        wait(120);
    }
}

TEST_F(StatusMenuGui, SettingsAndAboutHangBelowTheItemAndGoWithEscape)
{
    launch();
    openMenu();
    controller->preferencesClicked(); // a second start of the program
    EXPECT_FALSE(menu().isVisible()) << "it would lie on top";
    for (const auto& [command, title] : {std::pair{menu().preferencesMenuItem, u"Settings"_s},
                                         {menu().aboutMenuItem, u"About Quillon"_s},
                                         {menu().preferencesMenuItem, u"Settings"_s}}) {
        openMenu();
        for (const bool isEnabled : {false, true})
            command->setEnabled(isEnabled); // which makes it no other one
        click(menu(), command);
        ASSERT_TRUE(runUntil([] { return popover(); }));
        EXPECT_EQ(popover()->windowTitle(), title);
        EXPECT_GE(popover()->contentView()->mapToGlobal(QPoint()).y(), item.anchor().screenRect.bottom());
        QTest::keyClick(popover(), Qt::Key_Escape);
        EXPECT_TRUE(runUntil([] { return !popover(); }));
    }
    controller->preferencesClicked();
    auto* button = popover()->findChild<QPushButton*>(u"backupLogButton"_s);
    ASSERT_TRUE(button);
    button->click();
    EXPECT_TRUE(runUntil([] { return !popover(); })) << "they would lie on top of the log";
    EXPECT_EQ(shownLogs(), 1);
    controller->aboutClicked();
    EXPECT_TRUE(popover()->findChild<AboutViewController*>());
}

} // namespace quillon
