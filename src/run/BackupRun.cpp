#include "BackupRun.h"

#include <algorithm>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

void RunProgress::copyPhaseEnded(Date now)
{
    // Without an estimate there is nothing to carry on.
    if (percentage_ > 0 && timeRemaining_ > 0)
        copyPhaseEnd_ = {now, percentage_, timeRemaining_};
}

void RunProgress::update(const TMStatus& status, Date now)
{
    double elapsed = 0;
    if (status.percent != 0 || timeRemaining_ <= 0) {
        timeRemaining_ = status.timeRemaining;
    } else if (copyPhaseEnd_) {
        elapsed = secondsBetween(copyPhaseEnd_->date, now);
        timeRemaining_ = std::max(copyPhaseEnd_->timeRemaining - elapsed, 0.0);
    }

    if (status.percent > percentage_) {
        percentage_ = status.percent;
    } else if (copyPhaseEnd_) {
        // Once the remaining time has counted down to 0, nothing has elapsed any more and the percentage falls back to
        // where copying ended.
        const double rest = 1 - copyPhaseEnd_->percentage;
        percentage_ = std::min(copyPhaseEnd_->percentage + rest * elapsed / copyPhaseEnd_->timeRemaining, 1.0);
    }
    bytesCopied_ = std::max(bytesCopied_, status.bytesCopied);
}

namespace {

// A run that follows a start is reported sooner than that.
constexpr std::chrono::minutes closelyWatchedStart{1};

/// A start that was accepted takes a while to show. A command has to know what is true: the run may have come and gone.
bool endsStarting(const TMStatus& status, BackupRun::Asked asked)
{
    return status.state != TMState::NotRunning || asked == BackupRun::Asked::ByCommand;
}

} // namespace

bool BackupRun::isActive() const
{
    return isReported() || tmState_ == TMState::Starting;
}

void BackupRun::enter(TMState state, const QString& phase)
{
    tmState_ = state;
    tmPhase_ = phase;
}

void BackupRun::take(const TMStatus& status, Asked asked, Date now)
{
    if (tmState_ != TMState::Starting || endsStarting(status, asked)) {
        if (tmPhase_ == "Copying"_L1 && status.phase != "Copying"_L1)
            progress_.copyPhaseEnded(now);
        enter(status.state, status.phase);
    }
    progress_.update(status, now);
    if (!status.destinationID.isEmpty())
        activeBackupDiskIdentifier_ = status.destinationID;
    lastFailure_ = status.lastFailure;
    if (status.state == TMState::NotRunning)
        damageIsKnown_ = status.damageIsKnown;
    markCompletion(status, now);
}

void BackupRun::markCompletion(const TMStatus& status, Date now)
{
    if (status.phase == "Finishing"_L1 || (status.phase == "ThinningPostBackup"_L1 && !backupCompleteDate_))
        backupCompleteDate_ = now;
    if (status.state == TMState::Stopping)
        backupCompleteDate_.reset(); // a run that is stopped never counts as completed
}

void BackupRun::startAccepted(std::chrono::milliseconds uptime)
{
    enter(TMState::Starting, u"Starting"_s);
    pace_ = Pace::Starting;
    startAccepted_ = uptime;
}

void BackupRun::tick(std::chrono::milliseconds uptime)
{
    if (pace_ == Pace::Starting && uptime - startAccepted_ > closelyWatchedStart)
        pace_ = Pace::Running;
}

BackupRun::Step BackupRun::step()
{
    Step step;
    if (uiState_ != TMState::Running && tmState_ == TMState::Running) {
        step.began = true;
        uiState_ = TMState::Running;
        pace_ = Pace::Running;
        backupCompleteDate_.reset();
    } else if (!isActive()) {
        if (uiState_ == TMState::Running)
            step.end = end();
        pace_ = Pace::Idle;
        // A stop that was accepted just as the run ended would keep the backup-now item disabled for ever.
        stopBackupConfirmed_ = false;
    }
    previousTmPhase_ = tmPhase_;
    return step;
}

BackupRun::End BackupRun::end()
{
    uiState_ = tmState_;
    const RunProgress progress = std::exchange(progress_, {});
    End end{backupCompleteDate_, stopBackupConfirmed_, std::exchange(activeBackupDiskIdentifier_, {}),
            progress.bytesCopied()};
    if (end.failed())
        end.failure = lastFailure_;
    return end;
}

} // namespace quillon
