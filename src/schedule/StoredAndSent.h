#pragma once

#include "Date.h"

#include <QByteArray>
#include <QString>
#include <QVariantMap>

#include <cstdint>
#include <optional>

/// Keys of the user's settings database: "userSettings" for what the user chooses, "appSettings" for what the program
/// remembers.
namespace quillon::settingskeys {

using namespace Qt::StringLiterals;

// Booleans.
inline const QString firstLaunch = u"firstLaunch"_s;
inline const QString didShowAlertAtFirstLaunch = u"appSettingsDidShowAlertAtFirstLaunch"_s;

// Switches: integers that hold a control state, 1 on, anything else off. Of icon-only the menu bar takes any number
// but 0 for on.
inline const QString enableSchedule = u"userSettingsEnableSchedule"_s;
inline const QString enableRetryAtMissedSchedule = u"userSettingsEnableRetryAtMissedSchedule"_s;
inline const QString enableRetryAtFailure = u"userSettingsEnableRetryAtFailure"_s;
inline const QString showDetailedTime = u"userSettingsShowDetailedTime"_s;
inline const QString showMenuBarIconOnly = u"userSettingsShowMenuBarIconOnly"_s;
inline const QString enableMenuBarColors = u"userSettingsEnableMenuBarColors"_s;
inline const QString rotateBackupDisks = u"userSettingsRotateBackupDisks"_s;
inline const QString launchAtSystemStart = u"userSettingsLaunchAtSystemStart"_s;
inline const QString stayAwake = u"userSettingsStayAwake"_s;
inline const QString onlyOnMainsPower = u"userSettingsOnlyOnMainsPower"_s;
inline const QString startWhenDiskAppears = u"userSettingsStartWhenDiskAppears"_s;
inline const QString tellBeforeStart = u"userSettingsTellBeforeStart"_s;

/// Integer: the user is told when no backup has been completed for so many days; 0: never.
inline const QString daysWithoutBackup = u"userSettingsDaysWithoutBackup"_s;
inline constexpr qlonglong mostDaysWithoutBackup = 3650; // more would leave the clock's range

/// Integer: the charge of the battery, in per cent, above which a backup starts without mains power, too; 0: none.
inline const QString chargeThatSuffices = u"userSettingsChargeThatSuffices"_s;
inline constexpr qlonglong mostChargeThatSuffices = 100;

/// Integer: a retry comes so many minutes after a wake-up at the earliest; 0: as ever.
inline const QString minutesAfterWake = u"userSettingsMinutesAfterWake"_s;
inline constexpr qlonglong mostMinutesAfterWake = 1440; // a day

/// Array of rule dictionaries.
inline const QString calendarIntervals = u"userSettingsCalendarIntervals"_s;

/// Array of the starts that the user wants passed over or postponed.
inline const QString changedStarts = u"userSettingsChangedStarts"_s;

/// Date until which the schedule is paused, and the chosen length in seconds, 0 when it is not.
inline const QString pauseUntilDate = u"userSettingsPauseUntilDate"_s;
inline const QString pauseUntilTag = u"userSettingsPauseUntilTag"_s;

/// The latest backup to any disk: date, integer, string.
inline const QString lastBackupDate = u"appSettingsLastBackupDate"_s;
inline const QString lastBackupBytesCopied = u"appSettingsLastBackupBytesCopied"_s;
inline const QString lastBackupDiskIdentifier = u"appSettingsLastBackupDiskIdentifier"_s;

/// Array of archived BackupInfo records.
inline const QString latestBackupInfo = u"appSettingsLatestBackupInfo"_s;

/// Date since which the program watches the backups.
inline const QString watchedSinceDate = u"appSettingsWatchedSinceDate"_s;

/// Dictionary: when the user was last told of each concern, by the concern's name.
inline const QString toldConcerns = u"appSettingsToldConcerns"_s;

/// Integer, a MenuBarIconState.
inline const QString lastMenuBarIconState = u"appSettingsLastMenuBarIconState"_s;

} // namespace quillon::settingskeys

namespace quillon {

/// Which icon the menu bar shows; stored between launches.
enum class MenuBarIconState : std::int64_t {
    None = -1, ///< no image, before anything was set
    Idle = 1,
    Running = 2,
    Completed = 3, ///< a run ended, completed or stopped by the user
    UpdateAvailable = 4,
    Failed = 5,         ///< a run ended without completing and without a user's stop
    MissedSchedule = 6, ///< a scheduled backup was missed
};

/// The latest completed backup to one disk.
class BackupInfo {
public:
    /// An empty record that is dated `now`, the moment of its creation.
    explicit BackupInfo(Date now);
    BackupInfo(QString diskIdentifier, Date now);

    const QString& diskIdentifier() const { return diskIdentifier_; }
    const QString& diskName() const { return diskName_; }
    std::optional<Date> date() const { return date_; }
    std::int64_t totalBytes() const { return totalBytes_; }

    void setDiskName(const QString& name) { diskName_ = name; }
    void setDate(std::optional<Date> date) { date_ = date; }
    void setTotalBytes(std::int64_t bytes) { totalBytes_ = bytes; }

    /// The record as a binary property list.
    std::optional<QByteArray> archivedData() const;

    /// Reads archivedData(). A missing field is empty, the date too; a dictionary with none of the fields is no record,
    /// and anything else that is wrong gives nothing either.
    static std::optional<BackupInfo> unarchiveFromData(const QByteArray& data);

    bool operator==(const BackupInfo&) const = default;

private:
    BackupInfo() = default;

    QString diskIdentifier_;
    QString diskName_;
    std::optional<Date> date_;
    std::int64_t totalBytes_ = 0;
};

} // namespace quillon

/// Names of the notifications that parts of the program send each other.
namespace quillon::notifications {

using namespace Qt::StringLiterals;

/// The next scheduled date is reached: a backup is to be started.
inline const QString scheduledBackupShouldStart = u"scheduledBackupShouldStartNotification"_s;

/// The start timer ran a minute or more after its date: what becomes of the start is to be decided.
inline const QString scheduledBackupFoundLate = u"scheduledBackupFoundLateNotification"_s;

/// A setting that the menu bar shows, or that counts at every step, may have changed.
inline const QString shouldUpdateStatusBar = u"shouldUpdateStatusBarNotification"_s;

/// Somebody outside the settings panel has changed the rules.
inline const QString rulesChanged = u"rulesChangedNotification"_s;

/// The update check has an answer; user information "latestAppVersion": the newer version, or empty when there is none.
inline const QString appUpdateAvailable = u"appUpdateAvailableNotification"_s;

} // namespace quillon::notifications

namespace quillon {

/// What is read for settings that were never stored.
QVariantMap registeredDefaults();

} // namespace quillon
