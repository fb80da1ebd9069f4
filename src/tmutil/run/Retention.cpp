#include "Retention.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
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

} // namespace quillon
