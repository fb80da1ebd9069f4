#include "StatusText.h"

namespace quillon {

QByteArray statusText()
{
    return R"({
    BackupPhase = Copying;
    ClientID = "com.apple.backupd";
    DateOfStateChange = "2024-05-20 11:39:06 +0000";
    DestinationID = "3F2504E0-4F89-41D3-9A0C-0305E82C3301";
    DestinationMountPoint = "/Volumes/Time Machine Backups";
    EventFractionOfTotalProgressBar = "0.1";
    FirstBackup = 0;
    FractionDone = "0.2857";
    FractionOfProgressBar = "0.9";
    NumberOfChangedItems = 10211;
    Progress =     {
        Percent = "0.2855129540625";
        TimeRemaining = "1127.531";
        "_raw_Percent" = "0.3172366156250";
        "_raw_totalBytes" = 2146353152;
        bytes = 680905984;
        files = 2915;
        sizingFreePreflight = 1;
        totalBytes = 2146353152;
        totalFiles = 10211;
    };
    Running = 1;
    Stopping = 0;
    attemptOptions = 1;
    volumes =     (
        "/System/Volumes/Data",
        "/Volumes/Archive"
    );
})";
}

QByteArray statusTexts(qsizetype size)
{
    const QByteArray element = statusText() + ",\n";
    return "(\n" + element.repeated(size / element.size()) + ")\n";
}

} // namespace quillon
