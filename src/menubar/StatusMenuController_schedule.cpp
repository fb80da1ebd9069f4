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
    if (std::exchange(commandIsUnderWay_, true)) {
        waitingStart_ = switches; // the user is starting or stopping a backup at this moment
        return;
    }
    askForState([this, switches](TMState state) { answerScheduledStart(state, switches); });
}

void StatusMenuController::answerScheduledStart(TMState state, const ScheduleSwitches& switches)
{
    const bool startIsPending = tmState_ == TMState::Starting && state == TMState::NotRunning;
    const bool stillWanted =
        switches == ScheduleSwitches{sharedDataManager_.isScheduleEnabled(), runningPause(defaults_, runLoop_.now())};
    if (!startIsPending) {
        tmState_ = state;
        updateStatusBar(); // a run that has ended since the last poll is to be recorded before the next one begins
    }
    if (startIsPending || state != TMState::NotRunning || !stillWanted) {
        commandSettled();
        return;
    }
    tmutil_.startBackupOnDiskWithIdentifier({}, switchIsOn(settingskeys::rotateBackupDisks),
                                            [this](std::int32_t, bool success) {
                                                if (success) {
                                                    requestBackupDisks();
                                                    startAccepted();
                                                }
                                                commandSettled();
                                            });
}

void StatusMenuController::commandSettled()
{
    commandIsUnderWay_ = false;
    if (const auto waiting = std::exchange(waitingStart_, std::nullopt))
        askForScheduledStart(*waiting);
}

void StatusMenuController::startAccepted()
{
    tmState_ = TMState::Starting;
    tmPhase_ = u"Starting"_s;
    lastAnswerUptime_ = runLoop_.uptime();
    runLoop_.enqueue([this] {
        firePollTimer();
        startTimerWithInterval(pollintervals::starting);
    });
}

void StatusMenuController::setRetryInFiveMinutesIfEnabled(const QString& enablingKey)
{
    const bool paused = defaults_.integer(settingskeys::pauseUntilTag) != 0;
    if (!paused && switchIsOn(enablingKey)) {
        sharedDataManager_.setRetryBackupDate(freshRetryDate());
    }
}

Date StatusMenuController::freshRetryDate() const
{
    return DataHelper::dateSinceNowWithCeiledMinutes(retryInterval, runLoop_.now());
}

} // namespace quillon
