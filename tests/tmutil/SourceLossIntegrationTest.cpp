#include "BackupFixture.h"
#include "ExitStatus.h"
#include "History.h"
#include "PropertyList.h"
#include "Snapshot.h"

#include <sys/stat.h>

namespace quillon {

/// A source that held files and holds none now is most often a disk that is not mounted, and no reason to count what is
/// left as a backup.
class SourceLossIntegration : public BackupIntegration {
protected:
    void SetUp() override
    {
        id_ = practice_.addDisk(u"disk"_s);
        practice_.write(u"source/file"_s, "file");
        practice_.write(second_ + "/file"_L1, "only here");
        ASSERT_EQ(call({u"addsource"_s, practice_.path(second_)}), 0);
        giveToOrdinaryUser(practice_);
        ASSERT_EQ(backUp(), 0);
        latest_ = practice_.run({u"latestbackup"_s}).output;
        date_ = History(practice_.stateFolder()).lastBackup(id_);
    }

    int backUp() const { return callAsOrdinaryUser(practice_, {u"startbackup"_s, u"-b"_s}).status; }

    void expectIncomplete(const char* what)
    {
        EXPECT_EQ(backUp(), static_cast<int>(ExitStatus::Incomplete)) << what;
        EXPECT_EQ(failureCause(), u"SourceLost"_s) << what;
        EXPECT_EQ(History(practice_.stateFolder()).lastBackup(id_), date_) << what;
        EXPECT_EQ(practice_.run({u"latestbackup"_s}).output, latest_) << what;
        const QByteArray list = practice_.run({u"listbackups"_s}).output;
        EXPECT_TRUE(list.contains(latest_) && list.trimmed().endsWith(".incomplete")) << list.toStdString();
    }

    const QString second_ = u"second"_s;
    QString id_;
    QByteArray latest_;
    QDateTime date_;
};

TEST_F(SourceLossIntegration, ALostSourceIsAFailureUntilItIsBackAndCostsNoBackup)
{
    const QString folder = practice_.path(second_);
    const QString aside = practice_.path(u"aside"_s);
    ASSERT_TRUE(QDir().rename(folder, aside));
    expectIncomplete("absent");
    ASSERT_TRUE(QDir().mkpath(practice_.path(u"elsewhere"_s)) && QFile::link(practice_.path(u"elsewhere"_s), folder));
    expectIncomplete("a link to nothing of what it held");
    ASSERT_TRUE(QFile::remove(folder));
    ASSERT_TRUE(QDir().mkdir(folder));
    expectIncomplete("empty");
    ASSERT_TRUE(QDir().rmdir(folder) && QDir().rename(aside, folder));
    chmod(QFile::encodeName(folder).constData(), 0);
    expectIncomplete("unreadable");
    chmod(QFile::encodeName(folder).constData(), 0755);
    EXPECT_EQ(backUp(), 0);
    EXPECT_EQ(failureCause(), QString());
}

TEST_F(SourceLossIntegration, ASourceLostWhileItIsReadIsNoticedAndOneThatIsGivenUpKeepsItsLastBackup)
{
    // Left out file by file: what is read of it is nothing, which shows only in the end.
    const QString file = practice_.path(second_ + "/file"_L1);
    ASSERT_EQ(call({u"addexclusion"_s, file}), 0);
    giveToOrdinaryUser(practice_);
    expectIncomplete("nothing of it was read");

    ASSERT_EQ(call({u"retention"_s, u"--hourly"_s, u"1"_s, u"--daily"_s, u"0"_s, u"--weekly"_s, u"0"_s}), 0);
    ASSERT_EQ(call({u"removesource"_s, practice_.path(second_)}), 0);
    giveToOrdinaryUser(practice_);
    EXPECT_EQ(backUp(), 0);
    EXPECT_EQ(backUp(), 0);
    const QString backup = QString::fromUtf8(latest_).trimmed();
    EXPECT_EQ(call({u"restore"_s, backup + file, practice_.path(u"restored"_s)}), 0);

    latest_ = practice_.run({u"latestbackup"_s}).output;
    date_ = History(practice_.stateFolder()).lastBackup(id_);
    ASSERT_EQ(call({u"addsource"_s, practice_.path(second_)}), 0);
    giveToOrdinaryUser(practice_);
    expectIncomplete("taken up again, it is expected to hold something");
    ASSERT_EQ(call({u"removeexclusion"_s, file}), 0);
    giveToOrdinaryUser(practice_);
    EXPECT_EQ(backUp(), 0);
}

TEST_F(SourceLossIntegration, ABackupThatWasCutOffBeforeItWasLookedAtIsLookedAtByTheNext)
{
    const QString folder = practice_.path(second_);
    const QString aside = practice_.path(u"aside"_s);
    const auto begun = QDateTime::currentDateTimeUtc();
    ASSERT_TRUE(QDir().rename(folder, aside) && QDir().mkdir(folder));
    // What a worker leaves that is killed as soon as restic has ended.
    ASSERT_EQ(
        practice_.restic(u"disk"_s, id_, {u"backup"_s, u"--tag"_s, Snapshot::tag(true), practice_.source(), folder})
            .status,
        0);
    History history(practice_.stateFolder());
    history.setUncheckedSince(id_, begun);
    ASSERT_TRUE(history.save());
    ASSERT_TRUE(QDir().rmdir(folder) && QDir().rename(aside, folder));
    giveToOrdinaryUser(practice_);
    EXPECT_EQ(backUp(), 0);
    const QByteArrayList names = practice_.run({u"listbackups"_s}).output.trimmed().split('\n');
    ASSERT_GE(names.size(), 2); // the first may be of the same hour as the last
    EXPECT_TRUE(names[names.size() - 2].endsWith(".incomplete") && !names.last().endsWith(".incomplete"));
}

TEST_F(SourceLossIntegration, AFolderThatBackupsHaveLostToAnotherFileSystemOrATagIsToldOfUntilTheUserDecides)
{
    const auto answer = runWhereMountsAreAllowed(uR"(
cd '%1' && mkdir hidden empty tagged && echo only here | tee hidden/file >tagged/file || exit
'%2' startbackup -b
echo 'Signature: 8a477f597d28d172789f06886806bc55' | tee empty/CACHEDIR.TAG >tagged/CACHEDIR.TAG
mount -t tmpfs none hidden && mount -t tmpfs none empty || exit
for turn in 1 2; do '%2' startbackup -b | grep -Eo '[a-z]+", which[^,]*, is [a-z ]+'; done
'%2' addexclusion '%1/hidden' '%1/tagged' && '%2' startbackup -b
)"_s.arg(practice_.source(), practice_.executable()));
    if (answer) {
        const QByteArray told = "hidden\", which held files before, is on another file system and is not backed up\n"
                                "tagged\", which was backed up before, is tagged as a cache and is left out\n";
        EXPECT_EQ(answer->output, told + told) << answer->error.toStdString();
    }
}

TEST_F(SourceLossIntegration, OtherFileSystemsAndCachesAreReadOnlyWhereTheyAreNamed)
{
    const auto answer = runWhereMountsAreAllowed(uR"(
cd '%1' && mkdir mounted cache && mount -t tmpfs none mounted && echo far >mounted/far || exit
echo 'Signature: 8a477f597d28d172789f06886806bc55' >cache/CACHEDIR.TAG; echo again >cache/again
back_up() {
    '%2' startbackup -b
    '%2' restore "$('%2' latestbackup)%1" '%3/restored' && (cd '%3/restored' && find . -type f | sort)
    rm -r '%3/restored'
}
back_up
'%2' listexclusions -a | grep mounted
'%2' addsource '%1/mounted'
back_up
)"_s.arg(practice_.source(), practice_.executable(), practice_.path(u"."_s)));
    if (answer) {
        EXPECT_EQ(answer->output.simplified(), "./cache/CACHEDIR.TAG ./file " + practice_.source().toUtf8() +
                                                   "/mounted (another file system) ./cache/CACHEDIR.TAG ./file "
                                                   "./mounted/far")
            << answer->error.toStdString();
    }
}

TEST_F(SourceLossIntegration, ASourceOfWhichAllIsLeftOutOnItsFirstBackupIsTold)
{
    EXPECT_EQ(call({u"excludename"_s, u".."_s}), static_cast<int>(ExitStatus::NoInput));
    practice_.write(u"third/only.x"_s, "left out");
    ASSERT_EQ(call({u"excludename"_s, u"*.x"_s}), 0);
    ASSERT_EQ(call({u"addsource"_s, practice_.path(u"third"_s)}), 0);
    giveToOrdinaryUser(practice_);
    EXPECT_EQ(backUp(), 0);
    EXPECT_EQ(failureCause(), u"MissingSource"_s);
}

TEST_F(SourceLossIntegration, WhatNamesAndSizesLeaveOutIsToldBeforeItIsKept)
{
    for (const auto& [name, size] : {std::pair{u"source/a.iso"_s, 10}, std::pair{u"source/.b.iso/inside"_s, 20},
                                     std::pair{u"source/large"_s, 2'000'001}, std::pair{u"source/kept.iso.txt"_s, 40}})
        practice_.write(name, QByteArray(size, 'x'));
    EXPECT_EQ(practice_.run({u"excludename"_s, u"--try"_s, u"*.iso"_s}).output,
              "2 files of 30 bytes in all would be left out.\n");
    EXPECT_EQ(practice_.run({u"excludelarger"_s, u"--try"_s, u"2"_s}).output,
              "1 file of 2000001 bytes would be left out.\n");
    for (const QStringList& arguments : {QStringList{u"excludename"_s}, {u"excludename"_s, u"--try"_s}})
        EXPECT_EQ(call(arguments + QStringList(u"a/b"_s)), static_cast<int>(ExitStatus::NoInput));
    practice_.write(u"source/ü.x"_s, "ü is one character");
    const auto told = propertylist::parse(practice_.run({u"excludename"_s, u"--try"_s, u"-X"_s, u"?.x"_s}).output);
    EXPECT_EQ(told, QVariant(QVariantMap{{u"Files"_s, 1LL}, {u"Bytes"_s, 19LL}}));
    QFile::remove(practice_.path(u"source/ü.x"_s));
    ASSERT_EQ(call({u"excludename"_s, u"*.iso"_s}), 0);
    ASSERT_EQ(call({u"excludename"_s, u"source"_s}), 0); // what a source is in, or is called, leaves it in
    ASSERT_EQ(call({u"excludelarger"_s, u"2"_s}), 0);
    EXPECT_EQ(practice_
                  .run({u"isexcluded"_s, practice_.path(u"source/a.iso"_s), practice_.path(u"source/large"_s),
                        practice_.path(u"source/kept.iso.txt"_s)})
                  .output.count("[Excluded]"),
              2);
    EXPECT_EQ(propertylist::parse(practice_.run({u"listexclusions"_s, u"-X"_s}).output),
              QVariant(QVariantMap{{u"Paths"_s, QVariantList()},
                                   {u"Names"_s, QVariantList{u"*.iso"_s, u"source"_s}},
                                   {u"LargestFile"_s, 2'000'000LL}}));
    EXPECT_EQ(practice_.run({u"excludename"_s, u"--try"_s, u"*.iso"_s}).output,
              "0 files of 0 bytes in all would be left out.\n");
    giveToOrdinaryUser(practice_);
    ASSERT_EQ(backUp(), 0);
    const QString name = QString::fromUtf8(practice_.run({u"latestbackup"_s}).output).trimmed();
    ASSERT_EQ(call({u"restore"_s, name + practice_.source(), practice_.path(u"restored"_s)}), 0);
    EXPECT_EQ(QDir(practice_.path(u"restored"_s))
                  .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name),
              (QStringList{u"file"_s, u"kept.iso.txt"_s}));
    EXPECT_EQ(call({u"includename"_s, u"*.iso"_s}), 0);
    EXPECT_EQ(call({u"includename"_s, u"*.iso"_s}), static_cast<int>(ExitStatus::NotListed));
}

TEST_F(SourceLossIntegration, AMountPointWithoutItsFileSystemIsALostSource)
{
    const auto answer = runWhereMountsAreAllowed(uR"sh(
mount -t tmpfs none '%1' && echo more >'%1/more' || exit
'%2' startbackup -b >/dev/null; echo $?
latest=$('%2' latestbackup)
umount '%1' && rm '%1/file'
'%2' startbackup -b 2>/dev/null; echo $?
test "$latest" = "$('%2' latestbackup)" && echo the same
)sh"_s.arg(practice_.path(second_), practice_.executable()));
    if (answer) {
        EXPECT_EQ(answer->output.simplified(), "0 12 the same") << answer->error.toStdString();
    }
}

} // namespace quillon
