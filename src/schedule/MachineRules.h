#pragma once

#include "CalendarIntervalRule.h"
#include "Date.h"
#include "PowerSupply.h"

#include <QList>

#include <optional>

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
