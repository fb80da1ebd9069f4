#include "DateFormatter.h"

#include "IcuText.h"
#include "UserLocale.h"

#include <cstdint>
#include <memory>
#include <string>
#include <unicode/dtfmtsym.h>
#include <unicode/dtptngen.h>
#include <unicode/smpdtfmt.h>

namespace quillon {

namespace {

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

/// Nothing where both styles are None.
std::unique_ptr<icu::DateFormat> styledFormat(DateFormatterStyle dateStyle, DateFormatterStyle timeStyle)
{
    if (dateStyle == DateFormatterStyle::None && timeStyle == DateFormatterStyle::None)
        return nullptr;
    const icu::Locale locale(userLocale().c_str());
    std::unique_ptr<icu::DateFormat> format(
        icu::DateFormat::createDateTimeInstance(icuStyle(dateStyle), icuStyle(timeStyle), locale));
    if (auto* simple = dynamic_cast<icu::SimpleDateFormat*>(format.get()))
        applyHourCycle(*simple, locale);
    return format;
}

QString formatted(icu::DateFormat& format, Date date)
{
    format.adoptTimeZone(icu::TimeZone::detectHostTimeZone());
    icu::UnicodeString text;
    return fromIcu(format.format(icuDate(date), text));
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
    UErrorCode status = U_ZERO_ERROR;
    icu::SimpleDateFormat format(toIcu(pattern), icu::Locale(userLocale().c_str()), status);
    return U_SUCCESS(status) ? formatted(format, date) : QString();
}

std::optional<Date> DateFormatter::date(const QString& text, const QString& pattern)
{
    UErrorCode status = U_ZERO_ERROR;
    icu::SimpleDateFormat format(toIcu(pattern), icu::Locale(userLocale().c_str()), status);
    if (U_FAILURE(status))
        return std::nullopt;
    std::unique_ptr<icu::Calendar> calendar(format.getCalendar()->clone());
    calendar->setRepeatedWallTimeOption(UCAL_WALLTIME_FIRST);
    calendar->adoptTimeZone(icu::TimeZone::detectHostTimeZone());
    format.adoptCalendar(calendar.release());
    format.setLenient(false);

    icu::ParsePosition end(0);
    const UDate date = format.parse(toIcu(text), end);
    if (end.getErrorIndex() >= 0 || end.getIndex() != text.size())
        return std::nullopt;
    return Date(std::chrono::milliseconds(static_cast<std::int64_t>(date)));
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

} // namespace quillon
