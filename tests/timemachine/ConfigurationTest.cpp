#include "Configuration.h"

#include "DestinationChoice.h"
#include "DestinationReport.h"
#include "Failure.h"
#include "History.h"
#include "KeyStore.h"
#include "PropertyList.h"
#include "PropertyListFile.h"
#include "SourceSet.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

class ConfigurationTest : public testing::Test {
protected:
    QString folder(const QString& name) const
    {
        QDir().mkpath(root_.filePath(name));
        return QFileInfo(root_.filePath(name)).canonicalFilePath();
    }
    Destination set(const QString& name, bool append)
    {
        return Configuration(folders_).setDestination(folder(name), append);
    }
    std::vector<Destination> destinations() const { return Configuration(folders_).destinations(); }
    static void unplug(const Destination& disk) { QDir(disk.path).rename(u"Quillon.backups"_s, u"away"_s); }

    template<class Call>
    static ExitStatus statusOf(Call call)
    {
        try {
            call();
        } catch (const Failure& failure) {
            EXPECT_FALSE(failure.message().isEmpty());
            return failure.status();
        }
        return ExitStatus::Success;
    }

    QTemporaryDir root_;
    Folders folders_{root_.path(), root_.filePath(u"config"_s), root_.filePath(u"state"_s), root_.filePath(u"cache"_s)};
};

} // namespace

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

TEST_F(ConfigurationTest, ADiskIsOpenToAllUsersAndEachRepositoryToItsOwn)
{
    const auto mode = [](const QString& path) {
        struct stat state {};
        return stat(QFile::encodeName(path).constData(), &state) == 0 ? state.st_mode & ALLPERMS : 0U;
    };
    const mode_t mask = umask(0077);
    const Destination disk = set(u"Disk"_s, false);
    umask(mask);
    EXPECT_EQ(mode(Destination::backupFolder(disk.path)), 01777U) << "others may add, and remove only their own";
    EXPECT_EQ(mode(disk.repository()), 0700U);
    chmod(QFile::encodeName(Destination::backupFolder(disk.path)).constData(), 0700);
    set(u"Disk"_s, false);
    EXPECT_EQ(mode(Destination::backupFolder(disk.path)), 0700U) << "what its owner has decided since stays";
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

TEST_F(ConfigurationTest, WhatAnotherVersionWroteSurvivesAndDamageIsNotOverwritten)
{
    const QString file = folder(u"config"_s) + "/configuration.plist"_L1;
    ASSERT_TRUE(writePropertyListFile(file, {{u"Later"_s, u"kept"_s}, {u"Destinations"_s, u"of a wrong kind"_s}}));
    set(u"Disk"_s, false);
    EXPECT_EQ(readPropertyListFile(file)->value(u"Later"_s), u"kept"_s);
    EXPECT_EQ(destinations().size(), 1U);

    QFile::resize(file, 100);
    EXPECT_EQ(statusOf([this] { set(u"Disk"_s, false); }), ExitStatus::Configuration);
    EXPECT_EQ(QFileInfo(file).size(), 100);
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
    const auto xml = propertylist::parse(destinationXml(destinations(), first.id));
    ASSERT_TRUE(xml);
    const QVariantList entries = xml->toMap().value(u"Destinations"_s).toList();
    ASSERT_EQ(entries.size(), 2);
    EXPECT_EQ(entries[0].toMap(), (QVariantMap{{u"ID"_s, first.id},
                                               {u"Name"_s, u"1 & <2>"_s},
                                               {u"Kind"_s, u"Local"_s},
                                               {u"MountPoint"_s, first.path},
                                               {u"LastDestination"_s, qlonglong{1}}}));
    EXPECT_FALSE(entries[1].toMap().contains(u"MountPoint"_s)) << "it is not there";
    EXPECT_EQ(entries[1].toMap().value(u"LastDestination"_s), qlonglong{0});
    EXPECT_EQ(destinationText({second}, second.id),
              "> " + QByteArray(50, '=') +
                  "\nName          : 2\nKind          : Local\nID            : " + second.id.toUtf8() + '\n');
}

TEST_F(ConfigurationTest, OwnFilesAndDisksAreNeverBackedUp)
{
    const Destination inside = set(u"home/disk *"_s, true);
    const Destination around = set(u"outer"_s, true);
    const QStringList sources{folder(u"home"_s), folder(u"outer/photos"_s), root_.filePath(u"missing"_s)};
    QFile::link(folder(u"home"_s), root_.filePath(u"alias"_s));

    const SourceSet set = SourceSet::of(QStringList(sources) << root_.filePath(u"alias"_s), {inside, around}, folders_);
    EXPECT_EQ(set.folders, sources.mid(0, 2)) << "a link would be stored as a link";
    EXPECT_EQ(set.missing, sources.mid(2));
    EXPECT_EQ(set.excluded,
              (QStringList{inside.path, around.path + "/Quillon.backups"_L1, folders_.cache, folders_.state}))
        << "a disk that holds a source is not left out whole";
    EXPECT_TRUE(set.arguments().contains(folder(u"home"_s) + "/disk \\*"_L1)) << "patterns are literal";
}

} // namespace quillon
