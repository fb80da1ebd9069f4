#include "DateComponentsFormatter.h"

#include "IcuText.h"
#include "UserLocale.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <memory>
#include <unicode/measfmt.h>
#include <unicode/measunit.h>
#include <unicode/measure.h>
#include <unicode/numfmt.h>
#include <vector>

namespace quillon {

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
