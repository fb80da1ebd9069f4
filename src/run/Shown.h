#pragma once

#include "BackupRun.h"
#include "Date.h"
#include "StoredAndSent.h"
#include "TMReports.h"

#include <QList>
#include <QString>

#include <cstdint>
#include <optional>

/// Lengths of time, sizes, disks and phases as they are shown.
namespace quillon::words {

/// Style 1 is positional ("1:30"), style 2 abbreviated ("1h 30m"); precision adds the second unit from one hour up,
/// seconds add it below.
QString timeFromInterval(double seconds, int style, bool includePrecision, bool includeSeconds);
/// In decimal units.
QString bytes(std::int64_t count);
/// The fraction as a percentage with one digit behind the point.
QString percent(double fraction);
/// The name of a destination as it is shown; "N/A" for none.
QString diskName(const QString& name);
/// The same of the destination that has the identifier; "N/A" for one that is not among them.
QString diskNameFor(const QString& identifier, const QList<BackupDestination>& disks);
/// A raw phase word in the user's language; an unknown one as it is.
QString phase(const QString& rawPhase);

} // namespace quillon::words

/// What the item and the menu show, as functions of one moment.
namespace quillon::shown {

/// All that what is shown is made of.
struct Snapshot {
    Date now;
    BackupRun run{};
    bool isScheduleEnabled = true;
    std::optional<Date> nextScheduledBackupDate{};
    std::optional<Date> retryBackupDate{};
    std::optional<Date> pauseUntil{};
    std::optional<Date> lastBackupDate{}; ///< with its size and disk
    std::int64_t lastBackupBytes = 0;
    QString lastBackupDisk{};
    QList<BackupDestination> backupDisks{};
    bool iconOnly = false;
    bool detailedTime = true;
    bool updateIsAvailable = false;
    bool commandIsUnderWay = false; ///< a start or a stop that is not answered yet
    bool waitsForPower = false;     ///< a start that was due is held back until mains return
    const char* skipThisBackupTitleLocaleKey = "skipThisBackupTitleVentura";
};

/// The two lines beside the icon; both empty for none.
struct ItemTitle {
    QString title;
    QString text;

    bool operator==(const ItemTitle&) const = default;
};

/// Nothing where it stays as it is.
std::optional<ItemTitle> itemTitle(const Snapshot& snapshot);

/// The icon between runs; nothing where it stays as it is.
std::optional<MenuBarIconState> idleIcon(const Snapshot& snapshot);
/// Whether a new icon replaces the current one: an idle one replaces no mark of a failure or of a missed schedule.
bool iconReplaces(MenuBarIconState wanted, MenuBarIconState current);

struct Menu {
    QString phase;
    std::optional<QString> backupDisk; ///< nothing hides the item
    QString remainingTime;
    std::optional<QString> pausedUntil; ///< nothing leaves the pause item's title as it is
    bool pauseIsEnabled = false;
    bool skipRetryIsShown = false;
    QString backupNow;
    bool backupNowIsEnabled = true;
    bool offersToStop = false;   ///< the disks' submenus are withdrawn then
    bool disksAreEnabled = true; ///< the entries of the backup-now item's submenu
    bool updateIsShown = false;

    bool operator==(const Menu&) const = default;
};

Menu menu(const Snapshot& snapshot);

/// Such as "Today, 12:00 (1.50 GB)"; "N/A" without a date.
QString backupText(std::optional<Date> date, std::int64_t bytes, Date now);
/// Title of the pause item while the schedule is paused.
QString pausedUntil(Date end, Date now);

} // namespace quillon::shown
