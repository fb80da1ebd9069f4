#include "Shown.h"

#include "DataHelper.h"
#include "DateFormatter.h"
#include "LocalizedString.h"
#include "TMReports.h"
#include "Text.h"

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

namespace quillon::shown {

using namespace Qt::StringLiterals;

namespace {

constexpr int abbreviated = 2; ///< style of a length of time

QString titled(const char* titleKey, const QString& text)
{
    return u"%1: %2"_s.arg(localizedString(titleKey), text);
}

QString updateMarker(const Snapshot& snapshot)
{
    return snapshot.updateIsAvailable ? u" 🟢"_s : QString();
}

QString runText(const Snapshot& snapshot)
{
    const BackupRun& run = snapshot.run;
    if (run.tmState() == TMState::Starting)
        return localizedString("statusStarting");
    if (run.tmState() == TMState::Stopping)
        return localizedString("statusStopping");
    const double remaining = run.progress().timeRemaining();
    if (remaining == 0.0) {
        const bool hasBegun = run.tmPhase() == "ThinningPostBackup"_L1 || run.progress().percentage() >= 0.01;
        return localizedString(hasBegun ? "statusRunning" : "statusStarting");
    }
    if (run.stopBackupConfirmed())
        return localizedString("statusStopping");
    if (remaining < 0)
        return u"..."_s;
    return words::timeFromInterval(remaining, abbreviated, snapshot.detailedTime, false);
}

QString timeToNextBackup(const Snapshot& snapshot)
{
    if (!snapshot.isScheduleEnabled)
        return localizedString("nextBackupDisabled");
    if (!snapshot.nextScheduledBackupDate)
        return localizedString("notAvailableAbbreviation");
    return words::timeFromInterval(secondsBetween(snapshot.now, *snapshot.nextScheduledBackupDate), abbreviated,
                                   snapshot.detailedTime, false);
}

QString phaseTitle(const Snapshot& snapshot)
{
    const BackupRun& run = snapshot.run;
    if (!run.isActive())
        return titled("latestBackupTitle", backupText(snapshot.lastBackupDate, snapshot.lastBackupBytes, snapshot.now));
    QString phase = words::phase(run.tmPhase());
    if (run.tmState() == TMState::Running) {
        const auto bytes = run.progress().bytesCopied();
        const QString copied =
            bytes > 0 ? u", %1 %2"_s.arg(words::bytes(bytes), localizedString("copiedWord")) : QString();
        phase += u" (%1%2)"_s.arg(words::percent(run.progress().percentage()), copied);
    }
    return titled("phaseTitle", phase);
}

QString remainingTimeTitle(const Snapshot& snapshot)
{
    const BackupRun& run = snapshot.run;
    if (run.tmState() == TMState::Running) {
        const double remaining = run.progress().timeRemaining();
        return titled("remainingTimeTitle", remaining > 0 ? words::timeFromInterval(remaining, abbreviated, true, true)
                                                          : localizedString("calculatingTitle") + u"..."_s);
    }
    if (run.isActive())
        return titled("remainingTimeTitle", localizedString("notAvailableAbbreviation"));
    QString next = localizedString("nextBackupDisabled");
    if (snapshot.isScheduleEnabled) {
        next = snapshot.nextScheduledBackupDate
                   ? DataHelper::dayAndTime(*snapshot.nextScheduledBackupDate, DateFormatterStyle::Full, snapshot.now)
                   : localizedString("notAvailableAbbreviation");
    }
    const QString retry = snapshot.retryBackupDate ? u"(%1)"_s.arg(localizedString("retryAttemptTitle")) : QString();
    return u"%1: %2 %3"_s.arg(localizedString("nextBackupTitle"), next, retry);
}

std::optional<QString> backupDiskTitle(const Snapshot& snapshot)
{
    if (snapshot.backupDisks.size() < 2)
        return std::nullopt;
    const QString identifier = snapshot.run.isReported() ? snapshot.run.activeBackupDiskIdentifier().value_or(QString())
                                                         : snapshot.lastBackupDisk;
    return titled("backupDiskTitle", words::diskNameFor(identifier, snapshot.backupDisks));
}

} // namespace

std::optional<ItemTitle> itemTitle(const Snapshot& snapshot)
{
    if (!snapshot.run.isActive() && snapshot.run.tmState() != TMState::NotRunning)
        return std::nullopt; // who cannot read the status has nothing new to say
    if (snapshot.iconOnly)
        return ItemTitle{};
    if (snapshot.run.isActive())
        return ItemTitle{words::percent(snapshot.run.progress().percentage()) + updateMarker(snapshot),
                         runText(snapshot)};
    const char* label = snapshot.retryBackupDate ? "retryBackupShortTitle" : "nextBackupShortTitle";
    return ItemTitle{u"%1:%2"_s.arg(localizedString(label), updateMarker(snapshot)), timeToNextBackup(snapshot)};
}

std::optional<MenuBarIconState> idleIcon(const Snapshot& snapshot)
{
    if (snapshot.run.tmState() != TMState::NotRunning)
        return std::nullopt;
    if (!snapshot.iconOnly)
        return MenuBarIconState::Idle;
    return snapshot.updateIsAvailable ? std::optional(MenuBarIconState::UpdateAvailable) : std::nullopt;
}

bool iconReplaces(MenuBarIconState wanted, MenuBarIconState current)
{
    const bool marksTrouble = current == MenuBarIconState::Failed || current == MenuBarIconState::MissedSchedule;
    return wanted != current && !(wanted == MenuBarIconState::Idle && marksTrouble);
}

Menu menu(const Snapshot& snapshot)
{
    const BackupRun& run = snapshot.run;
    const bool isStopping = run.stopBackupConfirmed() || run.tmState() == TMState::Stopping;
    Menu menu;
    menu.phase = phaseTitle(snapshot);
    menu.backupDisk = backupDiskTitle(snapshot);
    menu.remainingTime = remainingTimeTitle(snapshot);
    if (snapshot.pauseUntil && *snapshot.pauseUntil > snapshot.now)
        menu.pausedUntil = pausedUntil(*snapshot.pauseUntil, snapshot.now);
    menu.pauseIsEnabled = snapshot.isScheduleEnabled && run.tmState() == TMState::NotRunning;
    menu.skipRetryIsShown = snapshot.retryBackupDate.has_value();
    menu.offersToStop = run.isActive() && !isStopping;
    menu.backupNow = localizedString(menu.offersToStop ? snapshot.skipThisBackupTitleLocaleKey : "backupNowTitle");
    if (isStopping)
        menu.backupNow = localizedString("statusStopping") + u"..."_s;
    menu.backupNowIsEnabled = !isStopping && !snapshot.commandIsUnderWay;
    menu.disksAreEnabled = !snapshot.commandIsUnderWay;
    menu.updateIsShown = snapshot.updateIsAvailable;
    return menu;
}

QString backupText(std::optional<Date> date, std::int64_t bytes, Date now)
{
    if (!date)
        return localizedString("notAvailableAbbreviation");
    const QString size = bytes > 0 ? u" (%1)"_s.arg(words::bytes(bytes)) : QString();
    return DataHelper::dayAndTime(*date, DateFormatterStyle::Long, now) + size;
}

QString pausedUntil(Date end, Date now)
{
    return titled("pauseScheduleUntilTitle", DataHelper::dayAndTime(end, DateFormatterStyle::Full, now));
}

} // namespace quillon::shown
