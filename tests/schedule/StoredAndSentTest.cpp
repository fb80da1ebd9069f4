#include "StoredAndSent.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

/// Users' settings are found by these names, and other programs listen to some: a slip of the pen costs them.
TEST(StoredAndSent, NamesAndDefaultsAreThese)
{
    using namespace settingskeys;
    const QVariantList rules = {QVariantMap{{u"day"_s, 0LL}, {u"time"_s, 43200LL}}};
    const struct {
        QString key, name;
        QVariant value; ///< while nothing is stored
    } settings[] = {
        {firstLaunch, u"firstLaunch"_s, true},
        {didShowAlertAtFirstLaunch, u"appSettingsDidShowAlertAtFirstLaunch"_s, {}},
        {enableSchedule, u"userSettingsEnableSchedule"_s, 1LL},
        {enableRetryAtMissedSchedule, u"userSettingsEnableRetryAtMissedSchedule"_s, 1LL},
        {enableRetryAtFailure, u"userSettingsEnableRetryAtFailure"_s, 1LL},
        {showDetailedTime, u"userSettingsShowDetailedTime"_s, 1LL},
        {showMenuBarIconOnly, u"userSettingsShowMenuBarIconOnly"_s, 0LL},
        {enableMenuBarColors, u"userSettingsEnableMenuBarColors"_s, 1LL},
        {rotateBackupDisks, u"userSettingsRotateBackupDisks"_s, 1LL},
        {launchAtSystemStart, u"userSettingsLaunchAtSystemStart"_s, 1LL},
        {stayAwake, u"userSettingsStayAwake"_s, 1LL},
        {onlyOnMainsPower, u"userSettingsOnlyOnMainsPower"_s, {}},
        {startWhenDiskAppears, u"userSettingsStartWhenDiskAppears"_s, 1LL},
        {tellBeforeStart, u"userSettingsTellBeforeStart"_s, {}},
        {daysWithoutBackup, u"userSettingsDaysWithoutBackup"_s, 10LL},
        {chargeThatSuffices, u"userSettingsChargeThatSuffices"_s, {}},
        {minutesAfterWake, u"userSettingsMinutesAfterWake"_s, {}},
        {calendarIntervals, u"userSettingsCalendarIntervals"_s, rules},
        {changedStarts, u"userSettingsChangedStarts"_s, {}},
        {pauseUntilDate, u"userSettingsPauseUntilDate"_s, {}},
        {pauseUntilTag, u"userSettingsPauseUntilTag"_s, {}},
        {lastBackupDate, u"appSettingsLastBackupDate"_s, {}},
        {lastBackupBytesCopied, u"appSettingsLastBackupBytesCopied"_s, {}},
        {lastBackupDiskIdentifier, u"appSettingsLastBackupDiskIdentifier"_s, {}},
        {latestBackupInfo, u"appSettingsLatestBackupInfo"_s, {}},
        {watchedSinceDate, u"appSettingsWatchedSinceDate"_s, {}},
        {toldConcerns, u"appSettingsToldConcerns"_s, {}},
        {lastMenuBarIconState, u"appSettingsLastMenuBarIconState"_s, {}},
    };
    for (const auto& [key, name, value] : settings) {
        EXPECT_EQ(key, name);
        EXPECT_EQ(registeredDefaults().value(key), value) << name.toStdString();
    }
    EXPECT_EQ(notifications::scheduledBackupShouldStart, u"scheduledBackupShouldStartNotification"_s);
    EXPECT_EQ(notifications::shouldUpdateStatusBar, u"shouldUpdateStatusBarNotification"_s);
    EXPECT_EQ(notifications::appUpdateAvailable, u"appUpdateAvailableNotification"_s);
}

} // namespace quillon
