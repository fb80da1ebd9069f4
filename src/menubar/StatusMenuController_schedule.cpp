#include "DataHelper.h"
#include "PollIntervals.h"
#include "SettingsKeys.h"
#include "StatusMenuController.h"

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr Seconds retryInterval{300.0};

/// The end of a pause that is still to come.
std::optional<Date> runningPause(const UserDefaults& defaults, Date now)
{
    const auto end = defaults.date(settingskeys::pauseUntilDate);
    return end && *end > now ? end : std::nullopt;
}

} // namespace

void StatusMenuController::startScheduledBackup()
{
    askForScheduledStart({sharedDataManager_.isScheduleEnabled(), runningPause(defaults_, runLoop_.now())});
}

void StatusMenuController::askForScheduledStart(const ScheduleSwitches& switches)
{
    if (commandIsUnderWay_) {
        waitingStart_ = switches; // the user is starting or stopping a backup at this moment
        return;
    }
    commandBegins();
    askForStatus([this, switches](const TMStatus& status) { answerScheduledStart(status, switches); });
}

void StatusMenuController::answerScheduledStart(const TMStatus& status, const ScheduleSwitches& switches)
{
    if (status.state == TMState::Unknown) { // which is no reason to do anything, and tells nothing of a run
        commandSettled();
        return;
    }
    const bool stillWanted =
        switches == ScheduleSwitches{sharedDataManager_.isScheduleEnabled(), runningPause(defaults_, runLoop_.now())};
    if (status.state != TMState::NotRunning || !stillWanted) {
        handleStatus(status);
        commandSettled();
        return;
    }
    takeOverStatus(status); // a run that has ended since the last poll is to be recorded before the next one begins
    tmutil_.startBackupOnDiskWithIdentifier({}, switchIsOn(settingskeys::rotateBackupDisks),
                                            [this](std::int32_t, bool success) {
                                                if (success) {
                                                    startAccepted();
                                                    // Behind the first poll, lest a slow list hide a short run.
                                                    runLoop_.enqueue([this] { requestBackupDisks(); });
                                                }
                                                commandSettled();
                                            });
}

void StatusMenuController::commandBegins()
{
    commandIsUnderWay_ = true;
    updateBackupNowItem();
}

void StatusMenuController::commandSettled()
{
    commandIsUnderWay_ = false;
    updateStatusBar();
    if (const auto waiting = std::exchange(waitingStart_, std::nullopt))
        askForScheduledStart(*waiting);
}

void StatusMenuController::startAccepted()
{
    tmState_ = TMState::Starting;
    tmPhase_ = u"Starting"_s;
    startAccepted_ = runLoop_.uptime();
    runLoop_.enqueue([this] {
        firePollTimer();
        startTimerWithInterval(pollintervals::starting);
    });
}

bool StatusMenuController::setRetryInFiveMinutesIfEnabled(const QString& enablingKey)
{
    const bool paused = defaults_.integer(settingskeys::pauseUntilTag) != 0;
    const bool enabled = !paused && switchIsOn(enablingKey);
    if (enabled)
        sharedDataManager_.setRetryBackupDate(freshRetryDate());
    return enabled;
}

Date StatusMenuController::freshRetryDate() const
{
    return DataHelper::dateSinceNowWithCeiledMinutes(retryInterval, runLoop_.now());
}

} // namespace quillon
