#pragma once

#include "Calendar.h"
#include "CalendarIntervalRule.h"
#include "Date.h"

#include <QList>

#include <optional>

/// When the next backup is due, as pure functions of rules, dates and zone.
namespace quillon::nextbackup {

/// Clock time of a length of time since midnight.
struct TimeComponents {
    int hour = 0;
    int minute = 0;
    int second = 0;

    bool operator==(const TimeComponents&) const = default;
};

/// Whole days are dropped. Hour and minute come from the seconds cut off, the second from the seconds rounded.
TimeComponents timeComponents(double secondsSinceMidnight);

/// The date from which the next backup is looked for: now, or the end of a pause that is still to come.
/// Dates up to `lastFired` are passed over: the wall clock may have been set back since.
Date referenceDate(Date now, std::optional<Date> pauseUntil, std::optional<Date> lastFired);

/// The earliest date that a rule gives at or after `reference`; nothing without rules. A rule holds for the day that it
/// names, also where a gap moves its time past midnight. One that matches none of the eight days from the reference day
/// on is given up.
std::optional<Date> nextBackupDate(const QList<CalendarIntervalRule>& rules, Date reference, const Calendar& calendar);

} // namespace quillon::nextbackup
