#include "DataHelper.h"
#include "PollIntervals.h"
#include "SettingsKeys.h"
#include "StatusMenuController.h"

#include <memory>
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
    struct Question {
        bool wasEnabled;
        std::optional<Date> pauseUntil;
        TMState lastReport = TMState::Unknown;
        bool reported = false;
    };
    const auto question = std::make_shared<Question>(
        Question{sharedDataManager_.isScheduleEnabled(), runningPause(defaults_, runLoop_.now())});
    tmutil_.getStatusWithCompletionHandler([this, question](const TMStatus& status) {
        question->lastReport = status.state;
        if (std::exchange(question->reported, true))
            return;
        // One answer may bring two reports: act once, on the last one.
        runLoop_.enqueue([this, question] {
            const bool stillWanted = question->wasEnabled == sharedDataManager_.isScheduleEnabled() &&
                                     question->pauseUntil == runningPause(defaults_, runLoop_.now());
            answerScheduledStart(question->lastReport, stillWanted);
        });
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
                                                if (success)
                                                    startAccepted();
                                            });
}

void StatusMenuController::startAccepted()
{
    tmState_ = TMState::Starting;
    tmPhase_ = u"Starting"_s;
    lastAnswerUptime_ = runLoop_.uptime();
    requestBackupDisks();
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
