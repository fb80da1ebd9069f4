#include "ChangedStart.h"

#include "NextBackup.h"

#include <QDate>
#include <QDateTime>
#include <QTime>
#include <QVariantMap>

#include <algorithm>
#include <chrono>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

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

std::optional<Date> nextStart(const QList<CalendarIntervalRule>& rules, const QList<ChangedStart>& changes,
                              Date reference, const Calendar& calendar)
{
    const auto isChanged = [&](Date start) {
        return std::ranges::any_of(changes, [&](const auto& change) { return calendar.date(change.start) == start; });
    };
    auto next = nextBackupDate(rules, reference, calendar);
    while (next && isChanged(*next))
        next = nextBackupDate(rules, *next + 1ms, calendar);
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
