#include "ConfigurationFixture.h"
#include "Destination.h"
#include "History.h"
#include "Listing.h"
#include "NetworkProbe.h"
#include "PropertyList.h"
#include "Reports.h"
#include "SourceSet.h"

#include <tuple>
#include <unistd.h>

namespace quillon {

class ConfigurationTest : public ConfigurationFixture {};

TEST_F(ConfigurationTest, ADiskReplacesTheOthersOrJoinsThemAndIsItselfAgainAfterwards)
{
    const Destination first = set(u"Disk 1"_s, false);
    EXPECT_EQ(first.name, u"Disk 1"_s);
    const Destination second = set(u"Disk 2"_s, true);
    EXPECT_EQ(set(u"Disk 2"_s, true), second) << "set twice";
    EXPECT_EQ(destinations(), (std::vector{first, second}));
    EXPECT_EQ(attempt(&Configuration::removeDestination, u"x"_s), ExitStatus::UnknownDestination);
    configuration().removeDestination(first.id.toLower());
    EXPECT_EQ(destinations(), std::vector{second});
    EXPECT_TRUE(first.isPresent()) << "its backups are on the disk";
    unplug(second);
    configuration().removeDestination(second.id);
    const Destination third = set(u"Disk 3"_s, false);
    EXPECT_EQ(destinations(), std::vector{third});
    EXPECT_EQ(set(u"Disk 1"_s, false), first) << "its backups can still be read";
    EXPECT_EQ(destinations(), std::vector{first});
}

TEST_F(ConfigurationTest, AKeyIsRandomKeptAndForTheUserOnly)
{
    const KeyStore keys(folders_.configuration);
    const auto key = [&keys](const Destination& disk) {
        QFile file(keys.path(disk.id));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const Destination disk = set(u"Disk 1"_s, false);
    const QByteArray first = key(disk);
    EXPECT_EQ(QByteArray::fromBase64(first.trimmed()).size(), 32);
    EXPECT_NE(first, key(set(u"Disk 2"_s, false)));
    EXPECT_EQ(first, key(disk)) << "without it the backups of a disk that was replaced are lost";
    EXPECT_EQ(mode(keys.path(disk.id)), 0600U);
    keys.store(disk.id, u"another"_s);
    EXPECT_EQ(key(disk), "another\n");
    const QStringList aside = QDir(path(u"config/keys"_s)).entryList({disk.id + ".key.*"_L1});
    ASSERT_EQ(aside.size(), 1);
    ASSERT_TRUE(QFile::remove(keys.path(disk.id)));
    EXPECT_EQ(statusOf([&] { keys.require(disk); }), ExitStatus::WrongKey);
    ASSERT_TRUE(QFile::rename(path(u"config/keys/"_s + aside[0]), keys.path(disk.id)));
    EXPECT_EQ(key(disk), first);
}

TEST_F(ConfigurationTest, SourcesAreTheHomeFolderUntilOneIsNamedAndGoEvenWhenTheyAreGone)
{
    const auto remove = [this](const QString& source) { return attempt(&Configuration::removeSource, source); };
    EXPECT_EQ(configuration().sources(), QStringList(root_.path()));
    EXPECT_EQ(remove(root_.path()), ExitStatus::NotListed) << "nobody has added it";
    for (const QString& name : {u"b"_s, u"a"_s, u"b"_s})
        configuration().addSource(folder(name));
    EXPECT_EQ(attempt(&Configuration::addSource, path(u"missing"_s)), ExitStatus::NoInput);
    const QString gone = folder(u"a"_s);
    EXPECT_EQ(configuration().sources(), (QStringList{folder(u"b"_s), gone}));
    QDir().rmdir(gone);
    EXPECT_EQ(remove(gone + u'/'), ExitStatus::Success);
    EXPECT_EQ(remove(gone), ExitStatus::NotListed);
    QFile::link(folder(u"b"_s), path(u"link"_s));
    EXPECT_EQ(remove(path(u"link"_s)), ExitStatus::Success);
    EXPECT_EQ(configuration().sources(), QStringList(root_.path()));
}

TEST_F(ConfigurationTest, ExclusionsAreTakenAllOrNone)
{
    const auto add = [this](const QStringList& all) { return attempt(&Configuration::addExclusions, all); };
    const auto remove = [this](const QStringList& all) { return attempt(&Configuration::removeExclusions, all); };
    const QString one = folder(u"home/line\nbreak"_s);
    const QString two = folder(u"home/b [*] "_s);
    EXPECT_EQ(add({one, path(u"missing"_s)}), ExitStatus::NoInput);
    EXPECT_EQ(add({folder(u"bell\u0007"_s)}), ExitStatus::NoInput) << "no XML holds it";
    EXPECT_EQ(configuration().exclusions(), QStringList());
    EXPECT_EQ(add({one, two, one}), ExitStatus::Success);

    QFile::link(two, path(u"home/link"_s));
    QFile::link(folder(u"home"_s), path(u"linked home"_s));
    EXPECT_EQ(add({path(u"linked home/link"_s)}), ExitStatus::Success);
    const QString link = folder(u"home"_s) + "/link"_L1;
    EXPECT_EQ(configuration().exclusions(), (QStringList{one, two, link})) << "the link itself, as a backup meets it";

    EXPECT_EQ(remove({one, folder(u"other"_s)}), ExitStatus::NotListed);
    EXPECT_EQ(configuration().exclusions().size(), 3);
    QDir().rmdir(two);
    EXPECT_EQ(remove({one, two}), ExitStatus::Success) << "one that is gone, too";
    EXPECT_EQ(configuration().exclusions(), QStringList(link));
}

TEST_F(ConfigurationTest, NothingIsBackedUpAndLeftOutAtOnce)
{
    const QString source = folder(u"home/source"_s);
    const auto exclude = [this](const QString& one) { return attempt(&Configuration::addExclusions, {one}); };
    const auto addSource = [this](const QString& one) { return attempt(&Configuration::addSource, one); };
    EXPECT_EQ(exclude(root_.path()), ExitStatus::LeftOut) << "the home folder";
    ASSERT_EQ(addSource(source), ExitStatus::Success);
    EXPECT_EQ(exclude(source), ExitStatus::LeftOut);
    EXPECT_EQ(exclude(folder(u"home"_s)), ExitStatus::LeftOut);
    ASSERT_EQ(exclude(folder(u"home/source/tmp"_s)), ExitStatus::Success);
    EXPECT_EQ(addSource(folder(u"home/source/tmp/inner"_s)), ExitStatus::LeftOut);
    EXPECT_EQ(addSource(folder(u"home/source/tmp2"_s)), ExitStatus::Success);

    // The home folder comes back as the source when no other is named.
    ASSERT_EQ(exclude(folder(u"other"_s)), ExitStatus::Success);
    for (const QString& added : configuration().sources())
        configuration().removeSource(added);
    const Folders moved{folder(u"other/home"_s), folders_.configuration, folders_.state, folders_.cache};
    const SourceSet sources = SourceSet::of(Configuration(moved), moved);
    EXPECT_TRUE(sources.folders.isEmpty());
    EXPECT_EQ(sources.leftOut, QStringList(moved.home));
}

TEST_F(ConfigurationTest, WhatAnotherVersionWroteSurvivesAndSoDoesADamagedFile)
{
    const QString file = folder(u"config"_s) + "/configuration.plist"_L1;
    ASSERT_TRUE(writePropertyListFile(file, {{u"Later"_s, u"kept"_s}, {u"Destinations"_s, u"of a wrong kind"_s}}));
    set(u"Disk"_s, false);
    EXPECT_EQ(readPropertyListFile(file)->value(u"Later"_s), u"kept"_s);

    // A file that was truncated gives way to the version before it, and stays beside it.
    set(u"Other"_s, true);
    QFile::resize(file, 100);
    EXPECT_EQ(destinations().size(), 1U);
    EXPECT_FALSE(configuration().complaint().isEmpty());
    EXPECT_EQ(QFileInfo(file).size(), 100) << "reading changes nothing";
    set(u"Other"_s, true);
    EXPECT_EQ(destinations().size(), 2U);
    EXPECT_EQ(readPropertyListFile(file)->value(u"Later"_s), u"kept"_s);
    EXPECT_EQ(QFileInfo(path(u"config/configuration-damaged.plist"_s)).size(), 100);

    // One that is gone gives way, too: what has no configuration yet has no version before it.
    ASSERT_TRUE(QFile::remove(file));
    EXPECT_EQ(destinations().size(), 1U);
    EXPECT_FALSE(configuration().complaint().isEmpty());

    // Where that is damaged, too, only setting a disk begins anew.
    set(u"Other"_s, true);
    for (const QString& one : {file, path(u"config/configuration-previous.plist"_s)})
        QFile::resize(one, 100);
    EXPECT_EQ(statusOf([this] { configuration(); }), ExitStatus::Configuration);
    Configuration(folders_, Configuration::IfLost::BeginAnew).setDestination(folder(u"Disk"_s), false, {});
    EXPECT_EQ(destinations().size(), 1U);
}

TEST_F(ConfigurationTest, KeepRulesAreSetOneByOneAndAlwaysKeepTheLastBackup)
{
    const auto rules = [this] {
        const KeepRules kept = configuration().keepRules();
        return std::tuple(kept.hourly, kept.daily, kept.weekly);
    };
    EXPECT_EQ(rules(), std::tuple(24, 30, 520));
    configuration().setKeepRules({.hourly = -1, .daily = 7, .weekly = -1});
    configuration().setKeepRules({.hourly = 0, .daily = -1, .weekly = 0});
    EXPECT_EQ(rules(), std::tuple(1, 7, 0));
}

TEST_F(ConfigurationTest, TheUsualDiskIsTheLastUsedOrTheFirstPresentAndRotationTakesTheOldest)
{
    History history(folders_.state);
    const PresenceQuestion present = [&](const auto& some) { return presentOf(some, folders_); };
    const auto usual = [&] { return usualDestination(destinations(), history, present); };
    const auto named = [&](const QString& id) { return namedDestination(destinations(), id); };
    EXPECT_EQ(statusOf(usual), ExitStatus::NoDestination);
    const Destination first = set(u"1"_s, true);
    const Destination second = set(u"2"_s, true);
    const Destination third = set(u"3"_s, true);
    EXPECT_EQ(usual(), first);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    history.setLastBackup(first.id, now.addDays(-1));
    history.setLastBackup(second.id, now.addDays(-2));
    EXPECT_EQ(rotatedDestination(destinations(), history, present), third) << "never used";
    history.setLastBackup(third.id, now);
    EXPECT_EQ(rotatedDestination(destinations(), history, present), second);
    history.setLastDestination(second.id);
    EXPECT_EQ(usual(), second);
    unplug(second);
    EXPECT_EQ(usual(), first);
    EXPECT_EQ(rotatedDestination(destinations(), history, present), first);
    EXPECT_EQ(statusOf([&] { named(second.id); }), ExitStatus::DestinationMissing);
    EXPECT_EQ(statusOf([&] { named(u"x"_s); }), ExitStatus::UnknownDestination);
    EXPECT_EQ(named(first.id.toLower()), first);
    for (const Destination& disk : {first, third})
        unplug(disk);
    EXPECT_EQ(statusOf(usual), ExitStatus::DestinationMissing);
    const auto restoreFrom = [&](const QString& disk) {
        const QString backup = disk + "/host/2026-11-21-072258/file"_L1;
        const auto disks = destinations();
        return statusOf([&] { BackupFinder(disks, folders_).find(backup); });
    };
    EXPECT_EQ(restoreFrom(first.path), ExitStatus::DestinationMissing);
    EXPECT_EQ(restoreFrom(root_.path()), ExitStatus::NoBackup) << "no disk was ever there";
}

TEST_F(ConfigurationTest, DisksAreReportedAsTheSystemToolDoes)
{
    const Destination first = set(u"1 & <2>"_s, true);
    const Destination second = set(u"2"_s, true);
    unplug(second);
    History history(folders_.state);
    history.setLastDestination(first.id);
    history.setLastBackup(second.id, QDateTime(QDate(2026, 11, 21), QTime(7, 22, 58), Qt::UTC));
    const KeyStore keys(folders_.configuration);
    keys.setKeptRecoveryKey(first.id, u"6c2a9f01"_s);
    Snapshot a, b, elsewhere;
    a.id = a.host = u"a"_s;
    b.id = b.host = u"b"_s;
    history.setBackups(second.id, {elsewhere, a}, a.name(), 7);
    history.setBackups(second.id, {a, b}, b.name(), 9);
    const MountTable ownDisk("22 1 8:1 / / rw - ext4 /dev/sda1 rw\n30 22 8:17 / " +
                             QString(first.path).replace(u" "_s, u"\\040"_s).toUtf8() + " rw - ext4 /dev/sdb1 rw\n");
    const auto report = [&](const MountTable& mounts, int index) {
        const auto xml = propertylist::parse(destinationXml(configuration(), history, folders_, mounts));
        const QVariantList entries = xml.value_or(QVariant()).toMap().value(u"Destinations"_s).toList();
        return fields(QString::fromUtf8(propertylist::toOldStyle(entries.value(index)).value_or(QByteArray())));
    };
    QVariantMap told = report(ownDisk, 0);
    EXPECT_GT(told.take(u"BytesTotal"_s).toLongLong(), told.take(u"BytesFree"_s).toLongLong());
    EXPECT_EQ(told, fields(uR"({ID = "%1"; Name = "1 & <2>"; Kind = Local; Path = "%2"; MountPoint = "%2";
                                LastDestination = 1;})"_s.arg(first.id, first.path)));
    EXPECT_EQ(report(ownDisk, 1), fields(uR"({ID = "%1"; Name = 2; Kind = Local; Path = "%2"; LastDestination = 0;
        RecoveryKeyMissing = 1; LastBackup = "2026-11-21 07:22:58 +0000";
        Backups = ({Name = "%3"; Snapshot = a; BytesAdded = 7;}, {Name = "%4"; Snapshot = b; BytesAdded = 9;});})"_s
                                             .arg(second.id, second.path, a.name(), b.name())));
    EXPECT_EQ(report(MountTable::current(), 0).value(u"SourceOnDisk"_s), root_.path());

    history.setLastDestination(second.id);
    keys.setKeptRecoveryKey(second.id, u"6c2a9f01"_s);
    EXPECT_EQ(destinationText({second}, history, folders_),
              "> " + QByteArray(50, '=') +
                  "\nName          : 2\nKind          : Local\nID            : " + second.id.toUtf8() + '\n');
}

TEST_F(ConfigurationTest, WhatMovesTheCursorOrBeginsALineIsToldToProgramsOnly)
{
    Destination forged = set(u"2"_s, true);
    forged.name = u"2\u009B1A\nID"_s;
    configuration().takeUp(forged);
    EXPECT_EQ(statusOf([this] { configuration().takeUp({.id = {}, .name = {}, .path = u"/bell\u0007"_s}); }),
              ExitStatus::NoInput);
    const History history(folders_.state);
    EXPECT_TRUE(destinationText({forged}, history, folders_).contains("\nName          : 2 1A ID\n"));
    EXPECT_TRUE(destinationXml(configuration(), history, folders_).contains("2\u009B1A\nID"));
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
    const QString home = folder(u"home"_s);
    const QStringList sources{home, folder(u"outer/photos"_s), folder(u"missing"_s), folder(u"linked"_s)};
    for (const QString& source : sources)
        configuration().addSource(source);
    for (const QString& gone : sources.mid(2))
        QDir().rmdir(gone);
    QFile::link(home, sources[3]);

    // Another file system with a blank in its name, a part of the same one, and one that is a source by itself.
    const QString mounts = u"22 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
                           "30 22 0:40 / %1/cloud\\040drive rw - fuse cloud rw\n"
                           "31 22 8:1 /part %1/part rw - ext4 /dev/sda1 rw\n"
                           "32 22 8:17 / %2 rw - ext4 /dev/sdb1 rw\n"_s.arg(home, sources[1]);
    const SourceSet set = SourceSet::of(configuration(), folders_, MountTable(mounts.toUtf8()));
    EXPECT_EQ(set.folders, sources.mid(0, 2)) << "a link would be stored as a link";
    EXPECT_EQ(set.missing, QStringList(sources[2]));
    const QString trash = u"/.Trash-%1"_s.arg(getuid());
    EXPECT_EQ(set.excluded, (QStringList{inside.path, around.path + "/Quillon.backups"_L1, folders_.cache,
                                         folders_.state, root_.path() + "/.local/share/Trash"_L1, home + trash,
                                         home + "/cloud drive"_L1, sources[1] + trash}))
        << "neither a disk nor a cache folder that holds a source is left out whole";
    EXPECT_TRUE(set.arguments().contains(home + "/disk \\*"_L1)) << "patterns are literal";
    EXPECT_TRUE(set.arguments().contains(u"--exclude-caches"_s));

    const QByteArray signature = "Signature: 8a477f597d28d172789f06886806bc55\n";
    for (const QString& name : {u"cache"_s, u"cache/inner"_s, u"disk */cache"_s})
        file(u"home/"_s + name + "/CACHEDIR.TAG"_L1, signature);
    file(u"home/other/CACHEDIR.TAG"_s); // without what makes it one
    const QString cache = home + "/cache"_L1;
    EXPECT_EQ(set.caches(), QStringList(cache)) << "none that is left out anyway";
    EXPECT_FALSE(set.contains(cache) || set.contains(cache + "/inner/x"_L1));
    EXPECT_TRUE(set.contains(home + "/other"_L1) && set.contains(home + "/other/x"_L1));
    file(u"home/CACHEDIR.TAG"_s, signature);
    EXPECT_TRUE(set.contains(cache) && set.caches().isEmpty());
    EXPECT_FALSE(set.arguments().contains(u"--exclude-caches"_s)) << "it would leave nothing of a source";
}

} // namespace quillon
