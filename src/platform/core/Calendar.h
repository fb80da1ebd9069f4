#pragma once

#include "Date.h"

#include <QString>

#include <memory>

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

/// The Gregorian calendar in one time zone, from year -32767 to 32767; the calendar holds for all times, also for those
/// before it was introduced. A date outside of these years reads as the first or last of them.
class Calendar {
public:
    /// The calendar of the host's current time zone, asked for anew.
    Calendar();
    /// The calendar of a named zone ("Europe/Berlin"); a name that nobody knows stands for UTC.
    explicit Calendar(const QString& timeZone);
    Calendar(Calendar&&) noexcept;
    Calendar& operator=(Calendar&&) noexcept;
    ~Calendar();

    /// Name of the host's current time zone, asked for anew.
    static QString hostTimeZone();

    LocalTime localTime(Date date) const;

    /// The instant of a local time. Fields beyond their range carry over (day 32 of January is 1 February). Of a local
    /// time that comes twice the first one counts; one that a gap leaves out is shifted forward by the gap.
    Date date(const LocalTime& time) const;

    /// Seconds east of Greenwich that hold at an instant.
    int offsetFromUtc(Date date) const;

private:
    struct Implementation;
    std::unique_ptr<Implementation> implementation_;
};

} // namespace quillon
