#include "SchedulePause.h"

#include "LocalizedString.h"
#include "Shown.h"
#include "StoredAndSentNames.h"

namespace quillon {

namespace {

// Makes sure that the end has passed when the timer runs.
constexpr Seconds expirationGrace{10.0};

} // namespace

SchedulePause::SchedulePause(const Services& services, StatusMenu& menu)
    : services_(services)
    , menu_(menu)
{
}

void SchedulePause::restore()
{
    schedulePauseScheduleExpirationTimer(); // a pause that has ended meanwhile is over with this
    const auto end = services_.defaults.date(settingskeys::pauseUntilDate);
    if (!end)
        return;
    Q_EMIT changed();
    showPaused(*end, services_.defaults.integer(settingskeys::pauseUntilTag));
}

void SchedulePause::pauseForClicked(std::int64_t tag)
{
    pauseUntil(services_.runLoop.now() + std::chrono::seconds(tag), tag);
}

void SchedulePause::pauseUntil(Date end, std::int64_t tag)
{
    services_.defaults.setDate(settingskeys::pauseUntilDate, end);
    services_.defaults.setObject(settingskeys::pauseUntilTag, static_cast<qlonglong>(tag));
    services_.dataManager.setRetryBackupDate(std::nullopt); // which plans anew
    schedulePauseScheduleExpirationTimer();
    Q_EMIT changed();
    showPaused(end, tag);
}

void SchedulePause::resumeScheduleClicked()
{
    services_.defaults.setDate(settingskeys::pauseUntilDate, std::nullopt);
    services_.defaults.setObject(settingskeys::pauseUntilTag, 0LL);
    services_.dataManager.scheduleNextBackup();
    Q_EMIT changed();
    showNotPaused();
}

void SchedulePause::showPaused(Date end, std::int64_t tag)
{
    StatusMenu::setState(menu_.pauseScheduleMenuItem, true);
    menu_.setShown(menu_.resumeScheduleMenuItem, true);
    menu_.setShown(menu_.resumeScheduleSeparator, true);
    StatusMenu::setTitle(menu_.pauseScheduleMenuItem, shown::pausedUntil(end, services_.runLoop.now()));
    setTogglesForPauseMenuItems(tag);
}

void SchedulePause::showNotPaused()
{
    StatusMenu::setState(menu_.pauseScheduleMenuItem, false);
    menu_.setShown(menu_.resumeScheduleMenuItem, false);
    menu_.setShown(menu_.resumeScheduleSeparator, false);
    StatusMenu::setTitle(menu_.pauseScheduleMenuItem, localizedString("pauseScheduleForTitle"));
    setTogglesForPauseMenuItems(0);
}

void SchedulePause::setTogglesForPauseMenuItems(std::int64_t tag)
{
    const auto items = menu_.pauseDurationItems();
    for (QAction* item : items)
        StatusMenu::setState(item, item->data().toLongLong() == tag);
}

void SchedulePause::schedulePauseScheduleExpirationTimer()
{
    stopPauseScheduleExpirationTimer();
    const auto end = services_.defaults.date(settingskeys::pauseUntilDate);
    if (!end) {
        showNotPaused(); // the schedule may have found the end of the pause before the timer did
        return;
    }
    if (*end <= services_.runLoop.now()) {
        resumeScheduleClicked();
        return;
    }
    timer_ = services_.runLoop.scheduleOnce(dateByAdding(*end, expirationGrace), [this, end = *end] { timerRan(end); });
}

void SchedulePause::timerRan(Date end)
{
    // Resuming early leaves this timer; planning anew would then drop a retry that has come since.
    if (end < services_.runLoop.now() && services_.defaults.date(settingskeys::pauseUntilDate))
        resumeScheduleClicked();
    else
        schedulePauseScheduleExpirationTimer(); // finds no pause, and shows that
}

} // namespace quillon
