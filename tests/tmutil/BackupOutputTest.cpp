#include "BackupOutput.h"

#include "Standstill.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

// Lines of restic 0.14.0, as recorded.

TEST(BackupOutput, TheFractionIsUnknownUntilTheScanHasEnded)
{
    BackupOutput output;
    EXPECT_FALSE(output.readLine(R"({"message_type":"status","percent_done":0,"total_files":1,"total_bytes":3000})"));
    EXPECT_FALSE(output.progress());
    EXPECT_FALSE(output.readLine(
        R"({"message_type":"verbose_status","action":"unchanged","item":"/a/1","duration":0,"data_size":0})"));

    ASSERT_TRUE(output.readLine(R"({"message_type":"status","percent_done":0.9,"total_files":301,"files_done":270,)"
                                R"("total_bytes":1000,"bytes_done":900,"current_files":["/src/big"]})"));
    EXPECT_EQ(output.progress(), (BackupProgress{.bytes = 900, .totalBytes = 1000, .files = 270, .totalFiles = 301}));
    EXPECT_EQ(output.progress()->toDictionary().value(u"Percent"_s), -1);
    EXPECT_FALSE(output.progress()->toDictionary().contains(u"TimeRemaining"_s));

    EXPECT_FALSE(output.readLine(R"({"message_type":"status","action":"scan_finished","item":"","duration":0.21,)"
                                 R"("data_size":2000,"data_size_in_repo":0,"total_files":301})"));
    ASSERT_TRUE(output.readLine(R"({"message_type":"status","seconds_elapsed":4,"seconds_remaining":12,)"
                                R"("percent_done":0.5,"total_files":301,"files_done":270,"total_bytes":2000,)"
                                R"("bytes_done":1000})"));
    EXPECT_EQ(output.progress()->fraction, 0.5);
    EXPECT_EQ(output.progress()->secondsRemaining, 12);

    // From restic 0.16 on the end of the scan is told like this (written from its documentation, "JSON output").
    BackupOutput later;
    EXPECT_FALSE(later.readLine(R"({"message_type":"verbose_status","action":"scan_finished","item":"","duration":0.2,)"
                                R"("data_size":2000,"total_files":301})"));
    ASSERT_TRUE(later.readLine(R"({"message_type":"status","percent_done":0.5,"files_done":1,"bytes_done":1000})"));
    EXPECT_EQ(later.progress()->fraction, 0.5);

    // A file grew while it was read.
    ASSERT_TRUE(output.readLine(R"({"message_type":"status","percent_done":1.25,"files_done":1,"bytes_done":2500})"));
    EXPECT_EQ(output.progress()->fraction, 1.0);
}

TEST(BackupOutput, TheSummaryNamesTheSnapshot)
{
    BackupOutput output;
    EXPECT_TRUE(output.snapshotId().isEmpty());
    EXPECT_TRUE(output.readLine(R"({"message_type":"summary","files_new":301,"total_files_processed":301,)"
                                R"("total_bytes_processed":50900000,"total_duration":0.77,"snapshot_id":"c324f869"})"));
    EXPECT_EQ(output.snapshotId(), u"c324f869"_s);
    EXPECT_EQ(output.progress()->bytes, 50900000);
    EXPECT_EQ(output.newFiles(), 301);
    EXPECT_EQ(output.progress()->fraction, 1.0);
}

TEST(BackupOutput, AnUnreadFileCountsOnce)
{
    BackupOutput output;
    for (const char* during : {"scan", "archival"})
        output.readMessage(
            QByteArray(R"({"message_type":"error","error":{"Op":"open","Path":"a/3","Err":13},"during":")") + during +
            R"(","item":"/a/3"})");
    output.readMessage("{ no JSON");
    EXPECT_EQ(output.unreadPaths(), QStringList(u"/a/3"_s));
    EXPECT_FALSE(output.readLine("half a li"));
}

TEST(BackupOutput, ASourceIsEmptyUntilAFileOfItHasBeenSeen)
{
    BackupOutput output({u"/a"_s, u"/b & c"_s, u"/b"_s});
    for (const char* item : {"/a/folder/", "/a/", "/", "/b \\u0026 c/d/file", "/ab"})
        output.readLine(QByteArray(R"({"message_type":"verbose_status","action":"new","item":")") + item + R"("})");
    EXPECT_EQ(output.emptySources(), (QStringList{u"/a"_s, u"/b"_s}));
    output.readLine(R"({"message_type":"verbose_status","action":"unchanged","item":"/a/file"})");
    EXPECT_EQ(output.emptySources(), QStringList(u"/b"_s));
}

TEST(BackupOutput, AnOnlySourceNeedsNoLineForEveryFile)
{
    const QString lines = u"--verbose=2"_s;
    EXPECT_TRUE(BackupOutput({u"/a"_s, u"/b"_s}).options().contains(lines));
    EXPECT_TRUE(BackupOutput({u"/a"_s}, true).options().contains(lines));
    BackupOutput output({u"/a"_s});
    EXPECT_FALSE(output.options().contains(lines));

    ASSERT_TRUE(output.readLine(R"({"message_type":"status","percent_done":0.5,"files_done":1,"bytes_done":1000})"));
    EXPECT_FALSE(output.progress()->fraction) << "the scan may not have ended";
    ASSERT_TRUE(output.readLine(R"({"message_type":"status","seconds_elapsed":2,"seconds_remaining":3,)"
                                R"("percent_done":0.5,"files_done":1,"bytes_done":1000})"));
    EXPECT_EQ(output.progress()->fraction, 0.5);

    output.readLine(R"({"message_type":"summary","total_files_processed":0,"snapshot_id":"c324f869"})");
    EXPECT_EQ(output.emptySources(), QStringList(u"/a"_s));
    output.readLine(R"({"message_type":"summary","total_files_processed":1,"snapshot_id":"c324f869"})");
    EXPECT_TRUE(output.emptySources().isEmpty());
}

TEST(BackupOutput, WhatIsStoredAnewAfterARepairWasRead)
{
    BackupOutput output({}, true);
    for (const char* item : {"/a/lost", "/a/unreadable", "/a/late"}) {
        if (QByteArrayView(item) == "/a/late") // standard output may be read ahead of standard error
            output.readLine(R"({"message_type":"verbose_status","action":"unchanged","item":"/a/late"})");
        output.readMessage(QByteArray(R"({"message_type":"error","error":{},"during":"archival","item":")") + item +
                           R"("})");
    }
    output.readLine(R"({"message_type":"verbose_status","action":"unchanged","item":"/a/lost"})");
    EXPECT_EQ(output.unreadPaths(), QStringList(u"/a/unreadable"_s));
}

TEST(Standstill, IsAMinuteOfTheSameProgress)
{
    using namespace std::chrono_literals;
    const std::chrono::steady_clock::time_point start{1h};
    const BackupProgress some{.bytes = 5};
    const BackupProgress more{.bytes = 6};
    Standstill standstill;
    EXPECT_FALSE(standstill.isSince({}, start));
    EXPECT_FALSE(standstill.isSince({}, start + 5min)) << "nothing has been told yet";
    EXPECT_FALSE(standstill.isSince(some, start + 6min));
    EXPECT_FALSE(standstill.isSince(some, start + 7min - 1ms));
    EXPECT_FALSE(standstill.isSince(more, start + 7min));
    EXPECT_TRUE(standstill.isSince(more, start + 8min));
}

} // namespace quillon
