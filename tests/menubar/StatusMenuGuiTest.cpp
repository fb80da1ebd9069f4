#include "ClippedTexts.h"
#include "ColorScheme_linux.h"
#include "ControllerFixture.h"
#include "DBusMenu_linux.h"
#include "EventLoop.h"
#include "HelpButton.h"
#include "LocalizedString.h"
#include "Popover.h"

#include <QAccessible>
#include <QApplication>
#include <QBuffer>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QSvgGenerator>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QWidgetAction>

namespace quillon {

using namespace Qt::StringLiterals;

/// The real menu on the screen, clicked and typed into, in front of a played Time Machine.
class StatusMenuGui : public ControllerFixture {
protected:
    void SetUp() override { machine.destinations = {{u"A"_s, u"First"_s}, {u"B"_s, u"Second"_s}}; }

    void TearDown() override
    {
        statusMenu().close();
        controller.reset();
    }

    StatusMenu& statusMenu() { return controller->statusMenu(); }

    void openMenu()
    {
        statusMenu().popup({20, 20});
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&statusMenu()));
    }

    void answer() { runLoop.advance(Seconds(0.5)); }

    static void click(QMenu& menu, QAction* item)
    {
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(item).center());
    }

    static QMenu& openSubmenu(QMenu& menu, QAction* item)
    {
        click(menu, item);
        EXPECT_TRUE(runUntil([&] { return item->menu()->isVisible(); }));
        return *item->menu();
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

    /// What has less room than its text needs, one a line; the menu has to fit on the screen besides. A style marks
    /// what it leaves out of an item.
    static std::string clippedItems(QMenu& menu)
    {
        std::string clipped = clippedTexts(menu);
        if (!menu.screen()->availableGeometry().contains(QRect(menu.mapToGlobal(QPoint()), menu.size())))
            clipped += "beyond the screen\n";
        QBuffer drawing;
        QSvgGenerator generator;
        generator.setOutputDevice(&drawing);
        menu.render(&generator);
        static const QRegularExpression elided(u"[^>]*\u2026[^<]*"_s);
        for (const auto& match : elided.globalMatch(QString::fromUtf8(drawing.data())))
            clipped += (match.captured() + u'\n').toStdString();
        return clipped;
    }

    /// Waits for the help and answers it with its button.
    static void closeHelp()
    {
        ASSERT_TRUE(runUntil([&] { return popover(); }));
        auto* close = popover()->findChild<QPushButton*>();
        ASSERT_TRUE(close);
        EXPECT_EQ(close->text(), u"Close"_s);
        QTest::mouseClick(close, Qt::LeftButton);
        EXPECT_TRUE(runUntil([&] { return !popover(); }));
    }
};

TEST_F(StatusMenuGui, ADiskChosenWithTheMouseIsBackedUpTo)
{
    launch();
    openMenu();
    answer();
    QMenu& disks = openSubmenu(statusMenu(), menu().backupNowMenuItem);
    EXPECT_EQ(machine.starts(), 0) << "the item only opens its submenu";
    click(disks, disks.actions().at(3));
    answer();
    EXPECT_EQ(machine.starts(), 1);
    EXPECT_FALSE(statusMenu().isVisible());
    answer();
    EXPECT_EQ(text(menu().backupDiskMenuItem), u"Backup Disk: Second"_s);
}

TEST_F(StatusMenuGui, EverythingIsReachedByKeyboard)
{
    launch();
    openMenu();
    answer();
    // From above: the history opens to the right, and its help button takes the keyboard.
    QTest::keyClick(&statusMenu(), Qt::Key_Down);
    EXPECT_EQ(statusMenu().activeAction(), menu().phaseMenuItem);
    QTest::keyClick(&statusMenu(), Qt::Key_Right);
    QMenu* history = menu().phaseMenuItem->menu();
    ASSERT_TRUE(runUntil([&] { return history->isVisible(); }));
    EXPECT_TRUE(qobject_cast<HelpButton*>(history->focusWidget())) << "the first row's button has the keyboard at once";
    auto* row = qobject_cast<QWidgetAction*>(history->actions().at(2))->defaultWidget();
    const QImage plain = row->grab().toImage();
    QTest::keyClick(history->focusWidget(), Qt::Key_Down);
    EXPECT_NE(row->grab().toImage(), plain) << "it shows that it is chosen";
    EXPECT_EQ(history->focusWidget(), history) << "the button is not pressed from another row";
    QTest::keyClick(history, Qt::Key_Left);
    EXPECT_TRUE(runUntil([&] { return !history->isVisible(); }));
    QTest::keyClick(&statusMenu(), Qt::Key_Down);
    EXPECT_EQ(statusMenu().activeAction(), menu().pauseScheduleMenuItem);
    QTest::keyClick(&statusMenu(), Qt::Key_Right);
    QMenu* durations = menu().pauseScheduleMenuItem->menu();
    ASSERT_TRUE(runUntil([&] { return durations->isVisible(); }));
    QTest::keyClick(durations, Qt::Key_Down);
    QTest::keyClick(durations, Qt::Key_Return);
    EXPECT_EQ(defaults.integer(settingskeys::pauseUntilTag), 7200) << "two hours";
    EXPECT_TRUE(menu().pauseScheduleMenuItem->isChecked());
    EXPECT_TRUE(menu().resumeScheduleMenuItem->isVisible());
}

TEST_F(StatusMenuGui, WhatInformsIsReachedByTheArrowKeysAndCannotBeChosen)
{
    applyColorScheme(ColorSchemePreference::None);
    launch();
    machine.start(u"A"_s);
    runLoop.advance(Seconds(20));
    openMenu();
    answer();
    QList<QAction*> expected = statusMenu().actions();
    expected.removeIf([](const QAction* action) { return !action->isVisible() || action->isSeparator(); });
    EXPECT_TRUE(expected.contains(menu().backupDiskMenuItem));
    QList<QAction*> reached;
    for (qsizetype i = 0; i < expected.size(); ++i) {
        QTest::keyClick(&statusMenu(), Qt::Key_Down);
        reached += statusMenu().activeAction();
    }
    EXPECT_EQ(reached, expected);

    const QImage elsewhere = statusMenu().grab(statusMenu().actionGeometry(menu().remainingTimeMenuItem)).toImage();
    statusMenu().setActiveAction(menu().remainingTimeMenuItem);
    EXPECT_NE(statusMenu().grab(statusMenu().actionGeometry(menu().remainingTimeMenuItem)).toImage(), elsewhere);
    QTest::keyClick(&statusMenu(), Qt::Key_Return);
    EXPECT_TRUE(statusMenu().isVisible());
}

TEST_F(StatusMenuGui, TheHistorysHelpClosesTheMenuAndOpensAPopoverThatItsButtonCloses)
{
    launch();
    openMenu();
    answer();
    QMenu& history = openSubmenu(statusMenu(), menu().phaseMenuItem);
    auto* help = history.findChild<HelpButton*>();
    ASSERT_TRUE(help);
    EXPECT_TRUE(help->isVisible());
    EXPECT_EQ(help->accessibleName(), u"Help"_s);
    QTest::mouseClick(help, Qt::LeftButton);
    EXPECT_FALSE(statusMenu().isVisible()) << "it would hold the pointer";
    EXPECT_FALSE(history.isVisible());
    controller->allBackupInfoHelpButtonPressed(); // pressed again while it is there
    closeHelp();
}

TEST_F(StatusMenuGui, TheHistorysHelpIsPressedByKeyboard)
{
    for (const auto key : {Qt::Key_Return, Qt::Key_Space}) {
        launch();
        openMenu();
        answer();
        statusMenu().setActiveAction(menu().phaseMenuItem);
        QTest::keyClick(&statusMenu(), Qt::Key_Right);
        QMenu* history = menu().phaseMenuItem->menu();
        ASSERT_TRUE(runUntil([&] { return history->isVisible(); }));
        QTest::keyClick(history->focusWidget(), key);
        closeHelp();
    }
}

TEST_F(StatusMenuGui, RowsOfTheHistoryShowNamesAsHeadingsAndTellAssistiveTechnology)
{
    machine.destinations = {{u"A"_s, u"<b>Bold</b> & %20"_s}, {u"B"_s, u"Second"_s}};
    launch();
    openMenu();
    answer();
    QMenu& history = openSubmenu(statusMenu(), menu().phaseMenuItem);
    auto* row = qobject_cast<QWidgetAction*>(history.actions().at(2))->defaultWidget();
    EXPECT_EQ(row->accessibleName(), u"<b>Bold</b> &  : N/A"_s);
    const auto labels = row->findChildren<QLabel*>();
    ASSERT_EQ(labels.size(), 1) << "a second one would leave a gap ahead of the colon";
    QTextDocument shown;
    shown.setHtml(labels.first()->text());
    EXPECT_EQ(shown.toPlainText(), row->accessibleName());
    const auto heading = shown.begin().begin().fragment();
    EXPECT_EQ(heading.text(), u"<b>Bold</b> &  "_s);
    EXPECT_GT(heading.charFormat().fontWeight(), QFont::Normal);
}

TEST_F(StatusMenuGui, WhatInformsCanBeReadAndACommandThatIsOffLooksOff)
{
    for (const auto preference : {ColorSchemePreference::Light, ColorSchemePreference::Dark}) {
        applyColorScheme(preference);
        launch();
        manager->setIsScheduleEnabled(false);
        runLoop.advance(Seconds(16)); // a poll later
        openMenu();
        answer();
        const QImage picture = statusMenu().grab().toImage();
        const auto ink = [&](QAction* action) { // what differs most from the ground, but for frame and arrow
            const QRect whole = statusMenu().actionGeometry(action);
            const QRect row = whole.adjusted(3, 3, -whole.height(), -3);
            int most = 0;
            for (int x = row.left(); x <= row.right(); ++x)
                for (int y = row.top(); y <= row.bottom(); ++y)
                    most = std::max(most, std::abs(picture.pixelColor(x, y).lightness() -
                                                   picture.pixelColor(row.topLeft()).lightness()));
            return most;
        };
        ASSERT_FALSE(menu().pauseScheduleMenuItem->isEnabled());
        EXPECT_GT(ink(menu().remainingTimeMenuItem), ink(menu().pauseScheduleMenuItem) + 30);
        EXPECT_GT(ink(menu().quitMenuItem), ink(menu().remainingTimeMenuItem) + 10);
        statusMenu().close();
    }
    applyColorScheme(ColorSchemePreference::None);
}

TEST_F(StatusMenuGui, ATrayThatDrawsTheMenuGetsPlainRowsAndHelpAsAnItem)
{
    launch();
    DBusMenu exported(QDBusConnection(u"none"_s), u"/Menu"_s, [] { return false; });
    exported.setMenu(&statusMenu());
    exported.AboutToShow(0);
    answer();
    MenuLayout layout;
    exported.GetLayout(0, -1, {}, layout);
    const auto history = layout.children.value(0).children;
    EXPECT_EQ(history.value(2).properties[u"label"_s], u"First: N/A"_s);
    EXPECT_EQ(history.value(0).properties[u"label"_s], u"Latest Backup of Each Disk"_s);
    exported.Event(history.value(0).id, u"clicked"_s, {}, 0);
    QCoreApplication::processEvents();
    closeHelp();
}

TEST_F(StatusMenuGui, SubmenusFollowWhileTheMenuIsOpen)
{
    launch();
    openMenu();
    EXPECT_FALSE(menu().backupNowMenuItem->menu()) << "nothing waits for the answer";
    answer();
    QMenu& disks = openSubmenu(statusMenu(), menu().backupNowMenuItem);
    machine.destinations.append({u"C"_s, u"Third"_s});
    controller->menuWillOpen();
    answer();
    EXPECT_TRUE(disks.isVisible()) << "more disks do not close it";
    EXPECT_EQ(disks.actions().size(), 4) << "nor move what somebody is about to click";
    disks.close();
    openSubmenu(statusMenu(), menu().backupNowMenuItem);
    EXPECT_EQ(disks.actions().size(), 5);
    machine.start(u"A"_s);
    runLoop.advance(Seconds(16));
    EXPECT_FALSE(menu().backupNowMenuItem->menu());
    EXPECT_FALSE(disks.isVisible()) << "a backup has begun: there is nothing to choose";
    EXPECT_TRUE(statusMenu().isVisible());
    click(statusMenu(), menu().backupNowMenuItem);
    answer();
    EXPECT_EQ(controller->tmState(), TMState::Stopping);
}

TEST_F(StatusMenuGui, RowsOfAnOpenMenuStayWhereTheyAre)
{
    launch();
    openMenu();
    const QRect before = statusMenu().geometry();
    const QRect quit = statusMenu().actionGeometry(menu().quitMenuItem);
    manager->setRetryBackupDate(runLoop.now() + std::chrono::minutes(5));
    notifications.post(notifications::appUpdateAvailable, {{u"latestAppVersion"_s, u"2.0"_s}});
    answer();
    EXPECT_EQ(statusMenu().geometry().bottom(), before.bottom());
    EXPECT_EQ(statusMenu().geometry().top(), before.top());
    EXPECT_EQ(statusMenu().actionGeometry(menu().quitMenuItem).top(), quit.top());
    statusMenu().close();
    openMenu();
    EXPECT_TRUE(menu().skipRetryAttemptMenuItem->isVisible());
    EXPECT_TRUE(menu().updateAvailableMenuItem->isVisible());
}

TEST_F(StatusMenuGui, AClickOnAnItemThatHasJustBecomeAnotherOneDoesNothing)
{
    machine.destinations.removeLast();
    launch();
    const QString offersStart = text(menu().backupNowMenuItem);
    for (const bool late : {false, true}) {
        openMenu();
        machine.start(u"A"_s);
        while (text(menu().backupNowMenuItem) == offersStart)
            runLoop.advance(Seconds(0.1));
        if (late)
            runLoop.advance(Seconds(1));
        click(statusMenu(), menu().backupNowMenuItem);
        EXPECT_FALSE(statusMenu().isVisible());
        answer();
        EXPECT_EQ(controller->tmState(), late ? TMState::Stopping : TMState::Running);
        runLoop.advance(Seconds(120));
    }
}

TEST_F(StatusMenuGui, NothingIsClippedInAnyLanguageOrSize)
{
    const QFont before = QApplication::font();
    applyColorScheme(ColorSchemePreference::None);
    for (const QString& table : tableLanguages()) {
        const ScopedEnvironment formats("LC_ALL", (table + u".UTF-8"_s).toLatin1());
        installStringTable(table);
        for (const qreal factor : {1.0, 2.0}) {
            QFont font = before;
            font.setPointSizeF(before.pointSizeF() * factor);
            QApplication::setFont(font);
            launch();
            openMenu();
            answer();
            EXPECT_EQ(clippedItems(statusMenu()), "") << table.toStdString() << ' ' << factor;
            for (QAction* opener : {menu().phaseMenuItem, menu().pauseScheduleMenuItem, menu().backupNowMenuItem})
                EXPECT_EQ(clippedItems(openSubmenu(statusMenu(), opener)), "") << table.toStdString() << ' ' << factor;
            statusMenu().close();
        }
    }
    QApplication::setFont(before);
    installStringTable(u"en"_s);
}

TEST_F(StatusMenuGui, AHangingToolDoesNotFreezeTheMenu)
{
    launch();
    machine.injection = {int(machine.launched().size()) + 1, TmutilScript::Fault::Hang, 0, {}};
    openMenu();
    answer();
    EXPECT_EQ(statusMenu().actionAt(statusMenu().actionGeometry(menu().quitMenuItem).center()), menu().quitMenuItem);
    click(statusMenu(), menu().preferencesMenuItem);
    EXPECT_TRUE(runUntil([&] { return popover(); }));
}

TEST_F(StatusMenuGui, SettingsAndAboutHangBelowTheItemAndGoWithEscape)
{
    launch();
    openMenu();
    controller->preferencesClicked(); // a second start of the program
    EXPECT_FALSE(statusMenu().isVisible()) << "it would lie on top";
    for (QAction* command : {menu().preferencesMenuItem, menu().aboutMenuItem}) {
        openMenu();
        click(statusMenu(), command);
        ASSERT_TRUE(runUntil([&] { return popover(); }));
        EXPECT_GE(popover()->contentView()->mapToGlobal(QPoint()).y(), item.anchor().screenRect.bottom());
        QTest::keyClick(popover(), Qt::Key_Escape);
        EXPECT_TRUE(runUntil([&] { return !popover(); }));
    }
}

} // namespace quillon
