#include "BackupFixture.h"
#include "ExitStatus.h"
#include "History.h"
#include "Verification.h"

#include <QDirIterator>
#include <QRandomGenerator>

#include <csignal>
#include <sys/stat.h>

namespace quillon {

namespace {

/// Pipes that nobody writes to in the place of all files of data: they hold a restic that reads any.
class PipesForData {
public:
    PipesForData(const QString& data, const QString& aside)
        : aside_(aside)
    {
        EXPECT_TRUE(QDir().mkpath(aside));
        for (QDirIterator files(data, QDir::Files, QDirIterator::Subdirectories); files.hasNext();)
            packs_.append(files.next());
        for (const QString& pack : packs_) {
            EXPECT_TRUE(QFile::rename(pack, asideOf(pack)));
            EXPECT_EQ(mkfifo(QFile::encodeName(pack).constData(), 0600), 0);
        }
    }
    void giveBack() const
    {
        for (const QString& pack : packs_)
            EXPECT_TRUE(QFile::remove(pack) && QFile::rename(asideOf(pack), pack));
    }

private:
    QString asideOf(const QString& pack) const { return aside_ + u'/' + QFileInfo(pack).fileName(); }

    QString aside_;
    QStringList packs_;
};

} // namespace

/// Repositories that a disk has damaged.
class DamageIntegration : public BackupIntegration {
protected:
    void SetUp() override
    {
        id_ = practice_.addDisk(u"disk"_s);
        writeLarge(u"source/large"_s, 9'000'000);
        ASSERT_EQ(practice_.backUp().status, 0);
        name_ = QString::fromUtf8(practice_.run({u"latestbackup"_s}).output).trimmed();
        // What is stored in one file of data is lost with it: the small ones get another.
        practice_.write(u"source/small"_s, "small");
        practice_.write(u"source/folder/another"_s, "another");
    }

    void writeLarge(const QString& name, qsizetype size) const
    {
        QByteArray bytes(size, Qt::Uninitialized);
        QRandomGenerator::system()->generate(bytes.begin(), bytes.end());
        practice_.write(name, bytes);
    }

    /// Without ending the worker, which has something to do after a completed backup.
    bool backUpAndWatch() const
    {
        return call({u"startbackup"_s}) == 0 && eventually([this] { return !isRunning(); });
    }

    /// The file of data that holds the largest file.
    QString largePack() const
    {
        QFileInfo largest;
        for (QDirIterator files(practice_.repository(u"disk"_s, id_) + "/data"_L1, QDir::Files,
                                QDirIterator::Subdirectories);
             files.hasNext();) {
            if (const QFileInfo file = files.nextFileInfo(); file.size() > largest.size())
                largest = file;
        }
        return largest.filePath();
    }

    void damage(const QString& path) const
    {
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(1000) && file.write("damage") == 6);
    }

    QVariantMap lastFailure() const { return practice_.status().value(u"LastFailure"_s).toMap(); }
    bool isVerifying() const { return practice_.status().value(u"Verifying"_s).toString() == "1"_L1; }

    QString id_;
    QString name_;
};

TEST_F(DamageIntegration, WhatIsLostIsFoundNamedAndMendedByTheNextBackup)
{
    ASSERT_TRUE(QFile::remove(largePack()));
    const Answer found = practice_.run({u"verify"_s, u"--all"_s});
    EXPECT_EQ(found.status, static_cast<int>(ExitStatus::Damaged)) << found.error.toStdString();
    EXPECT_EQ(failureCause(), u"Damaged"_s);
    EXPECT_EQ(lastFailure().value(u"AffectedBackups"_s).toStringList(), QStringList(name_));

    ASSERT_TRUE(backUpAndWatch());
    EXPECT_FALSE(lastFailure().contains(u"UnreadFiles"_s)) << "what is stored anew has been read";
    EXPECT_TRUE(eventually([this] { return lastFailure().isEmpty(); })) << "the worker looks whether that has helped";
    EXPECT_EQ(practice_.restic(u"disk"_s, id_, {u"check"_s, u"--read-data"_s}).status, 0);
}

TEST_F(DamageIntegration, ARepairTakesNothingSoundAwayAndComesToRest)
{
    writeLarge(u"source/pair/one"_s, 6'000'000);
    writeLarge(u"source/pair/two"_s, 6'000'000);
    ASSERT_EQ(
        practice_
            .restic(u"disk"_s, id_,
                    {u"backup"_s, u"--tag"_s, u"quillon"_s, u"--time"_s, u"2020-01-01 10:00:00"_s, practice_.source()})
            .status,
        0);
    const QByteArray list = practice_.run({u"listbackups"_s}).output;
    name_ = QString::fromUtf8(list).split(u'\n').filter(u"/2020-01-01"_s).value(0);
    ASSERT_FALSE(name_.isEmpty()) << list.toStdString();
    damage(largePack()); // both are in it
    ASSERT_TRUE(QDir(practice_.path(u"source/pair"_s)).removeRecursively());
    ASSERT_EQ(call({u"verify"_s, u"--all"_s}), static_cast<int>(ExitStatus::Damaged));

    const auto isAtRest = [this] {
        const History history(practice_.stateFolder());
        return history.damage(id_) && history.damage(id_)->lasting;
    };
    ASSERT_TRUE(backUpAndWatch());
    ASSERT_TRUE(eventually(isAtRest));
    EXPECT_FALSE(Verification::isDue(History(practice_.stateFolder()), id_));
    EXPECT_TRUE(lastFailure().value(u"Description"_s).toString().contains("tmutil deletebackup"_L1));
    const Answer partly =
        practice_.run({u"restore"_s, name_ + practice_.source() + "/pair"_L1, practice_.path(u"pair"_s)});
    EXPECT_EQ(partly.status, static_cast<int>(ExitStatus::RestoredInPart)) << partly.error.toStdString();
    const QDir pair(practice_.path(u"pair"_s));
    EXPECT_EQ(pair.entryList({u"one"_s, u"two"_s}, QDir::Files).size(), 1);
}

TEST_F(DamageIntegration, WhatCanBeReadIsRestoredAndTheRestNamed)
{
    const QString damaged = largePack();
    ASSERT_EQ(practice_.backUp().status, 0);
    name_ = QString::fromUtf8(practice_.run({u"latestbackup"_s}).output).trimmed();
    damage(damaged);
    practice_.write(u"behind/x"_s, "");
    ASSERT_TRUE(QFile::link(practice_.path(u"behind"_s), practice_.path(u"linked"_s)));
    const auto restore = [&](const QString& what, const QString& target) {
        return practice_.run({u"restore"_s, name_ + practice_.source() + what, practice_.path(target)});
    };
    const Answer partly = restore({}, u"all"_s);
    EXPECT_EQ(partly.status, static_cast<int>(ExitStatus::RestoredInPart));
    EXPECT_TRUE(partly.error.contains("/source/large") && !partly.error.contains("small"))
        << partly.error.toStdString();
    EXPECT_EQ(QDir(practice_.path(u"all"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name),
              (QStringList{u"folder"_s, u"large.incomplete"_s, u"small"_s}));
    EXPECT_EQ(restore(u"/folder"_s, u"linked/folder"_s).status, 0);
    EXPECT_EQ(restore(u"/large"_s, u"large"_s).status, static_cast<int>(ExitStatus::RestoredInPart));
    EXPECT_FALSE(QFileInfo::exists(practice_.path(u"large"_s)));
    EXPECT_TRUE(QFileInfo::exists(practice_.path(u"large.incomplete"_s)));
    EXPECT_EQ(hiddenFolders(), QStringList());
}

TEST_F(DamageIntegration, ADamagedOrLostRecordOfABackupIsToldAndKeepsNoOtherFromBeingMade)
{
    const QDir records(practice_.repository(u"disk"_s, id_) + "/snapshots"_L1);
    const auto only = [&records] { return records.filePath(records.entryList(QDir::Files).value(0)); };
    QFile::setPermissions(only(), QFile::ReadOwner | QFile::WriteOwner);
    ASSERT_TRUE(QFile::resize(only(), 10));
    QDir(practice_.path(u"cache"_s)).removeRecursively();
    EXPECT_EQ(practice_.backUp().status, 0);
    EXPECT_EQ(failureCause(), u"BackupsLost"_s);
    EXPECT_EQ(QDir(practice_.repository(u"disk"_s, id_) + "/damaged"_L1).entryList(QDir::Files).size(), 1);

    EXPECT_EQ(practice_.backUp().status, 0);
    EXPECT_EQ(failureCause(), QString()) << "what is known is what was there then";
    for (const QString& name : records.entryList(QDir::Files))
        ASSERT_TRUE(QFile::remove(records.filePath(name)));
    EXPECT_EQ(practice_.backUp().status, 0);
    EXPECT_EQ(failureCause(), u"BackupsLost"_s);
    EXPECT_EQ(call({u"deletebackup"_s, QString::fromUtf8(practice_.run({u"latestbackup"_s}).output).trimmed()}), 0);
    EXPECT_EQ(practice_.backUp().status, 0);
    EXPECT_EQ(failureCause(), QString()) << "the user has deleted it";
}

TEST_F(DamageIntegration, AFullOrReadOnlyDiskIsReadAllTheSame)
{
    auto answer = runWhereMountsAreAllowed(uR"(
mount -t tmpfs -o size=12M none '%1/disk' && '%2' setdestination '%1/disk' >/dev/null || exit
rm '%1/source/large'
'%2' startbackup -b; latest=$('%2' latestbackup)
head -c 20000000 /dev/zero >'%1/disk/junk' 2>/dev/null
'%2' restore "$latest%1/source/small" '%1/back'; echo $?; cat '%1/back'; echo
'%2' verify; echo $?
mount -o remount,ro '%1/disk'; '%2' verify; echo $?; '%2' deletebackup "$latest"; echo $?
mount -o remount,rw '%1/disk'; '%2' deletebackup "$latest"; echo $?
)"_s.arg(practice_.path(u"."_s), practice_.executable()));
    if (answer) {
        EXPECT_EQ(answer->output.replace("No damage was found.\n", "sound "), "0\nsmall\nsound 0\nsound 0\n73\n0\n")
            << answer->error.toStdString();
    }
}

TEST_F(DamageIntegration, AVerificationFollowsABackupOnceAWeekAndGivesWayToTheNext)
{
    ASSERT_TRUE(History::change(practice_.stateFolder(), [this](History& history) {
        history.setLastVerification(id_, history.lastVerification(id_).addDays(-7));
        history.setNextSlice(id_, {.tenth = 4});
    }));
    ASSERT_EQ(call({u"startbackup"_s}), 0);
    ASSERT_TRUE(eventually([this] { return practice_.phase() == "Finishing"_L1; }));
    const PipesForData pipes(practice_.repository(u"disk"_s, id_) + "/data"_L1, practice_.path(u"packs"_s));
    ASSERT_TRUE(eventually([this] { return isVerifying(); }));
    EXPECT_FALSE(isRunning()) << "the application must not take it for a backup";
    EXPECT_EQ(call({u"verify"_s}), static_cast<int>(ExitStatus::AlreadyRunning));
    EXPECT_EQ(call({u"stopbackup"_s}), 0);
    EXPECT_FALSE(isVerifying());
    EXPECT_EQ(History(practice_.stateFolder()).nextSlice(id_), Slice{.tenth = 4}) << "it has not been verified";

    QProcess verification;
    verification.start(practice_.executable(), {u"verify"_s});
    ASSERT_TRUE(eventually([this] { return isVerifying(); }));
    pipes.giveBack();
    ASSERT_TRUE(backUpAndWatch());
    ASSERT_TRUE(verification.waitForFinished(60'000));
    EXPECT_EQ(verification.exitCode(), static_cast<int>(ExitStatus::Stopped));
    EXPECT_TRUE(eventually([this] {
        return History(practice_.stateFolder()).nextSlice(id_) == (Slice{.tenth = 4, .part = 1, .parts = 4});
    })) << "two were interrupted";
    EXPECT_FALSE(practice_.status().contains(u"LastFailure"_s));
}

} // namespace quillon
