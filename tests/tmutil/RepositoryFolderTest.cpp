#include "RepositoryFolder.h"

#include "ConfigurationFixture.h"

#include <QFile>

#include <sys/stat.h>
#include <tuple>
#include <unistd.h>

namespace quillon {

class RepositoryFolderTest : public ConfigurationFixture {};

TEST_F(RepositoryFolderTest, AFolderThatBearsAKnownNameIsNotTakenForTheUsersOwn)
{
    const QString id = set(u"Disk 1"_s, true).id;
    ASSERT_TRUE(QFile::link(root_.path(), folder(u"Disk 2/Quillon.backups"_s) + u'/' + id));
    EXPECT_NE(set(u"Disk 2"_s, true).id, id);
    const QString repository = folder(u"Disk 3/Quillon.backups/"_s + id);
    ASSERT_TRUE(QFile(repository + "/config"_L1).open(QIODevice::WriteOnly));
    unplug(destinations().front());
    EXPECT_NE(set(u"Disk 3"_s, true, false).id, id) << "another key opens it";
    ASSERT_TRUE(QDir().rename(repository, folder(u"Disk 5/Quillon.backups"_s) + u'/' + id));
    EXPECT_EQ(set(u"Disk 5"_s, true).id, id);
}

TEST_F(RepositoryFolderTest, ADiskIsOpenToAllUsersAndEachRepositoryToItsOwn)
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

TEST_F(RepositoryFolderTest, WhatResticWouldWaitForOrFollowIsNamed)
{
    const Destination disk = set(u"Disk"_s, false);
    for (const char* name :
         {"config", "data", "data/pipe", "index/pipe", "keys/pipe", "locks/pipe", "snapshots/pipe"}) {
        const QString path = disk.repository() + u'/' + QLatin1StringView(name);
        QDir().mkpath(QFileInfo(path).path());
        QDir().rmdir(path);
        ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        EXPECT_FALSE(disk.isPresent()) << name;
        EXPECT_EQ(RepositoryFolder::contents(disk), RepositoryFolder::Contents::Foreign) << name;
        EXPECT_TRUE(disk.absence().contains(path)) << disk.absence().toStdString();
        EXPECT_EQ(statusOf([&] { set(u"Disk"_s, false); }), ExitStatus::CannotWrite) << name;
        QFile::remove(path);
    }
    EXPECT_TRUE(disk.isPresent());
}

TEST_F(RepositoryFolderTest, WhatAKilledSetupHasLeftIsRemovedByTheNext)
{
    const Destination disk = set(u"Disk"_s, false);
    const QString shared = u"Disk/Quillon.backups/"_s;
    const auto name = [](const QString& id, char digit) { return id + u'-' + QString(32, QLatin1Char(digit)); };
    const auto write = [&](const QString& path) {
        folder(QFileInfo(shared + path).path());
        EXPECT_TRUE(QFile(root_.filePath(shared + path)).open(QIODevice::WriteOnly));
    };
    folder(shared + name(disk.id, '0'));
    write(name(disk.id, '1') + "/config"_L1);
    write(name(disk.id, '1') + "/keys/key"_L1);
    folder(shared + name(disk.id, '1') + "/data/00"_L1);
    const QStringList kept{name(disk.id, '2'), name(disk.id, '3'), name(disk.id, '4'), name(disk.id, '5') + u'x',
                           name(u"another"_s, '6')};
    write(kept[0] + "/snapshots/backup"_L1);
    write(kept[1] + "/data/00/pack"_L1);
    write(kept[2] + "/thesis"_L1);
    folder(shared + kept[3]);
    folder(shared + kept[4]);
    const auto others = [&] {
        QStringList names = QDir(root_.filePath(shared)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        names.removeAll(disk.id);
        return QSet(names.begin(), names.end());
    };
    const RepositoryFolder first = RepositoryFolder::makeBeside(disk);
    const auto withFirst = others();
    EXPECT_EQ(withFirst.size(), kept.size() + 1);
    EXPECT_TRUE(withFirst.contains(QSet(kept.begin(), kept.end())));
    const RepositoryFolder second = RepositoryFolder::makeBeside(disk);
    EXPECT_TRUE(others().contains(withFirst)) << "one that is being made";
}

} // namespace quillon
