#include "SettingsKeys.h"
#include "StatusMenuController.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr std::chrono::minutes longestWaitForWake{1};

} // namespace

void StatusMenuController::prepareForSleep()
{
    asleepSince_ = runLoop_.uptime();
    sharedDataManager_.pauseBackupSchedule();
    stopPauseScheduleExpirationTimer();
}

void StatusMenuController::handleWake(Wake wake)
{
    asleepSince_.reset();
    takeClockAsItIs();
    // Setting a clock is no reason to give a retry up; waking is: the schedule is looked at afresh.
    const auto retry = sharedDataManager_.retryBackupDate();
    const bool keepsRetry = wake == Wake::ClockJump && retry && sharedDataManager_.nextScheduledBackupDate() == retry;
    schedulePauseScheduleExpirationTimer();
    checkPauseScheduleExpirationTimer_.fire();

    if (keepsRetry) {
        // After a step back it is no farther ahead than a fresh one would be.
        sharedDataManager_.setRetryBackupDate(std::min(*retry, freshRetryDate()));
    } else if (scheduleWasMissed(wake)) {
        setMenuBarIconState(MenuBarIconState::MissedSchedule);
        if (!setRetryInFiveMinutesIfEnabled(settingskeys::enableRetryAtMissedSchedule))
            sharedDataManager_.scheduleNextBackup(); // the mark stands, and the schedule goes on
    } else {
        sharedDataManager_.scheduleNextBackup();
    }
    updateStatusBar();
}

bool StatusMenuController::scheduleWasMissed(Wake wake) const
{
    // A mark that stands earns a fresh retry at each wake-up; setting a clock is none.
    if (wake == Wake::FromSleep && menuBarIconState_ == MenuBarIconState::MissedSchedule)
        return true;
    const auto last = defaults_.date(settingskeys::lastBackupDate);
    const auto next = sharedDataManager_.nextScheduledBackupDate();
    return last && next && runLoop_.now() > *next && *next > *last;
}

void StatusMenuController::checkClock()
{
    if (asleepSince_) {
        // The wake-up notification follows a sleep at once and looks at everything. Should it be lost, the uptime clock
        // tells that the system is awake.
        if (runLoop_.uptime() - *asleepSince_ > longestWaitForWake)
            handleWake(Wake::FromSleep);
        return;
    }
    const auto change = takeClockAsItIs();
    if (change.step == std::chrono::milliseconds(0) && !change.newTimeZone)
        return;
    sharedDataManager_.makeStartThatIsDue();
    handleWake(Wake::ClockJump);
}

ClockWatch::Change StatusMenuController::takeClockAsItIs()
{
    const auto change = clockWatch_.look();
    if (change.step < std::chrono::milliseconds(0))
        sharedDataManager_.clockWasSetBack(-change.step);
    return change;
}

} // namespace quillon
