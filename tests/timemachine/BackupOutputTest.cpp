#include "BackupOutput.h"

#include "Retention.h"

#include <QTimeZone>

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
    EXPECT_EQ(output.unreadFiles(), 1);
    EXPECT_FALSE(output.readLine("half a li"));
}

TEST(Retention, KeepsHourlyDailyAndWeeklyBackupsOfAllSources)
{
    EXPECT_EQ(forgetArguments(u"tag"_s).join(u' '),
              u"forget --tag tag --group-by  --keep-hourly 24 --keep-daily 30 --keep-weekly 520"_s);
}

TEST(Retention, PrunesOnceAWeekWhateverTheClockDoes)
{
    const QDateTime now(QDate(2026, 11, 21), QTime(12, 0), QTimeZone::utc());
    EXPECT_TRUE(isPruneDue({}, now));
    EXPECT_FALSE(isPruneDue(now, now));
    EXPECT_FALSE(isPruneDue(now.addDays(-6), now));
    EXPECT_TRUE(isPruneDue(now.addDays(-7), now));
    EXPECT_TRUE(isPruneDue(now.addDays(400), now)) << "the clock has been set back";
}

} // namespace quillon
