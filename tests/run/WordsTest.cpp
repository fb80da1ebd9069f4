#include "Words.h"

#include "ScopedEnvironment.h"

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
        {1'250'000, u"1.2 MB"_s},
        {999'999'999, u"1000.0 MB"_s},
        {1'250'000'000, u"1.25 GB"_s},
        {999'999'999'999, u"1000.00 GB"_s},
        {1'250'000'000'000, u"1.25 TB"_s},
        {1'000'000, u"1.0 MB"_s},
        {1'000'000'000, u"1.00 GB"_s},
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

TEST(Words, NamesAreDecodedWhereTheyCanBeAndPhasesTranslated)
{
    const QList<BackupDestination> disks = {{u"A"_s, u"My%20Disk"_s}, {u"B"_s, {}}};
    EXPECT_EQ(words::diskNameFor(u"A"_s, disks), u"My Disk"_s);
    EXPECT_EQ(words::diskNameFor(u"B"_s, disks), u"N/A"_s);
    EXPECT_EQ(words::diskNameFor(u"C"_s, disks), u"N/A"_s);
    EXPECT_EQ(words::diskName(u"A%20100%"_s), u"A%20100%"_s);
    EXPECT_EQ(words::diskName(u"\u202e"_s), u"N/A"_s);
    EXPECT_EQ(words::phase(u"FindingBackupVol"_s), u"Looking for Backup Disk"_s);
    EXPECT_EQ(words::phase(u"LazyThinning"_s), u"LazyThinning"_s);
}

} // namespace quillon
