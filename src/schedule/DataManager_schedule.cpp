#include "DataManager.h"
#include "Notifications.h"
#include "SettingsKeys.h"

namespace quillon {

using namespace std::chrono_literals;

namespace {

// Somebody who sets the clock by more wants another day, not a correction.
constexpr auto largestStepBackWithoutRepeat = 3h;

} // namespace

std::optional<Date> DataManager::getNextBackupDate()
{
    const Date now = runLoop_.now();
    const auto pauseUntil = defaults_.date(settingskeys::pauseUntilDate);
    if (pauseUntil && *pauseUntil < now) {
        defaults_.setDate(settingskeys::pauseUntilDate, std::nullopt);
        defaults_.setObject(settingskeys::pauseUntilTag, 0LL);
    }
    const Date reference = nextbackup::referenceDate(now, pauseUntil, lastFiredDate_);
    return nextbackup::nextBackupDate(calendarIntervalSettings_, reference, Calendar());
}

void DataManager::scheduleNextBackup()
{
    if (!isScheduleEnabled_) {
        setNextScheduledBackupDate(std::nullopt);
        return;
    }
    setNextScheduledBackupDate(getNextBackupDate());
    retryBackupDate_.reset();
}

void DataManager::setNextScheduledBackupDate(std::optional<Date> date)
{
    nextScheduledBackupDate_ = date;
    startBackupTimer_.invalidate();
    if (date)
        startBackupTimer_ = runLoop_.scheduleOnce(*date, [this] { startTimerFired(); });
}

void DataManager::startTimerFired()
{
    const Date date = *nextScheduledBackupDate_;
    // A retry is never too late: it is there because a start was missed.
    if (date != retryBackupDate_ && runLoop_.now() - date >= startGrace) {
        notifications_.post(notifications::scheduledBackupFoundLate);
        return;
    }
    lastFiredDate_ = date;
    notifications_.post(notifications::scheduledBackupShouldStart);
    scheduleNextBackup();
}

void DataManager::clockWasSetBack(std::chrono::milliseconds step)
{
    if (step > largestStepBackWithoutRepeat)
        lastFiredDate_.reset();
}

void DataManager::makeStartThatIsDue()
{
    const Date now = runLoop_.now();
    if (nextScheduledBackupDate_ && *nextScheduledBackupDate_ < now && now - *nextScheduledBackupDate_ < startGrace)
        startBackupTimer_.fire();
}

void DataManager::setRetryBackupDate(std::optional<Date> date)
{
    if (date) {
        const auto next = getNextBackupDate();
        if (!next || *date <= *next) {
            retryBackupDate_ = date;
            setNextScheduledBackupDate(date);
            return;
        }
    }
    retryBackupDate_.reset();
    scheduleNextBackup();
}

void DataManager::pauseBackupSchedule()
{
    startBackupTimer_.invalidate();
}

nextbackup::TimeComponents DataManager::timeComponentsFromTimeInterval(double seconds)
{
    return nextbackup::timeComponents(seconds);
}

} // namespace quillon
