#include "NextBackup.h"
#include "ScopedEnvironment.h"

#include <QTimeZone>

#include <gtest/gtest.h>

namespace quillon {

using namespace std::chrono;

namespace {

constexpr Date begin = sys_days(2026y / November / 21);
constexpr Date end = begin + days(2 * 365);

QDateTime toQt(Date date)
{
    return QDateTime::fromMSecsSinceEpoch(date.time_since_epoch().count(), Qt::UTC);
}

/// What Qt reads from the system's zone files, which has nothing in common with the C library's way.
QList<OffsetChange> changesOf(const QTimeZone& zone)
{
    QList<OffsetChange> changes;
    for (const auto& change : zone.transitions(toQt(begin), toQt(end))) {
        const Date at(milliseconds(change.atUtc.toMSecsSinceEpoch()));
        const int before = zone.offsetFromUtc(toQt(at - 1ms));
        if (at > begin && before != change.offsetFromUtc)
            changes.append({at, before, change.offsetFromUtc});
    }
    return changes;
}

/// The first instant that the clock shows as `wall`, or as much later as the gap is long that leaves it out.
Date instantOf(Date wall, const OffsetChange& change)
{
    const Date before = wall - seconds(change.before);
    const Date after = wall - seconds(change.after);
    return before < change.at || after < change.at ? before : after;
}

/// A daily rule on the days around a change, at every half hour.
void expectStartsAround(const OffsetChange& change, const Calendar& calendar)
{
    const auto day = floor<days>(change.at + seconds(change.after));
    for (auto time = minutes(days(-2)); time < days(2); time += 30min) {
        const Date expected = instantOf(day + time, change);
        const auto timeOfDay = duration_cast<seconds>((time + days(2)) % days(1)).count();
        const auto found =
            nextbackup::nextBackupDate({{CalendarIntervalRule::everyDay, timeOfDay}}, expected - 1min, calendar);
        ASSERT_TRUE(found == expected) << "minute " << time.count();
    }
}

} // namespace

TEST(AllTimeZones, StartAtTheTimesThatTheSystemsZoneDataGives)
{
    auto names = QTimeZone::availableTimeZoneIds();
    names.removeIf([](const QByteArray& name) { return name.startsWith("UTC+") || name.startsWith("UTC-"); });
    ASSERT_GT(names.size(), 400) << "the system's list of zones; those of Qt's own have no file";
    for (const auto& name : names) {
        SCOPED_TRACE(name.toStdString());
        const ScopedEnvironment scope("TZ", name);
        const Calendar calendar;
        const auto changes = changesOf(QTimeZone(name));
        ASSERT_EQ(calendar.offsetChanges(begin, end), changes);
        for (const auto& change : changes)
            expectStartsAround(change, calendar);
    }
}

} // namespace quillon
