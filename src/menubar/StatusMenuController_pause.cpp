#include "LocalizedString.h"
#include "SettingsKeys.h"
#include "StatusMenuController.h"

namespace quillon {

namespace {

// Makes sure that the end has passed when the timer runs.
constexpr Seconds expirationGrace{10.0};

} // namespace

void StatusMenuController::restorePause()
{
    schedulePauseScheduleExpirationTimer(); // a pause that has ended meanwhile is over with this
    const auto end = defaults_.date(settingskeys::pauseUntilDate);
    if (!end)
        return;
    updateStatusBar();
    showPaused(*end, defaults_.integer(settingskeys::pauseUntilTag));
}

void StatusMenuController::pauseForClicked(std::int64_t tag)
{
    const Date end = runLoop_.now() + std::chrono::seconds(tag);
    defaults_.setDate(settingskeys::pauseUntilDate, end);
    defaults_.setObject(settingskeys::pauseUntilTag, static_cast<qlonglong>(tag));
    sharedDataManager_.setRetryBackupDate(std::nullopt);
    sharedDataManager_.scheduleNextBackup();
    schedulePauseScheduleExpirationTimer();
    updateStatusBar();
    showPaused(end, tag);
}

void StatusMenuController::showPaused(Date end, std::int64_t tag)
{
    StatusMenu::setState(statusMenu_.pauseScheduleMenuItem, true);
    statusMenu_.setShown(statusMenu_.resumeScheduleMenuItem, true);
    statusMenu_.setShown(statusMenu_.resumeScheduleSeparator, true);
    titlePauseItem(end);
    setTogglesForPauseMenuItems(tag);
}

void StatusMenuController::resumeScheduleClicked()
{
    defaults_.setDate(settingskeys::pauseUntilDate, std::nullopt);
    defaults_.setObject(settingskeys::pauseUntilTag, 0LL);
    sharedDataManager_.scheduleNextBackup();
    updateStatusBar();
    showNotPaused();
}

void StatusMenuController::showNotPaused()
{
    StatusMenu::setState(statusMenu_.pauseScheduleMenuItem, false);
    statusMenu_.setShown(statusMenu_.resumeScheduleMenuItem, false);
    statusMenu_.setShown(statusMenu_.resumeScheduleSeparator, false);
    StatusMenu::setTitle(statusMenu_.pauseScheduleMenuItem, localizedString("pauseScheduleForTitle"));
    setTogglesForPauseMenuItems(0);
}

void StatusMenuController::setTogglesForPauseMenuItems(std::int64_t tag)
{
    for (QAction* item : statusMenu_.pauseDurationItems())
        StatusMenu::setState(item, item->data().toLongLong() == tag);
}

void StatusMenuController::schedulePauseScheduleExpirationTimer()
{
    stopPauseScheduleExpirationTimer();
    const auto end = defaults_.date(settingskeys::pauseUntilDate);
    if (!end) {
        showNotPaused(); // the schedule may have found the end of the pause before the timer did
        return;
    }
    if (*end <= runLoop_.now()) {
        resumeScheduleClicked();
        return;
    }
    checkPauseScheduleExpirationTimer_ =
        runLoop_.scheduleOnce(dateByAdding(*end, expirationGrace), [this, end = *end] { pauseTimerFired(end); });
}

void StatusMenuController::stopPauseScheduleExpirationTimer()
{
    checkPauseScheduleExpirationTimer_.invalidate();
}

void StatusMenuController::pauseTimerFired(Date end)
{
    // Resuming early leaves this timer; planning anew would then drop a retry that has come since.
    if (end < runLoop_.now() && defaults_.date(settingskeys::pauseUntilDate))
        resumeScheduleClicked();
    else
        schedulePauseScheduleExpirationTimer(); // also when the clock was changed, or the timer was fired early
}

} // namespace quillon
