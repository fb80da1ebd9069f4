#include "NextBackup.h"
#include "ScopedEnvironment.h"

#include <QTimeZone>

#include <gtest/gtest.h>

namespace quillon {

using namespace std::chrono;

namespace {

/// The first instant that the clock shows as `wall`, or as much later as the gap is long that leaves it out.
Date instantOf(Date wall, const OffsetChange& change)
{
    const Date before = wall - seconds(change.before);
    const Date after = wall - seconds(change.after);
    return before < change.at || after < change.at ? before : after;
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
        const QTimeZone zone(name); // what Qt reads has nothing in common with the C library's way
        const QDateTime begin({2026, 11, 21}, {}, Qt::UTC);
        for (const auto& transition : zone.transitions(begin, begin.addYears(2))) {
            const OffsetChange change{Date(milliseconds(transition.atUtc.toMSecsSinceEpoch())),
                                      zone.offsetFromUtc(transition.atUtc.addMSecs(-1)), transition.offsetFromUtc};
            const auto day = floor<days>(change.at + seconds(change.after));
            for (auto time = minutes(days(-2)); time < days(2); time += 30min) { // a daily rule around the change
                const Date expected = instantOf(day + time, change);
                const auto timeOfDay = duration_cast<seconds>((time + days(2)) % days(1)).count();
                ASSERT_EQ(nextbackup::nextBackupDate({{0, timeOfDay}}, expected - 1min, calendar), expected)
                    << "minute " << time.count();
            }
        }
    }
}

} // namespace quillon
