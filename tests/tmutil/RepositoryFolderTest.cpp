#include "RepositoryFolder.h"

#include "ConfigurationFixture.h"
#include "Destination.h"

#include <QRegularExpression>

namespace quillon {

class RepositoryFolderTest : public ConfigurationFixture {};

TEST_F(RepositoryFolderTest, AFolderThatBearsAKnownNameIsNotTakenForTheUsersOwn)
{
    const QString id = set(u"Disk 1"_s, true).id;
    ASSERT_TRUE(QFile::link(root_.path(), folder(u"Disk 2/Quillon.backups"_s) + u'/' + id));
    EXPECT_NE(set(u"Disk 2"_s, true).id, id);
    const QString repository = QFileInfo(file(u"Disk 3/Quillon.backups/%1/config"_s.arg(id))).path();
    unplug(destinations().front());
    EXPECT_NE(set(u"Disk 3"_s, true, false).id, id) << "another key opens it";
    ASSERT_TRUE(QDir().rename(repository, folder(u"Disk 5/Quillon.backups"_s) + u'/' + id));
    EXPECT_EQ(set(u"Disk 5"_s, true).id, id);
}

TEST_F(RepositoryFolderTest, ADiskIsOpenToAllUsersAndEachRepositoryToItsOwn)
{
    const mode_t mask = umask(0077);
    const Destination disk = set(u"Disk"_s, false);
    umask(mask);
    const QString shared = Destination::backupFolder(disk.path);
    EXPECT_EQ(mode(shared), 01777U) << "others may add, and remove only their own";
    EXPECT_EQ(mode(disk.repository()), 0700U);
    chmod(QFile::encodeName(shared).constData(), 0700);
    set(u"Disk"_s, false);
    EXPECT_EQ(mode(shared), 0700U) << "what its owner has decided since stays";
}

TEST_F(RepositoryFolderTest, WhatResticWouldWaitForOrFollowIsNamed)
{
    const Destination disk = set(u"Disk"_s, false);
    for (const char* name :
         {"config", "data", "data/pipe", "index/pipe", "keys/pipe", "locks/pipe", "snapshots/pipe"}) {
        const QString pipe = disk.repository() + u'/' + QLatin1StringView(name);
        QDir().mkpath(QFileInfo(pipe).path());
        QDir().rmdir(pipe);
        ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        EXPECT_FALSE(disk.isPresent()) << name;
        EXPECT_EQ(RepositoryFolder::contents(disk), RepositoryFolder::Contents::Foreign) << name;
        EXPECT_TRUE(disk.absence().contains(pipe)) << disk.absence().toStdString();
        EXPECT_EQ(statusOf([&] { set(u"Disk"_s, false); }), ExitStatus::CannotWrite) << name;
        QFile::remove(pipe);
    }
    EXPECT_TRUE(disk.isPresent());
}

TEST_F(RepositoryFolderTest, WhatAKilledSetupHasLeftIsRemovedByTheNext)
{
    const Destination disk = set(u"Disk"_s, false);
    const QString shared = u"Disk/Quillon.backups/"_s;
    const auto name = [&](char digit) { return disk.id + u'-' + QString(32, QLatin1Char(digit)); };
    folder(shared + name('0'));
    folder(shared + name('1') + "/data/00"_L1);
    for (const auto& left : {"/config"_L1, "/keys/key"_L1})
        file(shared + name('1') + left);
    const QSet<QString> kept{name('2'), name('3'), name('4'), name('5') + u'x', u"another-"_s + QString(32, u'6')};
    for (const QString& other : kept)
        folder(shared + other);
    file(shared + name('2') + "/snapshots/backup"_L1);
    file(shared + name('3') + "/data/00/pack"_L1);
    file(shared + name('4') + "/thesis"_L1);
    const auto others = [&] {
        QStringList names = QDir(path(shared)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        names.removeAll(disk.id);
        return QSet(names.begin(), names.end());
    };
    const RepositoryFolder first = RepositoryFolder::makeBeside(disk);
    const auto withFirst = others();
    EXPECT_EQ(withFirst.size(), kept.size() + 1);
    EXPECT_TRUE(withFirst.contains(kept));
    const RepositoryFolder second = RepositoryFolder::makeBeside(disk);
    EXPECT_TRUE(others().contains(withFirst)) << "one that is being made";
}

TEST(RecoveryKey, IsReadAsPeopleWriteItAndRefusedWithAMistake)
{
    const QString key = makeRecoveryKey();
    EXPECT_TRUE(QRegularExpression(u"^([0-9A-HJKMNP-TV-Z]{5}-){5}[0-9A-HJKMNP-TV-Z]{5}$"_s).match(key).hasMatch())
        << key.toStdString();
    EXPECT_NE(key, makeRecoveryKey());
    QString typed = QString(key).replace(u'-', u' ').toLower();
    EXPECT_EQ(recoveryKeyFrom(u" "_s + typed + u'\n'), key);
    EXPECT_EQ(recoveryKeyFrom(typed.replace(u'0', u'o').replace(u'1', u'l')), key);

    QStringList mistaken{{}, key.left(29), key + u'7', u"a passphrase of restic's"_s};
    for (qsizetype at = 0; at < key.size(); ++at) {
        if (key[at] == u'-')
            continue;
        mistaken.append(QString(key).replace(at, 1, key[at] == u'7' ? u'8' : u'7'));
        if (const QChar next = key.sliced(at).size() > 1 ? key[at + 1] : u'-'; next != u'-' && next != key[at])
            mistaken.append(QString(key).replace(at, 2, QString(next) + key[at]));
    }
    for (const QString& other : mistaken)
        EXPECT_EQ(recoveryKeyFrom(other), QString()) << other.toStdString();
}

} // namespace quillon
