#pragma once

#include <QString>

/// Keys of the user's settings database: "userSettings" for what the user chooses, "appSettings" for what the program
/// remembers.
namespace quillon::settingskeys {

using namespace Qt::StringLiterals;

// Booleans.
inline const QString firstLaunch = u"firstLaunch"_s;
inline const QString didShowAlertAtFirstLaunch = u"appSettingsDidShowAlertAtFirstLaunch"_s;

// Switches: integers that hold a control state, 1 on, anything else off.
inline const QString enableSchedule = u"userSettingsEnableSchedule"_s;
inline const QString enableRetryAtMissedSchedule = u"userSettingsEnableRetryAtMissedSchedule"_s;
inline const QString enableRetryAtFailure = u"userSettingsEnableRetryAtFailure"_s;
inline const QString showDetailedTime = u"userSettingsShowDetailedTime"_s;
inline const QString showMenuBarIconOnly = u"userSettingsShowMenuBarIconOnly"_s;
inline const QString enableMenuBarColors = u"userSettingsEnableMenuBarColors"_s;
inline const QString rotateBackupDisks = u"userSettingsRotateBackupDisks"_s;
inline const QString launchAtSystemStart = u"userSettingsLaunchAtSystemStart"_s;

/// Array of rule dictionaries.
inline const QString calendarIntervals = u"userSettingsCalendarIntervals"_s;

/// Date until which the schedule is paused, and the chosen length in seconds, 0 when it is not.
inline const QString pauseUntilDate = u"userSettingsPauseUntilDate"_s;
inline const QString pauseUntilTag = u"userSettingsPauseUntilTag"_s;

/// The latest backup to any disk: date, integer, string.
inline const QString lastBackupDate = u"appSettingsLastBackupDate"_s;
inline const QString lastBackupBytesCopied = u"appSettingsLastBackupBytesCopied"_s;
inline const QString lastBackupDiskIdentifier = u"appSettingsLastBackupDiskIdentifier"_s;

/// Array of archived BackupInfo records.
inline const QString latestBackupInfo = u"appSettingsLatestBackupInfo"_s;

/// Integer, a MenuBarIconState.
inline const QString lastMenuBarIconState = u"appSettingsLastMenuBarIconState"_s;

} // namespace quillon::settingskeys
