#include "VirtualLauncher.h"

#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>
#include <utility>

namespace quillon {

struct VirtualLauncher::Child {
    VirtualRunLoop& runLoop;
    Completion completion;
    std::function<void(const QByteArray&)> takeOutput;
    Timer timer{};
    bool hasEnded = false;

    static void end(const std::shared_ptr<Child>& child, const TaskResult& result)
    {
        child->timer.invalidate();
        if (std::exchange(child->hasEnded, true))
            return;
        child->runLoop.enqueue([child, result] {
            if (child->completion && child->takeOutput && result.output)
                child->takeOutput(*result.output);
            // Which may do away with the handle.
            if (const auto complete = std::exchange(child->completion, nullptr))
                complete(result);
        });
    }
};

class VirtualLauncher::Handle final : public RunningTask {
public:
    explicit Handle(std::shared_ptr<Child> child)
        : child_(std::move(child))
    {
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() override { child_->completion = nullptr; }

    void kill() override { Child::end(child_, {SIGKILL, QByteArray()}); }
    void terminate() override { Child::end(child_, {SIGTERM, QByteArray()}); }

private:
    std::shared_ptr<Child> child_;
};

namespace {

TaskResult resultOf(const TmutilScript::Call& call)
{
    using enum TmutilScript::Fault;
    switch (call.fault) {
    case Crash:
        return {SIGSEGV, call.output.left(call.output.size() / 2)};
    case Half:
        return {call.status, call.output.left(call.output.size() / 2)};
    case Endless:
        return {SIGKILL, std::nullopt};
    case NotUtf8:
        return {call.status, "\xff\xfe" + call.output};
    case Refused:
        return {TaskResult::launchRefused, QByteArray()};
    case None:
    case Hang:
        break;
    }
    return {call.status, call.output};
}

} // namespace

VirtualLauncher::VirtualLauncher(VirtualRunLoop& runLoop)
    : runLoop_(runLoop)
{
}

VirtualLauncher::~VirtualLauncher() = default;

std::unique_ptr<RunningTask> VirtualLauncher::launch(const TaskRequest& request, Completion completion)
{
    launched_.append(request);
    const auto child =
        children_.emplace_back(std::make_shared<Child>(Child{runLoop_, std::move(completion), request.takeOutput}));
    const auto call = behaviour(request);
    // A repeating timer follows the uptime clock, as a child process does.
    if (call.fault != TmutilScript::Fault::Hang)
        child->timer = runLoop_.scheduleRepeating(
            Seconds(std::max(call.delay, 0.001)),
            [child = std::weak_ptr(child), result = resultOf(call)] { Child::end(child.lock(), result); });
    return std::make_unique<Handle>(child);
}

int VirtualLauncher::liveChildren() const
{
    return int(std::ranges::count_if(children_, [](const auto& child) { return !child->hasEnded; }));
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
