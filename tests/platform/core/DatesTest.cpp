#include "Calendar.h"
#include "DateFormatter.h"
#include "ScopedEnvironment.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <tuple>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono;

namespace {

Date utc(int y, unsigned m, unsigned d, int hour = 0, int minute = 0, int second = 0)
{
    return sys_days(year(y) / month(m) / day(d)) + hours(hour) + minutes(minute) + seconds(second);
}

/// What the clock on the wall shows, with the number of the weekday.
QString shown(Date date)
{
    const LocalTime time = Calendar().localTime(date);
    return QString::asprintf("%d-%02d-%02d %02d:%02d:%02d, %d", time.year, time.month, time.day, time.hour, time.minute,
                             time.second, time.weekday);
}

TEST(CalendarTest, RepeatedTimesAreTheFirstOneSkippedTimesShiftByTheGapAndFieldsCarryOver)
{
    const std::tuple<QByteArray, LocalTime, Date, QString> rows[] = {
        {"Europe/Berlin", {2026, 3, 29, 2, 30}, utc(2026, 3, 29, 1, 30), u"2026-03-29 03:30:00, 1"_s},
        {"Europe/Berlin", {2026, 10, 25, 2, 30}, utc(2026, 10, 25, 0, 30), u"2026-10-25 02:30:00, 1"_s},
        {"UTC", {2026, 1, 32}, utc(2026, 2, 1), u"2026-02-01 00:00:00, 1"_s},
        {"UTC", {2026, 14, -6, 25, -1, 61}, utc(2027, 1, 26, 1, 0, 1), u"2027-01-26 01:00:01, 3"_s},
    };
    for (const auto& [zone, asked, instant, text] : rows) {
        const ScopedEnvironment variable("TZ", zone);
        EXPECT_EQ(Calendar().date(asked), instant) << text.toStdString() << " in " << zone.toStdString();
        EXPECT_EQ(shown(instant), text) << zone.toStdString();
    }
    const ScopedEnvironment zone("TZ", "Europe/Berlin");
    EXPECT_EQ(shown(Date::max()), u"32767-12-30 01:00:00, 7"_s) << "the end of the calendar";
}

TEST(CalendarTest, TheZoneHasTheNameThatPeopleGiveItAndFollowsTheSystemsWhereItNamesThat)
{
    const std::pair<const char*, QString> names[] = {
        {"Europe/Berlin", u"Europe/Berlin"_s}, {"/usr/share/zoneinfo/Asia/Almaty", u"Asia/Almaty"_s}, {"", u"UTC"_s}};
    for (const auto& [value, name] : names) {
        const ScopedEnvironment zone("TZ", value);
        EXPECT_EQ(Calendar::hostTimeZone(utc(2026, 7, 1)), name) << value;
        Calendar::followSystemTimeZone();
        EXPECT_TRUE(qEnvironmentVariableIsSet("TZ")) << value;
    }
    const ScopedEnvironment zone("TZ", ":/etc/localtime");
    Calendar::followSystemTimeZone();
    EXPECT_FALSE(qEnvironmentVariableIsSet("TZ"));
}

TEST(DateComponentsFormatterTest, LengthsAreCutOffInTheUnitsAndTheStyleAskedFor)
{
    using F = DateComponentsFormatter;
    constexpr auto abbreviated = F::UnitsStyle::Abbreviated;
    constexpr auto positional = F::UnitsStyle::Positional;
    constexpr auto none = F::ZeroFormatting::None;
    constexpr auto drop = F::ZeroFormatting::DropLeading;
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const F::Units clock = F::Hours | F::Minutes | F::SecondsUnit;
    const std::tuple<QByteArray, double, F::Units, F::UnitsStyle, F::ZeroFormatting, QString> rows[] = {
        {"en_US", 5400, F::Hours | F::Minutes, abbreviated, drop, u"1h 30m"_s},
        {"en_US", 3600, F::Hours | F::Minutes, abbreviated, drop, u"1h 0m"_s},
        {"en_US", 59, F::Hours | F::Minutes, abbreviated, drop, u"0m"_s},
        {"en_US", 59, F::Hours | F::Minutes, abbreviated, none, u"0h 0m"_s},
        {"en_US", 65, clock, positional, drop, u"1:05"_s},
        {"en_US", 93600, F::Days | F::Hours, positional, none, u"1d 2"_s},
        {"en_US", std::nan(""), F::SecondsUnit, abbreviated, drop, u"0s"_s},
        {"en_US", -5400, F::Hours | F::Minutes, abbreviated, drop, u"-1h 30m"_s},
        {"en_US", infinity, F::SecondsUnit, positional, drop, u"1000000000000000"_s},
        {"zh_CN", 5400, F::Hours | F::Minutes, abbreviated, drop, u"1小时30分钟"_s},
        {"ar_EG", 3909, F::Minutes | F::SecondsUnit, positional, drop, u"٦٥:٠٩"_s},
    };
    for (const auto& [locale, seconds, units, style, zeros, text] : rows) {
        const ScopedEnvironment variable("LC_ALL", locale + ".UTF-8");
        F formatter;
        formatter.allowedUnits = units;
        formatter.unitsStyle = style;
        formatter.zeroFormatting = zeros;
        EXPECT_EQ(formatter.string(seconds), text) << seconds << locale.toStdString();
    }
}

constexpr Date afternoon = sys_days(2026y / September / 21) + hours(14) + minutes(13) + seconds(20);

TEST(DateFormatterTest, StylesGiveTheLocalesOwnTextsAndPatterns)
{
    using enum DateFormatterStyle;
    const std::tuple<QByteArray, DateFormatterStyle, DateFormatterStyle, QString> rows[] = {
        {"en_US.UTF-8", None, Short, u"2:13\u202fPM"_s},
        {"en_US.UTF-8", Short, None, u"9/21/26"_s},
        {"en_US.UTF-8", Full, None, u"Monday, September 21, 2026"_s},
        {"de_DE.UTF-8", Full, Short, u"Montag, 21. September 2026 um 14:13"_s},
        {"de_DE@hours=h12", None, Short, u"2:13\u202fPM"_s},
        {"en_US@hours=h23", Medium, Short, u"Sep 21, 2026, 14:13"_s},
        {"POSIX", None, Short, u"2:13\u202fPM"_s},
    };
    const ScopedEnvironment zone("TZ", "UTC");
    for (const auto& [locale, date, time, text] : rows) {
        const ScopedEnvironment variable("LC_ALL", locale);
        EXPECT_EQ(DateFormatter::string(afternoon, date, time), text) << locale.toStdString();
    }
    const ScopedEnvironment english("LC_ALL", "en_US.UTF-8");
    EXPECT_EQ(DateFormatter::pattern(None, Short), u"h:mm\u202fa"_s);
    const ScopedEnvironment german("LC_ALL", "de_DE.UTF-8");
    EXPECT_EQ(DateFormatter::pattern(None, Short), u"HH:mm"_s);
}

TEST(DateFormatterTest, TheLocaleIsThatOfTheEnvironmentByPrecedence)
{
    const std::tuple<QByteArray, QByteArray, QByteArray, QString, QString> rows[] = {
        {"en_US.UTF-8", "de_DE@euro", "fr_FR.UTF-8", u"Sunday"_s, u"Saturday"_s},
        {"", "de_DE@euro", "fr_FR.UTF-8", u"Sonntag"_s, u"Samstag"_s},
        {"", "", "fr_FR.UTF-8", u"dimanche"_s, u"samedi"_s},
        {"", "", "uz_UZ@cyrillic", u"якшанба"_s, u"шанба"_s},
        {"", "", "fi_FI.UTF-8", u"sunnuntaina"_s, u"lauantaina"_s}, // on that day: it stands for a date
        {"", "", "", u"Sunday"_s, u"Saturday"_s},
    };
    for (const auto& [all, time, language, sunday, saturday] : rows) {
        const ScopedEnvironment first("LC_ALL", all);
        const ScopedEnvironment second("LC_TIME", time);
        const ScopedEnvironment last("LANG", language);
        EXPECT_EQ(DateFormatter::weekdayName(1), sunday);
        EXPECT_EQ(DateFormatter::weekdayName(7), saturday);
    }
}

TEST(DateFormatterTest, TextsAreReadAndWrittenInTheHostsZoneOfTheMomentAndOnlyAsAWhole)
{
    const auto minute = u"yyyy-MM-dd HH:mm"_s;
    const auto second = u"yyyy-MM-dd HH:mm:ss"_s;
    const std::tuple<QByteArray, QString, QString, std::optional<Date>> rows[] = {
        {"UTC", u"2026-09-21 14:13"_s, minute, floor<minutes>(afternoon)},
        {"Asia/Almaty", u"2026-09-21 19:13:20"_s, second, afternoon}, // moved by an hour in 2024, after ICU's data
        {"Asia/Tokyo", u"2026-09-21 16:13:20 +0200"_s, second + u" Z"_s, afternoon},
        {"Europe/Berlin", u"2026-03-29 02:30"_s, minute, {}},
        {"UTC", u""_s, minute, {}},
        {"UTC", u"2026-09-21 14:13x"_s, minute, {}},
        {"UTC", u"2026-02-30 10:00"_s, minute, {}},
    };
    for (const auto& [zone, text, pattern, date] : rows) {
        const ScopedEnvironment variable("TZ", zone);
        EXPECT_EQ(DateFormatter::date(text, pattern), date) << zone.toStdString() << text.toStdString();
        if (date && !pattern.endsWith(u'Z')) {
            EXPECT_EQ(DateFormatter::string(*date, pattern), text) << zone.toStdString();
        }
    }
}

} // namespace
} // namespace quillon
