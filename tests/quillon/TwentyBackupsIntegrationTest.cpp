#include "DataManager.h"
#include "EventLoop.h"
#include "FakeServices.h"
#include "FakeStatusItem.h"
#include "MemoryDefaults.h"
#include "Notifications.h"
#include "PracticeTmutil.h"
#include "QtRunLoop.h"
#include "SettingsKeys.h"
#include "StatusMenuController.h"
#include "Task.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int backupsEach = 5;

} // namespace

class TwentyBackups : public testing::TestWithParam<int> {};

// However quick a backup is, its end must be told from a failure: four programs make five of them each.
TEST_P(TwentyBackups, OfOneSmallFileAreNeverTakenForFailures)
{
    PracticeTmutil practice(QStringLiteral(TMUTIL_EXECUTABLE));
    practice.write(u"source/file"_s, "contents");
    practice.addDisk(u"disk"_s);
    QtRunLoop runLoop;
    Task launcher;
    MemoryDefaults defaults;
    NotificationCenter notifications;
    FakeWorkspace workspace;
    FakeAlerts alerts;
    FakeLoginItem loginItem;
    FakeStatusItem item;
    TMUtilQueue queue(launcher, runLoop, practice.executable());
    DataManager manager({runLoop, defaults, notifications, loginItem});
    StatusMenuController controller(
        {runLoop, defaults, notifications, workspace, queue, launcher, alerts, manager, item});
    QList<MenuBarIconState> icons;
    QObject::connect(&controller, &StatusMenuController::menuBarIconStateChanged, &item,
                     [&] { icons.append(controller.menuBarIconState()); });
    controller.awakeFromNib();
    ASSERT_TRUE(runUntil([&] { return controller.tmState() == TMState::NotRunning; }));

    for (int i = 0; i < backupsEach; ++i) {
        icons.clear();
        practice.write(u"source/file"_s, "contents " + QByteArray::number(i));
        notifications.post(notifications::scheduledBackupShouldStart);
        ASSERT_TRUE(runUntil([&] { return icons.size() >= 2; })) << "backup " << i;
        EXPECT_EQ(icons[0], MenuBarIconState::Running);
        EXPECT_EQ(icons[1], MenuBarIconState::Completed);
        EXPECT_FALSE(manager.retryBackupDate());
    }
    EXPECT_EQ(manager.latestBackupInfo().size(), 1);
    queue.shutDown();
}

INSTANTIATE_TEST_SUITE_P(InFourPrograms, TwentyBackups, testing::Range(0, 4));

} // namespace quillon
