#include "BackupPhase.h"
#include "DateComponentsFormatter.h"
#include "Format.h"
#include "LocalizedString.h"
#include "ShownText.h"
#include "StatusMenuController.h"

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr double titlePointSize = 9.5;
// Packs two lines into the height of a menu bar.
constexpr double twoLineAdjustment = -5.0;

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

void StatusMenuController::updateStatusBarTitle(const QString& title, const QString& text)
{
    if (title.isEmpty() && text.isEmpty()) {
        setButtonTitle(QString());
        return;
    }
    const bool twoLines = !title.isEmpty() && !text.isEmpty();
    const QString composed = twoLines ? title + u'\n' + text : title + text;
    const double adjustment = twoLines ? twoLineAdjustment : 0.0;
    statusTitle_ = title;
    statusText_ = text;
    statusItem_.setAttributedTitle(
        {localizedString(composed.toUtf8().constData()), titlePointSize, adjustment, adjustment});
}

void StatusMenuController::setButtonTitle(const QString& title)
{
    statusTitle_ = title;
    statusText_.clear();
    statusItem_.setTitle(title);
}

QString StatusMenuController::getTimeStringFromInterval(double seconds, int style, bool includePrecision,
                                                        bool includeSeconds)
{
    DateComponentsFormatter formatter;
    formatter.allowedUnits = unitsFor(seconds, includePrecision, includeSeconds);
    if (style == 1) {
        formatter.zeroFormatting = DateComponentsFormatter::ZeroFormatting::None;
        formatter.unitsStyle = DateComponentsFormatter::UnitsStyle::Positional;
    } else if (style == 2) {
        formatter.zeroFormatting = DateComponentsFormatter::ZeroFormatting::DropLeading;
        formatter.unitsStyle = DateComponentsFormatter::UnitsStyle::Abbreviated;
    }
    return formatter.string(seconds);
}

QString StatusMenuController::stringRepresentationOfBytes(std::int64_t bytes)
{
    const auto count = static_cast<double>(bytes);
    if (bytes <= 999)
        return u"%1 bytes"_s.arg(bytes);
    if (bytes <= 999'999)
        return format("%.0f KB", count / 1e3);
    if (bytes <= 999'999'999)
        return format("%.1f MB", count / 1e6);
    if (bytes < 1'000'000'000'000)
        return format("%.2f GB", count / 1e9);
    return format("%.2f TB", count / 1e12);
}

QString StatusMenuController::nameForBackupDiskWithIdentifier(const QString& identifier) const
{
    const auto found = std::find_if(backupDisks_.begin(), backupDisks_.end(),
                                    [&](const BackupDestination& disk) { return disk.id == identifier; });
    return found == backupDisks_.end() ? localizedString("notAvailableAbbreviation")
                                       : nameForBackupDiskWithName(found->name);
}

QString StatusMenuController::nameForBackupDiskWithName(const QString& name)
{
    const QString shown = displayedName(name);
    return shown.isEmpty() ? localizedString("notAvailableAbbreviation") : shown;
}

QString StatusMenuController::localisedStringForBackupPhase(const QString& rawPhase) const
{
    const QString phrase = tmutil_.stringForBackupPhase(rawPhase);
    const char* key = backupphase::localizationKey(phrase);
    return key ? localizedString(key) : phrase;
}

} // namespace quillon
