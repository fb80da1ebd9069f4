#include "NextBackup.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace quillon::nextbackup {

using namespace std::chrono_literals;

namespace {

// A gap before midnight may have moved the start of the day before past it.
constexpr int firstDay = -1;
constexpr int lastDay = 7;

/// 1 Sunday to 7 Saturday.
int weekdayAfter(int weekday, int days)
{
    return (weekday - 1 + days + 7) % 7 + 1;
}

std::optional<Date> nextOccurrence(const CalendarIntervalRule& rule, const LocalTime& referenceDay, Date reference,
                                   const Calendar& calendar)
{
    const TimeComponents time = timeComponents(static_cast<double>(rule.time));
    for (int day = firstDay; day <= lastDay; ++day) {
        if (!rule.allowsWeekday(weekdayAfter(referenceDay.weekday, day)))
            continue;
        // Made anew from the rule's own time of day: the shift of a daylight-saving gap holds for that day only.
        const LocalTime local{referenceDay.year, referenceDay.month, referenceDay.day + day,
                              time.hour,         time.minute,        time.second};
        const Date candidate = calendar.date(local);
        if (candidate >= reference)
            return candidate;
    }
    return std::nullopt;
}

} // namespace

TimeComponents timeComponents(double secondsSinceMidnight)
{
    // Far beyond any day, and well inside the range of the conversions.
    const double bounded = std::clamp(secondsSinceMidnight, -1e15, 1e15);
    const auto whole = static_cast<long long>(bounded);
    const auto rounded = std::llround(bounded);
    const auto days = whole / 86400;
    const auto hour = whole / 3600 - days * 24;
    const auto minute = whole / 60 - days * 1440 - hour * 60;
    return {static_cast<int>(hour), static_cast<int>(minute), static_cast<int>(rounded % 60)};
}

Date referenceDate(Date now, std::optional<Date> pauseUntil, std::optional<Date> lastFired)
{
    Date reference = pauseUntil ? std::max(now, *pauseUntil) : now;
    return lastFired ? std::max(reference, *lastFired + 1ms) : reference;
}

std::optional<Date> nextBackupDate(const QList<CalendarIntervalRule>& rules, Date reference, const Calendar& calendar)
{
    const LocalTime referenceDay = calendar.localTime(reference);
    std::optional<Date> next;
    for (const auto& rule : rules) {
        const auto candidate = nextOccurrence(rule, referenceDay, reference, calendar);
        if (candidate && (!next || *candidate < *next))
            next = candidate;
    }
    return next;
}

} // namespace quillon::nextbackup
