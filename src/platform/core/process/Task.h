#pragma once

#include <QByteArray>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace quillon {

/// A child process to be run. Standard error stays that of this program unless it is captured.
struct TaskRequest {
    QString executable;
    QStringList arguments;
    /// The child's whole environment, whatever this program inherited; each "NAME=value".
    QStringList environment;
    /// Standard output is collected; when false it is discarded.
    bool captureOutput = true;
    /// Standard error is collected, for a program that shows what the child complains of.
    bool captureErrors = false;
    /// Takes standard output as it comes, which is then neither collected nor bounded.
    std::function<void(const QByteArray& bytes)> takeOutput = {};
    /// What the child reads from its standard input, which ends with it: a way for secrets, which others see among
    /// arguments. Standard input stays that of this program where there is none.
    std::optional<QByteArray> input = {};
};

/// How a child process ended.
struct TaskResult {
    static constexpr int launchRefused = 127; ///< exit status reported when the executable could not be started

    /// Exit status; the signal's number for a child that a signal ended; launchRefused when it never started.
    int status = 0;
    /// Everything the child wrote to standard output; nothing when it wrote more than Task's bound and was ended.
    std::optional<QByteArray> output;
    /// What the child wrote to standard error, up to Task's bound for it, where that was asked for.
    QByteArray errors = {};
};

/// A child process that runs. Destroying this lets the child live on; its completion is then never called.
class RunningTask {
public:
    RunningTask() = default;
    RunningTask(const RunningTask&) = delete;
    RunningTask& operator=(const RunningTask&) = delete;
    virtual ~RunningTask() = default;

    /// Ends the child at once; the completion follows as for any end.
    virtual void kill() = 0;

    /// Asks the child to end (SIGTERM); the completion follows once it has. Later ends of the handle do not hinder it.
    virtual void terminate() = 0;
};

/// Starts child processes at utility priority; the seam at which tests play processes.
class TaskLauncher {
public:
    using Completion = std::function<void(const TaskResult&)>;

    TaskLauncher() = default;
    TaskLauncher(const TaskLauncher&) = delete;
    TaskLauncher& operator=(const TaskLauncher&) = delete;
    virtual ~TaskLauncher() = default;

    /// Starts the child and returns at once. The completion is called exactly once, in a later turn, also when the
    /// launch was refused.
    [[nodiscard]] virtual std::unique_ptr<RunningTask> launch(const TaskRequest& request, Completion completion) = 0;
};

/// A child process of Task. It deletes itself once it has ended and reported; destroyed before that, it leaves the
/// child running.
class ChildProcess final : public QProcess {
    Q_OBJECT

public:
    ChildProcess(const TaskRequest& request, TaskLauncher::Completion completion, QObject* parent);
    ~ChildProcess() override;

    /// Nothing is told any more; the child runs on and is still waited for.
    void forgetCompletion()
    {
        completion_ = nullptr;
        takeOutput_ = nullptr;
    }

private:
    void collectOutput();
    void collectErrors();
    void reportLater(int status);

    TaskLauncher::Completion completion_;
    std::function<void(const QByteArray& bytes)> takeOutput_;
    QByteArray output_;
    QByteArray errors_;
    bool outputBoundExceeded_ = false;
    const bool streamed_; ///< output goes to takeOutput_, or nowhere once that is forgotten
};

/// Runs child processes for real. Destroying it leaves the children to themselves: they live on, no completion is
/// called any more.
class Task final : public TaskLauncher {
public:
    /// Output beyond this ends the child, and the read counts as failed.
    static constexpr qsizetype outputBound = qsizetype{16} * 1024 * 1024;

    /// Captured complaints beyond this are dropped.
    static constexpr qsizetype errorBound = qsizetype{64} * 1024;

    [[nodiscard]] std::unique_ptr<RunningTask> launch(const TaskRequest& request, Completion completion) override;

private:
    QObject children_; ///< parent of every child process that runs, also of those whose handle is gone
};

} // namespace quillon
