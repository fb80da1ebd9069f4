#pragma once

#include "ClockWatch.h"
#include "DataManager.h"
#include "SchedulePause.h"
#include "StatusItemFace.h"
#include "UserDefaults.h"

#include <QObject>

namespace quillon {

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

Q_SIGNALS:
    /// The schedule has been looked at.
    void looked();

private:
    /// Whether the clock or the zone was changed since the last look.
    bool takeClockAsItIs();
    void planAfter(startdecision::Decision decision);
    Date freshRetryDate() const;

    Services services_;
    ClockWatch clock_;
};

} // namespace quillon
