#include "Snapshot.h"

#include "Failure.h"
#include "Restic.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

QString Snapshot::name() const
{
    return (mountPoint.endsWith(u'/') ? mountPoint : mountPoint + u'/') + host + u'/' +
           time.toLocalTime().toString(u"yyyy-MM-dd-HHmmss"_s);
}

std::vector<Snapshot> snapshotsOn(const Destination& destination, const Restic& restic)
{
    if (!QFile::exists(destination.repository() + "/config"_L1))
        return {};
    // Reading the list needs no lock, so it works during a prune and on a disk that cannot be written.
    const auto outcome = restic.run({u"snapshots"_s, u"--json"_s, u"--no-lock"_s, u"--tag"_s, Restic::tag()});
    const auto list = QJsonDocument::fromJson(outcome.output);
    if (outcome.exitStatus != 0 || !list.isArray())
        throw Failure(ExitStatus::Failed, outcome.diagnosis().description);

    std::vector<Snapshot> snapshots;
    for (const QJsonValue entry : list.array()) {
        snapshots.push_back({entry["id"_L1].toString(),
                             QDateTime::fromString(entry["time"_L1].toString(), Qt::ISODateWithMs),
                             entry["hostname"_L1].toString(), destination.path});
    }
    std::ranges::stable_sort(snapshots, {}, &Snapshot::time);
    return snapshots;
}

} // namespace quillon
