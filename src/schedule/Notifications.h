#pragma once

#include <QString>

/// Names of the notifications that parts of the program send each other.
namespace quillon::notifications {

using namespace Qt::StringLiterals;

/// The next scheduled date is reached: a backup is to be started.
inline const QString scheduledBackupShouldStart = u"scheduledBackupShouldStartNotification"_s;

/// The start timer found its date past by a minute or more: the start counts as missed.
inline const QString scheduledBackupFoundLate = u"scheduledBackupFoundLateNotification"_s;

/// A setting that the menu bar shows has changed.
inline const QString shouldUpdateStatusBar = u"shouldUpdateStatusBarNotification"_s;

/// The update check has an answer; user information "latestAppVersion": the newer version, or empty when there is none.
inline const QString appUpdateAvailable = u"appUpdateAvailableNotification"_s;

} // namespace quillon::notifications
