#include "NextBackup.h"

#include "PropertyList.h"

#include <QDate>
#include <QDateTime>
#include <QTime>
#include <QVariantMap>

#include <algorithm>
#include <chrono>
#include <cmath>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

bool isRule(const QVariant& entry)
{
    return entry.typeId() == QMetaType::QVariantMap;
}

} // namespace

CalendarIntervalRule CalendarIntervalRule::fromDictionary(const QVariantMap& dictionary)
{
    CalendarIntervalRule rule;
    rule.others = dictionary;
    rule.day = propertylist::toInteger(rule.others.take(u"day"_s));
    rule.time = propertylist::toInteger(rule.others.take(u"time"_s));
    return rule;
}

QVariantMap CalendarIntervalRule::toDictionary() const
{
    QVariantMap dictionary = others;
    dictionary.insert(u"day"_s, day);
    dictionary.insert(u"time"_s, time);
    return dictionary;
}

QList<CalendarIntervalRule> CalendarIntervalRule::listFromArray(const QVariantList& array)
{
    QList<CalendarIntervalRule> rules;
    for (const auto& entry : array) {
        if (isRule(entry))
            rules.append(fromDictionary(entry.toMap()));
    }
    return rules;
}

QList<CalendarIntervalRule::Foreign> CalendarIntervalRule::foreignInArray(const QVariantList& array)
{
    QList<Foreign> foreign;
    qsizetype rules = 0;
    for (const auto& entry : array) {
        if (isRule(entry))
            ++rules;
        else
            foreign.append({rules, entry});
    }
    return foreign;
}

QVariantList CalendarIntervalRule::listToArray(const QList<CalendarIntervalRule>& rules, const QList<Foreign>& foreign)
{
    QVariantList array;
    for (const auto& rule : rules)
        array.append(rule.toDictionary());
    for (qsizetype i = 0; i < foreign.size(); ++i)
        array.insert(foreign[i].rulesAhead + i, foreign[i].entry);
    return array;
}

bool CalendarIntervalRule::allowsWeekday(int weekday) const
{
    if (day == everyDay)
        return true;
    if (day == mondayToFriday)
        return weekday >= 2 && weekday <= 6;
    return weekday == day;
}

namespace {

const QString startKey = u"start"_s;
const QString insteadKey = u"instead"_s;

constexpr qsizetype lengthOfDay = 10; // "2026-11-21"

std::optional<ChangedStart> fromDictionary(const QVariantMap& dictionary)
{
    const QString start = dictionary.value(startKey).toString();
    const QDate day = QDate::fromString(start.left(lengthOfDay), Qt::ISODate);
    const QTime time = QTime::fromString(start.mid(lengthOfDay + 1), Qt::ISODate);
    if (!day.isValid() || !time.isValid())
        return std::nullopt;
    ChangedStart change{{day.year(), day.month(), day.day(), time.hour(), time.minute(), time.second()}};
    if (const QDateTime instead = dictionary.value(insteadKey).toDateTime(); instead.isValid())
        change.instead = Date(std::chrono::milliseconds(instead.toMSecsSinceEpoch()));
    return change;
}

QVariantMap toDictionary(const ChangedStart& change)
{
    const LocalTime& start = change.start;
    QVariantMap dictionary{{startKey, QString::asprintf("%04d-%02d-%02dT%02d:%02d:%02d", start.year, start.month,
                                                        start.day, start.hour, start.minute, start.second)}};
    if (change.instead)
        dictionary.insert(insteadKey,
                          QDateTime::fromMSecsSinceEpoch(change.instead->time_since_epoch().count(), Qt::UTC));
    return dictionary;
}

} // namespace

QList<ChangedStart> ChangedStart::listFromArray(const QVariantList& array)
{
    QList<ChangedStart> changes;
    for (const auto& entry : array) {
        if (const auto change = fromDictionary(entry.toMap()))
            changes.append(*change);
    }
    return changes;
}

QVariantList ChangedStart::listToArray(const QList<ChangedStart>& changes)
{
    QVariantList array;
    for (const auto& change : changes)
        array.append(toDictionary(change));
    return array;
}

} // namespace quillon

namespace quillon::nextbackup {

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
    return lastFired ? std::max(reference, instantAfter(*lastFired)) : reference;
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

std::optional<Date> nextStart(const QList<CalendarIntervalRule>& rules, const QList<ChangedStart>& changes,
                              Date reference, const Calendar& calendar)
{
    const auto isChanged = [&](Date start) {
        return std::ranges::any_of(changes, [&](const auto& change) { return calendar.date(change.start) == start; });
    };
    auto next = nextBackupDate(rules, reference, calendar);
    while (next && isChanged(*next))
        next = nextBackupDate(rules, instantAfter(*next), calendar);
    for (const auto& [start, instead] : changes) {
        const Date changed = calendar.date(start);
        const bool isEarlier = instead && *instead >= reference && (!next || *instead < *next);
        if (isEarlier && nextBackupDate(rules, changed, calendar) == changed)
            next = instead;
    }
    return next;
}

std::optional<QList<ChangedStart>> changesWith(const QList<CalendarIntervalRule>& rules, QList<ChangedStart> changes,
                                               Date start, std::optional<Date> instead, Date now,
                                               const Calendar& calendar)
{
    changes.removeIf(
        [&](const ChangedStart& change) { return change.instead.value_or(calendar.date(change.start)) < now - 24h; });
    for (auto& change : changes) {
        if (change.instead == start)
            change.instead = instead;
    }
    if (nextBackupDate(rules, start, calendar) == start) // else it was a postponed one
        changes.append({calendar.localTime(start), instead});
    return changes.size() <= mostChanges ? std::optional(changes) : std::nullopt;
}

} // namespace quillon::nextbackup
