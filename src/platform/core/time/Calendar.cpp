#include "Calendar.h"

#include <QFile>
#include <QtGlobal>

#include <algorithm>
#include <cstdint>
#include <ctime>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono;

namespace {

// What std::chrono::year can hold, less a day for the offset of the zone.
constexpr Date earliest = sys_days(year::min() / 1 / 2);
constexpr Date latest = sys_days(year::max() / 12 / 30);

// Farther from a local time than any zone is from Greenwich, and nearer than two changes of one zone are to each other.
constexpr auto besideAnyChange = days(1);

constexpr auto sampling = weeks(1);

const QString systemZoneFile = u"/etc/localtime"_s;

sys_days dayOf(const LocalTime& time)
{
    const auto monthCount = static_cast<std::int64_t>(time.year) * 12 + time.month - 1;
    const auto firstMonth = std::int64_t{int{year::min()}} * 12;
    const auto lastMonth = std::int64_t{int{year::max()}} * 12 + 11;
    const auto month = std::clamp(monthCount, firstMonth, lastMonth) - firstMonth;
    return sys_days(year::min() / January / 1 + months(month)) + days(time.day - 1);
}

std::tm brokenDown(Date date)
{
    const std::time_t instant = floor<seconds>(date.time_since_epoch()).count();
    std::tm fields{};
    localtime_r(&instant, &fields);
    return fields;
}

/// What TZ says, less the colon that may stand before a name or a path (tzset(3)).
QString zoneVariable()
{
    const QString value = qEnvironmentVariable("TZ");
    return value.startsWith(u':') ? value.sliced(1) : value;
}

} // namespace

Calendar::Calendar()
{
    tzset(); // localtime_r need not look at a zone that has changed
}

void Calendar::followSystemTimeZone()
{
    if (zoneVariable() == systemZoneFile)
        qunsetenv("TZ");
}

QString Calendar::hostTimeZone(Date now)
{
    if (qEnvironmentVariableIsSet("TZ") && zoneVariable().isEmpty())
        return u"UTC"_s;
    QString name = zoneVariable();
    if (name.isEmpty() || name == systemZoneFile)
        name = QFile::symLinkTarget(systemZoneFile);
    const QString folder = u"/zoneinfo/"_s;
    if (const auto found = name.indexOf(folder); found >= 0)
        return name.sliced(found + folder.size());
    if (!name.isEmpty() && !name.startsWith(u'/'))
        return name;
    tzset();
    const QString abbreviation = QString::fromLocal8Bit(brokenDown(now).tm_zone);
    return abbreviation.isEmpty() ? u"UTC"_s : abbreviation; // a path that leads nowhere
}

LocalTime Calendar::localTime(Date date) const
{
    const Date wall = std::clamp(date, earliest, latest) + seconds(offsetFromUtc(date));
    const auto day = floor<days>(wall);
    const year_month_day fields(day);
    const hh_mm_ss time(floor<seconds>(wall - day));
    return {.year = int{fields.year()},
            .month = static_cast<int>(unsigned{fields.month()}),
            .day = static_cast<int>(unsigned{fields.day()}),
            .hour = static_cast<int>(time.hours().count()),
            .minute = static_cast<int>(time.minutes().count()),
            .second = static_cast<int>(time.seconds().count()),
            .weekday = static_cast<int>(weekday(day).c_encoding()) + 1};
}

Date Calendar::date(const LocalTime& time) const
{
    const Date wall = dayOf(time) + hours(time.hour) + minutes(time.minute) + seconds(time.second);
    // mktime chooses either of two equal local times, and moves one in a gap either way.
    const int before = offsetFromUtc(wall - besideAnyChange);
    const Date first = wall - seconds(before);
    if (offsetFromUtc(first) == before)
        return first;
    const int after = offsetFromUtc(wall + besideAnyChange);
    const Date second = wall - seconds(after);
    return offsetFromUtc(second) == after ? second : first;
}

int Calendar::offsetFromUtc(Date date) const
{
    return static_cast<int>(brokenDown(std::clamp(date, earliest, latest)).tm_gmtoff);
}

QList<OffsetChange> Calendar::offsetChanges(Date from, Date until) const
{
    QList<OffsetChange> changes;
    const Date last = floor<seconds>(until);
    Date known = floor<seconds>(from);
    int offset = offsetFromUtc(known);
    while (known < last) {
        const Date next = std::min<Date>(known + sampling, last);
        if (offsetFromUtc(next) == offset) {
            known = next;
            continue;
        }
        Date end = next;
        while (end - known > seconds(1)) {
            const Date middle = known + floor<seconds>((end - known) / 2);
            (offsetFromUtc(middle) == offset ? known : end) = middle;
        }
        changes.append({end, offset, offsetFromUtc(end)});
        offset = changes.last().after;
        known = end;
    }
    return changes;
}

} // namespace quillon
