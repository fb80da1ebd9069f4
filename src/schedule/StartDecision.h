#pragma once

#include "Date.h"

#include <optional>

/// What becomes of the next scheduled start, as one pure function.
namespace quillon::startdecision {

/// Why the schedule is looked at.
enum class Occasion {
    TimerRan,     ///< the start timer has run
    ClockChanged, ///< the wall clock was set, or the time zone is another one
    Woke,         ///< the system has woken from sleep
};

enum class Decision {
    Start,     ///< now
    Missed,    ///< it is too late: mark it, and retry where the user wants that
    KeepRetry, ///< the pending retry stays, no farther ahead than a fresh one
    PlanAnew,  ///< look for the next date from now on
};

/// The dates that count.
struct Situation {
    Date now;
    std::optional<Date> next{}; ///< what the start timer is armed for; a retry where one is pending
    std::optional<Date> retry{};
    std::optional<Date> lastBackup{};
    bool isMarkedAsMissed = false; ///< an earlier start was missed, and no backup has come since
};

/// While the system is awake a start is made up to a minute after its date, and a retry however late its timer runs.
/// Nothing counts as missed ahead of a first backup. A mark of an earlier miss earns a fresh retry at each wake-up; a
/// retry outlives a clock that is set.
Decision decide(Occasion occasion, const Situation& situation);

/// When a retry is made: at the next whole minute but five, and once `wait` is over, which is what remains of the time
/// that the user wants to pass after a wake-up. One that is pending comes no later than a fresh one.
Date retryDate(Date now, Seconds wait, std::optional<Date> pending = {});

} // namespace quillon::startdecision
