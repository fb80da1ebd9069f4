#pragma once

#include "TaskLauncher.h"

#include <QObject>

namespace quillon {

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
