#include "Words.h"

#include "ScopedEnvironment.h"

#include <QMap>

#include <gtest/gtest.h>
#include <limits>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(Words, BytesAreShownInDecimalUnitsTiesToEven)
{
    const struct {
        std::int64_t count;
        QString shown;
    } cases[] = {
        {-5, u"-5 bytes"_s},
        {999, u"999 bytes"_s},
        {1000, u"1 KB"_s},
        {2500, u"2 KB"_s},
        {999'999, u"1000 KB"_s},
        {1'000'000, u"1.0 MB"_s},
        {1'500'000, u"1.5 MB"_s},
        {999'999'999, u"1000.0 MB"_s},
        {1'000'000'000, u"1.00 GB"_s},
        {999'999'999'999, u"1000.00 GB"_s},
        {1'000'000'000'000, u"1.00 TB"_s},
    };
    for (const auto& [count, shown] : cases)
        EXPECT_EQ(words::bytes(count), shown);
}

TEST(Words, TimesTakeTheUnitsThatTheIntervalAndThePrecisionAllow)
{
    const ScopedEnvironment language("LC_ALL", "en_US.UTF-8");
    const struct {
        double seconds;
        int style;
        bool precise, withSeconds;
        QString shown;
    } cases[] = {
        {59.9, 2, true, true, u"59s"_s},
        {60, 2, true, false, u"1m"_s},
        {3599, 2, true, false, u"59m"_s},
        {3599, 2, true, true, u"59m 59s"_s},
        {3600, 2, true, true, u"1h 0m"_s},
        {3600, 2, false, true, u"1h"_s},
        {86400, 2, false, true, u"1d"_s},
        {90000, 2, true, false, u"1d 1h"_s},
        {std::numeric_limits<double>::quiet_NaN(), 2, true, true, u"0s"_s},
        {3900, 1, true, false, u"1:05"_s},
    };
    for (const auto& row : cases)
        EXPECT_EQ(words::timeFromInterval(row.seconds, row.style, row.precise, row.withSeconds), row.shown);
}

TEST(Words, NamesAreDecodedWhereTheyCanBe)
{
    const QList<BackupDestination> disks = {{u"A"_s, u"My%20Disk"_s}, {u"B"_s, {}}};
    EXPECT_EQ(words::diskNameFor(u"A"_s, disks), u"My Disk"_s);
    EXPECT_EQ(words::diskNameFor(u"B"_s, disks), u"N/A"_s);
    EXPECT_EQ(words::diskNameFor(u"C"_s, disks), u"N/A"_s);
    EXPECT_EQ(words::diskName(u"A%20100%"_s), u"A%20100%"_s);
    EXPECT_EQ(words::diskName(u"\u202e"_s), u"N/A"_s);
}

TEST(Words, PhasesAreNamedAsStepsOfABackup)
{
    const QMap<QString, QString> cases = {
        {u""_s, u"N/A"_s},
        {u"Starting"_s, u"Starting"_s},
        {u"FindingBackupVol"_s, u"Looking for Backup Disk"_s},
        {u"MountingBackupVol"_s, u"Connecting to Backup Disk"_s},
        {u"MountingDiskImage"_s, u"Connecting to Backup Disk"_s},
        {u"ThinningPreBackup"_s, u"Preparing Backup"_s},
        {u"PreparingSourceVolumes"_s, u"Preparing Backup"_s},
        {u"FindingChanges"_s, u"Preparing Backup"_s},
        {u"Copying"_s, u"Copying"_s},
        {u"ThinningPostBackup"_s, u"Cleaning Up"_s},
        {u"MountingBackupVolForHealthCheck"_s, u"Performing Health Check"_s},
        {u"HealthCheckCopyHFSMeta"_s, u"Performing Health Check"_s},
        {u"HealthCheckFsck"_s, u"Performing Health Check"_s},
        {u"Finishing"_s, u"Finishing"_s},
        {u"Not Running"_s, u"Not Running"_s},
        {u"Unknown"_s, u"Unknown"_s},
        {u"NotRunning"_s, u"NotRunning"_s},
    };
    for (const auto& [raw, shown] : cases.asKeyValueRange())
        EXPECT_EQ(words::phase(raw), shown);
}

} // namespace quillon
