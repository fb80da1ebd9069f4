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
    using namespace startdecision;
    if (startDecision(Occasion::TimerRan, false) == Decision::Start)
        makeScheduledStart();
    else
        notifications_.post(notifications::scheduledBackupFoundLate);
}

startdecision::Decision DataManager::startDecision(startdecision::Occasion occasion, bool isMarkedAsMissed) const
{
    return startdecision::decide(occasion, {.now = runLoop_.now(),
                                            .next = nextScheduledBackupDate_,
                                            .retry = retryBackupDate_,
                                            .lastBackup = defaults_.date(settingskeys::lastBackupDate),
                                            .isMarkedAsMissed = isMarkedAsMissed});
}

void DataManager::makeScheduledStart()
{
    lastFiredDate_ = nextScheduledBackupDate_;
    notifications_.post(notifications::scheduledBackupShouldStart);
    scheduleNextBackup();
}

void DataManager::clockWasSetBack(std::chrono::milliseconds step)
{
    if (step > largestStepBackWithoutRepeat)
        lastFiredDate_.reset();
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
