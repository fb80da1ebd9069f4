#include "DataHelper.h"

#include "Calendar.h"
#include "ScopedEnvironment.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono;

namespace {

class DataHelperTest : public testing::Test {
protected:
    ScopedEnvironment zone{"TZ", "Europe/Berlin"};
    ScopedEnvironment locale{"LC_ALL", "en_US.UTF-8"};
};

Date berlin(int y, int m, int d, int hour = 12, int minute = 0, int second = 0)
{
    return Calendar().date({y, m, d, hour, minute, second});
}

QString day(Date date, Date now)
{
    return DataHelper::getDayFrom(date, DateFormatterStyle::Full, now);
}

TEST_F(DataHelperTest, DaysAreNamedFromTomorrowToSixDaysAgo)
{
    const Date now = berlin(2026, 3, 4, 0, 30); // Wednesday
    const std::pair<int, QString> names[] = {
        {6, u"Friday, March 6, 2026"_s},
        {5, u"Tomorrow"_s},
        {4, u"Today"_s},
        {3, u"Yesterday"_s},
        {2, u"Monday"_s},
        {1, u"Sunday"_s},
        {0, u"Saturday"_s},
        {-1, u"Friday"_s},
        {-2, u"Thursday"_s},
        {-3, u"Wednesday, February 25, 2026"_s},
    };
    for (const auto& [dayOfMonth, name] : names) {
        EXPECT_EQ(day(berlin(2026, 3, dayOfMonth, 0, 0, 0), now), name) << dayOfMonth;
        EXPECT_EQ(day(berlin(2026, 3, dayOfMonth, 23, 59, 59), now), name) << dayOfMonth;
    }
    EXPECT_EQ(DataHelper::getDayFrom(berlin(2026, 3, 6), DateFormatterStyle::Long, now), u"March 6, 2026"_s);
}

TEST_F(DataHelperTest, DaysAreNamedRightAcrossClockChangesAndTheTurnOfTheYear)
{
    EXPECT_EQ(day(berlin(2026, 3, 30, 0, 10), berlin(2026, 3, 29, 0, 10)), u"Tomorrow"_s);
    EXPECT_EQ(day(berlin(2026, 10, 25, 23, 50), berlin(2026, 10, 26, 0, 10)), u"Yesterday"_s);
    EXPECT_EQ(day(berlin(2027, 1, 1, 0, 0), berlin(2026, 12, 31, 23, 59)), u"Tomorrow"_s);
    EXPECT_EQ(day(berlin(2026, 12, 30), berlin(2027, 1, 2)), u"Wednesday"_s);
    const ScopedEnvironment gapAtMidnight("TZ", "America/Sao_Paulo");
    const Calendar saoPaulo;
    EXPECT_EQ(day(saoPaulo.date({2018, 11, 4, 9, 0, 0}), saoPaulo.date({2018, 11, 3, 9, 0, 0})), u"Tomorrow"_s);
    EXPECT_EQ(day(saoPaulo.date({2018, 11, 4, 9, 0, 0}), saoPaulo.date({2018, 11, 5, 9, 0, 0})), u"Yesterday"_s);
}

TEST_F(DataHelperTest, ARetryFallsOnTheNextWholeMinuteAfterTheInterval)
{
    const auto retry = [](Date now, double interval) {
        return DataHelper::dateSinceNowWithCeiledMinutes(Seconds(interval), now);
    };
    EXPECT_EQ(retry(berlin(2026, 5, 1, 10, 0, 30), 300), berlin(2026, 5, 1, 10, 6));
    EXPECT_EQ(retry(berlin(2026, 5, 1, 10, 0, 0), 300), berlin(2026, 5, 1, 10, 6));
    EXPECT_EQ(retry(berlin(2026, 5, 1, 10, 0, 59) + 999ms, 300), berlin(2026, 5, 1, 10, 6));
    EXPECT_EQ(retry(berlin(2026, 5, 1, 12, 0, 0), 0), berlin(2026, 5, 1, 12, 1));
    EXPECT_EQ(retry(berlin(2045, 5, 1, 10, 0, 30), 300), berlin(2045, 5, 1, 10, 6)) << "beyond 32 bits";
}

TEST_F(DataHelperTest, TextsOfTheYearAndOfVersions)
{
    const Date newYear = sys_days(2026y / December / 31) + hours(23) + minutes(30);
    EXPECT_EQ(DataHelper::getCurrentYear(newYear), u"2027"_s) << "the year of the host's zone";
    EXPECT_EQ(DataHelper::stringFromSystemVersion({14, 2, 1}), u"14.2.1"_s);
    EXPECT_TRUE(DataHelper::bundleVersionString().contains(u" (Build "_s));
}

} // namespace
} // namespace quillon
