#include "BackupFixture.h"
#include "ExitStatus.h"
#include "History.h"
#include "PropertyList.h"
#include "RecoveryKey.h"
#include "Verification.h"

#include <QRegularExpression>

#include <sys/stat.h>

namespace quillon {

/// The way back when the computer is lost, and disks that come back to one that has forgotten them.
class RecoveryIntegration : public BackupIntegration {
protected:
    void SetUp() override
    {
        QDir().mkpath(practice_.path(u"disk"_s));
        key_ = keyIn(practice_.run({u"setdestination"_s, practice_.path(u"disk"_s)}).output);
        id_ = QDir(practice_.path(u"disk/Quillon.backups"_s)).entryList(QDir::Dirs | QDir::NoDotAndDotDot).value(0);
        practice_.write(u"source/file"_s, "of years of work");
    }

    static QString keyIn(const QByteArray& output)
    {
        const auto match =
            QRegularExpression(u"^    (\\S+)$"_s, QRegularExpression::MultilineOption).match(QString::fromUtf8(output));
        return match.captured(1);
    }

    static Answer adopt(const PracticeTmutil& tmutil, const QString& path, const QString& secret)
    {
        QProcess process;
        process.start(tmutil.executable(), {u"adopt"_s, path});
        process.write(secret.toUtf8() + '\n');
        process.closeWriteChannel();
        process.waitForFinished(60'000);
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }

    static QVariantMap disk(const PracticeTmutil& tmutil)
    {
        const auto list = propertylist::parse(tmutil.run({u"destinationinfo"_s, u"-X"_s}).output);
        return list.value_or(QVariant()).toMap().value(u"Destinations"_s).toList().value(0).toMap();
    }

    QString key_;
    QString id_;
};

TEST_F(RecoveryIntegration, ANewComputerTakesTheBackupsUpWithWhatWasWrittenDown)
{
    ASSERT_EQ(recoveryKeyFrom(key_), key_);
    ASSERT_EQ(practice_.backUp().status, 0);
    const QByteArray again = practice_.run({u"setdestination"_s, practice_.path(u"disk"_s)}).output;
    EXPECT_EQ(keyIn(again), QString()) << "it is shown once";
    EXPECT_TRUE(again.contains("is on the same disk as")) << again.toStdString();
    EXPECT_TRUE(disk(practice_).contains(u"RecoveryKeyMissing"_s)) << "no person may have seen it";
    const QDir keys(practice_.repository(u"disk"_s, id_) + "/keys"_L1);
    const QStringList before = keys.entryList(QDir::Files);
    for (const char* options : {"", "-X"}) {
        const QString command =
            u"'%1' recoverykey %2 >/dev/full"_s.arg(practice_.executable(), QLatin1StringView(options));
        EXPECT_EQ(runProgram(u"/bin/sh"_s, {u"-c"_s, command}).status, static_cast<int>(ExitStatus::CannotWrite));
        EXPECT_EQ(keys.entryList(QDir::Files), before) << "what nobody has seen is removed again";
    }
    const PracticeTmutil unseen(QStringLiteral(TMUTIL_EXECUTABLE));
    EXPECT_EQ(adopt(unseen, practice_.path(u"disk"_s), key_).status, 0) << "one that was not shown replaces none";
    const QString renewed = keyIn(practice_.run({u"recoverykey"_s}).output);
    EXPECT_FALSE(disk(practice_).contains(u"RecoveryKeyMissing"_s));

    const PracticeTmutil other(QStringLiteral(TMUTIL_EXECUTABLE));
    const QString path = practice_.path(u"disk"_s);
    EXPECT_EQ(adopt(other, path, key_).status, static_cast<int>(ExitStatus::WrongKey)) << "it has been replaced";
    EXPECT_EQ(disk(other), QVariantMap());
    const Answer taken = adopt(other, path, renewed.toLower().replace(u'-', u' '));
    ASSERT_EQ(taken.status, 0) << taken.error.toStdString();
    EXPECT_TRUE(disk(other).contains(u"LastBackup"_s));
    const QString name = QString::fromUtf8(other.run({u"latestbackup"_s}).output).trimmed();
    ASSERT_EQ(other.run({u"restore"_s, name + practice_.source(), other.path(u"restored"_s)}).status, 0);
    QFile file(other.path(u"restored/file"_s));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly) && file.readAll() == "of years of work");
    other.write(u"source/more"_s, "work");
    EXPECT_EQ(other.backUp().status, 0) << "and goes on with them";
    EXPECT_EQ(call({u"latestbackup"_s}), 0) << "the first computer's key opens them as before";
}

TEST_F(RecoveryIntegration, AKeyThatAProgramShowsCountsOnceTheUserHasKeptIt)
{
    const auto offer = [this] {
        const auto list = propertylist::parse(practice_.run({u"recoverykey"_s, u"-X"_s, u"-d"_s, id_}).output);
        return list.value_or(QVariant()).toMap();
    };
    const auto keep = [this](const QString& keyId) {
        // As while a backup runs.
        ProcessLock lock(practice_.stateFolder() + "/worker.lock"_L1);
        EXPECT_TRUE(lock.tryLock());
        return practice_.run({u"recoverykey"_s, u"--kept"_s, keyId, u"-d"_s, id_}).status;
    };
    const auto opens = [this](const QString& key) {
        const PracticeTmutil other(QStringLiteral(TMUTIL_EXECUTABLE));
        return adopt(other, practice_.path(u"disk"_s), key).status == 0;
    };
    const QVariantMap first = offer();
    EXPECT_TRUE(disk(practice_).contains(u"RecoveryKeyMissing"_s)) << "shown is not kept";
    EXPECT_TRUE(opens(key_)) << "what may have been written down before is good until then";
    EXPECT_EQ(keep(u"00000000"_s), static_cast<int>(ExitStatus::WrongKey));
    EXPECT_TRUE(disk(practice_).contains(u"RecoveryKeyMissing"_s));
    ASSERT_EQ(keep(first.value(u"KeyID"_s).toString()), 0);
    EXPECT_FALSE(disk(practice_).contains(u"RecoveryKeyMissing"_s));
    EXPECT_FALSE(opens(key_));

    // One that is looked at and not kept changes nothing, however often; restic tries no more than twenty keys.
    const QDir keys(practice_.repository(u"disk"_s, id_) + "/keys"_L1);
    const QString kept = keys.entryList({first.value(u"KeyID"_s).toString() + u'*'}, QDir::Files).value(0);
    for (int copy = 10; copy < 18; ++copy)
        ASSERT_TRUE(QFile::copy(keys.filePath(kept), keys.filePath(QString::number(copy) + kept.mid(2))));
    const QVariantMap second = offer();
    EXPECT_EQ(keys.entryList(QDir::Files).size(), 4) << "two computers', the kept one, the new one";
    EXPECT_FALSE(disk(practice_).contains(u"RecoveryKeyMissing"_s));
    EXPECT_TRUE(opens(first.value(u"RecoveryKey"_s).toString()) && opens(second.value(u"RecoveryKey"_s).toString()));
}

TEST_F(RecoveryIntegration, ARepositoryMadeByHandIsTakenUpAndItsOwnBackupsAreKept)
{
    const auto byHand = [&](const QStringList& arguments) {
        return runProgram(u"/usr/bin/restic"_s,
                          QStringList{u"--repo"_s, practice_.path(u"hand made"_s), u"--no-cache"_s,
                                      u"--password-command"_s, u"/bin/echo 'a pass phrase'"_s} +
                              arguments)
            .status;
    };
    ASSERT_EQ(byHand({u"init"_s}), 0);
    for (const char* time : {"2020-01-01 10:00:00", "2020-01-01 10:30:00"})
        ASSERT_EQ(byHand({u"backup"_s, u"--host"_s, u"elsewhere"_s, u"--time"_s, QString::fromLatin1(time),
                          practice_.source()}),
                  0);
    EXPECT_EQ(adopt(practice_, practice_.path(u"hand made"_s), u"a pass  phrase"_s).status,
              static_cast<int>(ExitStatus::WrongKey));
    const Answer adopted = adopt(practice_, practice_.path(u"hand made"_s), u"a pass phrase"_s);
    ASSERT_EQ(adopted.status, 0);
    EXPECT_TRUE(adopted.output.contains("/elsewhere/2020-01-01-103000\". Of this computer it has none"));
    ASSERT_EQ(call({u"removedestination"_s, id_}), 0);
    EXPECT_FALSE(disk(practice_).contains(u"LastBackup"_s)) << "this computer has made none";
    EXPECT_EQ(practice_.backUp().status, 0);
    const QByteArray list = practice_.run({u"listbackups"_s}).output;
    EXPECT_EQ(list.count("/2020-01-01-10"), 2) << list.toStdString();
    EXPECT_EQ(list.count('\n'), 3) << list.toStdString();
}

TEST_F(RecoveryIntegration, ALostKeyIsNeverReplacedByOneThatOpensNothing)
{
    ASSERT_TRUE(QFile::rename(practice_.keyFile(id_), practice_.path(u"copy"_s)));
    const Answer refused = practice_.run({u"setdestination"_s, practice_.path(u"disk"_s)});
    EXPECT_EQ(refused.status, static_cast<int>(ExitStatus::WrongKey));
    EXPECT_TRUE(refused.error.contains("tmutil adopt")) << refused.error.toStdString();
    EXPECT_FALSE(QFileInfo::exists(practice_.keyFile(id_)));
    for (const QString& command : {u"listbackups"_s, u"latestbackup"_s, u"verify"_s, u"recoverykey"_s}) {
        const Answer answer = practice_.run({command});
        EXPECT_EQ(answer.status, static_cast<int>(ExitStatus::WrongKey)) << command.toStdString();
        EXPECT_TRUE(answer.error.contains(practice_.keyFile(id_).toUtf8())) << answer.error.toStdString();
    }
    EXPECT_EQ(adopt(practice_, practice_.path(u"disk"_s), key_).status, 0);
    EXPECT_EQ(practice_.backUp().status, 0);

    ASSERT_TRUE(QFile::rename(practice_.repository(u"disk"_s, id_) + "/config"_L1, practice_.path(u"config file"_s)));
    for (const QStringList& command : {QStringList{u"listbackups"_s}, {u"verify"_s}, {u"startbackup"_s, u"-b"_s}})
        EXPECT_TRUE(practice_.run(command).error.contains("\"config\" is missing. Put it back"))
            << command[0].toStdString();
}

TEST_F(RecoveryIntegration, ALockOfAProcessThatDiedIsNotInTheWay)
{
    ASSERT_EQ(practice_.backUp().status, 0);
    const QString repository = practice_.repository(u"disk"_s, id_);
    const QString name = QString::fromUtf8(practice_.run({u"latestbackup"_s}).output).trimmed();
    const QDir locks(repository + "/locks"_L1);
    // A pipe that nobody writes to holds restic, which has its lock by then.
    const QString pipe = repository + "/index/"_L1 + QString(64, u'0');
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QProcess dying;
    dying.start(u"/usr/bin/restic"_s,
                {u"--repo"_s, repository, u"--no-cache"_s, u"--password-file"_s, practice_.keyFile(id_), u"prune"_s});
    const auto held = [&locks] { return locks.entryList(QDir::Files).value(0); };
    ASSERT_TRUE(eventually([&] { return held().size() == 64; }));
    dying.kill();
    ASSERT_TRUE(dying.waitForFinished() && QFile::remove(pipe));
    const QString lock = locks.filePath(held());
    ASSERT_TRUE(QFile::copy(lock, practice_.path(u"lock"_s)));
    const auto locked = [&] { return QFileInfo::exists(lock) || QFile::copy(practice_.path(u"lock"_s), lock); };

    EXPECT_TRUE(locked() && call({u"restore"_s, name, practice_.path(u"restored"_s)}) == 0);
    ASSERT_TRUE(locked());
    const Answer renewed = practice_.run({u"recoverykey"_s});
    EXPECT_EQ(renewed.status, 0) << renewed.error.toStdString();
    ASSERT_TRUE(History::change(practice_.stateFolder(),
                                [this](History& history) { history.setDamage(id_, Damage{.date = {}}); }));
    EXPECT_TRUE(locked() && practice_.backUp().status == 0) << "which repairs";
}

TEST_F(RecoveryIntegration, ADiskIsKnownWhereverItIsMountedAndNotOnceItHasBeenEmptied)
{
    ASSERT_EQ(practice_.backUp().status, 0);
    const QDateTime date = disk(practice_).value(u"LastBackup"_s).toDateTime();
    ASSERT_TRUE(QDir().rename(practice_.path(u"disk"_s), practice_.path(u"elsewhere"_s)));
    // A history that was lost says nothing of a disk; the disk itself does.
    QFile::remove(practice_.stateFolder() + "/history.plist"_L1);
    ASSERT_EQ(call({u"setdestination"_s, u"-a"_s, practice_.path(u"elsewhere"_s)}), 0);
    EXPECT_EQ(disk(practice_).value(u"MountPoint"_s), practice_.path(u"elsewhere"_s));
    EXPECT_LT(std::abs(disk(practice_).value(u"LastBackup"_s).toDateTime().secsTo(date)), 60);
    EXPECT_EQ(practice_.run({u"destinationinfo"_s}).output.count("ID  "), 1);

    const QString repository = practice_.repository(u"elsewhere"_s, id_);
    ASSERT_TRUE(QDir(repository).removeRecursively() && QDir().mkdir(repository));
    const Answer emptied = practice_.backUp();
    EXPECT_EQ(emptied.status, static_cast<int>(ExitStatus::Failed));
    EXPECT_TRUE(emptied.error.contains("are gone")) << emptied.error.toStdString();
    ASSERT_EQ(call({u"setdestination"_s, practice_.path(u"elsewhere"_s)}), 0);
    EXPECT_EQ(practice_.backUp().status, 0) << "the user has said so";

    ASSERT_TRUE(QDir(practice_.path(u"elsewhere/Quillon.backups"_s)).removeRecursively());
    practice_.write(u"elsewhere/lost+found/x"_s, "of a fresh file system");
    EXPECT_TRUE(practice_.run({u"startbackup"_s}).error.contains("has been erased"));
}

} // namespace quillon
