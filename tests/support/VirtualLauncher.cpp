#include "VirtualLauncher.h"

#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>
#include <utility>

namespace quillon {

struct VirtualLauncher::Child {
    Completion completion;
    Timer end;
    bool hasEnded = false;
};

class VirtualLauncher::Handle final : public RunningTask {
public:
    Handle(VirtualLauncher& launcher, int id)
        : launcher_(launcher)
        , id_(id)
    {
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() override { launcher_.children_.at(id_)->completion = nullptr; }

    void kill() override { launcher_.end(id_, {SIGKILL, QByteArray()}); }

private:
    VirtualLauncher& launcher_;
    int id_;
};

VirtualLauncher::VirtualLauncher(VirtualRunLoop& runLoop)
    : runLoop_(runLoop)
{
}

VirtualLauncher::~VirtualLauncher() = default;

std::unique_ptr<RunningTask> VirtualLauncher::launch(const TaskRequest& request, Completion completion)
{
    using Fault = TmutilScript::Fault;
    launched_.append(request);
    const int id = nextId_++;
    auto& child = *(children_[id] = std::make_shared<Child>());
    child.completion = std::move(completion);
    const auto call = behaviour(request);
    TaskResult result{call.status, call.faultyOutput()};
    if (call.fault == Fault::Crash)
        result.status = SIGSEGV;
    else if (call.fault == Fault::Refused)
        result.status = TaskResult::launchRefused;
    else if (call.fault == Fault::Endless)
        result = {SIGKILL, std::nullopt};
    if (call.fault != Fault::Hang) {
        // A repeating timer follows the uptime clock, as a child process does.
        const Seconds duration{std::max(call.delay, 0.001)};
        child.end = runLoop_.scheduleRepeating(duration, [this, id, result] { end(id, result); });
    }
    return std::make_unique<Handle>(*this, id);
}

void VirtualLauncher::end(int id, const TaskResult& result)
{
    const auto child = children_.at(id);
    if (child->hasEnded)
        return;
    child->hasEnded = true;
    child->end.invalidate();
    // Nobody is told once the handle is gone.
    runLoop_.enqueue([child, result] {
        if (child->completion)
            child->completion(result);
    });
}

int VirtualLauncher::liveChildren() const
{
    return static_cast<int>(
        std::count_if(children_.begin(), children_.end(), [](const auto& child) { return !child.second->hasEnded; }));
}

ScriptedLauncher::ScriptedLauncher(VirtualRunLoop& runLoop, const TmutilScript& script)
    : VirtualLauncher(runLoop)
    , remaining_(script.calls)
{
}

ScriptedLauncher::~ScriptedLauncher()
{
    for (const auto& call : remaining_)
        ADD_FAILURE() << "never called: " << call.expected.join(u' ').toStdString();
}

TmutilScript::Call ScriptedLauncher::behaviour(const TaskRequest& request)
{
    if (remaining_.isEmpty() || remaining_.first().expected != request.arguments) {
        ADD_FAILURE() << "unexpected call: " << request.arguments.join(u' ').toStdString();
        return {};
    }
    return remaining_.takeFirst();
}

} // namespace quillon
