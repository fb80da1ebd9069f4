#include "NextBackup.h"

#include "LocalDates.h"
#include "ScopedEnvironment.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace std::chrono_literals;
using nextbackup::nextBackupDate;
using nextbackup::referenceDate;
using nextbackup::timeComponents;

namespace {

constexpr qlonglong at(int hour, int minute = 0)
{
    return hour * 3600 + minute * 60;
}

std::optional<Date> nextIn(const char* zone, const QList<CalendarIntervalRule>& rules, const LocalTime& now)
{
    const ScopedEnvironment scope("TZ", zone);
    const Calendar calendar;
    return nextBackupDate(rules, calendar.date(now), calendar);
}

Date in(const char* zone, const LocalTime& time)
{
    const ScopedEnvironment scope("TZ", zone);
    return Calendar().date(time);
}

constexpr auto berlin = "Europe/Berlin";

} // namespace

TEST(NextBackup, IsTheEarliestDateThatAnyRuleAllows)
{
    // 23 November 2026 is a Monday.
    const QList<CalendarIntervalRule> rules{{0, at(12)}, {2, at(8)}};
    EXPECT_EQ(nextIn(berlin, rules, {2026, 11, 23, 10}), in(berlin, {2026, 11, 23, 12}));
    EXPECT_EQ(nextIn(berlin, {{8, at(9)}}, {2026, 11, 27, 10}), in(berlin, {2026, 11, 30, 9}));
    EXPECT_EQ(nextIn(berlin, {{7, at(9)}}, {2026, 11, 28, 9, 0, 1}), in(berlin, {2026, 12, 5, 9}))
        << "a weekly rule whose time has just passed waits a whole week";
    EXPECT_EQ(nextIn(berlin, {{2, at(8)}, {2, at(8)}}, {2026, 11, 23, 8}), in(berlin, {2026, 11, 23, 8}))
        << "a moment that equals now counts, and two rules may give it";
    EXPECT_EQ(nextIn(berlin, {{0, at(0)}}, {2026, 12, 31, 23, 59}), in(berlin, {2027, 1, 1, 0}));
}

TEST(NextBackup, RulesThatNeverMatchAreGivenUp)
{
    EXPECT_EQ(nextIn(berlin, {}, {2026, 11, 23, 10}), std::nullopt);
    EXPECT_EQ(nextIn(berlin, {{9, at(12)}, {-1, at(12)}}, {2026, 11, 23, 10}), std::nullopt);
    EXPECT_EQ(nextIn(berlin, {{9, at(12)}, {0, at(12)}}, {2026, 11, 23, 10}), in(berlin, {2026, 11, 23, 12}));
    EXPECT_EQ(nextIn(berlin, {{0, 86400 + at(1)}}, {2026, 11, 23, 0}), in(berlin, {2026, 11, 23, 1}));
    EXPECT_TRUE(nextIn(berlin, {{0, std::numeric_limits<qlonglong>::max()}}, {2026, 11, 23, 10}));
}

TEST(NextBackup, ATimeThatComesTwiceCountsTheFirstTimeOnly)
{
    const QList<CalendarIntervalRule> rules{{0, at(2, 30)}};
    const Date first = in("UTC", {2026, 10, 25, 0, 30});
    EXPECT_EQ(nextIn(berlin, rules, {2026, 10, 25, 0}), first);
    const ScopedEnvironment zone("TZ", berlin);
    const Calendar calendar;
    EXPECT_EQ(nextBackupDate(rules, first + 1ms, calendar), in("UTC", {2026, 10, 26, 1, 30}));
}

TEST(NextBackup, ATimeInAGapIsShiftedForThatDayOnly)
{
    const QList<CalendarIntervalRule> rules{{0, at(2, 30)}};
    EXPECT_EQ(nextIn(berlin, rules, {2027, 3, 28, 0}), in("UTC", {2027, 3, 28, 1, 30}));
    EXPECT_EQ(nextIn(berlin, rules, {2027, 3, 28, 4}), in("UTC", {2027, 3, 29, 0, 30}));
    EXPECT_EQ(nextIn("America/Sao_Paulo", {{1, at(0)}}, {2018, 11, 3, 12}), in("UTC", {2018, 11, 4, 3}))
        << "a midnight that does not exist";
    // On Saturday 27 March 2027 the last hour of the day is left out.
    EXPECT_EQ(nextIn("America/Scoresbysund", {{7, at(23, 30)}}, {2027, 3, 27, 12}), in("UTC", {2027, 3, 28, 1, 30}))
        << "Saturday's start, although the clock shows Sunday";
    EXPECT_EQ(nextIn("America/Scoresbysund", {{7, at(23, 30)}}, {2027, 3, 28, 0, 10}), in("UTC", {2027, 3, 28, 1, 30}));
    EXPECT_EQ(nextIn("America/Scoresbysund", {{1, at(23, 30)}}, {2027, 3, 27, 12}), in("UTC", {2027, 3, 29, 0, 30}))
        << "Sunday has one start, not two";
}

TEST(NextBackup, IsLookedForFromTheEndOfAPauseOn)
{
    const Date now = in(berlin, {2026, 11, 21, 10});
    const Date end = in(berlin, {2026, 11, 24, 15});
    const ScopedEnvironment zone("TZ", berlin);
    const Calendar calendar;
    EXPECT_EQ(nextBackupDate({{0, at(12)}}, referenceDate(now, end, std::nullopt), calendar),
              in(berlin, {2026, 11, 25, 12}));
    EXPECT_EQ(referenceDate(now, now - 1h, std::nullopt), now);
    EXPECT_EQ(nextBackupDate({{7, at(12)}}, referenceDate(now, now + 28 * 24h, std::nullopt), calendar),
              in(berlin, {2026, 12, 19, 12}));
}

TEST(NextBackup, ADateThatHasFiredIsPassedOver)
{
    const Date now = in(berlin, {2026, 11, 21, 10});
    EXPECT_EQ(referenceDate(now, std::nullopt, now - 1h), now);
    EXPECT_EQ(referenceDate(now, std::nullopt, now + 3h), now + 3h + 1ms);
    // A weekly rule that fired just after midnight, and the clock goes back before it: eight days are enough.
    const ScopedEnvironment zone("TZ", berlin);
    const Calendar calendar;
    const Date fired = in(berlin, {2026, 11, 23, 0, 30});
    EXPECT_EQ(nextBackupDate({{2, at(0, 30)}}, referenceDate(fired - 2h, std::nullopt, fired), calendar),
              in(berlin, {2026, 11, 30, 0, 30}));
}

TEST(TimeComponents, DropWholeDaysAndMixCutAndRoundedSeconds)
{
    using Time = nextbackup::TimeComponents;
    EXPECT_EQ(timeComponents(43200), (Time{12, 0, 0}));
    EXPECT_EQ(timeComponents(86400 + 61), (Time{0, 1, 1}));
    EXPECT_EQ(timeComponents(59.6), (Time{0, 0, 0})) << "the minute is cut off, the second rounded";
    EXPECT_EQ(timeComponents(86399.4), (Time{23, 59, 59}));
}

} // namespace quillon
