#include "DroppedFolders.h"

#include "History.h"
#include "PropertyListFile.h"
#include "RunState.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

TEST(DroppedFolders, AreJudgedOnceAndForgottenWhenTheyAreBack)
{
    QVariantMap judged;
    QStringList asked;
    const auto dropped = [&](const QStringList& leftOut) {
        return droppedFolders(judged, leftOut, [&](const QStringList& folders) {
            asked += folders;
            return QStringList(u"/held"_s);
        });
    };
    const QStringList both{u"/held"_s, u"/new"_s};
    EXPECT_EQ(dropped(both), QStringList(u"/held"_s));
    EXPECT_EQ(dropped(both), QStringList(u"/held"_s));
    EXPECT_EQ(asked, both) << "later backups no longer hold it";
    EXPECT_EQ(dropped({}), QStringList());
    EXPECT_TRUE(judged.isEmpty());
}

TEST(DroppedFolders, WhatCanBeReadAndIsNotSavedIsDamagedOnTheDisk)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"file"_s);
    ASSERT_TRUE(QFile(file).open(QIODevice::WriteOnly));
    QFile::setPermissions(file, QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_EQ(readableFolders({file, folder.path(), folder.filePath(u"gone"_s)}), QStringList(folder.path()));
}

TEST(History, KnowsNothingOfAnEarlierRepositoryOfANewOne)
{
    const QTemporaryDir folder;
    History history(folder.path());
    history.setDamage(u"id"_s, Damage{.date = {}});
    history.setUncheckedSince(u"id"_s, QDateTime::currentDateTimeUtc());
    history.setVerificationUnfinished(u"id"_s, true);
    history.setCaches(u"id"_s, {{u"/cache"_s, 1LL}});
    history.setOtherFileSystems(u"id"_s, {{u"/mount"_s, 1LL}});
    history.setBackups(u"id"_s, std::vector<Snapshot>(1), {}, 0);
    history.noteNewRepository(u"id"_s);
    EXPECT_FALSE(history.damage(u"id"_s) || history.uncheckedSince(u"id"_s).isValid() ||
                 history.isVerificationUnfinished(u"id"_s));
    EXPECT_TRUE(history.caches(u"id"_s).isEmpty() && history.otherFileSystems(u"id"_s).isEmpty() &&
                history.backups(u"id"_s).isEmpty());
}

// Whoever stops a run signals that number.
TEST(RunState, TellsOfNoWorkerWhoseNumberStandsForMany)
{
    const QTemporaryDir folder;
    RunState run;
    run.worker = -1;
    ASSERT_TRUE(run.write(folder.path()));
    // The kernel tells -1 of the holder of such a lock.
    const int file = open(QFile::encodeName(RunState::lockPath(folder.path())).constData(),
                          O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
    struct flock whole {};
    whole.l_type = F_WRLCK;
    ASSERT_EQ(fcntl(file, F_OFD_SETLK, &whole), 0);
    EXPECT_FALSE(RunState::current(folder.path()));
    close(file);
}

} // namespace quillon
