#include "DataHelper.h"
#include "PollIntervals.h"
#include "SettingsKeys.h"
#include "StatusMenuController.h"

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
    const bool wasEnabled = sharedDataManager_.isScheduleEnabled();
    const auto pauseUntil = runningPause(defaults_, runLoop_.now());
    askForState([this, wasEnabled, pauseUntil](TMState state) {
        const bool stillWanted = wasEnabled == sharedDataManager_.isScheduleEnabled() &&
                                 pauseUntil == runningPause(defaults_, runLoop_.now());
        answerScheduledStart(state, stillWanted);
    });
}

void StatusMenuController::answerScheduledStart(TMState state, bool stillWanted)
{
    tmState_ = state;
    updateStatusBar(); // a run that has ended since the last poll is to be recorded before the next one begins
    if (state != TMState::NotRunning || !stillWanted)
        return;
    tmutil_.startBackupOnDiskWithIdentifier({}, switchIsOn(settingskeys::rotateBackupDisks),
                                            [this](std::int32_t, bool success) {
                                                if (!success)
                                                    return;
                                                requestBackupDisks();
                                                startAccepted();
                                            });
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
