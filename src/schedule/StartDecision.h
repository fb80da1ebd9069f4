#pragma once

#include "Date.h"
#include "NextBackup.h"
#include "Services.h"

#include <QList>

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

/// What the user's rules about the machine say of a start, as pure functions.
namespace quillon::machinerules {

/// When power is good enough for a start that nobody has asked for.
struct PowerRule {
    bool onlyOnMains = false;
    int chargeThatSuffices = 0; ///< in per cent: above it the battery is good enough, too; 0: never
};

/// A machine that has no battery, or whose power nobody can tell, is on mains.
bool allows(const PowerRule& rule, const PowerState& power);

/// What has to be so for any start that nobody has asked for.
struct Moment {
    bool powerAllows = true;
    bool isScheduleEnabled = true;
    bool isPaused = false;
    bool isActive = false; ///< a backup runs, or a command is under way
    bool isAsleep = false; ///< or about to be
};

/// A start that was due when power did not allow it.
struct HeldStart {
    Date due;
    bool isRetry = false;
    QList<CalendarIntervalRule> rules{}; ///< that gave it
};

/// What has come to pass since.
struct Since {
    Date now;
    Moment moment{};
    bool completed = false; ///< a backup
    QList<CalendarIntervalRule> rules{};
    std::optional<Date> given{};     ///< the earliest start from the held one's date on, as the rules have it now
    std::optional<Date> following{}; ///< the one after it
    std::optional<Date> planned{};   ///< what comes next by itself
    bool retriesWait = false;        ///< the machine woke up too short a time ago
};

enum class Fate { Kept, Made, Dropped };

/// It is made as soon as power allows it, unless there is no use for it any more: a later start has come, a backup has
/// been completed, or the user wants none. A set clock that lets it come again by itself drops it, too.
Fate fateOf(const HeldStart& held, const Since& since);

/// Whether a disk that has appeared is a reason for a start: something is to be made up for, and nothing forbids it.
bool startsForDisk(const Moment& moment, bool lastCameToNothing);

} // namespace quillon::machinerules
