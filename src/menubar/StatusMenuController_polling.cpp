#include "StatusMenuController.h"

#include <memory>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds longestTrustedSilence{30};

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
    const auto silence = runLoop_.uptime() - std::exchange(lastAnswerUptime_, runLoop_.uptime());
    // A start was accepted and Time Machine does not report the run yet. After a long silence that can't be said: the
    // run may have come and gone while the tool hung.
    if (status.state == TMState::NotRunning && tmState_ == TMState::Starting && silence < longestTrustedSilence)
        return;
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
    tmutil_.getBackupDestinationsWithCompletionHandler([this](bool, const QList<BackupDestination>& destinations) {
        backupDisks_ = destinations;
        updateBackupDiskMenuItem();
    });
}

void StatusMenuController::askForState(std::function<void(TMState state)> act)
{
    struct Answer {
        TMState lastReport = TMState::Unknown;
        bool reported = false;
    };
    const auto answer = std::make_shared<Answer>();
    tmutil_.getStatusWithCompletionHandler([this, answer, act = std::move(act)](const TMStatus& status) {
        answer->lastReport = status.state;
        if (!std::exchange(answer->reported, true))
            runLoop_.enqueue([answer, act] { act(answer->lastReport); }); // a second report comes before this
    });
}

} // namespace quillon
