#include "Retention.h"

#include "Repository.h"
#include "Restic.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <map>
#include <set>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// One rule at work: the buckets are those of restic's "forget", in the time zone in which the backup was made.
struct Bucket {
    int left;
    QString (*name)(const QDateTime& time);
    QString last = {};

    bool keeps(const QDateTime& time)
    {
        QString now = name(time);
        if (left <= 0 || now == last)
            return false;
        last = std::move(now);
        --left;
        return true;
    }
};

QString hourOf(const QDateTime& time)
{
    return time.toString(u"yyyy-MM-dd HH"_s);
}

QString dayOf(const QDateTime& time)
{
    return time.toString(u"yyyy-MM-dd"_s);
}

QString weekOf(const QDateTime& time)
{
    int year = 0;
    const int week = time.date().weekNumber(&year);
    return u"%1 %2"_s.arg(year).arg(week);
}

/// What is dated later than now is the last one only where there is no other.
void takeIfLater(const Snapshot*& last, const Snapshot& snapshot, const QDateTime& now)
{
    if (last == nullptr || last->time > now || snapshot.time <= now)
        last = &snapshot;
}

/// The identifiers of the last complete backup of each folder on each computer: with one of them its only copy may go.
/// Those that were not made here are left out of account, for their maker may remove them.
std::set<QString> lastOfSources(const std::vector<Snapshot>& snapshots, const QDateTime& now)
{
    std::map<std::pair<QString, QString>, const Snapshot*> lastOf;
    for (const Snapshot& snapshot : snapshots) {
        for (const QString& source : snapshot.own&& snapshot.complete ? snapshot.sources : QStringList())
            takeIfLater(lastOf[{snapshot.host, source}], snapshot, now);
    }
    std::set<QString> last;
    for (const auto& [source, snapshot] : lastOf)
        last.insert(snapshot->id);
    return last;
}

} // namespace

std::vector<Snapshot> dispensable(const std::vector<Snapshot>& snapshots, const KeepRules& rules,
                                  const QString& justMade, const QDateTime& now)
{
    const auto isNew = [&justMade](const Snapshot& one) { return !justMade.isEmpty() && one.id.startsWith(justMade); };
    const auto isAhead = [&](const Snapshot& one) { return one.time > now && !isNew(one); };
    std::vector<Snapshot> counted;
    std::ranges::copy_if(snapshots, std::back_inserter(counted),
                         [&](const Snapshot& one) { return one.own && !isAhead(one); });

    const std::set<QString> last = lastOfSources(counted, now);
    std::map<std::pair<QString, bool>, std::array<Bucket, 3>> bucketsOf;
    std::set<QString> others;
    for (auto snapshot = counted.rbegin(); snapshot != counted.rend(); ++snapshot) {
        const std::array full{Bucket{rules.hourly, hourOf}, Bucket{rules.daily, dayOf}, Bucket{rules.weekly, weekOf}};
        bool keep = isNew(*snapshot) || last.contains(snapshot->id);
        for (Bucket& bucket : bucketsOf.try_emplace({snapshot->host, snapshot->complete}, full).first->second)
            keep = bucket.keeps(snapshot->time) || keep;
        if (!keep)
            others.insert(snapshot->id);
    }
    std::erase_if(counted, [&others](const Snapshot& one) { return !others.contains(one.id); });
    return counted;
}

std::vector<Snapshot> leastMissed(const std::vector<Snapshot>& snapshots, const QDateTime& now)
{
    std::set<QString> kept = lastOfSources(snapshots, now);
    std::map<QString, const Snapshot*> lastOf;
    for (const Snapshot& snapshot : snapshots)
        takeIfLater(lastOf[snapshot.host], snapshot, now);
    for (const auto& [host, snapshot] : lastOf)
        kept.insert(snapshot->id);
    std::vector<Snapshot> others;
    std::ranges::copy_if(snapshots, std::back_inserter(others),
                         [&kept](const Snapshot& snapshot) { return snapshot.own && !kept.contains(snapshot.id); });
    return others;
}

bool isWeekOver(const QDateTime& last, const QDateTime& now)
{
    // A date ahead of now was written by a clock that has been set back since.
    return !last.isValid() || last > now || last.addDays(7) <= now;
}

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
