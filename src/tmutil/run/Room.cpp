#include "Room.h"

#include "RepositoryFolder.h"
#include "Restic.h"

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr unsigned long long leastRoom = 1024ULL * 1024;
constexpr auto reserveName = "reserve";
constexpr unsigned long long mostReserve = 64ULL * 1024 * 1024;

struct statvfs roomOf(const RepositoryFolder& repository)
{
    struct statvfs room {};
    fstatvfs(repository.descriptor(), &room);
    return room;
}

/// Moves what is still needed out of files of data that are in use in part only, for without that little room may come
/// of it; but no more than half of the room there is can hold.
void prune(const RepositoryFolder& repository, const Restic& restic)
{
    const auto room = roomOf(repository);
    const auto most = QString::number(room.f_bavail * room.f_frsize / 2);
    restic.runUnlocking({u"prune"_s, u"--max-unused"_s, u"0"_s, u"--max-repack-size"_s, most}).require();
}

} // namespace

bool isFull(const RepositoryFolder& repository)
{
    const auto room = roomOf(repository);
    return room.f_blocks > 0 && room.f_bavail * room.f_frsize < leastRoom;
}

bool isNearlyFull(const RepositoryFolder& repository)
{
    constexpr unsigned long long largestPack = 128ULL * 1024 * 1024; // restic-backup(1), "--pack-size"
    const auto room = roomOf(repository);
    return room.f_blocks > 0 && room.f_bavail * room.f_frsize < largestPack;
}

void keepReserve(const RepositoryFolder& repository)
{
    const auto room = roomOf(repository);
    const auto size = std::min<unsigned long long>(room.f_blocks * room.f_frsize / 1000, mostReserve);
    if (room.f_bavail * room.f_frsize < 100 * size)
        return;
    const int file = openat(repository.descriptor(), reserveName, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW,
                            S_IRUSR | S_IWUSR);
    if (file < 0)
        return;
    if (posix_fallocate(file, 0, static_cast<off_t>(size)) != 0)
        unlinkat(repository.descriptor(), reserveName, 0);
    close(file);
}

void removeReserve(const RepositoryFolder& repository)
{
    unlinkat(repository.descriptor(), reserveName, 0);
}

void forget(const std::vector<Snapshot>& snapshots, const Restic& restic)
{
    if (snapshots.empty())
        return;
    QStringList arguments{u"forget"_s};
    for (const Snapshot& snapshot : snapshots)
        arguments.append(snapshot.id);
    restic.runUnlocking(arguments).require();
}

quint64 removeLeftovers(const RepositoryFolder& repository, const Restic& restic, const KeepRules& rules)
{
    removeReserve(repository);
    forget(dispensable(snapshotsIn(repository, restic), rules, {}, QDateTime::currentDateTimeUtc()), restic);
    prune(repository, restic);
    const auto room = roomOf(repository);
    return std::max<quint64>(room.f_blocks / 20, 2 * room.f_bavail);
}

bool removeLeastMissed(const RepositoryFolder& repository, const Restic& restic, quint64 roomWanted,
                       std::vector<Snapshot>& removed)
{
    if (roomOf(repository).f_bavail >= roomWanted)
        return false;
    auto some = leastMissed(snapshotsIn(repository, restic), QDateTime::currentDateTimeUtc());
    if (some.empty())
        return false;
    some.resize(std::min(some.size(), removed.size() + 1));
    forget(some, restic);
    removed.insert(removed.end(), some.begin(), some.end());
    prune(repository, restic);
    return true;
}

} // namespace quillon
