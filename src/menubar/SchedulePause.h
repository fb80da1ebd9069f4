#pragma once

#include "DataManager.h"
#include "RunLoop.h"
#include "StatusMenu.h"
#include "UserDefaults.h"

#include <QObject>

#include <cstdint>

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

} // namespace quillon
