#include "DateComponentsFormatter.h"

#include "ScopedEnvironment.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using F = DateComponentsFormatter;

QString text(double seconds, F::Units units, F::UnitsStyle style = F::UnitsStyle::Abbreviated,
             F::ZeroFormatting zeros = F::ZeroFormatting::DropLeading)
{
    F formatter;
    formatter.allowedUnits = units;
    formatter.unitsStyle = style;
    formatter.zeroFormatting = zeros;
    return formatter.string(seconds);
}

class DateComponentsFormatterTest : public testing::Test {
protected:
    ScopedEnvironment locale{"LC_ALL", "en_US.UTF-8"};
};

TEST_F(DateComponentsFormatterTest, AbbreviatedTextsAreCutOffAndKeepLaterZeros)
{
    EXPECT_EQ(text(5400, F::Hours | F::Minutes), u"1h 30m"_s);
    EXPECT_EQ(text(3600, F::Hours | F::Minutes), u"1h 0m"_s);
    EXPECT_EQ(text(86400, F::Days | F::Hours), u"1d 0h"_s);
    EXPECT_EQ(text(3599.9, F::Minutes | F::SecondsUnit), u"59m 59s"_s);
    EXPECT_EQ(text(59.9, F::Hours | F::Minutes | F::SecondsUnit), u"59s"_s);
    EXPECT_EQ(text(7199, F::Hours), u"1h"_s);
    EXPECT_EQ(text(90000, F::Hours), u"25h"_s) << "no days allowed";
    EXPECT_EQ(text(172799, F::Days), u"1d"_s);
    EXPECT_EQ(text(0, F::SecondsUnit), u"0s"_s);
    EXPECT_EQ(text(59, F::Hours | F::Minutes), u"0m"_s);
    EXPECT_EQ(text(59, F::Hours | F::Minutes, F::UnitsStyle::Abbreviated, F::ZeroFormatting::None), u"0h 0m"_s);
    EXPECT_EQ(text(59, {}), QString());
}

TEST_F(DateComponentsFormatterTest, PositionalTextsReadLikeAClock)
{
    const auto positional = [](double seconds, F::Units units, F::ZeroFormatting zeros = F::ZeroFormatting::None) {
        return text(seconds, units, F::UnitsStyle::Positional, zeros);
    };
    EXPECT_EQ(positional(3909, F::Hours | F::Minutes | F::SecondsUnit), u"1:05:09"_s);
    EXPECT_EQ(positional(65, F::Hours | F::Minutes | F::SecondsUnit), u"0:01:05"_s);
    EXPECT_EQ(positional(65, F::Hours | F::Minutes | F::SecondsUnit, F::ZeroFormatting::DropLeading), u"1:05"_s);
    EXPECT_EQ(positional(5, F::SecondsUnit), u"5"_s);
    EXPECT_EQ(positional(93600, F::Days | F::Hours), u"1d 2"_s);
    EXPECT_EQ(positional(86400, F::Days), u"1d"_s);
    EXPECT_EQ(positional(36'000'000, F::Hours | F::Minutes), u"10000:00"_s);
}

TEST_F(DateComponentsFormatterTest, OddLengthsGiveATextToo)
{
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(text(std::nan(""), F::SecondsUnit), u"0s"_s);
    EXPECT_EQ(text(-0.9, F::SecondsUnit), u"0s"_s);
    EXPECT_EQ(text(-90, F::SecondsUnit), u"-90s"_s);
    EXPECT_EQ(text(-5400, F::Hours | F::Minutes), u"-1h 30m"_s);
    EXPECT_EQ(text(infinity, F::Days), text(1e15, F::Days));
    EXPECT_EQ(text(-infinity, F::Days), text(-1e15, F::Days));
}

TEST_F(DateComponentsFormatterTest, WordsAndDigitsAreTheLocales)
{
    const ScopedEnvironment chinese("LC_ALL", "zh_CN.UTF-8");
    EXPECT_EQ(text(5400, F::Hours | F::Minutes), u"1小时30分钟"_s);
    const ScopedEnvironment arabic("LC_ALL", "ar_EG.UTF-8");
    EXPECT_EQ(text(3909, F::Minutes | F::SecondsUnit, F::UnitsStyle::Positional), u"٦٥:٠٩"_s);
}

} // namespace
} // namespace quillon
