#include "BackupSetup.h"

#include "LocalizedString.h"
#include "ScopedEnvironment.h"

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

TEST(BackupSetup, ADiskIsShownWithAllThatIsKnownOfIt)
{
    const auto disks = readBackupDisks(xml(R"(<dict><key>Destinations</key><array>
<dict><key>ID</key><string>A</string><key>Name</key><string>One &amp; two</string><key>Path</key><string>/m/1</string>
<key>MountPoint</key><string>/m/1</string><key>LastBackup</key><date>2026-11-21T07:22:58Z</date>
<key>SourceOnDisk</key><string>/home/you</string><key>BytesFree</key><integer>2500000000</integer><key>BytesTotal</key><integer>2000000000000</integer>
<key>LastFailure</key><dict><key>Date</key><string>2026-11-21 07:22:58 +0000</string>
<key>Description</key><string>The disk "1" is full.</string></dict></dict>
<dict><key>ID</key><string>B</string><key>Name</key><string>Away</string><key>Path</key><string>/m/2</string>
<key>BytesFree</key><integer>1</integer><key>BytesTotal</key><integer>2</integer>
<key>LastFailure</key><dict><key>Description</key><string>Once.</string></dict>
<key>RecoveryKeyMissing</key><integer>1</integer></dict>
<dict><key>ID</key><string>C</string><key>Name</key><string>backups</string><key>Kind</key><string>Network</string>
<key>URL</key><string>sftp://anna@nas/srv/backups</string><key>UploadLimit</key><integer>512</integer></dict>
</array></dict>)"));
    ASSERT_TRUE(disks && disks->size() == 3);
    EXPECT_EQ(disks->front().problem->date, Date(std::chrono::seconds(1'795'245'778)));
    const ScopedEnvironment zone("TZ", "UTC");
    const ScopedEnvironment locale("LC_ALL", "en_US.UTF-8");
    const QString moment = u"Nov 21, 2026, 7:22\u202fAM"_s;
    const auto text = [](const char* key) { return localizedString(key); };
    const ListEntry here{
        .id = u"A"_s,
        .title = u"One & two"_s,
        .details = {u"/m/1"_s, text("disksConnected") + u" – "_s + text("disksLastBackup").arg(moment),
                    text("disksRoom").arg(u"2.5 GB"_s, u"2.0 TB"_s) + u" – "_s + text("disksTaken").arg(u"1.5 MB"_s)},
        .remarks = {text("disksProblem").arg(moment, u"The disk \"1\" is full."_s),
                    text("disksSourceOnDisk").arg(u"you"_s)},
        .symbol = u"externaldrive"_s};
    EXPECT_EQ(diskEntry(disks->front(), 1'500'000), here)
        << diskEntry(disks->front(), 1'500'000).details.join(u'\n').toStdString();
    const ListEntry away{.id = u"B"_s,
                         .title = u"Away"_s,
                         .details = {u"/m/2"_s, text("disksNotConnected") + u" – "_s + text("disksNoBackupYet")},
                         .remarks = {u"Once."_s, text("disksKeyNotKept")},
                         .symbol = u"externaldrive"_s,
                         .dimmed = true};
    EXPECT_EQ(diskEntry(disks->at(1), std::nullopt), away);
    const ListEntry place{.id = u"C"_s,
                          .title = u"backups"_s,
                          .details = {u"sftp://anna@nas/srv/backups"_s, text("disksNoBackupYet"),
                                      text("disksPlaceUploadAtMost").arg(u"512 KiB/s"_s)},
                          .remarks = {},
                          .symbol = u"network"_s,
                          .editable = true};
    EXPECT_EQ(diskEntry(disks->back(), std::nullopt), place) << "whether the server can be reached nobody knows";
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
