#pragma once

#include "Calendar.h"
#include "DataManager.h"
#include "RunLoop.h"
#include "StatusItemFace.h"
#include "StatusMenu.h"
#include "UserDefaults.h"

#include <QList>
#include <QObject>

#include <chrono>
#include <cstdint>
#include <optional>

namespace quillon {

/// The pause of the schedule: its end in the settings, the timer that ends it, and its marks in the menu.
class SchedulePause final : public QObject {
    Q_OBJECT

public:
    struct Services {
        RunLoop& runLoop;
        UserDefaults& defaults;
        DataManager& dataManager;
    };

    SchedulePause(const Services& services, StatusMenu& menu);

    /// Takes up the pause that the settings hold.
    void restore();
    /// Pauses the schedule for a length in seconds, replacing a pause that runs.
    void pauseForClicked(std::int64_t tag);
    /// The same until a date; the tag is the length in seconds, and not 0.
    void pauseUntil(Date end, std::int64_t tag);
    void resumeScheduleClicked();
    /// Checks the item of that length and no other.
    void setTogglesForPauseMenuItems(std::int64_t tag);
    void schedulePauseScheduleExpirationTimer();
    void stopPauseScheduleExpirationTimer() { timer_.invalidate(); }

Q_SIGNALS:
    /// The schedule is paused, or goes on.
    void changed();

private:
    void timerRan(Date end);
    void showPaused(Date end, std::int64_t tag);
    void showNotPaused();

    Services services_;
    StatusMenu& menu_;
    Timer timer_;
};

/// Notices that the wall clock was set, or the time zone changed, since it was last looked at, and keeps in mind that
/// the system sleeps. A zone is what it does in the coming year, not its name: /etc/localtime keeps its name, and a law
/// changes what a name stands for.
class ClockWatch {
public:
    struct Change {
        std::chrono::milliseconds step{0}; ///< how far the wall clock was set, negative for back; 0 for mere drift
        bool newTimeZone = false;

        bool isAny() const { return step != std::chrono::milliseconds(0) || newTimeZone; }
    };

    explicit ClockWatch(const RunLoop& runLoop);

    /// What changed since the last look. Whoever looks knows that the system is awake.
    Change look();

    void systemWillSleep() { asleepSince_ = runLoop_.uptime(); }
    bool isAsleep() const { return asleepSince_.has_value(); }
    /// The system has been awake for a minute without telling of it.
    bool wakeUpWasLost() const;

private:
    struct ZoneYear {
        Date begin;
        int offset = 0;
        QList<OffsetChange> changes;

        bool operator==(const ZoneYear&) const = default;
    };

    static ZoneYear zoneYearFrom(Date begin);

    const RunLoop& runLoop_;
    std::chrono::milliseconds wallAheadOfUptime_{};
    ZoneYear zone_;
    std::optional<std::chrono::milliseconds> asleepSince_; ///< on the uptime clock
};

/// Holds the schedule against sleep, the clock and failed runs: finds starts that were missed, marks them, and plans
/// retries. What becomes of a start is decided in startdecision.
class ScheduleWatch final : public QObject {
    Q_OBJECT

public:
    struct Services {
        RunLoop& runLoop;
        UserDefaults& defaults;
        DataManager& dataManager;
        SchedulePause& pause;
        StatusItemFace& face;
    };

    explicit ScheduleWatch(const Services& services);

    /// The regular look at the clock; the poll timer's tick.
    void checkClock();
    void systemWillSleep();
    void lookAtSchedule(startdecision::Occasion occasion);
    /// Whether a retry was planned: the key is on and the schedule not paused.
    bool setRetryInFiveMinutesIfEnabled(const QString& enablingKey);
    /// How long retries still have to wait after a wake-up.
    Seconds retryWait() const;
    bool isAsleep() const { return clock_.isAsleep(); }

Q_SIGNALS:
    /// The schedule has been looked at.
    void looked();
    /// It was found that the start which was armed has passed without being made. What follows it is planned.
    void startPassed(Date due, bool isRetry, startdecision::Occasion occasion);

private:
    /// Whether the clock or the zone was changed since the last look.
    bool takeClockAsItIs();
    void planAfter(startdecision::Decision decision);

    Services services_;
    ClockWatch clock_;
    std::optional<std::chrono::milliseconds> wokeAt_; ///< on the uptime clock
};

} // namespace quillon
