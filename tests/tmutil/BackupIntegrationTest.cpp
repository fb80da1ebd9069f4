#include "BackupFixture.h"
#include "ExitStatus.h"
#include "History.h"
#include "PropertyList.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

/// Every entry below a folder, one a line: kind, access rights, time of change and contents.
std::string inventory(const QString& folder)
{
    QStringList entries;
    QDirIterator files(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        struct stat state {};
        lstat(QFile::encodeName(path).constData(), &state);
        QByteArray contents;
        if (S_ISLNK(state.st_mode)) {
            contents = std::filesystem::read_symlink(path.toStdString()).string().c_str();
        } else if (QFile file(path); S_ISREG(state.st_mode) && file.open(QIODevice::ReadOnly)) {
            contents = file.readAll();
        }
        entries.append(u"%1 %2 %3 %4 %5"_s.arg(path.mid(folder.size()))
                           .arg(state.st_mode)
                           .arg(state.st_mtim.tv_sec)
                           .arg(state.st_mtim.tv_nsec)
                           .arg(qHash(contents)));
    }
    entries.sort();
    return entries.join(u'\n').toStdString();
}

} // namespace

TEST_F(BackupIntegration, ATreeComesBackByteForByte)
{
    practice_.write(u"source/empty"_s, {});
    practice_.write(u"source/Grüße 漢字/naïve *[1]?.txt"_s, "unusual name");
    practice_.write(u"source/Grüße 漢字/plain"_s, QByteArray(3'000'000, 'x') + "end");
    practice_.write(u"source/locked/inside"_s, "in a folder that its owner may not write");
    QFile::link(u"Grüße 漢字/plain"_s, practice_.path(u"source/link"_s));
    QFile::link(u"nowhere"_s, practice_.path(u"source/dangling"_s));
    chmod(QFile::encodeName(practice_.path(u"source/locked"_s)).constData(), 0555);
    // The times of the source itself change with the disk that is made in it; it is not in the inventory.
    const std::string before = inventory(practice_.source());
    const QString id = practice_.addDisk(u"source/disk *[x]"_s);

    const Answer backup = practice_.backUp();
    ASSERT_EQ(backup.status, 0) << backup.error.toStdString();
    EXPECT_TRUE(backup.output.isEmpty());
    const QString name = QString::fromUtf8(practice_.run({u"latestbackup"_s}).output).trimmed();
    EXPECT_EQ(practice_.run({u"listbackups"_s}).output.trimmed(), name.toUtf8());

    // The disk itself lies in the source and is no part of the backup.
    const QString target = practice_.path(u"restored"_s);
    const Answer restored = practice_.run({u"restore"_s, name + practice_.source(), target});
    ASSERT_EQ(restored.status, 0) << restored.error.toStdString();
    EXPECT_EQ(inventory(target), before);
    ASSERT_EQ(call({u"restore"_s, name + practice_.path(u"source/locked"_s), practice_.path(u"locked"_s)}), 0);
    EXPECT_EQ(inventory(practice_.path(u"locked"_s)), inventory(practice_.path(u"source/locked"_s)));
    EXPECT_FALSE(QFileInfo(practice_.path(u"locked"_s)).permissions() & QFile::WriteOwner);

    EXPECT_EQ(call({u"restore"_s, name + practice_.source(), target}), static_cast<int>(ExitStatus::PathExists));
    EXPECT_EQ(inventory(target), before) << "nothing is overwritten";
    EXPECT_EQ(call({u"restore"_s, name + "/not/there"_L1, practice_.path(u"other"_s)}),
              static_cast<int>(ExitStatus::NoBackup));
    EXPECT_FALSE(QFileInfo::exists(practice_.path(u"other"_s)));

    // restic and the key alone do as well.
    ASSERT_EQ(
        practice_
            .restic(u"source/disk *[x]"_s, id, {u"restore"_s, u"latest"_s, u"--target"_s, practice_.path(u"by-hand"_s)})
            .status,
        0);
    EXPECT_EQ(inventory(practice_.path(u"by-hand"_s) + practice_.source()), before);
    for (const QString& locked : {u"source/locked"_s, u"restored/locked"_s, u"locked"_s})
        chmod(QFile::encodeName(practice_.path(locked)).constData(), 0755); // so that they can be removed
}

TEST_F(BackupIntegration, PathsAreFoundThroughLinksAndWithAnyBytes)
{
    practice_.addDisk(u"disk"_s);
    const QByteArray odd = practice_.source().toUtf8() + "/Gr\xFC\xDF"
                                                         "e.txt";               // Latin 1
    QFile::copy(practice_.executable(), practice_.path(u"source/Gr??e.txt"_s)); // what a pattern might take for it
    ASSERT_EQ(link(QFile::encodeName(practice_.executable()).constData(), odd.constData()), 0);
    ASSERT_TRUE(QFile::link(practice_.path(u"."_s), practice_.path(u"link"_s)));
    ASSERT_EQ(practice_.backUp().status, 0);
    const auto restore = [&](const QByteArray& path, const char* target) {
        practice_.write(u"script"_s, "#!/bin/sh\nexec '" + practice_.executable().toUtf8() + "' restore \"$('" +
                                         practice_.executable().toUtf8() + "' latestbackup)" + path + "\" '" +
                                         practice_.path(QString::fromLatin1(target)).toUtf8() + "'\n");
        return runProgram(u"/bin/sh"_s, {practice_.path(u"script"_s)}).status;
    };
    EXPECT_EQ(restore(odd, "odd"), 0);
    EXPECT_TRUE(QFileInfo(practice_.path(u"odd"_s)).isFile());
    EXPECT_EQ(restore(practice_.path(u"link/source"_s).toUtf8(), "through a link"), 0);
    // Qt lists no name that it cannot read.
    const QByteArray files =
        runProgram(u"/usr/bin/find"_s, {practice_.path(u"through a link"_s), u"-type"_s, u"f"_s}).output;
    EXPECT_EQ(files.count('\n'), 2) << files.toStdString();
    for (const QString& name : {u"source"_s, u"through a link"_s}) // which Qt could not remove
        runProgram(u"/bin/rm"_s, {u"-r"_s, practice_.path(name)});
}

TEST_F(BackupIntegration, AKilledRestoreIsClearedAwayByTheNext)
{
    practice_.addDisk(u"disk"_s);
    practice_.writeLargeFile();
    ASSERT_EQ(practice_.backUp().status, 0);
    const QString name = QString::fromUtf8(practice_.run({u"latestbackup"_s}).output).trimmed() + practice_.source();
    QProcess restore;
    restore.start(practice_.executable(), {u"restore"_s, name, practice_.path(u"whole"_s)});
    ASSERT_TRUE(eventually([this] { return hiddenFolders().size() == 1; }));
    const pid_t restic = childOf(static_cast<pid_t>(restore.processId()));
    restore.kill();
    ASSERT_TRUE(restore.waitForFinished(60'000));
    ASSERT_TRUE(eventually([=] { return restic == 0 || ::kill(restic, 0) != 0; }));
    EXPECT_EQ(hiddenFolders().size(), 1);
    ASSERT_TRUE(QDir().mkdir(practice_.path(u".tmutil-restore-mine"_s)));
    EXPECT_EQ(call({u"restore"_s, name + "/not there"_L1, practice_.path(u"other"_s)}),
              static_cast<int>(ExitStatus::NoBackup));
    EXPECT_EQ(hiddenFolders(), QStringList(u".tmutil-restore-mine"_s)) << "no restore has made it";
}

TEST_F(BackupIntegration, AStopOnceTheBackupIsWrittenIsNoFailure)
{
    const QString id = practice_.addDisk(u"disk"_s);
    startLongBackup();
    const QString pipe = practice_.repository(u"disk"_s, id) + "/snapshots/"_L1 + QString(64, u'0');
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    int pipeEnd = -1;
    ASSERT_TRUE(eventually([&] { // somebody reads the list of backups, and waits for more of it
        pipeEnd = open(QFile::encodeName(pipe).constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
        return pipeEnd >= 0;
    }));
    ASSERT_EQ(call({u"stopbackup"_s}), 0);
    ASSERT_TRUE(eventually([this] { return !isRunning(); }));
    close(pipeEnd);
    QFile::remove(pipe);
    EXPECT_FALSE(practice_.status().contains(u"LastFailure"_s));
    EXPECT_EQ(call({u"latestbackup"_s}), 0);
}

TEST_F(BackupIntegration, AResticThatSaysInJsonWhatEndedItIsUnderstoodAndALockThatLastsIsWaitedFor)
{
    practice_.addDisk(u"disk"_s);
    practice_.write(u"source/file"_s, "file");
    practice_.write(u"locked"_s, {});
    // restic 0.17 and later, written from its documentation ("Scripting"), in front of the one that is installed.
    practice_.write(u"restic"_s, R"(#!/bin/sh
end() { echo '{"message_type":"exit_error","code":'$1',"message":"'"$2"'"}' >&2; exit $1; }
case "$*" in
*' backup '*)
    [ -e '$folder/locked' ] && {
        [ -e '$folder/asked' ] && rm -f '$folder/locked'
        touch '$folder/asked'
        end 11 'unable to create lock in backend: repository is already locked by PID 1'
    }
    [ -e '$folder/forgetful' ] && { /usr/bin/restic "$@"; rm -f snapshots/*; exit; }
    [ -e '$folder/broken' ] && end 1 'Fatal: unable to save snapshot: something new' ;;
*' unlock') end 1 'sends SIGHUP to whichever process bears the number in a lock' ;;
esac
exec /usr/bin/restic "$@"
)"_ba.replace("$folder", practice_.path(u"."_s).toUtf8()));
    const auto answer = runWhereMountsAreAllowed(uR"(
mount -t tmpfs none /usr/local/bin && cp '%1/restic' /usr/local/bin && chmod 755 /usr/local/bin/restic || exit
'%2' startbackup -b 2>&1; echo $?
touch '%1/forgetful'
'%2' startbackup -b 2>&1
rm '%1/forgetful'; touch '%1/broken'
'%2' startbackup -b 2>&1
)"_s.arg(practice_.path(u"."_s), practice_.executable()));
    if (answer) {
        EXPECT_EQ(answer->output, "0\ntmutil: The backup was written, but cannot be found on the disk \"disk\".\n"
                                  "tmutil: restic: unable to save snapshot: something new\n");
    }
}

TEST_F(BackupIntegration, AStoppedBackupLeavesNoSnapshotAndASoundRepository)
{
    const QString id = practice_.addDisk(u"disk"_s);
    startLongBackup();
    ASSERT_EQ(call({u"stopbackup"_s}), 0);
    ASSERT_TRUE(eventually([this] { return !isRunning(); }));
    EXPECT_EQ(call({u"latestbackup"_s}), static_cast<int>(ExitStatus::NoBackup));
    EXPECT_FALSE(practice_.status().contains(u"LastFailure"_s)) << "to stop is not to fail";
    EXPECT_TRUE(QDir(practice_.repository(u"disk"_s, id) + "/locks"_L1).isEmpty());
    EXPECT_EQ(practice_.restic(u"disk"_s, id, {u"check"_s}).status, 0);
}

TEST_F(BackupIntegration, AKilledWorkerIsNotRunningAndTheNextBackupWorks)
{
    const QString id = practice_.addDisk(u"disk"_s);
    startLongBackup();
    const pid_t killed = worker();
    const pid_t restic = childOf(killed);
    ASSERT_GT(restic, 0);
    kill(killed, SIGKILL);
    ASSERT_TRUE(eventually([=] { return ::kill(killed, 0) != 0; }));
    EXPECT_FALSE(isRunning());
    EXPECT_EQ(practice_.status().value(u"LastFailure"_s).toMap().value(u"Cause"_s), u"Interrupted"_s);
    EXPECT_TRUE(eventually([=] { return ::kill(restic, 0) != 0; })) << "restic outlives its worker";

    // As after a power loss: restic had no time to take its lock away. An exclusive lock, as left by an interrupted
    // prune, would keep the next backup out; forgetting old backups is kept out by any.
    startLongBackup();
    const pid_t second = worker();
    const pid_t secondRestic = childOf(second);
    kill(second, SIGSTOP);
    kill(secondRestic, SIGKILL);
    kill(second, SIGKILL);
    ASSERT_TRUE(eventually([=] { return ::kill(second, 0) != 0; }));
    ASSERT_FALSE(QDir(practice_.repository(u"disk"_s, id) + "/locks"_L1).isEmpty());

    QFile::remove(practice_.path(u"source/large"_s));
    practice_.write(u"source/small"_s, "small");
    const Answer backup = practice_.backUp();
    EXPECT_EQ(backup.status, 0) << backup.error.toStdString();
    EXPECT_FALSE(practice_.status().contains(u"LastFailure"_s));
    EXPECT_TRUE(QDir(practice_.repository(u"disk"_s, id) + "/locks"_L1).isEmpty());
    EXPECT_EQ(practice_.restic(u"disk"_s, id, {u"check"_s}).status, 0);
}

TEST_F(BackupIntegration, AWorkerKilledWhileItCleansUpHasMadeABackup)
{
    const QString id = practice_.addDisk(u"disk"_s);
    practice_.write(u"state/quillon-timemachine/history.plist"_s, "left by a damaged disk");
    startLongBackup();
    // Locks that were left are removed first: a pipe among them, which nobody writes to, holds restic there.
    const QString pipe = practice_.repository(u"disk"_s, id) + "/locks/"_L1 + QString(64, u'0');
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    ASSERT_TRUE(eventually([this] { return practice_.phase() == "ThinningPostBackup"_L1; }));
    kill(worker(), SIGKILL);
    ASSERT_TRUE(eventually([this] { return !isRunning(); }));
    EXPECT_FALSE(practice_.status().contains(u"LastFailure"_s));
    EXPECT_TRUE(History(practice_.stateFolder()).lastBackup(id).isValid());
    QFile::remove(pipe);
    EXPECT_EQ(call({u"latestbackup"_s}), 0);
}

TEST_F(BackupIntegration, TwoUsersBackUpToOneDisk)
{
    const QString first = practice_.addDisk(u"disk"_s);
    practice_.write(u"source/mine"_s, "mine");
    ASSERT_EQ(practice_.backUp().status, 0);

    const PracticeTmutil other(QStringLiteral(TMUTIL_EXECUTABLE));
    other.write(u"source/theirs"_s, "theirs");
    giveToOrdinaryUser(other);
    // Whoever mounts a disk for all lets all in.
    QFile::setPermissions(practice_.path(u"."_s),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ExeOther);
    const Answer set = callAsOrdinaryUser(other, {u"setdestination"_s, practice_.path(u"disk"_s)});
    ASSERT_EQ(set.status, 0) << set.error.toStdString();
    const Answer backup = callAsOrdinaryUser(other, {u"startbackup"_s, u"-b"_s});
    EXPECT_EQ(backup.status, 0) << backup.error.toStdString();
    EXPECT_EQ(QDir(practice_.path(u"disk/Quillon.backups"_s)).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 2);
    EXPECT_EQ(practice_.run({u"listbackups"_s}).output.count('\n'), 1) << "each sees their own";

    chmod(QFile::encodeName(practice_.path(u"disk/Quillon.backups"_s)).constData(), 0755);
    const PracticeTmutil third(QStringLiteral(TMUTIL_EXECUTABLE));
    if (geteuid() != 0)
        chmod(QFile::encodeName(practice_.path(u"disk/Quillon.backups"_s)).constData(), 0555);
    giveToOrdinaryUser(third);
    const Answer refused = callAsOrdinaryUser(third, {u"setdestination"_s, practice_.path(u"disk"_s)});
    EXPECT_EQ(refused.status, static_cast<int>(ExitStatus::CannotWrite));
    EXPECT_TRUE(refused.error.contains("/disk/Quillon.backups/") && refused.error.contains("Permission denied"))
        << refused.error.toStdString();
}

TEST_F(BackupIntegration, ARestoreLeavesNothingBesideItsTarget)
{
    practice_.addDisk(u"disk"_s);
    practice_.write(u"source/locked/locked too/file"_s, "found again");
    for (const QString& folder : {u"source/locked/locked too"_s, u"source/locked"_s})
        chmod(QFile::encodeName(practice_.path(folder)).constData(), 0555);
    practice_.writeLargeFile();
    giveToOrdinaryUser(practice_);
    ASSERT_EQ(callAsOrdinaryUser(practice_, {u"startbackup"_s, u"-b"_s}).status, 0);
    const QString name = QString::fromUtf8(practice_.run({u"latestbackup"_s}).output).trimmed() + practice_.source();

    const Answer restored = callAsOrdinaryUser(
        practice_, {u"restore"_s, name + "/locked/locked too/file"_L1, practice_.path(u"restored"_s)});
    EXPECT_EQ(restored.status, 0) << restored.error.toStdString();
    EXPECT_EQ(hiddenFolders(), QStringList());

    for (const int signal : {SIGTERM, SIGHUP}) {
        const QStringList command = commandOf(practice_, {u"restore"_s, name, practice_.path(u"whole"_s)});
        QProcess restore;
        restore.start(command.first(), command.mid(1));
        ASSERT_TRUE(eventually([this] { return hiddenFolders().size() == 1; }));
        ::kill(static_cast<pid_t>(restore.processId()), signal);
        ASSERT_TRUE(restore.waitForFinished(-1));
        EXPECT_EQ(restore.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(restore.exitCode(), static_cast<int>(ExitStatus::Stopped));
        EXPECT_EQ(hiddenFolders(), QStringList());
        EXPECT_FALSE(QFileInfo::exists(practice_.path(u"whole"_s)));
    }
    chmod(QFile::encodeName(practice_.path(u"source/locked"_s)).constData(), 0755); // so that they can be removed
    chmod(QFile::encodeName(practice_.path(u"source/locked/locked too"_s)).constData(), 0755);
}

TEST_F(BackupIntegration, UnreadableFilesLeaveACompletedBackupWithARemark)
{
    practice_.addDisk(u"disk"_s);
    practice_.write(u"source/readable"_s, "yes");
    practice_.write(u"source/secret"_s, "no");
    QFile::setPermissions(practice_.path(u"source/secret"_s), {});
    giveToOrdinaryUser(practice_);
    const Answer backup = callAsOrdinaryUser(practice_, {u"startbackup"_s, u"-b"_s});
    EXPECT_EQ(backup.status, 0) << backup.error.toStdString();
    EXPECT_EQ(backup.output, "One file could not be read.\n");
    const QVariantMap remark = practice_.status().value(u"LastFailure"_s).toMap();
    EXPECT_EQ(remark.value(u"UnreadFiles"_s).toInt(), 1);
    const QByteArray name = practice_.run({u"latestbackup"_s}).output;
    EXPECT_EQ(practice_.run({u"listunread"_s, QString::fromUtf8(name.trimmed())}).output,
              practice_.path(u"source/secret"_s).toUtf8() + '\n');
    const QByteArray log = practice_.run({u"log"_s}).output;
    EXPECT_TRUE(log.contains("Completed") && log.contains("1 not read") && log.endsWith(name)) << log.toStdString();
    const QByteArray usage = practice_.run({u"diskusage"_s}).output;
    EXPECT_TRUE(usage.contains(" bytes are free.\n" + name.trimmed() + "  1 files, ")) << usage.toStdString();
    EXPECT_EQ(call({u"listunread"_s, u"/no/backup"_s}), static_cast<int>(ExitStatus::NoBackup));
}

TEST_F(BackupIntegration, EveryRefusalHasAStatusAndALineOfItsOwn)
{
    const auto refused = [this](const QStringList& arguments, ExitStatus status) {
        const Answer answer = practice_.run(arguments);
        EXPECT_EQ(answer.status, static_cast<int>(status)) << arguments.join(u' ').toStdString();
        EXPECT_TRUE(answer.error.startsWith("tmutil: ") && answer.error.count('\n') == 1) << answer.error.toStdString();
    };
    refused({u"startbackup"_s}, ExitStatus::NoDestination);
    refused({u"listbackups"_s}, ExitStatus::NoDestination);
    refused({u"setdestination"_s, practice_.path(u"missing"_s)}, ExitStatus::NoInput);
    refused({u"startbackup"_s, u"--now"_s}, ExitStatus::Usage);
    refused({u"removedestination"_s, u"unknown"_s}, ExitStatus::UnknownDestination);
    refused({u"removesource"_s, practice_.path(u"other"_s)}, ExitStatus::NotListed);
    refused({u"removeexclusion"_s, practice_.source()}, ExitStatus::NotListed);
    refused({u"addexclusion"_s, practice_.source()}, ExitStatus::LeftOut);
    refused({u"isexcluded"_s, practice_.source(), practice_.path(u"missing"_s)}, ExitStatus::NoInput);

    const QString id = practice_.addDisk(u"disk"_s);
    refused({u"latestbackup"_s}, ExitStatus::NoBackup);
    refused({u"startbackup"_s, u"-d"_s, u"unknown"_s}, ExitStatus::UnknownDestination);
    // An unplugged disk whose mount point stays behind, empty.
    QDir().rename(practice_.path(u"disk"_s), practice_.path(u"unplugged"_s));
    QDir().mkpath(practice_.path(u"disk"_s));
    for (const QStringList& arguments : {QStringList{u"startbackup"_s}, {u"startbackup"_s, u"-d"_s, id}})
        refused(arguments, ExitStatus::DestinationMissing);
    EXPECT_TRUE(QDir(practice_.path(u"disk"_s)).isEmpty());
    EXPECT_TRUE(practice_.run({u"destinationinfo"_s}).output.contains(id.toUtf8())) << "it is still listed";

    for (const char* name : {"configuration", "configuration-previous"})
        practice_.write(u"config/quillon-timemachine/%1.plist"_s.arg(QLatin1StringView(name)), "<plist><dict>");
    refused({u"startbackup"_s}, ExitStatus::Configuration);
    EXPECT_EQ(failureCause(), u"ConfigurationDamaged"_s);
    EXPECT_EQ(call({u"setdestination"_s, practice_.path(u"unplugged"_s)}), 0) << "the way on";
    EXPECT_TRUE(practice_.run({u"destinationinfo"_s}).output.contains(id.toUtf8()));
}

TEST_F(BackupIntegration, ARepositoryThatLostItsConfigurationIsNeverMadeAnew)
{
    const QString id = practice_.addDisk(u"disk"_s);
    ASSERT_TRUE(QFile::remove(practice_.repository(u"disk"_s, id) + "/config"_L1));
    const Answer backup = practice_.backUp();
    EXPECT_EQ(backup.status, static_cast<int>(ExitStatus::Failed));
    EXPECT_TRUE(backup.error.contains("\"config\" is missing")) << backup.error.toStdString();
    EXPECT_FALSE(QFileInfo::exists(practice_.repository(u"disk"_s, id) + "/config"_L1));
    EXPECT_EQ(call({u"listbackups"_s}), static_cast<int>(ExitStatus::Failed)) << "which is not to have none";
}

TEST_F(BackupIntegration, WhatIsExcludedIsLeftOutAndNothingElse)
{
    practice_.addDisk(u"disk"_s);
    const QStringList excluded{u"a*b [c]?"_s,    u"two\nlines "_s, u"$HOME"_s,
                               u"back\\slash"_s, u"!no"_s,         u"\U00020080"_s};
    const QStringList kept{u"a*b [c]?d"_s, u"axb c1"_s, u"two"_s, u"backslash"_s, u"no"_s};
    QStringList paths;
    for (const QString& name : excluded) {
        practice_.write(u"source/"_s + name + "/file"_L1, "left out");
        paths.append(practice_.path(u"source/"_s + name));
    }
    for (const QString& name : kept)
        practice_.write(u"source/"_s + name + "/file"_L1, "kept");
    ASSERT_EQ(call(QStringList{u"addexclusion"_s} + paths), 0);
    const auto list = propertylist::parse(practice_.run({u"listexclusions"_s, u"-X"_s}).output);
    ASSERT_TRUE(list);
    EXPECT_EQ(list->toMap().value(u"Paths"_s).toStringList(), paths);
    const QString inside = practice_.path(u"source/$HOME/file"_s);
    const QString beside = practice_.path(u"source/two"_s);
    EXPECT_EQ(
        QString::fromUtf8(practice_.run({u"isexcluded"_s, inside, beside, practice_.path(u"disk"_s)}).output),
        u"[Excluded]    %1\n[Included]    %2\n[Excluded]    %3\n"_s.arg(inside, beside, practice_.path(u"disk"_s)));

    ASSERT_EQ(practice_.backUp().status, 0);
    const QString name = QString::fromUtf8(practice_.run({u"latestbackup"_s}).output).trimmed();
    ASSERT_EQ(call({u"restore"_s, name + practice_.source(), practice_.path(u"restored"_s)}), 0);
    QStringList restored = QDir(practice_.path(u"restored"_s)).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    QStringList expected = kept;
    restored.sort();
    expected.sort();
    EXPECT_EQ(restored, expected);
}

TEST_F(BackupIntegration, ADiskIsNotRemovedWhileABackupRunsToIt)
{
    const QString id = practice_.addDisk(u"disk"_s);
    practice_.addDisk(u"other"_s);
    startLongBackup();
    const Answer refused = practice_.run({u"removedestination"_s, id});
    EXPECT_EQ(refused.status, static_cast<int>(ExitStatus::AlreadyRunning));
    EXPECT_TRUE(refused.error.startsWith("tmutil: ")) << refused.error.toStdString();
    EXPECT_TRUE(practice_.run({u"destinationinfo"_s}).output.contains(id.toUtf8()));
    EXPECT_TRUE(isRunning());
}

TEST_F(BackupIntegration, TheWorkerHoldsNothingOfItsCaller)
{
    practice_.addDisk(u"disk"_s);
    startLongBackup();
    const pid_t process = worker();
    EXPECT_EQ(getsid(process), process);
    for (const int descriptor : {0, 1, 2})
        EXPECT_EQ(QFile::symLinkTarget(u"/proc/%1/fd/%2"_s.arg(process).arg(descriptor)), u"/dev/null"_s);
    QFile environment(u"/proc/%1/environ"_s.arg(childOf(process)));
    ASSERT_TRUE(environment.open(QIODevice::ReadOnly));
    QStringList names;
    for (const QByteArray& variable : environment.readAll().split('\0'))
        names.append(QString::fromUtf8(variable.left(variable.indexOf('='))));
    names.removeAll(QString());
    names.sort();
    EXPECT_EQ(names, (QStringList{u"HOME"_s, u"PATH"_s, u"RESTIC_CACHE_DIR"_s, u"RESTIC_PASSWORD_FILE"_s,
                                  u"RESTIC_PROGRESS_FPS"_s, u"TMPDIR"_s}));
}

} // namespace quillon
