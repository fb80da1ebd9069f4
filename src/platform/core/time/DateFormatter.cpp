#include "DateFormatter.h"

#include "Calendar.h"
#include "LocalizedString.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <memory>
#include <string>
#include <unicode/dtfmtsym.h>
#include <unicode/dtptngen.h>
#include <unicode/measfmt.h>
#include <unicode/measunit.h>
#include <unicode/measure.h>
#include <unicode/numfmt.h>
#include <unicode/simpletz.h>
#include <unicode/smpdtfmt.h>
#include <unicode/unistr.h>
#include <vector>

namespace quillon {

namespace {

icu::UnicodeString toIcu(const QString& text)
{
    return {text.utf16(), static_cast<int32_t>(text.size())};
}

QString fromIcu(const icu::UnicodeString& text)
{
    return QString::fromUtf16(text.getBuffer(), text.length());
}

UDate icuDate(Date date)
{
    return static_cast<UDate>(date.time_since_epoch().count());
}

icu::DateFormat::EStyle icuStyle(DateFormatterStyle style)
{
    switch (style) {
    case DateFormatterStyle::Short:
        return icu::DateFormat::kShort;
    case DateFormatterStyle::Medium:
        return icu::DateFormat::kMedium;
    case DateFormatterStyle::Long:
        return icu::DateFormat::kLong;
    case DateFormatterStyle::Full:
        return icu::DateFormat::kFull;
    case DateFormatterStyle::None:
        break;
    }
    return icu::DateFormat::kNone;
}

// ICU's styles do not look at the locale's "hours" keyword, which is how a forced 12- or 24-hour clock arrives.
void applyHourCycle(icu::SimpleDateFormat& format, const icu::Locale& locale)
{
    UErrorCode status = U_ZERO_ERROR;
    const auto cycle = locale.getKeywordValue<std::string>("hours", status);
    if (cycle.empty())
        return;
    icu::UnicodeString pattern;
    icu::UnicodeString skeleton = icu::DateTimePatternGenerator::staticGetSkeleton(format.toPattern(pattern), status);
    const bool wants24 = cycle == "h23";
    const char16_t unwanted = wants24 ? u'h' : u'H';
    if (U_FAILURE(status) || skeleton.indexOf(unwanted) < 0)
        return;
    skeleton.findAndReplace(icu::UnicodeString(unwanted), icu::UnicodeString(wants24 ? u'H' : u'h'));
    skeleton.findAndReplace(u"a", u"");
    const std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(locale, status));
    if (U_SUCCESS(status))
        format.applyPattern(generator->getBestPattern(skeleton, status));
}

/// Formats are made in a zone that needs no looking for: ICU's own search for the host's zone reads the whole folder of
/// zones where /etc/localtime is no link. Each use sets the offset that holds then.
void keepIcuFromSearchingTheHostsZone()
{
    [[maybe_unused]] static const bool done = [] {
        icu::TimeZone::adoptDefault(icu::TimeZone::getGMT()->clone());
        return true;
    }();
}

/// The zone data of ICU is as old as ICU: the offset is the host's, for that one instant.
std::unique_ptr<icu::TimeZone> fixedZone(Date date)
{
    return std::make_unique<icu::SimpleTimeZone>(Calendar().offsetFromUtc(date) * 1000, icu::UnicodeString());
}

/// Null where ICU cannot read the pattern.
std::unique_ptr<icu::SimpleDateFormat> patternFormat(const QString& pattern)
{
    keepIcuFromSearchingTheHostsZone();
    UErrorCode status = U_ZERO_ERROR;
    auto format = std::make_unique<icu::SimpleDateFormat>(toIcu(pattern), icu::Locale(userLocale().c_str()), status);
    return U_SUCCESS(status) ? std::move(format) : nullptr;
}

/// Null where both styles are None.
std::unique_ptr<icu::DateFormat> styledFormat(DateFormatterStyle dateStyle, DateFormatterStyle timeStyle)
{
    if (dateStyle == DateFormatterStyle::None && timeStyle == DateFormatterStyle::None)
        return nullptr;
    keepIcuFromSearchingTheHostsZone();
    const icu::Locale locale(userLocale().c_str());
    std::unique_ptr<icu::DateFormat> format(
        icu::DateFormat::createDateTimeInstance(icuStyle(dateStyle), icuStyle(timeStyle), locale));
    if (auto* simple = dynamic_cast<icu::SimpleDateFormat*>(format.get()))
        applyHourCycle(*simple, locale);
    return format;
}

QString formatted(icu::DateFormat& format, Date date)
{
    format.adoptTimeZone(fixedZone(date).release());
    icu::UnicodeString text;
    return fromIcu(format.format(icuDate(date), text));
}

/// The instant at which the clock on the wall shows what `wall` is in Greenwich; nothing where a gap leaves it out.
std::optional<Date> shownAt(Date wall)
{
    using namespace std::chrono;
    const auto day = floor<days>(wall);
    const auto time = wall - day;
    const Calendar calendar;
    const Date date = calendar.date({1970, 1, 1 + static_cast<int>(day.time_since_epoch().count()), 0, 0,
                                     static_cast<int>(floor<seconds>(time).count())}) +
                      time % seconds(1);
    return date + seconds(calendar.offsetFromUtc(date)) == wall ? std::optional(date) : std::nullopt;
}

} // namespace

QString DateFormatter::string(Date date, DateFormatterStyle dateStyle, DateFormatterStyle timeStyle)
{
    const auto format = styledFormat(dateStyle, timeStyle);
    return format ? formatted(*format, date) : QString();
}

QString DateFormatter::pattern(DateFormatterStyle dateStyle, DateFormatterStyle timeStyle)
{
    const auto format = styledFormat(dateStyle, timeStyle);
    const auto* simple = dynamic_cast<const icu::SimpleDateFormat*>(format.get());
    icu::UnicodeString pattern;
    return simple ? fromIcu(simple->toPattern(pattern)) : QString();
}

QString DateFormatter::string(Date date, const QString& pattern)
{
    const auto format = patternFormat(pattern);
    return format ? formatted(*format, date) : QString();
}

std::optional<Date> DateFormatter::date(const QString& text, const QString& pattern)
{
    const auto format = patternFormat(pattern);
    if (!format)
        return std::nullopt;
    format->setLenient(false);
    // Read as if the clock on the wall showed Greenwich time, under a name that no text can give.
    const icu::UnicodeString wallZone(u"wall");
    const std::unique_ptr<icu::Calendar> fields(format->getCalendar()->clone());
    fields->clear();
    fields->setLenient(false);
    fields->adoptTimeZone(new icu::SimpleTimeZone(0, wallZone));
    icu::ParsePosition end(0);
    format->parse(toIcu(text), *fields, end);
    UErrorCode status = U_ZERO_ERROR;
    const Date read(std::chrono::milliseconds(static_cast<std::int64_t>(fields->getTime(status))));
    if (U_FAILURE(status) || end.getErrorIndex() >= 0 || end.getIndex() != text.size())
        return std::nullopt;
    icu::UnicodeString zone;
    return fields->getTimeZone().getID(zone) == wallZone ? shownAt(read) : read;
}

QString DateFormatter::weekdayName(int weekday)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::DateFormatSymbols symbols(icu::Locale(userLocale().c_str()), status);
    int32_t count = 0;
    const icu::UnicodeString* names =
        symbols.getWeekdays(count, icu::DateFormatSymbols::FORMAT, icu::DateFormatSymbols::WIDE);
    return weekday > 0 && weekday < count ? fromIcu(names[weekday]) : QString();
}

namespace {

using Unit = DateComponentsFormatter::Unit;

// Lengths beyond this, 31 million years, read as this; up to here a double counts every second.
constexpr double longestSeconds = 1e15;

struct UnitLength {
    Unit unit;
    std::int64_t seconds;
};
constexpr std::array unitLengths{
    UnitLength{Unit::Days, 86400},
    UnitLength{Unit::Hours, 3600},
    UnitLength{Unit::Minutes, 60},
    UnitLength{Unit::SecondsUnit, 1},
};

struct Component {
    Unit unit;
    double value; ///< whole; the first one carries the sign
};

std::vector<Component> split(double seconds, DateComponentsFormatter::Units units)
{
    const double whole = std::isnan(seconds) ? 0 : std::trunc(std::clamp(seconds, -longestSeconds, longestSeconds));
    auto rest = static_cast<std::int64_t>(std::abs(whole));
    std::vector<Component> components;
    for (const auto& [unit, length] : unitLengths) {
        if (!units.testFlag(unit))
            continue;
        const std::int64_t count = rest / length;
        components.push_back({unit, static_cast<double>(count)});
        rest %= length;
    }
    return components;
}

void dropLeadingZeros(std::vector<Component>& components)
{
    while (components.size() > 1 && components.front().value == 0)
        components.erase(components.begin());
}

icu::MeasureUnit* createUnit(Unit unit, UErrorCode& status)
{
    switch (unit) {
    case Unit::Days:
        return icu::MeasureUnit::createDay(status);
    case Unit::Hours:
        return icu::MeasureUnit::createHour(status);
    case Unit::Minutes:
        return icu::MeasureUnit::createMinute(status);
    case Unit::SecondsUnit:
        break;
    }
    return icu::MeasureUnit::createSecond(status);
}

QString abbreviated(const std::vector<Component>& components)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::MeasureFormat format(icu::Locale(userLocale().c_str()), UMEASFMT_WIDTH_NARROW, status);
    std::vector<icu::Measure> measures;
    measures.reserve(components.size());
    for (const auto& [unit, value] : components)
        measures.emplace_back(icu::Formattable(value), createUnit(unit, status), status);
    icu::UnicodeString text;
    icu::FieldPosition position;
    format.formatMeasures(measures.data(), static_cast<int32_t>(measures.size()), text, position, status);
    return fromIcu(text);
}

// Like a clock, "1:05:09"; days stand before it with their name, "1d 2:00".
QString positional(const std::vector<Component>& components)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::NumberFormat> format(
        icu::NumberFormat::createInstance(icu::Locale(userLocale().c_str()), status));
    if (U_FAILURE(status))
        return {};
    format->setGroupingUsed(false);
    QString text;
    for (const auto& [unit, value] : components) {
        if (unit == Unit::Days) {
            text = abbreviated({{unit, value}}) + u' ';
            continue;
        }
        icu::UnicodeString number;
        text += fromIcu(format->format(value, number)) + u':';
        format->setMinimumIntegerDigits(2);
    }
    text.chop(1);
    return text;
}

} // namespace

QString DateComponentsFormatter::string(double seconds) const
{
    auto components = split(seconds, allowedUnits);
    if (components.empty())
        return {};
    if (zeroFormatting == ZeroFormatting::DropLeading)
        dropLeadingZeros(components);
    if (seconds <= -1)
        components.front().value *= -1;
    return unitsStyle == UnitsStyle::Abbreviated ? abbreviated(components) : positional(components);
}

} // namespace quillon
