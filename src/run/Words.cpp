#include "Words.h"

#include "DateFormatter.h"
#include "LocalizedString.h"
#include "ShownText.h"
#include "TMStatus.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace quillon::words {

using namespace Qt::StringLiterals;

namespace {

/// Formats a number as printf does, ties to the even digit; QString's own formatting rounds them up.
QString format(const char* pattern, double value)
{
    std::array<char, 400> text{}; // a double has at most 309 digits before its point
    std::snprintf(text.data(), text.size(), pattern, value);
    return QString::fromLatin1(text.data());
}

DateComponentsFormatter::Units unitsFor(double seconds, bool includePrecision, bool includeSeconds)
{
    using Formatter = DateComponentsFormatter;
    if (seconds >= 86400)
        return includePrecision ? Formatter::Days | Formatter::Hours : Formatter::Units(Formatter::Days);
    if (seconds >= 3600)
        return includePrecision ? Formatter::Hours | Formatter::Minutes : Formatter::Units(Formatter::Hours);
    if (seconds >= 60)
        return includeSeconds ? Formatter::Minutes | Formatter::SecondsUnit : Formatter::Units(Formatter::Minutes);
    return Formatter::SecondsUnit;
}

} // namespace

QString timeFromInterval(double seconds, int style, bool includePrecision, bool includeSeconds)
{
    DateComponentsFormatter formatter;
    formatter.allowedUnits = unitsFor(seconds, includePrecision, includeSeconds);
    if (style == 1) {
        formatter.zeroFormatting = DateComponentsFormatter::ZeroFormatting::None;
        formatter.unitsStyle = DateComponentsFormatter::UnitsStyle::Positional;
    } else if (style == 2) {
        formatter.unitsStyle = DateComponentsFormatter::UnitsStyle::Abbreviated;
    }
    return formatter.string(seconds);
}

QString bytes(std::int64_t count)
{
    const auto value = static_cast<double>(count);
    if (count <= 999)
        return u"%1 bytes"_s.arg(count);
    if (count <= 999'999)
        return format("%.0f KB", value / 1e3);
    if (count <= 999'999'999)
        return format("%.1f MB", value / 1e6);
    if (count < 1'000'000'000'000)
        return format("%.2f GB", value / 1e9);
    return format("%.2f TB", value / 1e12);
}

QString percent(double fraction)
{
    return format("%.1f%%", fraction * 100);
}

QString diskName(const QString& name)
{
    const QString shown = displayedName(name);
    return shown.isEmpty() ? localizedString("notAvailableAbbreviation") : shown;
}

QString diskNameFor(const QString& identifier, const QList<BackupDestination>& disks)
{
    const auto found =
        std::ranges::find_if(disks, [&](const BackupDestination& disk) { return disk.id == identifier; });
    return found == disks.end() ? localizedString("notAvailableAbbreviation") : diskName(found->name);
}

QString phase(const QString& rawPhase)
{
    const QString phrase = backupphase::phrase(rawPhase);
    const char* key = backupphase::localizationKey(phrase);
    return key ? localizedString(key) : phrase;
}

} // namespace quillon::words
