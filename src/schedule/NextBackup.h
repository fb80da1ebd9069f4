#pragma once

#include "Calendar.h"
#include "Date.h"

#include <QList>
#include <QString>
#include <QVariant>
#include <QVariantList>
#include <QVariantMap>

#include <optional>

namespace quillon {

/// One rule of the schedule: on which days, at what time of day.
struct CalendarIntervalRule {
    static constexpr qlonglong everyDay = 0;
    static constexpr qlonglong mondayToFriday = 8;

    qlonglong day = everyDay; ///< everyDay, mondayToFriday, or a weekday: 1 Sunday to 7 Saturday
    qlonglong time = 43200;   ///< seconds since local midnight
    QVariantMap others = {};  ///< what else the stored dictionary holds; not ours to lose

    /// A missing value, or one that is no number, reads as 0.
    static CalendarIntervalRule fromDictionary(const QVariantMap& dictionary);
    QVariantMap toDictionary() const;

    /// An entry of the stored array that is no dictionary, and how many rules stand ahead of it; not ours to lose.
    struct Foreign {
        qsizetype rulesAhead = 0;
        QVariant entry;
    };

    /// Foreign entries are left out.
    static QList<CalendarIntervalRule> listFromArray(const QVariantList& array);
    static QList<Foreign> foreignInArray(const QVariantList& array);
    static QVariantList listToArray(const QList<CalendarIntervalRule>& rules, const QList<Foreign>& foreign = {});

    /// Whether the rule applies on a weekday, 1 Sunday to 7 Saturday.
    bool allowsWeekday(int weekday) const;

    bool operator==(const CalendarIntervalRule&) const = default;
};

/// One start that the user wants otherwise than its rule has it: passed over, or made at a later date instead. While
/// the rules do not give that start it says nothing, and a start that it does not name it leaves alone; so neither an
/// edit of the rules nor a set clock turns it into another start's change.
struct ChangedStart {
    /// As a rule has it, on the clock on the wall: it stays the same start in another time zone.
    LocalTime start;
    std::optional<Date> instead{}; ///< nothing where the start is passed over

    /// Entries that are no changes are left out.
    static QList<ChangedStart> listFromArray(const QVariantList& array);
    static QVariantList listToArray(const QList<ChangedStart>& changes);
};

} // namespace quillon

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

/// How many changes there may be at a time: a schedule that is to rest for longer is paused.
inline constexpr qsizetype mostChanges = 20;

/// The earliest start at or after `reference` that rules and changes give.
std::optional<Date> nextStart(const QList<CalendarIntervalRule>& rules, const QList<ChangedStart>& changes,
                              Date reference, const Calendar& calendar);

/// The changes once the start of that date, which nextStart() has given, is passed over or made at `instead`. Those
/// that have been over for a day are dropped: nobody sets the clock back by more and wants them still. Nothing where
/// they become too many.
std::optional<QList<ChangedStart>> changesWith(const QList<CalendarIntervalRule>& rules, QList<ChangedStart> changes,
                                               Date start, std::optional<Date> instead, Date now,
                                               const Calendar& calendar);

} // namespace quillon::nextbackup
