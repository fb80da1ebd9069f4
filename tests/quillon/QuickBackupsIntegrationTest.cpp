#include "EventLoop.h"
#include "Notifications.h"
#include "PracticeTmutil.h"
#include "ProgramUnderTest.h"
#include "QtRunLoop.h"
#include "Task.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

// However quick a backup is, its end must be told from a failure.
TEST(QuickBackups, OfOneSmallFileAreNeverTakenForFailures)
{
    PracticeTmutil practice(QStringLiteral(TMUTIL_EXECUTABLE));
    practice.write(u"source/file"_s, "contents");
    practice.addDisk(u"disk"_s);
    QtRunLoop runLoop;
    Task launcher;
    ProgramUnderTest program(runLoop, launcher, practice.executable());
    program.start();
    const StatusMenuController& controller = *program.controller;
    QList<MenuBarIconState> icons;
    QObject::connect(&controller, &StatusMenuController::menuBarIconStateChanged, program.controller.get(),
                     [&] { icons.append(controller.menuBarIconState()); });
    ASSERT_TRUE(runUntil([&] { return controller.tmState() == TMState::NotRunning; }));

    for (int i = 0; i < 5; ++i) {
        icons.clear();
        practice.write(u"source/file"_s, "contents " + QByteArray::number(i));
        program.notifications.post(notifications::scheduledBackupShouldStart);
        ASSERT_TRUE(runUntil([&] { return icons.size() >= 2; })) << "backup " << i;
        EXPECT_EQ(icons[0], MenuBarIconState::Running);
        EXPECT_EQ(icons[1], MenuBarIconState::Completed);
        EXPECT_FALSE(program.manager->retryBackupDate());
    }
    EXPECT_EQ(program.manager->latestBackupInfo().size(), 1);
    program.queue.shutDown();
}

} // namespace quillon
