#include "Calendar.h"

#include "IcuText.h"

#include <algorithm>
#include <cstdint>
#include <unicode/basictz.h>

namespace quillon {

using namespace std::chrono;

namespace {

// What std::chrono::year can hold, less a day for the offset of the zone.
constexpr Date earliest = sys_days(year::min() / 1 / 2);
constexpr Date latest = sys_days(year::max() / 12 / 30);

double icuDate(Date date)
{
    return static_cast<double>(date.time_since_epoch().count());
}

sys_days dayOf(const LocalTime& time)
{
    const auto monthCount = static_cast<std::int64_t>(time.year) * 12 + time.month - 1;
    const auto firstMonth = std::int64_t{int{year::min()}} * 12;
    const auto lastMonth = std::int64_t{int{year::max()}} * 12 + 11;
    const auto month = std::clamp(monthCount, firstMonth, lastMonth) - firstMonth;
    return sys_days(year::min() / January / 1 + months(month)) + days(time.day - 1);
}

} // namespace

struct Calendar::Implementation {
    explicit Implementation(icu::TimeZone* adopted)
        : zone(static_cast<icu::BasicTimeZone*>(adopted)) // all of ICU's zones are of this class (basictz.h)
    {
    }

    std::unique_ptr<icu::BasicTimeZone> zone;
};

Calendar::Calendar()
    : implementation_(std::make_unique<Implementation>(icu::TimeZone::detectHostTimeZone()))
{
}

Calendar::Calendar(const QString& timeZone)
    : implementation_(std::make_unique<Implementation>(icu::TimeZone::createTimeZone(toIcu(timeZone))))
{
}

Calendar::Calendar(Calendar&&) noexcept = default;
Calendar& Calendar::operator=(Calendar&&) noexcept = default;
Calendar::~Calendar() = default;

QString Calendar::hostTimeZone()
{
    const std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::detectHostTimeZone());
    icu::UnicodeString name;
    return fromIcu(zone->getID(name));
}

LocalTime Calendar::localTime(Date date) const
{
    const Date wall = std::clamp(date, earliest, latest) + seconds(offsetFromUtc(date));
    const auto day = floor<days>(wall);
    const year_month_day fields(day);
    const hh_mm_ss time(floor<seconds>(wall - day));
    return {.year = int{fields.year()},
            .month = static_cast<int>(unsigned{fields.month()}),
            .day = static_cast<int>(unsigned{fields.day()}),
            .hour = static_cast<int>(time.hours().count()),
            .minute = static_cast<int>(time.minutes().count()),
            .second = static_cast<int>(time.seconds().count()),
            .weekday = static_cast<int>(weekday(day).c_encoding()) + 1};
}

Date Calendar::date(const LocalTime& time) const
{
    const Date wall = dayOf(time) + hours(time.hour) + minutes(time.minute) + seconds(time.second);
    int32_t rawOffset = 0;
    int32_t daylightSaving = 0;
    UErrorCode status = U_ZERO_ERROR;
    // The offset from before a change turns a repeated time into its first occurrence and moves one inside a gap on.
    implementation_->zone->getOffsetFromLocal(icuDate(wall), UCAL_TZ_LOCAL_FORMER, UCAL_TZ_LOCAL_FORMER, rawOffset,
                                              daylightSaving, status);
    return wall - milliseconds(rawOffset + daylightSaving);
}

int Calendar::offsetFromUtc(Date date) const
{
    int32_t rawOffset = 0;
    int32_t daylightSaving = 0;
    UErrorCode status = U_ZERO_ERROR;
    implementation_->zone->getOffset(icuDate(date), false, rawOffset, daylightSaving, status);
    return (rawOffset + daylightSaving) / 1000;
}

} // namespace quillon
