#include "StoredAndSentNames.h"

#include "HostSystem.h"
#include "NextBackup.h"

namespace quillon {

QVariantMap registeredDefaults()
{
    using namespace settingskeys;
    // The pause, the changed starts, the remembered backups and the icon state have no default: absent is what their
    // readers look for.
    const qlonglong whereNobodyElseWatches = systemWatchesOverBackups() ? 0 : 1;
    return {
        {firstLaunch, true},
        {enableSchedule, 1LL},
        {enableRetryAtMissedSchedule, 1LL},
        {enableRetryAtFailure, 1LL},
        {showDetailedTime, 1LL},
        {showMenuBarIconOnly, 0LL},
        {enableMenuBarColors, 1LL},
        {rotateBackupDisks, 1LL},
        {launchAtSystemStart, 1LL},
        {calendarIntervals, QVariantList{CalendarIntervalRule().toDictionary()}},
        {daysWithoutBackup, 10 * whereNobodyElseWatches},
        {stayAwake, whereNobodyElseWatches},
        {startWhenDiskAppears, whereNobodyElseWatches},
    };
}

} // namespace quillon
