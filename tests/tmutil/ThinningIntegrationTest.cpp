#include "BackupFixture.h"
#include "ExitStatus.h"
#include "History.h"

#include <QDir>
#include <QDirIterator>
#include <QRandomGenerator>

namespace quillon {

using ThinningIntegration = BackupIntegration;

TEST_F(ThinningIntegration, AFullDiskIsAFailureWithAClearLine)
{
    ASSERT_EQ(runProgram(u"/bin/sh"_s, {u"-c"_s, u"/usr/bin/head -c 20000000 /dev/urandom >'%1'"_s.arg(
                                                     practice_.path(u"source/random"_s))})
                  .status,
              0);
    QDir().mkpath(practice_.path(u"disk"_s));
    const auto answer = runWhereMountsAreAllowed(
        u"mount -t tmpfs -o size=8m none '%1' && '%2' setdestination '%1' >/dev/null && '%2' startbackup -b"_s.arg(
            practice_.path(u"disk"_s), practice_.executable()));
    if (!answer)
        return;
    const Answer& backup = *answer;
    EXPECT_EQ(backup.status, static_cast<int>(ExitStatus::Failed));
    EXPECT_EQ(backup.error, "tmutil: The backup disk is full.\n");
    EXPECT_EQ(practice_.status().value(u"LastFailure"_s).toMap().value(u"Cause"_s), u"NoSpace"_s);
}

/// A full disk would stay full: thinning comes after copying, and no copy can be completed. This one is full of other
/// things, so that a twentieth of it cannot be made free; what a backup needs can.
TEST_F(ThinningIntegration, AFullDiskIsGivenTheRoomItNeedsByWhatIsMissedLeast)
{
    QDir().mkpath(practice_.path(u"disk"_s));
    // Three backups of 2 MB fit; the rules keep all.
    const auto answer = runWhereMountsAreAllowed(uR"(
mount -t tmpfs -o size=100m none '%1' || exit
random() { head -c $2 /dev/urandom >'%3'/$1; }
back_up() {
    '%2' startbackup -b 2>&1 | sed 's/".*"/NAME/'
    '%2' listbackups | sed 's,.*/\(20..\)-.*,\1,; s,^20[^0].,TODAY,' | sort -u
}
'%2' setdestination '%1' >/dev/null
echo small >'%3/small'; '%2' startbackup -b
by_hand() {
    restic -q -r '%1/Quillon.backups/'* --no-cache --password-file '%4/keys/'*.key "$@" >/dev/null
}
for year in 2001 2002 2003; do
    random data 2000000
    by_hand backup --tag quillon --time "$year-01-01 10:00:00" '%3'
done
head -c 100000000 /dev/zero >'%1/other' 2>/dev/null; back_up
random much 20000000; back_up | sed 's/[0-9]* old backups, from NAME,/old backups/'
)"_s.arg(practice_.path(u"disk"_s), practice_.executable(), practice_.source(), practice_.configurationFolder()));
    if (answer) {
        EXPECT_EQ(answer->output.toStdString(),
                  "The disk was full, and the backup NAME was removed.\n2002\n2003\nTODAY\n"
                  "tmutil: The backup disk is full. The disk was full, and old backups were removed.\nTODAY\n")
            << answer->error.toStdString();
    }
}

TEST_F(ThinningIntegration, ABackupLargerThanTheRoomTakesThePlaceOfWhatIsMissedLeast)
{
    QDir().mkpath(practice_.path(u"disk"_s));
    // Two backups of 5 MB fit; the rules keep both.
    const auto answer = runWhereMountsAreAllowed(uR"(
mount -t tmpfs -o size=13m none '%1' || exit
change() { head -c 5000000 /dev/urandom >'%3/data'; }
'%2' setdestination '%1' >/dev/null
by_hand() {
    restic -q -r '%1/Quillon.backups/'* --no-cache --password-file '%4/keys/'*.key "$@" >/dev/null
}
for year in 2020 2021; do change; by_hand backup --tag quillon --time "$year-01-01 10:00:00" '%3'; done
change; '%2' startbackup -b | sed 's/".*"/NAME/'
'%2' listbackups | grep -o '/20[0-9][0-9]-' | sed 's,/202[^01].,TODAY,; s,/20[^2].*,TODAY,'
)"_s.arg(practice_.path(u"disk"_s), practice_.executable(), practice_.source(), practice_.configurationFolder()));
    if (answer) {
        EXPECT_EQ(answer->output, "The disk was full, and the backup NAME was removed.\n/2021-\nTODAY\n")
            << answer->error.toStdString();
    }
}

TEST_F(ThinningIntegration, RoomIsGivenBackOnceAWeek)
{
    const QString id = practice_.addDisk(u"disk"_s);
    const auto used = [&] {
        qint64 bytes = 0;
        for (QDirIterator files(practice_.repository(u"disk"_s, id) + "/data"_L1, QDir::Files,
                                QDirIterator::Subdirectories);
             files.hasNext();)
            bytes += files.nextFileInfo().size();
        return bytes;
    };
    const auto backUpAnew = [&] {
        QByteArray bytes(3'000'000, Qt::Uninitialized);
        QRandomGenerator::system()->generate(bytes.begin(), bytes.end());
        practice_.write(u"source/data"_s, bytes);
        return practice_.backUp().status;
    };
    ASSERT_EQ(backUpAnew(), 0);
    ASSERT_EQ(backUpAnew(), 0);
    ASSERT_EQ(backUpAnew(), 0);
    EXPECT_GT(used(), 9'000'000);

    History history(practice_.stateFolder());
    const QDateTime aWeekAgo = history.lastPrune(id).addDays(-7);
    history.setLastPrune(id, aWeekAgo);
    ASSERT_TRUE(history.save());
    ASSERT_EQ(practice_.backUp().status, 0);
    EXPECT_LT(used(), 7'000'000) << "the hour may have turned once, so that two backups are kept";
    EXPECT_GT(History(practice_.stateFolder()).lastPrune(id), aWeekAgo.addDays(1));
    EXPECT_EQ(practice_.restic(u"disk"_s, id, {u"check"_s}).status, 0);
    EXPECT_EQ(call({u"latestbackup"_s}), 0);
}

TEST_F(ThinningIntegration, ABackupDatedLaterThanNowIsKeptAndKeepsNoOtherFromBeingThinned)
{
    const QString id = practice_.addDisk(u"disk"_s);
    practice_.write(u"source/file"_s, "file");
    ASSERT_EQ(practice_.backUp().status, 0);
    const auto snapshotDated = [&](const QString& time) {
        return practice_
            .restic(u"disk"_s, id, {u"backup"_s, u"--tag"_s, u"quillon"_s, u"--time"_s, time, practice_.source()})
            .status;
    };
    ASSERT_EQ(snapshotDated(u"2106-01-01 00:00:00"_s), 0);
    ASSERT_EQ(snapshotDated(u"2020-01-01 10:00:00"_s), 0);
    ASSERT_EQ(snapshotDated(u"2020-01-01 10:30:00"_s), 0);
    const Answer backup = practice_.backUp();
    EXPECT_EQ(backup.output + backup.error, "");
    const QByteArray list = practice_.run({u"listbackups"_s}).output;
    EXPECT_EQ(list.count("/2020-01-01-"), 1);
    EXPECT_EQ(list.count("/2106-01-01-"), 1);
    EXPECT_FALSE(practice_.run({u"latestbackup"_s}).output.contains("2106"));

    const QString wrong = QString::fromUtf8(list).split(u'\n').filter(u"/2106-"_s).value(0);
    ASSERT_TRUE(wrong.contains("2106"_L1)) << list.toStdString();
    EXPECT_EQ(call({u"deletebackup"_s, wrong, u"/no/backup"_s}), static_cast<int>(ExitStatus::NoBackup));
    EXPECT_EQ(practice_.run({u"listbackups"_s}).output, list) << "all or none";
    EXPECT_EQ(call({u"deletebackup"_s, wrong}), 0);
    EXPECT_EQ(practice_.run({u"listbackups"_s}).output.count('\n'), list.count('\n') - 1);
}

} // namespace quillon
