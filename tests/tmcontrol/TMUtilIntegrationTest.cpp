#include "EventLoop.h"
#include "FakeServices.h"
#include "QtRunLoop.h"
#include "ScopedEnvironment.h"
#include "ScriptedTmutil.h"
#include "TMUtil.h"
#include "Task.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(RealTmutilProcesses, EveryWayToMisbehaveIsReportedAndTheNextOneRuns)
{
    // QProcess would hand this one down behind our back.
    const ScopedEnvironment libraries("LD_LIBRARY_PATH", "/nonexistent");
    QByteArray longList = "{ Running = 0; long = (";
    for (int i = 0; i < 20000; ++i)
        longList += " \\\"element " + QByteArray::number(i) + "\\\",";
    longList += " end ); }";
    const ScriptedTmutil tool(
        R"([{"expect":["status"],"output":"Backup session status:\n{ Running = 1; BackupPhase = Copying; }\n"},
            {"expect":["status"],"output":"{ Running = 0; Percent = 1; }","fault":"half"},
            {"expect":["status"],"output":"{ Running = 0; }","fault":"crash"},
            {"expect":["status"],"output":"{ Running = 0; }","fault":"notUtf8"},
            {"expect":["status"],"fault":"endless"},
            {"expect":["startbackup","-d","disk one"],"status":30},
            {"expect":["stopbackup"],"delay":0.2},
            {"expect":["status"],"output":")" +
        longList + R"("}])");
    QtRunLoop runLoop;
    Task launcher;
    FakeWorkspace workspace;
    FakeAlerts alerts;
    TMUtilQueue queue(launcher, runLoop, tool.path());
    TMUtil tmutil(queue, launcher, runLoop, workspace, alerts);
    QList<int> states;
    QList<int> exits;
    bool stopped = false;
    for (int i = 0; i < 5; ++i)
        tmutil.getStatusWithCompletionHandler([&](const TMStatus& status) { states.append(int(status.state)); });
    tmutil.startBackupOnDiskWithIdentifier(u"disk one"_s, true,
                                           [&](std::int32_t status, bool) { exits.append(status); });
    tmutil.stopBackupWithCompletionHandler([&](bool, bool success) { stopped = success; });
    TMStatus last;
    tmutil.getStatusWithCompletionHandler([&](const TMStatus& status) { last = status; });
    EXPECT_TRUE(runUntil([&] { return !last.phase.isEmpty(); }));
    EXPECT_EQ(states, (QList<int>{1, -1, -1, -1, -1, -1, -1}));
    EXPECT_EQ(exits, QList<int>{30});
    EXPECT_TRUE(stopped);
    EXPECT_EQ(last, TMStatus::notRunning()) << "output larger than one read arrives whole";
}

TEST(RealTmutilProcesses, AToolThatIsNotThereIsAFailureLikeAnyOther)
{
    QtRunLoop runLoop;
    Task launcher;
    FakeWorkspace workspace;
    FakeAlerts alerts;
    for (const auto& path : {u"/nonexistent/tmutil"_s, u"/etc/passwd"_s}) {
        TMUtilQueue queue(launcher, runLoop, path);
        TMUtil tmutil(queue, launcher, runLoop, workspace, alerts);
        int status = 0;
        bool settled = false;
        tmutil.startBackupOnDiskWithIdentifier({}, false, [&](std::int32_t exit, bool) { status = exit; });
        tmutil.getStatusWithCompletionHandler([&](const TMStatus& report) { settled = report.failed; });
        EXPECT_TRUE(runUntil([&] { return settled; }));
        EXPECT_EQ(status, 127);
    }
}

} // namespace quillon
