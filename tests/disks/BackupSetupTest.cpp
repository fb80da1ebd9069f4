#include "BackupSetup.h"

#include "Entries.h"
#include "LocalizedString.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QByteArray xml(const QByteArray& contents)
{
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">)" +
           contents + "</plist>\n";
}

} // namespace

TEST(BackupSetup, ADiskThatIsNotThereHasAPathButNoMountPoint)
{
    const auto disks = readBackupDisks(xml(R"(<dict><key>Destinations</key><array>
<dict><key>ID</key><string>A</string><key>Name</key><string>One &amp; two</string><key>Path</key><string>/m/1</string>
<key>MountPoint</key><string>/m/1</string><key>LastBackup</key><date>2026-11-21T07:22:58Z</date>
<key>SourceOnDisk</key><string>/home/you</string><key>BytesFree</key><integer>2500000000</integer><key>BytesTotal</key><integer>2000000000000</integer>
<key>LastFailure</key><dict><key>Date</key><string>2026-11-21 07:22:58 +0000</string>
<key>Description</key><string>The disk "1" is full.</string></dict></dict>
<dict><key>ID</key><string>B</string><key>Name</key><string>Away</string><key>Path</key><string>/m/2</string>
<key>RecoveryKeyMissing</key><integer>1</integer></dict>
</array></dict>)"));
    ASSERT_TRUE(disks);
    ASSERT_EQ(disks->size(), 2U);
    EXPECT_EQ(disks->front().name, u"One & two"_s);
    EXPECT_TRUE(disks->front().present);
    EXPECT_EQ(disks->front().lastBackup, Date(std::chrono::seconds(1'795'245'778)));
    EXPECT_EQ(disks->front().problem->date, disks->front().lastBackup);
    EXPECT_FALSE(disks->back().present);
    EXPECT_EQ(disks->back().path, u"/m/2"_s);
    EXPECT_FALSE(disks->back().lastBackup);

    const ListEntry here = diskEntry(disks->front(), 1'500'000);
    EXPECT_TRUE(here.details.last().contains(localizedString("disksRoom").arg(u"2.5 GB"_s, u"2.0 TB"_s)) &&
                here.details.last().contains(localizedString("disksTaken").arg(u"1.5 MB"_s)))
        << here.details.last().toStdString();
    ASSERT_EQ(here.remarks.size(), 2);
    EXPECT_EQ(here.remarks.last(), localizedString("disksSourceOnDisk").arg(u"you"_s));
    EXPECT_TRUE(here.remarks.first().endsWith(u"The disk \"1\" is full."_s));
    EXPECT_EQ(diskEntry(disks->back(), std::nullopt).remarks, QStringList(localizedString("disksKeyNotKept")));
}

TEST(BackupSetup, AnExclusionIsRemovedTheWayItWasMade)
{
    const auto exclusions = readExclusions(
        xml("<dict><key>Paths</key><array><string>/home/you/a&amp;b</string></array><key>Names</key>"
            "<array><string>-*.iso</string></array><key>LargestFile</key><integer>2000000</integer></dict>"));
    ASSERT_TRUE(exclusions);
    QStringList removals;
    for (const ListEntry& entry : exclusionEntries(*exclusions))
        removals.append(exclusionRemoval(entry.id).join(u' '));
    EXPECT_EQ(removals,
              (QStringList{u"removeexclusion -- /home/you/a&b"_s, u"includename -- -*.iso"_s, u"excludelarger 0"_s}));
}

TEST(BackupSetup, AnAnswerThatIsNotWholeIsNotTakenForAnEmptyOne)
{
    EXPECT_TRUE(readBackupDisks(xml("<dict><key>Destinations</key><array/></dict>"))->empty());
    EXPECT_TRUE(readPaths(xml("<array/>"))->isEmpty());
    EXPECT_EQ(readPaths(xml("<array><string>/a\nb</string></array>")), QStringList(u"/a\nb"_s));
    for (const QByteArray& answer : {QByteArray(), QByteArray("<plist><dict>"), xml("<dict/>"), xml("<true/>")}) {
        EXPECT_FALSE(readBackupDisks(answer)) << answer.toStdString();
        EXPECT_FALSE(readPaths(answer)) << answer.toStdString();
        EXPECT_FALSE(readExclusions(answer)) << answer.toStdString();
        EXPECT_FALSE(readUsage(answer)) << answer.toStdString();
        EXPECT_FALSE(readOmission(answer)) << answer.toStdString();
        EXPECT_FALSE(readRecoveryKey(answer)) << answer.toStdString();
    }
}

} // namespace quillon
