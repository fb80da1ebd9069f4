#include "BackupFixture.h"
#include "Configuration.h"
#include "ExitStatus.h"
#include "History.h"
#include "PropertyList.h"

#include <QDirIterator>

#include <sys/stat.h>

namespace quillon {

namespace {

QStringList entriesBelow(const QString& folder)
{
    QStringList entries;
    for (QDirIterator files(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                            QDirIterator::Subdirectories);
         files.hasNext();)
        entries.append(files.next().mid(folder.size()));
    entries.sort();
    return entries;
}

} // namespace

/// Backup disks that others have prepared, that are taken away, or that are not what they were.
using BackupDiskIntegration = BackupIntegration;

TEST_F(BackupDiskIntegration, WhatALinkOnTheDiskLeadsToIsLeftAlone)
{
    practice_.write(u"home/only copy"_s, "of years of work");
    practice_.write(u"home/folder/file"_s, "too");
    const QStringList home = entriesBelow(practice_.path(u"home"_s));
    const QString id = practice_.addDisk(u"disk"_s);
    const QString shared = practice_.path(u"disk/Quillon.backups"_s);
    const QString own = practice_.repository(u"disk"_s, id);
    const auto backUp = [&](const char* what, bool completes) {
        EXPECT_EQ(practice_.backUp().status == 0, completes) << what;
        EXPECT_EQ(call({u"setdestination"_s, practice_.path(u"disk"_s)}) == 0, completes) << what;
        EXPECT_EQ(entriesBelow(practice_.path(u"home"_s)), home) << what;
    };
    // Without a "config" the repository is made anew, in a folder beside its own.
    ASSERT_TRUE(QFile::link(practice_.path(u"home"_s), own + ".new"_L1));
    backUp("a link beside the repository", true);

    ASSERT_TRUE(QDir().rename(own + "/data"_L1, practice_.path(u"data"_s)));
    ASSERT_TRUE(QFile::link(practice_.path(u"home"_s), own + "/data"_L1));
    backUp("a link in the repository", false);
    QFile::remove(own + "/data"_L1);
    ASSERT_TRUE(QDir().rename(practice_.path(u"data"_s), own + "/data"_L1));
    backUp("the repository as it was", true);
    ASSERT_TRUE(QFile::link(practice_.path(u"home"_s), own + "/data/link"_L1));
    backUp("a link where files of data go", false);
    QFile::remove(own + "/data/link"_L1);

    for (const QString& replaced : {own, shared}) {
        ASSERT_TRUE(QDir().rename(replaced, practice_.path(u"aside"_s)));
        ASSERT_TRUE(QFile::link(practice_.path(u"home"_s), replaced));
        backUp("a link in the place of a folder", false);
        QFile::remove(replaced);
        ASSERT_TRUE(QDir().rename(practice_.path(u"aside"_s), replaced));
    }
    if (geteuid() == 0) {
        ASSERT_EQ(chown(QFile::encodeName(own).constData(), 65534, 65534), 0);
        backUp("another user's folder", false);
    }
}

TEST_F(BackupDiskIntegration, ADiskTakenAwayDuringABackupHasNoBackupAndNothingIsWrittenInItsPlace)
{
    const QString id = practice_.addDisk(u"disk"_s);
    startLongBackup();
    ASSERT_TRUE(QDir().rename(practice_.path(u"disk"_s), practice_.path(u"unplugged"_s)));
    ASSERT_TRUE(QDir().mkdir(practice_.path(u"disk"_s)));
    ASSERT_TRUE(eventually([this] { return !isRunning(); }));
    EXPECT_EQ(failureCause(), u"DestinationMissing"_s);
    EXPECT_EQ(entriesBelow(practice_.path(u"disk"_s)), QStringList());
    EXPECT_FALSE(History(practice_.stateFolder()).lastBackup(id).isValid());
    EXPECT_FALSE(practice_.run({u"destinationinfo"_s}).output.contains("Mount Point"));

    // A mount point that everyone may write to, and a disk pulled out of it.
    const auto answer = runWhereMountsAreAllowed(uR"(
mkdir '%1/mounted' && chmod 777 '%1/mounted' && mount -t tmpfs none '%1/mounted' || exit
'%2' setdestination '%1/mounted' >/dev/null && '%2' startbackup || exit
until '%2' status | grep -q 'BackupPhase = Copying'; do sleep 0.1; done
umount -l '%1/mounted'
while '%2' status | grep -q 'Running = 1'; do sleep 0.1; done
'%2' status | grep -o 'Cause = .*;'
find '%1/mounted' -mindepth 1
)"_s.arg(practice_.path(u"."_s), practice_.executable()));
    if (answer) {
        EXPECT_EQ(answer->output, "Cause = DestinationMissing;\n") << answer->error.toStdString();
    }
}

TEST_F(BackupDiskIntegration, ADiskThatCannotBeReadOrIsACopyHidesNoOther)
{
    const QString id = practice_.addDisk(u"disk"_s);
    practice_.write(u"source/file"_s, "file");
    ASSERT_EQ(practice_.backUp().status, 0);
    const QByteArray backup = practice_.run({u"listbackups"_s}).output;
    ASSERT_EQ(call({u"setdestination"_s, u"-a"_s, practice_.path(u"."_s)}), 0);
    QDir(practice_.path(u"Quillon.backups"_s)).removeRecursively();
    ASSERT_EQ(
        runProgram(u"/bin/cp"_s, {u"-r"_s, practice_.path(u"disk/Quillon.backups"_s), practice_.path(u"."_s)}).status,
        0);
    const Answer copied = practice_.run({u"setdestination"_s, u"-a"_s, practice_.path(u"."_s)});
    EXPECT_EQ(copied.status, static_cast<int>(ExitStatus::NoInput)) << copied.error.toStdString();
    EXPECT_TRUE(practice_.run({u"destinationinfo"_s}).output.contains(practice_.path(u"disk"_s).toUtf8() + '\n'));

    const QString other = practice_.addDisk(u"other"_s);
    practice_.write(u"other/Quillon.backups/%1/config"_s.arg(other), "garbage");
    const Answer list = practice_.run({u"listbackups"_s});
    EXPECT_EQ(list.output, backup);
    EXPECT_TRUE(list.error.startsWith("tmutil: other: ")) << list.error.toStdString();
    EXPECT_EQ(list.status, 0);
}

TEST_F(BackupDiskIntegration, ABackupThatBeginsAsItsDiskIsRemovedIsNotMade)
{
    const QString id = practice_.addDisk(u"disk"_s);
    const QString other = practice_.addDisk(u"other"_s);
    const QString lockFile = practice_.stateFolder() + "/worker.lock"_L1;
    QProcess backup;
    {
        ProcessLock lock(lockFile);
        ASSERT_TRUE(lock.tryLock());
        EXPECT_EQ(call({u"removedestination"_s, other}), static_cast<int>(ExitStatus::AlreadyRunning))
            << "whose lock it is, and for which disk, cannot be told";
        backup.start(practice_.executable(), {u"runbackup"_s, u"-d"_s, id});
        const auto waitsForLock = [&] {
            const QDir files(u"/proc/%1/fd"_s.arg(backup.processId()));
            const auto names = files.entryList(QDir::Files | QDir::System);
            return std::any_of(names.begin(), names.end(), [&](const QString& name) {
                return QFile::symLinkTarget(files.filePath(name)) == lockFile;
            });
        };
        ASSERT_TRUE(eventually(waitsForLock));
        Configuration({{}, practice_.configurationFolder(), practice_.stateFolder(), {}}).removeDestination(id);
    }
    ASSERT_TRUE(backup.waitForFinished(-1));
    EXPECT_EQ(backup.exitCode(), static_cast<int>(ExitStatus::UnknownDestination));
    EXPECT_EQ(call({u"removedestination"_s, other}), 0);
}

TEST_F(BackupDiskIntegration, TheSizeOfTheBackupsIsThatOfTheUsersOwnFiles)
{
    const QString id = practice_.addDisk(u"disk"_s);
    practice_.addDisk(u"away"_s);
    ASSERT_TRUE(QDir().rename(practice_.path(u"away"_s), practice_.path(u"unplugged"_s)));
    constexpr int size = 300'000;
    for (const QString& file : {u"/data/00/"_s + QString(64, u'0'), u"/../ANOTHER-USER/data"_s, u"/../../mine"_s})
        practice_.write(u"disk/Quillon.backups/"_s + id + file, QByteArray(size, 'x'));
    ASSERT_TRUE(QFile::link(practice_.path(u"disk"_s), practice_.repository(u"disk"_s, id) + "/link"_L1));
    const auto list = propertylist::parse(practice_.run({u"diskusage"_s, u"-X"_s}).output);
    ASSERT_TRUE(list);
    ASSERT_EQ(list->toList().size(), 1) << "of a disk that is not there nothing is known";
    const QVariantMap told = list->toList().first().toMap();
    EXPECT_EQ(told.value(u"ID"_s), id);
    EXPECT_GE(told.value(u"Bytes"_s).toLongLong(), size);
    EXPECT_LT(told.value(u"Bytes"_s).toLongLong(), size + 100'000);
}

TEST_F(BackupDiskIntegration, AFullDiskUnderTheToolsOwnFilesIsTold)
{
    practice_.addDisk(u"disk"_s);
    const auto answer = runWhereMountsAreAllowed(uR"(
mount -t tmpfs -o size=64k none '%1' && head -c 100000 /dev/zero >'%1/filler' 2>/dev/null
'%2' startbackup 2>&1 | grep -o 'is full'
'%2' status | grep -o 'Cause = .*;'
'%2' destinationinfo | grep -c 'Mount Point'
)"_s.arg(practice_.stateFolder(), practice_.executable()));
    if (answer) {
        EXPECT_EQ(answer->output, "is full\nCause = NoStateSpace;\n1\n") << answer->error.toStdString();
    }
}

} // namespace quillon
