#include "DateFormatter.h"

#include "ScopedEnvironment.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono;

namespace {

using enum DateFormatterStyle;

constexpr Date afternoon = sys_days(2026y / September / 21) + hours(14) + minutes(13) + seconds(20);

class DateFormatterTest : public testing::Test {
protected:
    ScopedEnvironment zone{"TZ", "UTC"};
    ScopedEnvironment locale{"LC_ALL", "en_US.UTF-8"};
};

TEST_F(DateFormatterTest, StylesGiveTheLocalesOwnTexts)
{
    EXPECT_EQ(DateFormatter::string(afternoon, None, Short), u"2:13\u202fPM"_s);
    EXPECT_EQ(DateFormatter::string(afternoon, Short, None), u"9/21/26"_s);
    EXPECT_EQ(DateFormatter::string(afternoon, Medium, Short), u"Sep 21, 2026, 2:13\u202fPM"_s);
    EXPECT_EQ(DateFormatter::string(afternoon, Long, None), u"September 21, 2026"_s);
    EXPECT_EQ(DateFormatter::string(afternoon, Full, None), u"Monday, September 21, 2026"_s);
    EXPECT_EQ(DateFormatter::string(afternoon, None, None), QString());
    const ScopedEnvironment german("LC_ALL", "de_DE.UTF-8");
    EXPECT_EQ(DateFormatter::string(afternoon, Full, Short), u"Montag, 21. September 2026 um 14:13"_s);
    EXPECT_EQ(DateFormatter::weekdayName(1), u"Sonntag"_s);
    EXPECT_EQ(DateFormatter::weekdayName(7), u"Samstag"_s);
    EXPECT_EQ(DateFormatter::weekdayName(8), QString());
}

TEST_F(DateFormatterTest, PatternsAreThoseOfTheLocale)
{
    EXPECT_EQ(DateFormatter::pattern(None, Short), u"h:mm\u202fa"_s);
    EXPECT_EQ(DateFormatter::pattern(None, None), QString());
    const ScopedEnvironment german("LC_ALL", "de_DE.UTF-8");
    EXPECT_EQ(DateFormatter::pattern(None, Short), u"HH:mm"_s);
}

TEST_F(DateFormatterTest, TheLocaleIsThatOfTheEnvironmentByPrecedence)
{
    const auto day = [] { return DateFormatter::weekdayName(2); };
    const ScopedEnvironment language("LANG", "fr_FR.UTF-8");
    const ScopedEnvironment time("LC_TIME", "de_DE@euro");
    EXPECT_EQ(day(), u"Monday"_s);
    const ScopedEnvironment all("LC_ALL", "");
    EXPECT_EQ(day(), u"Montag"_s);
    const ScopedEnvironment noTime("LC_TIME", std::nullopt);
    EXPECT_EQ(day(), u"lundi"_s);
    const ScopedEnvironment latin("LANG", "sr_RS@latin");
    EXPECT_EQ(day(), u"ponedeljak"_s);
}

TEST_F(DateFormatterTest, LocalesOfNoCountryReadAsEnglish)
{
    for (const char* name : {"C", "C.UTF-8", "POSIX"}) {
        const ScopedEnvironment none("LC_ALL", name);
        EXPECT_EQ(DateFormatter::string(afternoon, Medium, Short), u"Sep 21, 2026, 2:13\u202fPM"_s) << name;
    }
}

TEST_F(DateFormatterTest, AForcedHourCycleOverridesTheLocale)
{
    {
        const ScopedEnvironment forced("LC_ALL", "en_US@hours=h23");
        EXPECT_EQ(DateFormatter::string(afternoon, None, Short), u"14:13"_s);
        EXPECT_EQ(DateFormatter::string(afternoon, Medium, Short), u"Sep 21, 2026, 14:13"_s);
        EXPECT_EQ(DateFormatter::string(afternoon, Long, None), u"September 21, 2026"_s);
    }
    const ScopedEnvironment forced("LC_ALL", "de_DE@hours=h12");
    EXPECT_EQ(DateFormatter::string(afternoon, None, Short), u"2:13\u202fPM"_s);
}

TEST_F(DateFormatterTest, TheHostsZoneIsAskedForAtEveryUse)
{
    EXPECT_EQ(DateFormatter::string(afternoon, u"yyyy-MM-dd HH:mm"_s), u"2026-09-21 14:13"_s);
    const ScopedEnvironment tokyo("TZ", "Asia/Tokyo");
    EXPECT_EQ(DateFormatter::string(afternoon, u"yyyy-MM-dd HH:mm"_s), u"2026-09-21 23:13"_s);
    EXPECT_EQ(DateFormatter::date(u"2026-09-21 23:13:20"_s, u"yyyy-MM-dd HH:mm:ss"_s), afternoon);
    EXPECT_EQ(DateFormatter::date(u"2026-09-21 16:13:20 +0200"_s, u"yyyy-MM-dd HH:mm:ss Z"_s), afternoon);
    const ScopedEnvironment almaty("TZ", "Asia/Almaty"); // moved by an hour in 2024, after ICU's data
    EXPECT_EQ(DateFormatter::string(afternoon, u"HH:mm"_s), u"19:13"_s);
}

TEST_F(DateFormatterTest, TextsThatDoNotMatchAsAWholeAreNoDates)
{
    const auto pattern = u"yyyy-MM-dd HH:mm"_s;
    EXPECT_EQ(DateFormatter::date(u"2026-09-21 14:13"_s, pattern), floor<minutes>(afternoon));
    for (const auto& text : {u""_s, u"2026-09-21"_s, u"2026-09-21 14:13x"_s, u"2026-02-30 10:00"_s,
                             u"2026-09-21 25:00"_s, u"soon"_s, u"2026/09/21 14:13"_s})
        EXPECT_FALSE(DateFormatter::date(text, pattern)) << text.toStdString();
}

TEST_F(DateFormatterTest, OfARepeatedTimeTheFirstOneIsReadAndASkippedOneIsNoDate)
{
    const ScopedEnvironment berlin("TZ", "Europe/Berlin");
    const auto pattern = u"yyyy-MM-dd HH:mm"_s;
    EXPECT_EQ(DateFormatter::date(u"2026-10-25 02:30"_s, pattern), sys_days(2026y / October / 25) + minutes(30));
    EXPECT_FALSE(DateFormatter::date(u"2026-03-29 02:30"_s, pattern));
}

} // namespace
} // namespace quillon
