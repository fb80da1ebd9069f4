#include "EventLoop.h"
#include "ScopedEnvironment.h"
#include "Task.h"

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

namespace {

TaskRequest program(const QString& path)
{
    return {.executable = path, .arguments = {}, .environment = {u"command=status"_s}};
}

TaskRequest shell(const QString& script, bool captureOutput = true, bool captureErrors = false)
{
    auto request = program(u"/bin/sh"_s);
    request.arguments = QStringList{u"-c"_s, script, u"sh"_s, u"-d"_s, u""_s, u"a b\"$x'"_s, u"Größe %1"_s};
    request.captureOutput = captureOutput;
    request.captureErrors = captureErrors;
    return request;
}

TaskRequest reading(const QByteArray& input, const QString& script)
{
    auto request = shell(script);
    request.input = input;
    return request;
}

// True for one that has ended and waits to be reaped, too.
bool hasChildren()
{
    siginfo_t info{};
    return waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0;
}

class TaskIntegrationTest : public testing::Test {
protected:
    void TearDown() override
    {
        EXPECT_TRUE(runUntil([] { return !hasChildren(); })) << "a child was left behind";
    }

    QString makeFile(const QString& name) const
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return file.fileName();
    }

    const QTemporaryDir folder;
};

TEST_F(TaskIntegrationTest, TheEndOfTheChildItselfIsReportedOnceWithWhatItSaid)
{
    const ScopedEnvironment libraries("LD_LIBRARY_PATH", "/usr/lib"); // QProcess would hand it down
    const auto streams = u"[ /proc/$$/fd/0 -ef /proc/%1/fd/0 ] && [ /proc/$$/fd/2 -ef /proc/%1/fd/2 ]"_s;
    const auto grandchild = u"while [ -d '%1' ]; do /usr/bin/sleep 0.1; done & echo on"_s.arg(folder.path());
    const QByteArray priority = QByteArray::number(std::max(getpriority(PRIO_PROCESS, 0), 10));
    const struct {
        QString what;
        TaskRequest request;
        int status;
        std::optional<QByteArray> output = "";
        QByteArray errors = {};
    } rows[] = {
        {u"one variable"_s, program(u"/usr/bin/env"_s), 0, "command=status\n"},
        {u"arguments"_s, shell(u"printf '[%s]' \"$@\""_s), 0, "[-d][][a b\"$x'][Größe %1]"},
        {u"a signal"_s, shell(u"kill -TERM $$"_s), SIGTERM},
        {u"input and errors are the parent's"_s, shell(streams.arg(getpid())), 0},
        {u"a grandchild keeps the output open"_s, shell(grandchild), 0, "on\n"},
        {u"low priority"_s, shell(u"/usr/bin/nice; /usr/bin/ionice -p $$"_s), 0, priority + "\nbest-effort: prio 7\n"},
        {u"input of its own, and its end"_s, reading("a\nb\n", u"/usr/bin/cat; echo c"_s), 0, "a\nb\nc\n"},
        {u"input that nobody reads"_s, reading(QByteArray(1'000'000, 'x'), u"exit 3"_s), 3},
        {u"output unwanted"_s, shell(u"[ /proc/$$/fd/1 -ef /dev/null ]"_s, false), 0},
        {u"errors"_s, shell(u"echo a; echo b >&2; exit 3"_s, true, true), 3, "a\n", "b\n"},
        {u"errors are dropped, not blocked on"_s, shell(u"/usr/bin/head -c 1000000 /dev/zero >&2"_s, true, true), 0, "",
         QByteArray(Task::errorBound, '\0')},
        {u"endless"_s, shell(u"exec /usr/bin/yes"_s), SIGKILL, {}},
        {u"no file"_s, program(folder.filePath(u"missing"_s)), TaskResult::launchRefused},
        {u"no program"_s, program(makeFile(u"plain"_s)), TaskResult::launchRefused},
    };
    for (const bool destroys : {false, true}) { // handle and launcher, inside the completion
        for (const auto& row : rows) {
            SCOPED_TRACE(row.what.toStdString());
            auto launcher = std::make_unique<Task>();
            std::unique_ptr<RunningTask> handle;
            std::vector<TaskResult> results;
            handle = launcher->launch(row.request, [&](const TaskResult& result) {
                results.push_back(result);
                handle.reset();
                if (destroys)
                    launcher.reset();
            });
            EXPECT_TRUE(results.empty()) << "reported before launch returned";
            ASSERT_TRUE(runUntil([&] { return !results.empty(); }));
            QCoreApplication::processEvents();
            EXPECT_EQ(results.size(), 1u);
            EXPECT_EQ(results.front().status, row.status);
            EXPECT_TRUE(results.front().output == row.output)
                << results.front().output.value_or("none").left(200).toStdString();
            EXPECT_TRUE(results.front().errors == row.errors) << results.front().errors.left(200).toStdString();
        }
    }
}

TEST_F(TaskIntegrationTest, KillEndsTheChildAndReportsItsEnd)
{
    Task task;
    int status = 0;
    const auto running = task.launch(shell(u"exec /usr/bin/sleep 600"_s),
                                     [&status](const TaskResult& result) { status = result.status; });
    running->kill();
    EXPECT_TRUE(runUntil([&status] { return status != 0; }));
    EXPECT_EQ(status, SIGKILL);
    running->kill();
}

TEST_F(TaskIntegrationTest, OutputThatIsTakenAsItComesHasNoBoundAndTheChildCanBeAskedToEnd)
{
    Task task;
    int status = -1;
    qsizetype taken = 0;
    const auto launch = [&](const QString& script) {
        TaskRequest request = shell(script);
        request.takeOutput = [&taken](const QByteArray& bytes) { taken += bytes.size(); };
        return task.launch(request, [&status](const TaskResult& result) { status = result.status; });
    };
    const auto large = launch(u"/usr/bin/head -c %1 /dev/zero"_s.arg(QString::number(Task::outputBound + 1)));
    ASSERT_TRUE(runUntil([&status] { return status == 0; }));
    EXPECT_EQ(taken, Task::outputBound + 1);
    taken = 0;
    const auto running = launch(u"trap 'kill $!; exit 8' TERM; /usr/bin/sleep 600 & echo begun; wait"_s);
    ASSERT_TRUE(runUntil([&taken] { return taken > 0; })) << "while it runs";
    running->terminate();
    EXPECT_TRUE(runUntil([&status] { return status == 8; }));
}

TEST_F(TaskIntegrationTest, AChildRunsToItsEndUnreportedWithoutItsHandleOrItsLauncher)
{
    for (const bool hasLauncher : {true, false}) {
        const QString mark = folder.filePath(u"mark %1"_s.arg(hasLauncher));
        const QString gate = folder.filePath(u"gate %1"_s.arg(hasLauncher));
        auto launcher = std::make_unique<Task>();
        auto handle =
            launcher->launch(shell(u"until [ -e '%1' ]; do /usr/bin/sleep 0.02; done; : > '%2'"_s.arg(gate, mark)),
                             [](const TaskResult&) { FAIL() << "reported to nobody"; });
        if (hasLauncher) {
            handle.reset();
        } else {
            launcher.reset();
            handle->kill(); // no longer anybody's child to end
        }
        makeFile(u"gate %1"_s.arg(hasLauncher));
        EXPECT_TRUE(runUntil([&] { return QFile::exists(mark); })) << hasLauncher;
        if (!hasLauncher) {
            EXPECT_GT(wait(nullptr), 0); // at quit, the system's first process does this
        }
        EXPECT_TRUE(runUntil([] { return !hasChildren(); })) << hasLauncher;
    }
}

} // namespace
} // namespace quillon
