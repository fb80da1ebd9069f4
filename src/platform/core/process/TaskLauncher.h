#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace quillon {

/// A child process to be run. Standard input stays that of this program, and standard error unless it is captured.
struct TaskRequest {
    QString executable;
    QStringList arguments;
    /// The child's whole environment, whatever this program inherited; each "NAME=value".
    QStringList environment;
    /// Standard output is collected; when false it is discarded.
    bool captureOutput = true;
    /// Standard error is collected, for a program that shows what the child complains of.
    bool captureErrors = false;
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
};

/// Starts child processes at utility priority; the seam at which tests play processes. Main thread only.
class TaskLauncher {
public:
    using Completion = std::function<void(const TaskResult&)>;

    TaskLauncher() = default;
    TaskLauncher(const TaskLauncher&) = delete;
    TaskLauncher& operator=(const TaskLauncher&) = delete;
    virtual ~TaskLauncher() = default;

    /// Starts the child and returns at once. The completion is called exactly once, in a later turn, on the main
    /// thread, also when the launch was refused.
    [[nodiscard]] virtual std::unique_ptr<RunningTask> launch(const TaskRequest& request, Completion completion) = 0;
};

} // namespace quillon
