#include "RunFollower.h"

#include <memory>
#include <utility>

namespace quillon {

namespace {

/// In seconds.
double intervalFor(BackupRun::Pace pace)
{
    switch (pace) {
    case BackupRun::Pace::Idle:
        return 15.0;
    case BackupRun::Pace::Running:
        return 3.0;
    case BackupRun::Pace::Starting:
        break;
    }
    return 0.2;
}

} // namespace

RunFollower::RunFollower(RunLoop& runLoop, TMUtil& tmutil)
    : runLoop_(runLoop)
    , tmutil_(tmutil)
{
}

void RunFollower::startTimerWithInterval(double interval)
{
    interval_ = interval;
    timer_.invalidate();
    timer_ = runLoop_.scheduleRepeating(Seconds(interval), [this] { tick(0); });
}

void RunFollower::start()
{
    startTimerWithInterval(intervalFor(run_.pace()));
}

void RunFollower::keepPace()
{
    if (interval_ != intervalFor(run_.pace()))
        start();
}

void RunFollower::fire()
{
    if (timer_.isValid())
        tick(1);
}

void RunFollower::tick(int awaitedAtMost)
{
    Q_EMIT ticked();
    run_.tick(runLoop_.uptime());
    keepPace();
    request(awaitedAtMost);
}

void RunFollower::request(int awaitedAtMost)
{
    if (pollsAwaited_ > awaitedAtMost) // a tool that is slow to answer must not pile questions up
        return;
    ++pollsAwaited_;
    const auto answered = std::make_shared<bool>(false);
    tmutil_.getStatusWithCompletionHandler([this, answered](const TMStatus& status) {
        take(status, BackupRun::Asked::ByPoll);
        if (!std::exchange(*answered, true))
            runLoop_.enqueue([this] { --pollsAwaited_; }); // a second report of the same answer comes before this
    });
}

void RunFollower::updateStatusBar()
{
    runLoop_.enqueue([this] {
        const auto step = run_.step();
        keepPace();
        Q_EMIT stepped(step);
    });
}

void RunFollower::askForStatus(std::function<void(const TMStatus& status)> act)
{
    const auto lastReport = std::make_shared<std::optional<TMStatus>>();
    tmutil_.getStatusWithCompletionHandler([this, lastReport, act = std::move(act)](const TMStatus& status) {
        if (!std::exchange(*lastReport, status))
            runLoop_.enqueue([lastReport, act] { act(**lastReport); }); // a second report comes before this
    });
}

void RunFollower::take(const TMStatus& status, BackupRun::Asked asked)
{
    run_.take(status, asked, runLoop_.now());
    updateStatusBar();
}

void RunFollower::startAccepted()
{
    run_.startAccepted(runLoop_.uptime());
    runLoop_.enqueue([this] {
        fire();
        start();
    });
}

void RunFollower::stopAccepted()
{
    run_.stopAccepted();
    fire();
}

} // namespace quillon
