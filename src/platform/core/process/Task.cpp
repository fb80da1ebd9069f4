#include "Task.h"

#include "ChildProcess.h"

#include <QPointer>

#include <utility>

namespace quillon {

namespace {

class RunningChild final : public RunningTask {
public:
    explicit RunningChild(ChildProcess* child)
        : child_(child)
    {
    }
    RunningChild(const RunningChild&) = delete;
    RunningChild& operator=(const RunningChild&) = delete;
    ~RunningChild() override
    {
        if (child_)
            child_->forgetCompletion();
    }

    void kill() override
    {
        if (child_)
            child_->kill();
    }

private:
    QPointer<ChildProcess> child_;
};

} // namespace

std::unique_ptr<RunningTask> Task::launch(const TaskRequest& request, Completion completion)
{
    return std::make_unique<RunningChild>(new ChildProcess(request, std::move(completion), &children_));
}

} // namespace quillon
