#include "ScheduleWatch.h"

#include "LocalizedString.h"
#include "Shown.h"
#include "StoredAndSent.h"

#include <algorithm>
#include <utility>

namespace quillon {

using namespace std::chrono_literals;

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

namespace {

// More than a clock that is kept right by the network drifts between two looks.
constexpr auto jumpThreshold = 2s;

constexpr auto longestWaitForWake = 1min;

constexpr auto watchedAhead = std::chrono::days(366);

// Two looks are held against the same year, so that a change which time alone brings into view counts as none.
constexpr auto yearIsKept = std::chrono::days(1);

std::chrono::milliseconds wallAheadOfUptime(const RunLoop& runLoop)
{
    return runLoop.now().time_since_epoch() - runLoop.uptime();
}

} // namespace

ClockWatch::ClockWatch(const RunLoop& runLoop)
    : runLoop_(runLoop)
    , wallAheadOfUptime_(wallAheadOfUptime(runLoop))
    , zone_(zoneYearFrom(runLoop.now()))
{
}

ClockWatch::Change ClockWatch::look()
{
    asleepSince_.reset();
    const auto previous = std::exchange(wallAheadOfUptime_, wallAheadOfUptime(runLoop_));
    Change change;
    if (const auto step = wallAheadOfUptime_ - previous; std::chrono::abs(step) > jumpThreshold)
        change.step = step;
    const ZoneYear sameYear = zoneYearFrom(zone_.begin);
    change.newTimeZone = sameYear != zone_;
    const Date now = runLoop_.now();
    zone_ = std::chrono::abs(now - zone_.begin) > yearIsKept ? zoneYearFrom(now) : sameYear;
    return change;
}

bool ClockWatch::wakeUpWasLost() const
{
    return asleepSince_ && runLoop_.uptime() - *asleepSince_ > longestWaitForWake; // a clock that stands still in sleep
}

ClockWatch::ZoneYear ClockWatch::zoneYearFrom(Date begin)
{
    const Calendar calendar;
    return {begin, calendar.offsetFromUtc(begin), calendar.offsetChanges(begin, begin + watchedAhead)};
}

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
    services_.dataManager.clockWasSet(change.step);
    return change.isAny();
}

void ScheduleWatch::lookAtSchedule(Occasion occasion)
{
    DataManager& model = services_.dataManager;
    if (occasion == Occasion::Woke)
        wokeAt_ = services_.runLoop.uptime();
    const auto decide = [&] {
        return model.startDecision(occasion, services_.face.menuBarIconState() == MenuBarIconState::MissedSchedule);
    };
    takeClockAsItIs();
    const Decision first = decide();
    const auto retry = model.retryBackupDate();
    const auto armed = model.nextScheduledBackupDate();
    if (first == Decision::Start)
        model.makeScheduledStart();
    services_.pause.schedulePauseScheduleExpirationTimer();
    // A pause that ends with this plans the schedule anew, which is no reason to give a retry up.
    if (first == Decision::KeepRetry)
        model.setRetryBackupDate(startdecision::retryDate(services_.runLoop.now(), retryWait(), retry));
    else
        planAfter(decide());
    if (armed && *armed < services_.runLoop.now() && (first == Decision::Missed || first == Decision::PlanAnew))
        Q_EMIT startPassed(*armed, armed == retry, occasion);
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
        services_.dataManager.setRetryBackupDate(startdecision::retryDate(services_.runLoop.now(), retryWait()));
    return enabled;
}

Seconds ScheduleWatch::retryWait() const
{
    const auto minutes =
        std::clamp(services_.defaults.integer(settingskeys::minutesAfterWake), 0LL, settingskeys::mostMinutesAfterWake);
    if (!wokeAt_ || minutes == 0)
        return Seconds(0);
    return std::max<Seconds>(*wokeAt_ + std::chrono::minutes(minutes) - services_.runLoop.uptime(), Seconds(0));
}

} // namespace quillon
