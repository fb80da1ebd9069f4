#include "Snapshot.h"

#include "Paths.h"
#include "Repository.h"
#include "Restic.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <iterator>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// The first counts where both stand for one.
constexpr std::array givenNames{&Snapshot::name, &Snapshot::earlierName};

} // namespace

QString Snapshot::tag(bool complete)
{
    return complete ? u"quillon"_s : u"quillon-incomplete"_s;
}

QString Snapshot::name() const
{
    return nameAt(time);
}

QString Snapshot::earlierName() const
{
    return nameAt(time.toLocalTime());
}

QString Snapshot::nameAt(const QDateTime& date) const
{
    return (mountPoint.endsWith(u'/') ? mountPoint : mountPoint + u'/') + host + u'/' +
           date.toString(u"yyyy-MM-dd-HHmmss"_s) + (complete ? QString() : u".incomplete"_s);
}

std::vector<Snapshot> snapshotsIn(const Repository& repository, const Restic& restic)
{
    if (repository.isNew())
        return {};
    repository.requireConfig();
    // Reading the list needs no lock, so it works during a prune and on a disk that cannot be written.
    const auto outcome = restic.run({u"snapshots"_s, u"--json"_s, u"--no-lock"_s});
    const auto list = QJsonDocument::fromJson(outcome.output);
    if (outcome.exitStatus != 0 || !list.isArray())
        throw outcome.failure();

    std::vector<Snapshot> snapshots;
    for (const QJsonValue entry : list.array()) {
        const QJsonArray tags = entry["tags"_L1].toArray();
        const bool own = tags.contains(Snapshot::tag(true)) || tags.contains(Snapshot::tag(false));
        if (!own && !repository.destination().bare)
            continue;
        Snapshot snapshot{.id = entry["id"_L1].toString(),
                          .time = QDateTime::fromString(entry["time"_L1].toString(), Qt::ISODateWithMs),
                          .host = entry["hostname"_L1].toString(),
                          .mountPoint = repository.destination().path,
                          .sources = entry["paths"_L1].toVariant().toStringList(),
                          .own = own,
                          .complete = !tags.contains(Snapshot::tag(false))};
        snapshots.push_back(std::move(snapshot));
    }
    std::ranges::stable_sort(snapshots, {}, &Snapshot::time);
    return snapshots;
}

QStringList unreadableSnapshots(const Restic& restic)
{
    const auto files = restic.run({u"list"_s, u"snapshots"_s, u"--no-lock"_s});
    const auto read = restic.run({u"snapshots"_s, u"--json"_s, u"--no-lock"_s});
    files.require();
    read.require();
    QStringList identifiers = QString::fromLatin1(files.output).split(u'\n', Qt::SkipEmptyParts);
    for (const QJsonValue snapshot : QJsonDocument::fromJson(read.output).array())
        identifiers.removeAll(snapshot["id"_L1].toString());
    return identifiers;
}

std::optional<QStringList> sourcesIn(const QByteArray& line)
{
    const QJsonValue sources = QJsonDocument::fromJson(line)["paths"_L1];
    return sources.isArray() ? std::optional(sources.toVariant().toStringList()) : std::nullopt;
}

std::vector<Snapshot> holdersOf(const std::vector<Snapshot>& snapshots, const QString& path)
{
    std::vector<Snapshot> found;
    for (const auto nameOf : givenNames) {
        std::ranges::copy_if(snapshots, std::back_inserter(found),
                             [&](const Snapshot& snapshot) { return covers((snapshot.*nameOf)(), path); });
        if (!found.empty())
            break;
    }
    return found;
}

std::vector<Snapshot> takeNamed(const std::vector<Snapshot>& snapshots, QStringList& names)
{
    std::vector<Snapshot> taken;
    for (const auto nameOf : givenNames) {
        for (const Snapshot& snapshot : snapshots) {
            if (std::ranges::find(taken, snapshot.id, &Snapshot::id) == taken.end() &&
                names.removeOne((snapshot.*nameOf)()))
                taken.push_back(snapshot);
        }
    }
    return taken;
}

std::vector<Snapshot> madeBy(const QStringList& hosts, std::vector<Snapshot> snapshots)
{
    std::erase_if(snapshots, [&hosts](const Snapshot& snapshot) { return !hosts.contains(snapshot.host); });
    return snapshots;
}

const Snapshot* latestOf(const std::vector<Snapshot>& snapshots, const QDateTime& now)
{
    const Snapshot* latest = nullptr;
    for (const Snapshot& snapshot : snapshots) {
        if (snapshot.complete && snapshot.time <= now && (latest == nullptr || latest->time <= snapshot.time))
            latest = &snapshot;
    }
    return latest != nullptr || snapshots.empty() ? latest : &snapshots.back();
}

} // namespace quillon
