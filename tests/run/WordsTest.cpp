#include "ScopedEnvironment.h"
#include "Shown.h"

#include <cmath>
#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(Words, BytesAreShownInDecimalUnitsTiesToEven)
{
    QStringList shown;
    for (const auto count : {-5LL, 999LL, 1000LL, 2500LL, 999'999LL, 1'000'000LL, 1'250'000LL, 999'999'999LL,
                             1'000'000'000LL, 1'250'000'000LL, 999'999'999'999LL, 1'000'000'000'000LL})
        shown.append(words::bytes(count));
    EXPECT_EQ(shown.join(u", "_s), u"-5 bytes, 999 bytes, 1 KB, 2 KB, 1000 KB, 1.0 MB, 1.2 MB, 1000.0 MB, 1.00 GB, "
                                   "1.25 GB, 1000.00 GB, 1.00 TB"_s);
}

TEST(Words, TimesTakeTheUnitsThatTheIntervalAndThePrecisionAllow)
{
    const ScopedEnvironment language("LC_ALL", "en_US.UTF-8");
    const auto text = [](double seconds, bool precise, bool withSeconds, int style = 2) {
        return words::timeFromInterval(seconds, style, precise, withSeconds);
    };
    EXPECT_EQ((QStringList{text(59.9, true, true), text(60, true, false), text(3599, true, false),
                           text(3599, true, true), text(3600, true, true), text(3600, false, true)})
                  .join(u", "_s),
              u"59s, 1m, 59m, 59m 59s, 1h 0m, 1h"_s);
    EXPECT_EQ((QStringList{text(86400, false, true), text(90000, true, false), text(std::nan(""), true, true),
                           text(3900, true, false, 1)})
                  .join(u", "_s),
              u"1d, 1d 1h, 0s, 1:05"_s);
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
