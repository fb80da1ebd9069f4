#include "ConfigurationFixture.h"
#include "DestinationChoice.h"
#include "DestinationReport.h"
#include "History.h"
#include "KeyStore.h"
#include "Output.h"
#include "PropertyList.h"
#include "PropertyListFile.h"
#include "RepositoryFolder.h"
#include "Restore.h"
#include "SourceSet.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

class ConfigurationTest : public ConfigurationFixture {};

TEST_F(ConfigurationTest, ADiskReplacesTheOthersOrJoinsThem)
{
    const Destination first = set(u"Disk 1"_s, false);
    EXPECT_EQ(first.name, u"Disk 1"_s);
    EXPECT_TRUE(first.isPresent());
    const Destination second = set(u"Disk 2"_s, true);
    EXPECT_EQ(destinations(), (std::vector{first, second}));
    EXPECT_EQ(set(u"Disk 2"_s, true), second) << "set twice";
    EXPECT_EQ(destinations().size(), 2U);
    set(u"Disk 3"_s, false);
    EXPECT_EQ(destinations().size(), 1U);
    EXPECT_EQ(set(u"Disk 1"_s, false), first) << "its backups can still be read";
}

TEST_F(ConfigurationTest, AKeyIsRandomKeptAndForTheUserOnly)
{
    const auto read = [](const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const KeyStore keys(folders_.configuration);
    const QString first = keys.path(set(u"Disk 1"_s, false).id);
    const QByteArray key = read(first);
    const QString second = keys.path(set(u"Disk 2"_s, false).id);
    EXPECT_EQ(QByteArray::fromBase64(key.trimmed()).size(), 32);
    EXPECT_NE(key, read(second));
    EXPECT_EQ(key, read(first)) << "without it the backups of a disk that was replaced are lost";
    struct stat state {};
    ASSERT_EQ(stat(QFile::encodeName(first).constData(), &state), 0);
    EXPECT_EQ(state.st_mode & ALLPERMS, 0600U);
}

TEST_F(ConfigurationTest, SourcesAreTheHomeFolderUntilOneIsNamed)
{
    EXPECT_EQ(Configuration(folders_).sources(), QStringList(root_.path()));
    for (const QString& name : {u"b"_s, u"a"_s, u"b"_s})
        Configuration(folders_).addSource(folder(name));
    EXPECT_EQ(Configuration(folders_).sources(), (QStringList{folder(u"b"_s), folder(u"a"_s)}));
    EXPECT_EQ(statusOf([this] { Configuration(folders_).addSource(root_.filePath(u"missing"_s)); }),
              ExitStatus::NoInput);
}

TEST_F(ConfigurationTest, ARemovedDiskKeepsItsBackupsAndItsKey)
{
    const Destination first = set(u"1"_s, true);
    const Destination second = set(u"2"_s, true);
    EXPECT_EQ(statusOf([&] { Configuration(folders_).removeDestination(u"x"_s); }), ExitStatus::UnknownDestination);
    Configuration(folders_).removeDestination(first.id.toLower());
    EXPECT_EQ(destinations(), std::vector{second});
    EXPECT_TRUE(first.isPresent()) << "its backups are on the disk";
    EXPECT_EQ(set(u"1"_s, true), first) << "and its key opens them";
    unplug(second);
    Configuration(folders_).removeDestination(second.id);
    EXPECT_EQ(destinations(), std::vector{first});
}

TEST_F(ConfigurationTest, ASourceIsRemovedEvenWhenItIsGone)
{
    const auto remove = [this](const QString& path) {
        return statusOf([&] { Configuration(folders_).removeSource(path); });
    };
    EXPECT_EQ(remove(root_.path()), ExitStatus::NotListed) << "the home folder, which nobody has added";
    Configuration(folders_).addSource(folder(u"a"_s));
    Configuration(folders_).addSource(folder(u"b"_s));
    const QString gone = folder(u"a"_s);
    QDir().rmdir(gone);
    EXPECT_EQ(remove(gone + u'/'), ExitStatus::Success);
    EXPECT_EQ(remove(gone), ExitStatus::NotListed);
    QFile::link(folder(u"b"_s), root_.filePath(u"link"_s));
    EXPECT_EQ(remove(root_.filePath(u"link"_s)), ExitStatus::Success);
    EXPECT_EQ(Configuration(folders_).sources(), QStringList(root_.path()));
}

TEST_F(ConfigurationTest, ExclusionsAreTakenAllOrNone)
{
    const auto add = [this](const QStringList& paths) {
        return statusOf([&] { Configuration(folders_).addExclusions(paths); });
    };
    const auto remove = [this](const QStringList& paths) {
        return statusOf([&] { Configuration(folders_).removeExclusions(paths); });
    };
    const QString one = folder(u"home/line\nbreak"_s);
    const QString two = folder(u"home/b [*] "_s);
    EXPECT_EQ(add({one, root_.filePath(u"missing"_s)}), ExitStatus::NoInput);
    EXPECT_EQ(add({folder(u"bell\u0007"_s)}), ExitStatus::NoInput) << "no XML holds it";
    EXPECT_EQ(Configuration(folders_).exclusions(), QStringList());
    EXPECT_EQ(add({one, two, one}), ExitStatus::Success);
    EXPECT_EQ(Configuration(folders_).exclusions(), (QStringList{one, two}));

    QFile::link(two, root_.filePath(u"home/link"_s));
    QFile::link(folder(u"home"_s), root_.filePath(u"linked home"_s));
    EXPECT_EQ(add({root_.filePath(u"linked home/link"_s)}), ExitStatus::Success);
    EXPECT_EQ(Configuration(folders_).exclusions().last(), folder(u"home"_s) + "/link"_L1)
        << "the link itself, as a backup meets it";

    EXPECT_EQ(remove({one, folder(u"other"_s)}), ExitStatus::NotListed);
    EXPECT_EQ(Configuration(folders_).exclusions().size(), 3);
    QDir().rmdir(two);
    EXPECT_EQ(remove({one, two}), ExitStatus::Success) << "one that is gone, too";
    EXPECT_EQ(Configuration(folders_).exclusions().size(), 1);
}

TEST_F(ConfigurationTest, NothingIsBackedUpAndLeftOutAtOnce)
{
    const QString source = folder(u"home/source"_s);
    const auto exclude = [this](const QString& path) {
        return statusOf([&] { Configuration(folders_).addExclusions({path}); });
    };
    const auto addSource = [this](const QString& path) {
        return statusOf([&] { Configuration(folders_).addSource(path); });
    };
    EXPECT_EQ(exclude(root_.path()), ExitStatus::LeftOut) << "the home folder";
    ASSERT_EQ(addSource(source), ExitStatus::Success);
    EXPECT_EQ(exclude(source), ExitStatus::LeftOut);
    EXPECT_EQ(exclude(folder(u"home"_s)), ExitStatus::LeftOut);
    ASSERT_EQ(exclude(folder(u"home/source/tmp"_s)), ExitStatus::Success);
    EXPECT_EQ(addSource(folder(u"home/source/tmp/inner"_s)), ExitStatus::LeftOut);
    EXPECT_EQ(addSource(folder(u"home/source/tmp2"_s)), ExitStatus::Success);

    // The home folder comes back as the source when no other is named.
    ASSERT_EQ(exclude(folder(u"other"_s)), ExitStatus::Success);
    Configuration(folders_).removeSource(source);
    Configuration(folders_).removeSource(folder(u"home/source/tmp2"_s));
    const Folders moved{folder(u"other/home"_s), folders_.configuration, folders_.state, folders_.cache};
    const SourceSet set = SourceSet::of(Configuration(moved), moved);
    EXPECT_TRUE(set.folders.isEmpty());
    EXPECT_EQ(set.leftOut, QStringList(moved.home));
}

TEST_F(ConfigurationTest, WhatAnotherVersionWroteSurvivesAndSoDoesADamagedFile)
{
    const QString file = folder(u"config"_s) + "/configuration.plist"_L1;
    ASSERT_TRUE(writePropertyListFile(file, {{u"Later"_s, u"kept"_s}, {u"Destinations"_s, u"of a wrong kind"_s}}));
    set(u"Disk"_s, false);
    EXPECT_EQ(readPropertyListFile(file)->value(u"Later"_s), u"kept"_s);
    EXPECT_EQ(destinations().size(), 1U);

    // A file that was truncated gives way to the version before it, and stays beside it.
    set(u"Other"_s, true);
    QFile::resize(file, 100);
    EXPECT_EQ(destinations().size(), 1U);
    EXPECT_FALSE(Configuration(folders_).complaint().isEmpty());
    EXPECT_EQ(QFileInfo(file).size(), 100) << "reading changes nothing";
    set(u"Other"_s, true);
    EXPECT_EQ(destinations().size(), 2U);
    EXPECT_EQ(readPropertyListFile(file)->value(u"Later"_s), u"kept"_s);
    EXPECT_EQ(QFileInfo(folder(u"config"_s) + "/configuration-damaged.plist"_L1).size(), 100);

    // One that is gone gives way, too: what has no configuration yet has no version before it.
    ASSERT_TRUE(QFile::remove(file));
    EXPECT_EQ(destinations().size(), 1U);
    EXPECT_FALSE(Configuration(folders_).complaint().isEmpty());
    set(u"Other"_s, true);

    // Where that is damaged, too, only setting a disk begins anew.
    QFile::resize(file, 100);
    QFile::resize(folder(u"config"_s) + "/configuration-previous.plist"_L1, 100);
    EXPECT_EQ(statusOf([this] { Configuration(folders_).addSource(folder(u"a"_s)); }), ExitStatus::Configuration);
    Configuration(folders_, Configuration::IfLost::BeginAnew).setDestination(folder(u"Disk"_s), false, {});
    EXPECT_EQ(destinations().size(), 1U);
}

TEST_F(ConfigurationTest, KeepRulesAreSetOneByOneAndAlwaysKeepTheLastBackup)
{
    Configuration(folders_).setKeepRules({.hourly = -1, .daily = 7, .weekly = -1});
    Configuration(folders_).setKeepRules({.hourly = 0, .daily = -1, .weekly = 0});
    const KeepRules rules = Configuration(folders_).keepRules();
    EXPECT_EQ(std::tuple(rules.hourly, rules.daily, rules.weekly), std::tuple(1, 7, 0));
}

TEST_F(ConfigurationTest, TheUsualDiskIsTheLastUsedOrTheFirstPresent)
{
    History history(folders_.state);
    EXPECT_EQ(statusOf([&] { usualDestination({}, history); }), ExitStatus::NoDestination);
    const Destination first = set(u"1"_s, true);
    const Destination second = set(u"2"_s, true);
    EXPECT_EQ(usualDestination(destinations(), history), first);
    history.setLastDestination(second.id);
    EXPECT_EQ(usualDestination(destinations(), history), second);
    unplug(second);
    EXPECT_EQ(usualDestination(destinations(), history), first);
    EXPECT_EQ(statusOf([&] { namedDestination(destinations(), second.id); }), ExitStatus::DestinationMissing);
    EXPECT_EQ(statusOf([&] { namedDestination(destinations(), u"x"_s); }), ExitStatus::UnknownDestination);
    EXPECT_EQ(namedDestination(destinations(), first.id.toLower()), first);
    unplug(first);
    EXPECT_EQ(statusOf([&] { usualDestination(destinations(), history); }), ExitStatus::DestinationMissing);
    const auto restoreFrom = [&](const QString& disk) {
        return statusOf([&] {
            restore(disk + "/host/2026-11-21-072258/file"_L1, root_.filePath(u"x"_s), destinations(), folders_);
        });
    };
    EXPECT_EQ(restoreFrom(first.path), ExitStatus::DestinationMissing);
    EXPECT_EQ(restoreFrom(root_.path()), ExitStatus::NoBackup) << "no disk was ever there";
}

TEST_F(ConfigurationTest, RotationTakesTheOldestOfThosePresent)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    History history(folders_.state);
    const Destination first = set(u"1"_s, true);
    const Destination second = set(u"2"_s, true);
    const Destination third = set(u"3"_s, true);
    history.setLastBackup(first.id, now.addDays(-1));
    history.setLastBackup(second.id, now.addDays(-2));
    EXPECT_EQ(rotatedDestination(destinations(), history), third) << "never used";
    history.setLastBackup(third.id, now);
    EXPECT_EQ(rotatedDestination(destinations(), history), second);
    unplug(second);
    EXPECT_EQ(rotatedDestination(destinations(), history), first);
}

TEST_F(ConfigurationTest, DisksAreReportedAsTheSystemToolDoes)
{
    const Destination first = set(u"1 & <2>"_s, true);
    const Destination second = set(u"2"_s, true);
    unplug(second);
    History history(folders_.state);
    history.setLastDestination(first.id);
    const QDateTime date(QDate(2026, 11, 21), QTime(7, 22, 58), Qt::UTC);
    history.setLastBackup(second.id, date);
    const KeyStore keys(folders_.configuration);
    keys.setKeptRecoveryKey(first.id, u"6c2a9f01"_s);
    const auto backup = [](const QString& id) {
        Snapshot snapshot;
        snapshot.id = id;
        snapshot.host = id;
        return snapshot;
    };
    const QString name = backup(u"b"_s).name();
    const MountTable mounts("22 1 8:1 / / rw - ext4 /dev/sda1 rw\n30 22 8:17 / " +
                            QString(first.path).replace(u" "_s, u"\\040"_s).toUtf8() + " rw - ext4 /dev/sdb1 rw\n");
    history.setBackups(second.id, {backup(u"made elsewhere"_s), backup(u"b"_s)}, name, 7);
    history.setBackups(second.id, {backup(u"b"_s), backup(u"c"_s)}, backup(u"c"_s).name(), 9);
    const auto xml = propertylist::parse(destinationXml(Configuration(folders_), history, keys, mounts));
    ASSERT_TRUE(xml);
    const QVariantList entries = xml->toMap().value(u"Destinations"_s).toList();
    ASSERT_EQ(entries.size(), 2);
    QVariantMap told = entries[0].toMap();
    EXPECT_GT(told.take(u"BytesTotal"_s).toLongLong(), told.take(u"BytesFree"_s).toLongLong());
    EXPECT_EQ(told, (QVariantMap{{u"ID"_s, first.id},
                                 {u"Name"_s, u"1 & <2>"_s},
                                 {u"Kind"_s, u"Local"_s},
                                 {u"Path"_s, first.path},
                                 {u"MountPoint"_s, first.path},
                                 {u"LastDestination"_s, qlonglong{1}}}));
    EXPECT_FALSE(entries[1].toMap().contains(u"MountPoint"_s)) << "it is not there";
    EXPECT_EQ(entries[1].toMap().value(u"RecoveryKeyMissing"_s), qlonglong{1});
    EXPECT_EQ(entries[1].toMap().value(u"Path"_s), second.path);
    EXPECT_EQ(entries[1].toMap().value(u"Backups"_s),
              (QVariantList{
                  QVariantMap{{u"Name"_s, name}, {u"Snapshot"_s, u"b"_s}, {u"BytesAdded"_s, 7LL}},
                  QVariantMap{{u"Name"_s, backup(u"c"_s).name()}, {u"Snapshot"_s, u"c"_s}, {u"BytesAdded"_s, 9LL}}}));
    EXPECT_EQ(entries[1].toMap().value(u"LastBackup"_s), date);
    EXPECT_EQ(entries[1].toMap().value(u"LastDestination"_s), qlonglong{0});
    history.setLastDestination(second.id);
    keys.setKeptRecoveryKey(second.id, u"6c2a9f01"_s);
    EXPECT_EQ(destinationText({second}, history, keys),
              "> " + QByteArray(50, '=') +
                  "\nName          : 2\nKind          : Local\nID            : " + second.id.toUtf8() + '\n');
    Destination forged = second;
    forged.name = u"2\u009B1A\nID"_s; // what moves the cursor, and what begins a line
    EXPECT_TRUE(destinationText({forged}, history, keys).contains("\nName          : 2 1A ID\n"));
    Configuration(folders_).takeUp(forged);
    EXPECT_TRUE(destinationXml(Configuration(folders_), history, keys, mounts).contains("2\u009B1A\nID"));
    const auto onOne = propertylist::parse(destinationXml(Configuration(folders_), history, keys));
    EXPECT_EQ(onOne->toMap().value(u"Destinations"_s).toList()[0].toMap().value(u"SourceOnDisk"_s), root_.path());
    testing::internal::CaptureStdout();
    printForPeople({forged.name});
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "2 1A ID\n");
    testing::internal::CaptureStderr();
    printError(forged.name);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "tmutil: 2 1A ID\n");
}

TEST_F(ConfigurationTest, OwnFilesAndDisksAreNeverBackedUp)
{
    const Destination inside = set(u"home/disk *"_s, true);
    const Destination around = set(u"outer"_s, true);
    const QStringList sources{folder(u"home"_s), folder(u"outer/photos"_s), folder(u"missing"_s)};
    const QString trash = u"/.Trash-%1"_s.arg(getuid());
    for (const QString& source : sources)
        Configuration(folders_).addSource(source);
    Configuration(folders_).addSource(folder(u"linked"_s));
    QDir(root_.path()).rmdir(u"missing"_s);
    QDir(root_.path()).rmdir(u"linked"_s);
    QFile::link(folder(u"home"_s), root_.filePath(u"linked"_s));

    // Another file system with a blank in its name, a part of the same one, and one that is a source by itself.
    const QByteArray home = folder(u"home"_s).toUtf8();
    const MountTable mounts("22 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
                            "30 22 0:40 / " +
                            home +
                            "/cloud\\040drive rw - fuse cloud rw\n"
                            "31 22 8:1 /part " +
                            home +
                            "/part rw - ext4 /dev/sda1 rw\n"
                            "32 22 8:17 / " +
                            sources[1].toUtf8() + " rw - ext4 /dev/sdb1 rw\n");
    const SourceSet set = SourceSet::of(Configuration(folders_), folders_, mounts);
    EXPECT_EQ(set.folders, sources.mid(0, 2)) << "a link would be stored as a link";
    EXPECT_EQ(set.missing, sources.mid(2));
    EXPECT_EQ(set.excluded, (QStringList{inside.path, around.path + "/Quillon.backups"_L1, folders_.cache,
                                         folders_.state, root_.path() + "/.local/share/Trash"_L1, sources[0] + trash,
                                         folder(u"home"_s) + "/cloud drive"_L1, sources[1] + trash}))
        << "neither a disk nor a cache folder that holds a source is left out whole";
    EXPECT_TRUE(set.arguments().contains(folder(u"home"_s) + "/disk \\*"_L1)) << "patterns are literal";
    EXPECT_TRUE(set.arguments().contains(u"--exclude-caches"_s));
    const auto tag = [this](const QString& name) {
        QFile file(folder(name) + "/CACHEDIR.TAG"_L1);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write("Signature: 8a477f597d28d172789f06886806bc55\n") > 0);
    };
    const QString cache = folder(u"home/cache"_s);
    const QString other = folder(u"home/other"_s);
    tag(u"home/cache"_s);
    tag(u"home/cache/inner"_s);
    tag(u"home/disk */cache"_s);
    EXPECT_TRUE(QFile(other + "/CACHEDIR.TAG"_L1).open(QIODevice::WriteOnly)) << "without what makes it one";
    EXPECT_EQ(set.caches(), QStringList(cache)) << "none that is left out anyway";
    EXPECT_FALSE(set.contains(cache) || set.contains(cache + "/inner/x"_L1));
    EXPECT_TRUE(set.contains(other) && set.contains(other + "/x"_L1));
    tag(u"home"_s);
    EXPECT_TRUE(set.contains(cache) && set.caches().isEmpty());
    EXPECT_FALSE(set.arguments().contains(u"--exclude-caches"_s)) << "it would leave nothing of a source";
}

} // namespace quillon
