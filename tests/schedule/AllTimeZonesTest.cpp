#include "NextBackup.h"
#include "ScopedEnvironment.h"

#include <QTimeZone>

#include <gtest/gtest.h>

namespace quillon {

using namespace std::chrono;

namespace {

constexpr Date begin = sys_days(2026y / November / 21);
constexpr Date end = begin + days(2 * 365);

/// A zone between two years as Qt reads it from the system's zone files, which has nothing in common with the C
/// library's way.
class ZoneReference {
public:
    explicit ZoneReference(const QTimeZone& zone)
    {
        for (const auto& change : zone.transitions(toQt(begin), toQt(end))) {
            const Date at(milliseconds(change.atUtc.toMSecsSinceEpoch()));
            const int before = zone.offsetFromUtc(toQt(at - milliseconds(1)));
            if (at > begin && before != change.offsetFromUtc)
                changes_.append({at, before, change.offsetFromUtc});
        }
        offset_ = zone.offsetFromUtc(toQt(begin));
    }

    const QList<OffsetChange>& changes() const { return changes_; }

    int offset(Date date) const
    {
        int offset = offset_;
        for (const auto& change : changes_)
            offset = date >= change.at ? change.after : offset;
        return offset;
    }

    /// The first instant that the clock shows as `wall`, or as much later as the gap is long that leaves it out.
    Date instantOf(Date wall) const
    {
        for (const auto& change : changes_) {
            if (wall - seconds(change.before) < change.at)
                return wall - seconds(change.before);
            if (wall - seconds(change.after) < change.at)
                return wall - seconds(change.before); // in the gap
        }
        return wall - seconds(offset(end));
    }

private:
    static QDateTime toQt(Date date)
    {
        return QDateTime::fromMSecsSinceEpoch(date.time_since_epoch().count(), Qt::UTC);
    }

    int offset_ = 0;
    QList<OffsetChange> changes_;
};

/// A daily rule on the days around, at every half hour of the day that a change can reach.
void expectStartsAround(Date change, const ZoneReference& reference, const Calendar& calendar)
{
    const auto day = floor<days>(change + seconds(reference.offset(change)));
    for (int shift = -2; shift <= 1; ++shift) {
        for (auto time = minutes(0); time < days(1); time += minutes(30)) {
            const Date expected = reference.instantOf(day + days(shift) + time);
            const QList<CalendarIntervalRule> daily{
                {CalendarIntervalRule::everyDay, duration_cast<seconds>(time).count()}};
            const auto found = nextbackup::nextBackupDate(daily, expected - minutes(1), calendar);
            ASSERT_TRUE(found == expected) << "day " << shift << ", minute " << time.count();
        }
    }
}

void expectSameZone(const QByteArray& variable, const QTimeZone& zone)
{
    SCOPED_TRACE(variable.toStdString());
    const ScopedEnvironment scope("TZ", variable);
    const Calendar calendar;
    const ZoneReference reference(zone);
    ASSERT_EQ(calendar.offsetChanges(begin, end), reference.changes());
    expectStartsAround(begin + days(30), reference, calendar);
    for (const auto& change : reference.changes())
        expectStartsAround(change.at, reference, calendar);
}

} // namespace

TEST(AllTimeZones, StartAtTheTimesThatTheSystemsZoneDataGives)
{
    const auto names = QTimeZone::availableTimeZoneIds();
    ASSERT_GT(names.size(), 400) << "the system's list of zones";
    for (const auto& name : names) {
        if (!name.startsWith("UTC+") && !name.startsWith("UTC-")) // Qt's own, without a file
            expectSameZone(name, QTimeZone(name));
    }
}

TEST(AllTimeZones, AreReadFromEveryFormOfTheVariable)
{
    for (const QByteArray name : {"Europe/Berlin", "America/Mexico_City", "Australia/Lord_Howe", "Africa/Casablanca"}) {
        expectSameZone(":" + name, QTimeZone(name));
        expectSameZone("/usr/share/zoneinfo/" + name, QTimeZone(name));
        expectSameZone(":/usr/share/zoneinfo/" + name, QTimeZone(name));
    }
    expectSameZone("CET-1CEST,M3.5.0,M10.5.0/3", QTimeZone("Europe/Berlin"));
    expectSameZone("<-02>2<-01>,M3.5.0/-1,M10.5.0/0", QTimeZone("America/Nuuk"));
}

} // namespace quillon
