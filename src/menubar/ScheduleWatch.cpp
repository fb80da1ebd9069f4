#include "ScheduleWatch.h"

#include "DataHelper.h"
#include "SettingsKeys.h"

#include <algorithm>

namespace quillon {

using startdecision::Decision;
using startdecision::Occasion;

ScheduleWatch::ScheduleWatch(const Services& services)
    : services_(services)
    , clock_(services.runLoop)
{
}

void ScheduleWatch::systemWillSleep()
{
    clock_.systemWillSleep();
    services_.dataManager.pauseBackupSchedule();
    services_.pause.stopPauseScheduleExpirationTimer();
}

void ScheduleWatch::checkClock()
{
    if (clock_.isAsleep()) {
        // The wake-up notification follows a sleep at once and looks at everything. Should it be lost, time tells.
        if (clock_.wakeUpWasLost())
            lookAtSchedule(Occasion::Woke);
        return;
    }
    if (takeClockAsItIs())
        lookAtSchedule(Occasion::ClockChanged);
}

bool ScheduleWatch::takeClockAsItIs()
{
    const auto change = clock_.look();
    if (change.step < std::chrono::milliseconds(0))
        services_.dataManager.clockWasSetBack(-change.step);
    return change.isAny();
}

void ScheduleWatch::lookAtSchedule(Occasion occasion)
{
    DataManager& model = services_.dataManager;
    const auto decide = [&] {
        return model.startDecision(occasion, services_.face.menuBarIconState() == MenuBarIconState::MissedSchedule);
    };
    takeClockAsItIs();
    const Decision first = decide();
    const auto retry = model.retryBackupDate();
    if (first == Decision::Start)
        model.makeScheduledStart();
    services_.pause.schedulePauseScheduleExpirationTimer();
    services_.pause.checkExpiration();
    // A pause that ends with this plans the schedule anew, which is no reason to give a retry up.
    if (first == Decision::KeepRetry)
        model.setRetryBackupDate(std::min(*retry, freshRetryDate()));
    else
        planAfter(decide());
    Q_EMIT looked();
}

void ScheduleWatch::planAfter(Decision decision)
{
    if (decision == Decision::Missed) {
        services_.face.setMenuBarIconState(MenuBarIconState::MissedSchedule);
        if (setRetryInFiveMinutesIfEnabled(settingskeys::enableRetryAtMissedSchedule))
            return;
    }
    services_.dataManager.scheduleNextBackup(); // also below a mark: the schedule goes on
}

bool ScheduleWatch::setRetryInFiveMinutesIfEnabled(const QString& enablingKey)
{
    const bool paused = services_.defaults.integer(settingskeys::pauseUntilTag) != 0;
    const bool enabled = !paused && services_.defaults.integer(enablingKey) == 1;
    if (enabled)
        services_.dataManager.setRetryBackupDate(freshRetryDate());
    return enabled;
}

Date ScheduleWatch::freshRetryDate() const
{
    constexpr Seconds retryInterval{300.0};
    return DataHelper::dateSinceNowWithCeiledMinutes(retryInterval, services_.runLoop.now());
}

} // namespace quillon
