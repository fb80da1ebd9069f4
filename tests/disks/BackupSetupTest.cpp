#include "BackupSetup.h"

#include "MountedDisks.h"

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
<key>MountPoint</key><string>/m/1</string><key>LastBackup</key><date>2026-11-21T07:22:58Z</date></dict>
<dict><key>ID</key><string>B</string><key>Name</key><string>Away</string><key>Path</key><string>/m/2</string></dict>
</array></dict>)"));
    ASSERT_TRUE(disks);
    ASSERT_EQ(disks->size(), 2U);
    EXPECT_EQ(disks->front().name, u"One & two"_s);
    EXPECT_TRUE(disks->front().present);
    EXPECT_EQ(disks->front().lastBackup, Date(std::chrono::seconds(1'795'245'778)));
    EXPECT_FALSE(disks->back().present);
    EXPECT_EQ(disks->back().path, u"/m/2"_s);
    EXPECT_FALSE(disks->back().lastBackup);
}

TEST(BackupSetup, AnAnswerThatIsNotWholeIsNotTakenForAnEmptyOne)
{
    EXPECT_TRUE(readBackupDisks(xml("<dict><key>Destinations</key><array/></dict>"))->empty());
    EXPECT_TRUE(readPaths(xml("<array/>"))->isEmpty());
    EXPECT_EQ(readPaths(xml("<array><string>/a\nb</string></array>")), QStringList(u"/a\nb"_s));
    for (const QByteArray& answer : {QByteArray(), QByteArray("<plist><dict>"), xml("<dict/>"), xml("<true/>")}) {
        EXPECT_FALSE(readBackupDisks(answer)) << answer.toStdString();
        EXPECT_FALSE(readPaths(answer)) << answer.toStdString();
    }
}

// As lsblk of util-linux 2.38 prints it.
TEST(MountedDisks, OffersWritableDisksThatAreNotTheSystems)
{
    const auto disks = readMountedDisks(R"({"blockdevices": [
{"label":null, "mountpoints":[null], "fsavail":null, "ro":false},
{"label":"root", "mountpoints":["/srv/bind","/"], "fsavail":10, "ro":false},
{"label":"EFI", "mountpoints":["/boot/efi"], "fsavail":10, "ro":false},
{"label":null, "mountpoints":["[SWAP]"], "fsavail":null, "ro":false},
{"label":"DVD", "mountpoints":["/media/u/DVD"], "fsavail":0, "ro":true},
{"label":null, "mountpoints":["/media/u/stick"], "fsavail":null, "ro":false},
{"label":"Back & up", "mountpoints":["/media/u/0815"], "fsavail":5000000000000, "ro":false}]})");
    EXPECT_EQ(disks, (std::vector<MountedDisk>{{u"Back & up"_s, u"/media/u/0815"_s, 5'000'000'000'000},
                                               {u"stick"_s, u"/media/u/stick"_s, std::nullopt}}));
    EXPECT_TRUE(readMountedDisks("lsblk: not found").empty());
}

} // namespace quillon
