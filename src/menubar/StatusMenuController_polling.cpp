#include "PollIntervals.h"
#include "StatusMenuController.h"

#include <memory>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// A run that has not been reported for so long is not about to be.
constexpr std::chrono::minutes closelyWatchedStart{1};

} // namespace

void StatusMenuController::startTimerWithInterval(double interval)
{
    stopTimer();
    pollInterval_ = interval;
    repeatingIntervalTimer_ = runLoop_.scheduleRepeating(Seconds(interval), [this] { pollTimerTicked(); });
}

void StatusMenuController::stopTimer()
{
    repeatingIntervalTimer_.invalidate();
}

void StatusMenuController::pollTimerTicked()
{
    checkClock();
    // "Starting" has no time-out, but nobody needs to look for the run five times a second for ever.
    if (pollInterval_ == pollintervals::starting && runLoop_.uptime() - startAccepted_ > closelyWatchedStart)
        startTimerWithInterval(pollintervals::running);
    requestTimeMachineStatus();
}

void StatusMenuController::firePollTimer()
{
    pollIsFired_ = true;
    repeatingIntervalTimer_.fire();
    pollIsFired_ = false;
}

void StatusMenuController::requestTimeMachineStatus()
{
    // A tool that is slow to answer must not pile questions up. Somebody who fires the timer wants to know what is true
    // from now on, which the answer under way may not say.
    if (pollsAwaited_ > (pollIsFired_ ? 1 : 0))
        return;
    ++pollsAwaited_;
    const auto answered = std::make_shared<bool>(false);
    tmutil_.getStatusWithCompletionHandler([this, answered](const TMStatus& status) {
        handleStatus(status);
        if (!std::exchange(*answered, true))
            runLoop_.enqueue([this] { --pollsAwaited_; }); // a second report of the same answer comes before this
    });
}

void StatusMenuController::handleStatus(const TMStatus& status)
{
    noteRunState(status);
    progress_.update(status, runLoop_.now());
    if (!status.destinationID.isEmpty())
        activeBackupDiskIdentifier_ = status.destinationID;
    updateStatusBar();
    markCompletion(status);
}

void StatusMenuController::noteRunState(const TMStatus& status)
{
    if (status.state == TMState::NotRunning && tmState_ == TMState::Starting)
        return; // a start was accepted and Time Machine does not report the run yet
    if (tmPhase_ == "Copying"_L1 && status.phase != "Copying"_L1)
        progress_.copyPhaseEnded(runLoop_.now());
    tmState_ = status.state;
    tmPhase_ = status.phase;
}

void StatusMenuController::markCompletion(const TMStatus& status)
{
    if (status.phase == "Finishing"_L1 || (status.phase == "ThinningPostBackup"_L1 && !backupCompleteDate_))
        backupCompleteDate_ = runLoop_.now();
    if (status.state == TMState::Stopping)
        backupCompleteDate_.reset(); // a run that is stopped never counts as completed
}

void StatusMenuController::requestBackupDisks()
{
    if (std::exchange(disksAreAwaited_, true))
        return; // one list tells all who ask before it is there, and holds up no second poll
    tmutil_.getBackupDestinationsWithCompletionHandler([this](bool, const QList<BackupDestination>& destinations) {
        disksAreAwaited_ = false;
        backupDisks_ = destinations;
        updateBackupDiskMenuItem();
    });
}

void StatusMenuController::askForStatus(std::function<void(const TMStatus& status)> act)
{
    const auto lastReport = std::make_shared<std::optional<TMStatus>>();
    tmutil_.getStatusWithCompletionHandler([this, lastReport, act = std::move(act)](const TMStatus& status) {
        if (!std::exchange(*lastReport, status))
            runLoop_.enqueue([lastReport, act] { act(**lastReport); }); // a second report comes before this
    });
}

void StatusMenuController::takeOverStatus(const TMStatus& status)
{
    if (tmState_ == TMState::Starting)
        tmState_ = status.state; // the run that was waited for may have come and gone
    handleStatus(status);
}

} // namespace quillon
