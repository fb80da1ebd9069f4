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
    // A small file system in a mount namespace of its own; users who are not root get one in a user namespace.
    practice_.write(u"source/random"_s, {});
    ASSERT_EQ(runProgram(u"/bin/sh"_s, {u"-c"_s, u"/usr/bin/head -c 20000000 /dev/urandom >'%1'"_s.arg(
                                                     practice_.path(u"source/random"_s))})
                  .status,
              0);
    QDir().mkpath(practice_.path(u"disk"_s));
    QStringList arguments{u"--mount"_s};
    if (geteuid() != 0)
        arguments << u"--map-root-user"_s;
    const QString script =
        u"PATH=/usr/bin:/bin:/usr/sbin:/sbin && mount -t tmpfs -o size=8m none '%1' && "
        "'%2' setdestination '%1' && '%2' startbackup -b"_s.arg(practice_.path(u"disk"_s), practice_.executable());
    const Answer backup = practice_.watch(u"/usr/bin/unshare"_s, arguments << u"/bin/sh"_s << u"-c"_s << script);
    EXPECT_EQ(backup.status, static_cast<int>(ExitStatus::Failed));
    EXPECT_EQ(backup.error, "tmutil: The backup disk is full.\n");
    EXPECT_EQ(practice_.status().value(u"LastFailure"_s).toMap().value(u"Cause"_s), u"NoSpace"_s);
}

/// A full disk would stay full: thinning comes after copying, and no copy can be completed.
TEST_F(ThinningIntegration, AFullDiskIsGivenRoomOncePruningIsDue)
{
    QDir().mkpath(practice_.path(u"disk"_s));
    QStringList arguments{u"--mount"_s};
    if (geteuid() != 0)
        arguments << u"--map-root-user"_s;
    // Two backups of 5 MB each fit; the first is forgotten with the second, which is made in the same hour or the next.
    const QString script = uR"(
PATH=/usr/bin:/bin:/usr/sbin:/sbin
mount -t tmpfs -o size=13m none '%1' || exit
change() { head -c 5000000 /dev/urandom >'%3/data'; }
back_up() { '%2' startbackup -b 2>&1; echo "status $?"; }
prune_is_due() { sed -i '/LastPrune/{n;s/>[^<]*</>2020-01-01T00:00:00Z</}' '%4/history.plist'; }
'%2' setdestination '%1'
change; back_up
change; back_up
change
prune_is_due
head -c 20000000 /dev/zero >'%1/filler' 2>/dev/null
back_up
rm '%1/filler'
back_up
back_up
)"_s.arg(practice_.path(u"disk"_s), practice_.executable(), practice_.source(), practice_.stateFolder());
    const Answer answer = practice_.watch(u"/usr/bin/unshare"_s, arguments << u"/bin/sh"_s << u"-c"_s << script);
    EXPECT_EQ(answer.output, "status 0\n"
                             "status 0\n"
                             "tmutil: The backup disk \"disk\" is full.\nstatus 1\n"
                             "tmutil: The backup disk is full.\nstatus 1\n"
                             "status 0\n")
        << answer.error.toStdString();
}

TEST_F(ThinningIntegration, RoomIsGivenBackOnceAWeek)
{
    const QString id = practice_.addDisk(u"disk"_s);
    const auto used = [&] {
        qint64 bytes = 0;
        for (QDirIterator files(practice_.repository(u"disk"_s, id), QDir::Files, QDirIterator::Subdirectories);
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

TEST_F(ThinningIntegration, ABackupMadeAfterTheClockWasSetBackIsKept)
{
    const QString id = practice_.addDisk(u"disk"_s);
    practice_.write(u"source/file"_s, "file");
    ASSERT_EQ(practice_.backUp().status, 0);
    ASSERT_EQ(
        practice_
            .restic(u"disk"_s, id,
                    {u"backup"_s, u"--tag"_s, u"quillon"_s, u"--time"_s, u"2037-01-01 00:00:00"_s, practice_.source()})
            .status,
        0);
    const Answer backup = practice_.backUp();
    EXPECT_EQ(backup.status, 0) << backup.error.toStdString();
    EXPECT_TRUE(backup.output.contains("The clock was set back")) << backup.output.toStdString();
    EXPECT_EQ(practice_.run({u"listbackups"_s}).output.count('\n'), 3);
    EXPECT_EQ(practice_.status().value(u"LastFailure"_s).toMap().value(u"Cause"_s), u"Thinning"_s);
}

} // namespace quillon
