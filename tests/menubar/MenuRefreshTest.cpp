#include "ControllerFixture.h"

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class MenuRefresh : public ControllerFixture {
protected:
    void openMenuAndWait()
    {
        controller->menuWillOpen();
        runLoop.advance(Seconds(0.3));
    }

    static QStringList titles(const QMenu* menu)
    {
        QStringList found;
        if (!menu)
            return found;
        for (const QAction* action : menu->actions())
            found.append(action->isSeparator() ? u"-"_s : action->text());
        return found;
    }

    QStringList history() const { return titles(menu().phaseMenuItem->menu()); }
    QStringList disks() const { return titles(menu().backupNowMenuItem->menu()); }

    void record(const QString& identifier, const QString& name, Date date, qint64 bytes)
    {
        manager->recordLatestBackup(identifier, name, bytes, date);
    }
};

TEST_F(MenuRefresh, ASingleDiskNeedsNeitherAChoiceNorAnOverview)
{
    launch();
    openMenuAndWait();
    EXPECT_FALSE(menu().backupNowMenuItem->menu());
    EXPECT_FALSE(menu().phaseMenuItem->menu());
    EXPECT_FALSE(menu().phaseMenuItem->isEnabled());
}

TEST_F(MenuRefresh, TwoDisksAreOfferedAndTheirLatestBackupsListed)
{
    machine.destinations = {{u"A"_s, u"First"_s}, {u"B"_s, u"Second"_s}};
    launch();
    machine.start(u"B"_s);
    runLoop.advance(Seconds(120));
    openMenuAndWait();
    EXPECT_EQ(disks(), (QStringList{u"Let Time Machine Choose"_s, u"-"_s, u"First"_s, u"Second (most recent)"_s}));
    EXPECT_EQ(history(), (QStringList{u"Latest Backup of Each Disk"_s, u"-"_s,
                                      u"Second: Today, 10:01\u202FAM (4.9 MB)"_s, u"First: N/A"_s}));
    EXPECT_TRUE(menu().phaseMenuItem->isEnabled());
    EXPECT_EQ(menu().phaseMenuItem->menu()->actions().at(2)->data(), u"B"_s);

    machine.destinations.removeLast();
    openMenuAndWait();
    EXPECT_FALSE(menu().backupNowMenuItem->menu()) << "one disk is left";
    EXPECT_EQ(history().size(), 4) << "the record stays";
}

TEST_F(MenuRefresh, RecordsOfDisksThatAreGoneAreListedFirstAndInTheirOrder)
{
    machine.destinations = {{u"C"_s, u"Third"_s}};
    launch();
    record(u"A"_s, u"Gone"_s, local(2026, 11, 1, 9), 0);
    record(u"B"_s, u"Gone too"_s, local(2026, 10, 1, 9), -1);
    openMenuAndWait();
    EXPECT_EQ(history(),
              (QStringList{u"Latest Backup of Each Disk"_s, u"-"_s, u"Gone too: October 1, 2026, 9:00\u202FAM"_s,
                           u"Gone: November 1, 2026, 9:00\u202FAM"_s, u"Third: N/A"_s}));
    EXPECT_FALSE(menu().backupNowMenuItem->menu());
}

TEST_F(MenuRefresh, NamesAreShownAsTheyAre)
{
    machine.destinations = {{u"A"_s, u"Tom%20%26%20Jerry"_s}, {u"B"_s, u"50%1 & 100% 💾"_s}, {u"C"_s, u"גיבוי"_s}};
    launch();
    openMenuAndWait();
    EXPECT_EQ(disks().mid(2), (QStringList{u"Tom && Jerry"_s, u"50%1 && 100% 💾"_s, u"גיבוי"_s}));
    EXPECT_EQ(history().mid(2), (QStringList{u"Tom && Jerry: N/A"_s, u"50%1 && 100% 💾: N/A"_s, u"גיבוי: N/A"_s}));
}

TEST_F(MenuRefresh, TheSingleRecordOfEarlierVersionsOpensTheList)
{
    machine.destinations = {{u"A"_s, u"First"_s}, {u"B"_s, u"Second"_s}};
    defaults.setDate(settingskeys::lastBackupDate, local(2026, 11, 19, 8));
    defaults.stored[settingskeys::lastBackupDiskIdentifier] = u"B"_s;
    defaults.stored[settingskeys::lastBackupBytesCopied] = 1'000'000'000LL;
    launch();
    openMenuAndWait();
    EXPECT_EQ(history().value(2), u"Second: Thursday, 8:00\u202FAM (1.00 GB)"_s);
    EXPECT_EQ(manager->loadLatestBackupInfo().size(), 1) << "stored at once";
    openMenuAndWait();
    EXPECT_EQ(manager->latestBackupInfo().size(), 1);
    EXPECT_TRUE(defaults.date(settingskeys::lastBackupDate));
}

TEST_F(MenuRefresh, DuringARunTheMenuOnlyOffersToStopIt)
{
    machine.destinations = {{u"A"_s, u"First"_s}, {u"B"_s, u"Second"_s}};
    launch();
    openMenuAndWait();
    ASSERT_TRUE(menu().backupNowMenuItem->menu());
    machine.start(u"A"_s);
    runLoop.advance(Seconds(20));
    EXPECT_FALSE(menu().backupNowMenuItem->menu());
    EXPECT_FALSE(menu().phaseMenuItem->menu());
    const auto calls = machine.launched().size();
    controller->menuWillOpen();
    EXPECT_EQ(machine.launched().size(), calls) << "no disks are asked for";
    menu().backupNowMenuItem->trigger();
    runLoop.advance(Seconds(1));
    EXPECT_EQ(controller->tmState(), TMState::Stopping);
}

TEST_F(MenuRefresh, AnAnswerThatABackupHasOvertakenFillsNoSubmenu)
{
    machine.destinations = {{u"A"_s, u"First"_s}, {u"B"_s, u"Second"_s}};
    machine.callDuration = 1;
    launch();
    runLoop.advance(Seconds(2));
    controller->menuWillOpen();
    controller->backupNowClicked();
    runLoop.advance(Seconds(10));
    ASSERT_EQ(controller->tmState(), TMState::Running);
    EXPECT_FALSE(menu().backupNowMenuItem->menu());
    EXPECT_FALSE(menu().phaseMenuItem->menu());
    EXPECT_FALSE(menu().phaseMenuItem->isEnabled());
    EXPECT_EQ(controller->backupDisks().size(), 2);
}

TEST_F(MenuRefresh, AToolThatFailsOrHangsLeavesAPlainMenuThatRecovers)
{
    machine.destinations = {{u"A"_s, u"First"_s}, {u"B"_s, u"Second"_s}};
    for (const auto fault : {TmutilScript::Fault::Hang, TmutilScript::Fault::Crash, TmutilScript::Fault::Half,
                             TmutilScript::Fault::NotUtf8, TmutilScript::Fault::Refused}) {
        launch();
        openMenuAndWait();
        ASSERT_TRUE(menu().backupNowMenuItem->menu());
        const auto asked = machine.launched().size();
        machine.injection = {int(asked) + 1, fault, 0, {}};
        controller->menuWillOpen();
        controller->menuWillOpen();
        controller->menuWillOpen();
        EXPECT_TRUE(menu().backupNowMenuItem->menu()) << "it keeps what it had";
        runLoop.advance(Seconds(70));
        EXPECT_FALSE(menu().backupNowMenuItem->menu());
        openMenuAndWait();
        EXPECT_TRUE(menu().backupNowMenuItem->menu());
        machine.injection = {};
    }
}

} // namespace quillon
