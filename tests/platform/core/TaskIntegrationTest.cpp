#include "EventLoop.h"
#include "ScopedEnvironment.h"
#include "Task.h"
#include "UtilityPriority.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

TaskRequest shell(const QString& script)
{
    return {.executable = u"/bin/sh"_s, .arguments = {u"-c"_s, script, u"sh"_s}, .environment = {u"command=status"_s}};
}

QString contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// True for one that has ended and waits to be reaped, too.
bool hasChildren()
{
    siginfo_t info{};
    return waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0;
}

class TaskIntegrationTest : public testing::Test {
protected:
    std::unique_ptr<RunningTask> launch(const TaskRequest& request)
    {
        return task.launch(request, [this](const TaskResult& result) { results.push_back(result); });
    }

    TaskResult run(const TaskRequest& request)
    {
        const auto handle = launch(request);
        EXPECT_TRUE(results.empty()) << "reported before launch returned";
        EXPECT_TRUE(runUntil([this] { return !results.empty(); }));
        QCoreApplication::processEvents();
        EXPECT_EQ(results.size(), 1u) << "reported more than once";
        return results.empty() ? TaskResult{} : results.front();
    }

    void TearDown() override
    {
        EXPECT_TRUE(runUntil([] { return !hasChildren(); })) << "a child was left behind";
    }

    QTemporaryDir folder;
    Task task;
    std::vector<TaskResult> results;
};

TEST_F(TaskIntegrationTest, TheChildSeesExactlyOneVariableWhateverTheParentHas)
{
    const ScopedEnvironment path("LD_LIBRARY_PATH", "/usr/lib");
    const ScopedEnvironment dyld("DYLD_LIBRARY_PATH", "/usr/lib");
    const auto result =
        run({.executable = u"/usr/bin/env"_s, .arguments = {}, .environment = {u"command=destinationinfo"_s}});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "command=destinationinfo\n");
}

TEST_F(TaskIntegrationTest, ArgumentsArriveUnchanged)
{
    auto request = shell(u"printf '[%s]' \"$@\""_s);
    request.arguments += {u"-d"_s, u""_s, u"a b\"$x'"_s, u"Größe %1"_s};
    EXPECT_EQ(run(request).output, "[-d][][a b\"$x'][Größe %1]");
}

TEST_F(TaskIntegrationTest, TheEndOfTheChildItselfIsReportedWhicheverItIs)
{
    const auto streams = u"[ /proc/$$/fd/0 -ef /proc/%1/fd/0 ] && [ /proc/$$/fd/2 -ef /proc/%1/fd/2 ]"_s;
    const struct {
        QString script;
        int status;
        QByteArray output;
    } rows[] = {
        {u"printf half; exit 3"_s, 3, "half"},
        {u"kill -TERM $$"_s, SIGTERM, ""},
        {u"/usr/bin/sleep 600 & echo $!"_s, 0, "grandchild"}, // keeps the output open
        {streams.arg(QString::number(getpid())), 0, ""},      // input and error are those of the parent
    };
    for (const auto& [script, status, output] : rows) {
        results.clear();
        const auto result = run(shell(script));
        EXPECT_EQ(result.status, status) << script.toStdString();
        if (output == "grandchild") {
            ::kill(result.output->trimmed().toInt(), SIGKILL);
            continue;
        }
        EXPECT_EQ(result.output, output) << script.toStdString();
    }
}

TEST_F(TaskIntegrationTest, ComplaintsAreCollectedUpToABoundWhereAskedFor)
{
    auto request = shell(u"echo answer; echo complaint >&2; exit 3"_s);
    request.captureErrors = true;
    const auto result = run(request);
    EXPECT_EQ(result.errors, "complaint\n");
    EXPECT_EQ(result.output, "answer\n") << "kept apart";
    EXPECT_EQ(result.status, 3);
    results.clear();
    request = shell(u"head -c 1000000 /dev/zero >&2"_s);
    request.captureErrors = true;
    EXPECT_EQ(run(request).errors.size(), Task::errorBound);
    EXPECT_EQ(results.front().status, 0) << "dropped, not blocked on";
}

TEST_F(TaskIntegrationTest, ARefusedLaunchEndsWithStatus127)
{
    const QString plainFile = folder.filePath(u"plain"_s);
    ASSERT_TRUE(QFile(plainFile).open(QIODevice::WriteOnly));
    const QString emptyProgram = folder.filePath(u"empty"_s);
    ASSERT_TRUE(QFile(emptyProgram).open(QIODevice::WriteOnly));
    QFile::setPermissions(emptyProgram, QFile::ReadOwner | QFile::ExeOwner);
    for (const QString& path : {folder.filePath(u"missing"_s), plainFile, emptyProgram, folder.path(), QString()}) {
        SCOPED_TRACE(path.toStdString());
        results.clear();
        EXPECT_EQ(run({.executable = path, .arguments = {}, .environment = {u"command=x"_s}}).status,
                  TaskResult::launchRefused);
    }
}

TEST_F(TaskIntegrationTest, OutputUpToTheBoundArrivesWholeAndBeyondItEndsTheChild)
{
    auto whole = run(shell(u"/usr/bin/head -c %1 /dev/zero"_s.arg(QString::number(Task::outputBound))));
    EXPECT_EQ(whole.status, 0);
    ASSERT_TRUE(whole.output);
    EXPECT_EQ(whole.output->size(), Task::outputBound);
    results.clear();
    const auto endless = run(shell(u"exec /usr/bin/yes"_s));
    EXPECT_EQ(endless.status, SIGKILL);
    EXPECT_FALSE(endless.output);
}

TEST_F(TaskIntegrationTest, OutputThatIsNotToBeCapturedGoesNowhere)
{
    auto request = shell(u"[ /proc/$$/fd/1 -ef /dev/null ]"_s);
    request.captureOutput = false;
    EXPECT_EQ(run(request).status, 0);
}

TEST_F(TaskIntegrationTest, TheChildRunsAtUtilityPriority)
{
    const int own = getpriority(PRIO_PROCESS, 0);
    const auto result = run(shell(u"/usr/bin/nice; /usr/bin/ionice -p $$"_s));
    ASSERT_TRUE(result.output);
    EXPECT_EQ(*result.output, QByteArray::number(std::max(own, 10)) + "\nbest-effort: prio 7\n");
    const pid_t child = fork();
    if (child == 0) {
        lowerToUtilityPriority();
        lowerToUtilityPriority(); // as a child of such a process does
        _exit(getpriority(PRIO_PROCESS, 0));
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(WEXITSTATUS(status), std::max(own, 10));
}

TEST_F(TaskIntegrationTest, KillEndsTheChildAndReportsItsEnd)
{
    const auto handle = launch(shell(u"echo begun; exec /usr/bin/sleep 600"_s));
    handle->kill();
    ASSERT_TRUE(runUntil([this] { return !results.empty(); }));
    EXPECT_EQ(results.front().status, SIGKILL);
    handle->kill();
}

TEST_F(TaskIntegrationTest, AChildRunsToItsEndUnreportedWithoutItsHandleOrItsLauncher)
{
    for (const bool hasLauncher : {true, false}) {
        const QString mark = folder.filePath(u"mark %1"_s.arg(hasLauncher));
        const QString gate = folder.filePath(u"gate %1"_s.arg(hasLauncher));
        auto launcher = std::make_unique<Task>();
        auto handle = launcher->launch(
            shell(u"until [ -e '%1' ]; do /usr/bin/sleep 0.02; done; echo finished > '%2'"_s.arg(gate, mark)),
            [](const TaskResult&) { FAIL() << "reported to nobody"; });
        if (hasLauncher) {
            handle.reset();
        } else {
            launcher.reset();
            handle->kill(); // no longer anybody's child to end
        }
        ASSERT_TRUE(QFile(gate).open(QIODevice::WriteOnly));
        EXPECT_TRUE(runUntil([&] { return contents(mark) == u"finished\n"_s; })) << hasLauncher;
        if (!hasLauncher) {
            EXPECT_GT(wait(nullptr), 0); // at quit, the system's first process does this
        }
        EXPECT_TRUE(runUntil([] { return !hasChildren(); })) << hasLauncher;
    }
}

TEST_F(TaskIntegrationTest, TheCompletionMayDestroyHandleAndLauncher)
{
    for (const QString& executable : {u"/bin/true"_s, folder.filePath(u"missing"_s), QString()}) {
        auto launcher = std::make_unique<Task>();
        std::unique_ptr<RunningTask> handle;
        bool reported = false;
        handle = launcher->launch({.executable = executable, .arguments = {}, .environment = {u"command=x"_s}},
                                  [&](const TaskResult&) {
                                      handle.reset();
                                      launcher.reset();
                                      reported = true;
                                  });
        EXPECT_TRUE(runUntil([&] { return reported; })) << executable.toStdString();
    }
}

} // namespace
} // namespace quillon
