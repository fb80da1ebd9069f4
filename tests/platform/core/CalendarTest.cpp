#include "Calendar.h"

#include "ScopedEnvironment.h"

#include <gtest/gtest.h>
#include <ostream>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono;

void PrintTo(const LocalTime& time, std::ostream* out)
{
    *out << time.year << '-' << time.month << '-' << time.day << ' ' << time.hour << ':' << time.minute << ':'
         << time.second << " weekday " << time.weekday;
}

static bool operator==(const LocalTime& a, const LocalTime& b)
{
    return a.year == b.year && a.month == b.month && a.day == b.day && a.hour == b.hour && a.minute == b.minute &&
           a.second == b.second && a.weekday == b.weekday;
}

namespace {

Date utc(int y, unsigned m, unsigned d, int hour = 0, int minute = 0, int second = 0)
{
    return sys_days(year(y) / month(m) / day(d)) + hours(hour) + minutes(minute) + seconds(second);
}

struct Change {
    QByteArray zone;
    Date instant;
    LocalTime asked;
    LocalTime shown; ///< what the clock on the wall shows at that instant
};

TEST(CalendarTest, RepeatedTimesAreTheFirstOneAndSkippedTimesShiftByTheGap)
{
    const Change changes[] = {
        {"Europe/Berlin", utc(2026, 3, 29, 1, 30), {2026, 3, 29, 2, 30, 0}, {2026, 3, 29, 3, 30, 0, 1}},
        {"Europe/Berlin", utc(2026, 10, 25, 0, 30), {2026, 10, 25, 2, 30, 0}, {2026, 10, 25, 2, 30, 0, 1}},
        {"America/New_York", utc(2026, 3, 8, 7), {2026, 3, 8, 2, 0, 0}, {2026, 3, 8, 3, 0, 0, 1}},
        {"America/New_York", utc(2026, 11, 1, 5, 59, 59), {2026, 11, 1, 1, 59, 59}, {2026, 11, 1, 1, 59, 59, 1}},
        {"America/Sao_Paulo", utc(2018, 11, 4, 3), {2018, 11, 4, 0, 0, 0}, {2018, 11, 4, 1, 0, 0, 1}},
        {"Australia/Lord_Howe", utc(2026, 10, 3, 15, 40), {2026, 10, 4, 2, 10, 0}, {2026, 10, 4, 2, 40, 0, 1}},
        {"Australia/Lord_Howe", utc(2026, 4, 4, 14, 45), {2026, 4, 5, 1, 45, 0}, {2026, 4, 5, 1, 45, 0, 1}},
        {"Pacific/Apia", utc(2011, 12, 30, 22), {2011, 12, 30, 12, 0, 0}, {2011, 12, 31, 12, 0, 0, 7}},
        {"Europe/Berlin", utc(2060, 3, 28, 1, 30), {2060, 3, 28, 2, 30, 0}, {2060, 3, 28, 3, 30, 0, 1}},
    };
    for (const Change& change : changes) {
        SCOPED_TRACE(testing::PrintToString(change.asked) + " in " + change.zone.toStdString());
        const ScopedEnvironment zone("TZ", change.zone);
        const Calendar calendar;
        EXPECT_EQ(calendar.date(change.asked), change.instant);
        EXPECT_EQ(calendar.localTime(change.instant), change.shown);
    }
}

TEST(CalendarTest, FieldsBeyondTheirRangeCarryOver)
{
    const ScopedEnvironment zone("TZ", "UTC");
    const Calendar calendar;
    EXPECT_EQ(calendar.date({2026, 1, 32, 0, 0, 0}), utc(2026, 2, 1));
    EXPECT_EQ(calendar.date({2024, 3, 0, 0, 0, 0}), utc(2024, 2, 29));
    EXPECT_EQ(calendar.date({2026, 14, -6, 25, -1, 61}), utc(2027, 1, 26, 1, 0, 1));
    EXPECT_EQ(calendar.date({2026, 0, 1, 0, 0, 86400}), utc(2025, 12, 2));
}

TEST(CalendarTest, DatesFarAwayKeepTheirDayAndBeyondTheCalendarReadAsItsEnds)
{
    const ScopedEnvironment zone("TZ", "Europe/Berlin");
    const Calendar calendar;
    // Days before 1582 count by the Gregorian rules too; the zone had its local mean time then.
    EXPECT_EQ(calendar.localTime(utc(1500, 2, 28, 12)).weekday, 4);
    EXPECT_EQ(calendar.localTime(Date::max()).year, 32767);
    EXPECT_EQ(calendar.localTime(Date::min()).year, -32767);
    EXPECT_EQ(calendar.localTime(calendar.date({1'000'000, 1, 1, 0, 0, 0})).year, 32767);
    EXPECT_EQ(calendar.localTime(Date(milliseconds(-1))), (LocalTime{1970, 1, 1, 0, 59, 59, 5}));
}

TEST(CalendarTest, TheZoneHasTheNameThatPeopleGiveIt)
{
    const std::pair<const char*, QString> names[] = {{"Europe/Berlin", u"Europe/Berlin"_s},
                                                     {":Asia/Tokyo", u"Asia/Tokyo"_s},
                                                     {"/usr/share/zoneinfo/Asia/Almaty", u"Asia/Almaty"_s},
                                                     {":/nowhere/private", u"UTC"_s},
                                                     {"CET-1CEST,M3.5.0,M10.5.0/3", u"CET-1CEST,M3.5.0,M10.5.0/3"_s},
                                                     {"", u"UTC"_s}};
    for (const auto& [value, name] : names) {
        const ScopedEnvironment zone("TZ", value);
        EXPECT_EQ(Calendar::hostTimeZone(utc(2026, 7, 1)), name) << value;
    }
}

TEST(CalendarTest, OnlyAVariableThatNamesTheSystemsZoneGivesWayToIt)
{
    for (const char* value : {":/etc/localtime", "/etc/localtime", "Asia/Tokyo"}) {
        const ScopedEnvironment zone("TZ", value);
        Calendar::followSystemTimeZone();
        EXPECT_EQ(qEnvironmentVariableIsSet("TZ"), QByteArray(value) == "Asia/Tokyo") << value;
    }
}

} // namespace
} // namespace quillon
