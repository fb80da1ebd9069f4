#include "NextBackup.h"

#include "LocalDates.h"
#include "ScopedEnvironment.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace std::chrono_literals;
using nextbackup::nextBackupDate;
using nextbackup::referenceDate;

namespace {

constexpr qlonglong at(int hour, int minute = 0)
{
    return hour * 3600 + minute * 60;
}

Date in(const char* zone, const LocalTime& time)
{
    const ScopedEnvironment scope("TZ", zone);
    return Calendar().date(time);
}

constexpr auto berlin = "Europe/Berlin";
constexpr auto saoPaulo = "America/Sao_Paulo";
constexpr auto scoresbysund = "America/Scoresbysund";

} // namespace

TEST(NextBackup, IsTheEarliestDateThatAnyRuleAllows)
{
    constexpr qlonglong late = at(23, 30);
    const struct {
        const char* zone;
        QList<CalendarIntervalRule> rules;
        LocalTime now;
        std::optional<LocalTime> next;
        const char* nextZone = berlin;
    } cases[] = {
        // 23 November 2026 is a Monday.
        {berlin, {{0, at(12)}, {2, at(8)}}, {2026, 11, 23, 10}, {{2026, 11, 23, 12}}},
        {berlin, {{2, at(8)}, {2, at(8)}}, {2026, 11, 23, 8}, {{2026, 11, 23, 8}}},
        {berlin, {{8, at(9)}}, {2026, 11, 27, 10}, {{2026, 11, 30, 9}}},
        {berlin, {{8, at(9)}}, {2026, 11, 27, 8}, {{2026, 11, 27, 9}}},
        {berlin, {{7, at(9)}}, {2026, 11, 28, 9, 0, 1}, {{2026, 12, 5, 9}}},
        {berlin, {{0, at(0)}}, {2026, 12, 31, 23, 59}, {{2027, 1, 1, 0}}},
        // Rules that never match are given up.
        {berlin, {}, {2026, 11, 23, 10}, {}},
        {berlin, {{9, at(12)}, {-1, at(12)}}, {2026, 11, 23, 10}, {}},
        {berlin, {{9, at(12)}, {0, at(12)}}, {2026, 11, 23, 10}, {{2026, 11, 23, 12}}},
        {berlin, {{0, 86400 + at(1, 5) + 7}}, {2026, 11, 23, 0}, {{2026, 11, 23, 1, 5, 7}}},
        // A time that comes twice counts the first time only.
        {berlin, {{0, at(2, 30)}}, {2026, 10, 25, 0}, {{2026, 10, 25, 0, 30}}, "UTC"},
        // One in a gap is shifted for that day only.
        {berlin, {{0, at(2, 30)}}, {2027, 3, 28, 0}, {{2027, 3, 28, 1, 30}}, "UTC"},
        {berlin, {{0, at(2, 30)}}, {2027, 3, 28, 4}, {{2027, 3, 29, 0, 30}}, "UTC"},
        {saoPaulo, {{1, at(0)}}, {2018, 11, 3, 12}, {{2018, 11, 4, 3}}, "UTC"}, // a midnight that does not exist
        // On Saturday 27 March 2027 the last hour of the day is left out: its start comes on Sunday, which has its own.
        {scoresbysund, {{7, late}}, {2027, 3, 27, 12}, {{2027, 3, 28, 1, 30}}, "UTC"},
        {scoresbysund, {{7, late}}, {2027, 3, 28, 0, 10}, {{2027, 3, 28, 1, 30}}, "UTC"},
        {scoresbysund, {{1, late}}, {2027, 3, 27, 12}, {{2027, 3, 29, 0, 30}}, "UTC"},
    };
    for (int row = 0; const auto& each : cases) {
        SCOPED_TRACE(++row);
        const auto expected = each.next ? std::optional(in(each.nextZone, *each.next)) : std::nullopt;
        const ScopedEnvironment scope("TZ", each.zone);
        const Calendar calendar;
        EXPECT_EQ(nextBackupDate(each.rules, calendar.date(each.now), calendar), expected);
    }
    const auto never = std::numeric_limits<qlonglong>::max();
    EXPECT_TRUE(nextBackupDate({{0, never}}, in(berlin, {2026, 11, 23, 10}), Calendar()));
}

TEST(NextBackup, TimesBeyondADayAreThoseOfTheirDay)
{
    for (const double time : {3661.0, 90061.0, 176461.0})
        EXPECT_EQ(nextbackup::timeComponents(time), (nextbackup::TimeComponents{1, 1, 1})) << time;
    EXPECT_EQ(nextbackup::timeComponents(86400), nextbackup::TimeComponents());
}

TEST(NextBackup, IsLookedForBehindAPauseAndBehindWhatHasFired)
{
    const ScopedEnvironment zone("TZ", berlin);
    const Date now = local(2026, 11, 21, 10);
    EXPECT_EQ(referenceDate(now, now - 1h, {}), now);
    EXPECT_EQ(referenceDate(now, now + 1h, {}), now + 1h);
    EXPECT_EQ(referenceDate(now, {}, now - 1h), now);
    EXPECT_EQ(referenceDate(now, {}, now + 3h), now + 3h + 1ms);
    EXPECT_EQ(referenceDate(now, now + 4h, now + 3h), now + 4h);
    // A weekly rule that fired just after midnight, and the clock goes back before it: eight days are enough.
    const Date fired = local(2026, 11, 23, 0, 30);
    EXPECT_EQ(nextBackupDate({{2, at(0, 30)}}, referenceDate(fired - 2h, {}, fired), Calendar()),
              local(2026, 11, 30, 0, 30));
    const Date first = local(2026, 10, 25, 2, 30);
    EXPECT_EQ(nextBackupDate({{0, at(2, 30)}}, first + 1ms, Calendar()), first + 25h) << "which comes twice";
}

} // namespace quillon
