#pragma once

#include "Date.h"

#include <QList>
#include <QString>

namespace quillon {

/// A day and a time of day on the clock on the wall.
struct LocalTime {
    int year = 0;
    int month = 0; ///< 1 to 12
    int day = 0;   ///< 1 to 31
    int hour = 0;
    int minute = 0;
    int second = 0;
    int weekday = 0; ///< 1 Sunday to 7 Saturday; not looked at when a date is made
};

/// A change of the clock on the wall: offsets are seconds east of Greenwich.
struct OffsetChange {
    Date at; ///< the first second of the new offset
    int before = 0;
    int after = 0;

    bool operator==(const OffsetChange&) const = default;
};

/// The Gregorian calendar in the host's time zone, from year -32767 to 32767; the calendar holds for all times, also
/// for those before it was introduced. A date outside of these years reads as the first or last of them.
///
/// Offsets are the C library's, which knows the system's own zone data and reads TZ in all its forms: a name, one with
/// a leading colon, the path of a zone file, or a rule such as "CET-1CEST,M3.5.0,M10.5.0/3". The zone is one for the
/// whole process: each new Calendar takes it as it is now, and the older ones follow.
class Calendar {
public:
    Calendar();

    /// Makes later calendars follow the system's zone file when the system moves to another zone, also where TZ names
    /// that very file: the C library looks at the file again only where TZ is unset. Changes the environment; called
    /// once, before there are threads.
    static void followSystemTimeZone();

    /// What people call the host's zone, such as "Europe/Berlin"; where it has no name the abbreviation that holds at
    /// `now`, such as "CET".
    static QString hostTimeZone(Date now);

    LocalTime localTime(Date date) const;

    /// The instant of a local time. Fields beyond their range carry over (day 32 of January is 1 February). Of a local
    /// time that comes twice the first one counts; one that a gap leaves out is shifted forward by the gap.
    Date date(const LocalTime& time) const;

    /// Seconds east of Greenwich that hold at an instant.
    int offsetFromUtc(Date date) const;

    /// Every change after `from` up to `until`, to the second; two within one week may go unseen.
    QList<OffsetChange> offsetChanges(Date from, Date until) const;
};

} // namespace quillon
