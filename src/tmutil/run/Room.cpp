#include "Room.h"

#include "Repository.h"
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

/// All zeros where it is not known.
struct statvfs roomOf(const Repository& repository)
{
    struct statvfs room {};
    if (const RepositoryFolder* const folder = repository.folder())
        fstatvfs(folder->descriptor(), &room);
    return room;
}

/// Moves what is still needed out of files of data that are in use in part only, for without that little room may come
/// of it; but no more than half of the room there is can hold.
void prune(const Repository& repository, const Restic& restic)
{
    const auto room = roomOf(repository);
    const auto most = QString::number(room.f_bavail * room.f_frsize / 2);
    restic.runUnlocking({u"prune"_s, u"--max-unused"_s, u"0"_s, u"--max-repack-size"_s, most}).require();
}

} // namespace

bool isFull(const Repository& repository)
{
    const auto room = roomOf(repository);
    return room.f_blocks > 0 && room.f_bavail * room.f_frsize < leastRoom;
}

bool isNearlyFull(const Repository& repository)
{
    constexpr unsigned long long largestPack = 128ULL * 1024 * 1024; // restic-backup(1), "--pack-size"
    const auto room = roomOf(repository);
    return room.f_blocks > 0 && room.f_bavail * room.f_frsize < largestPack;
}

void keepReserve(const Repository& repository)
{
    const RepositoryFolder* const folder = repository.folder();
    const auto room = roomOf(repository);
    const auto size = std::min<unsigned long long>(room.f_blocks * room.f_frsize / 1000, mostReserve);
    if (folder == nullptr || room.f_bavail * room.f_frsize < 100 * size)
        return;
    const int file = openat(folder->descriptor(), reserveName, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW,
                            S_IRUSR | S_IWUSR);
    if (file < 0)
        return;
    if (posix_fallocate(file, 0, static_cast<off_t>(size)) != 0)
        unlinkat(folder->descriptor(), reserveName, 0);
    close(file);
}

void removeReserve(const Repository& repository)
{
    if (const RepositoryFolder* const folder = repository.folder())
        unlinkat(folder->descriptor(), reserveName, 0);
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

quint64 removeLeftovers(const Repository& repository, const Restic& restic, const KeepRules& rules)
{
    removeReserve(repository);
    forget(dispensable(snapshotsIn(repository, restic), rules, {}, QDateTime::currentDateTimeUtc()), restic);
    prune(repository, restic);
    const auto room = roomOf(repository);
    return std::max<quint64>(room.f_blocks / 20, 2 * room.f_bavail);
}

bool removeLeastMissed(const Repository& repository, const Restic& restic, quint64 roomWanted,
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
