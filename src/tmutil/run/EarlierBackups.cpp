#include "EarlierBackups.h"

#include "Paths.h"
#include "RepositoryFolder.h"

#include <QHash>
#include <QJsonDocument>

#include <algorithm>
#include <iterator>

namespace quillon {

using namespace Qt::StringLiterals;

EarlierBackups::EarlierBackups(const RepositoryFolder& repository, Restic restic, const QStringList& hostNames)
    : repository_(repository)
    , restic_(std::move(restic))
    , hostNames_(hostNames)
{
}

bool EarlierBackups::heldFiles(const QString& folder, const QString& justMade)
{
    return heldFilesFrom(all().rbegin(), folder, justMade);
}

QStringList EarlierBackups::thatHeldFiles(const QStringList& folders)
{
    QHash<QString, QStringList> asked; // by the backup
    for (const QString& folder : folders) {
        if (const auto latest = latestOf(all().rbegin(), folder); latest != all().rend())
            asked[latest->id].append(folder);
    }
    QSet<QString> held;
    constexpr qsizetype most = 200; // that one command line can name
    for (auto entry = asked.cbegin(); entry != asked.cend(); ++entry) {
        for (qsizetype at = 0; at < entry->size(); at += most)
            findFiles(entry.key(), entry->mid(at, most), held);
    }
    return held.values();
}

void EarlierBackups::findFiles(const QString& backup, const QStringList& folders, QSet<QString>& held) const
{
    const auto onLine = [&](const QByteArray& line) {
        if (!line.contains(R"("type":"file")"))
            return;
        const QString path = QJsonDocument::fromJson(line)["path"_L1].toString();
        for (const QString& folder : folders) {
            if (covers(folder, path) && path != folder + "/CACHEDIR.TAG"_L1)
                held.insert(folder);
        }
    };
    restic_.run(QStringList{u"ls"_s, u"--json"_s, u"--no-lock"_s, u"--recursive"_s, backup} + folders, onLine)
        .require();
}

bool EarlierBackups::contains(const QString& identifier)
{
    return std::ranges::any_of(all(), [&](const Snapshot& snapshot) { return snapshot.id == identifier; });
}

void EarlierBackups::markEmptied(const QDateTime& since)
{
    for (auto snapshot = all().rbegin(); snapshot != all().rend() && snapshot->time >= since; ++snapshot) {
        const bool isEmptied =
            snapshot->own && snapshot->complete && std::ranges::any_of(snapshot->sources, [&](const QString& source) {
                return !holdsFile(*snapshot, source) && heldFilesFrom(std::next(snapshot), source);
            });
        if (isEmptied)
            restic_.runUnlocking({u"tag"_s, u"--set"_s, Snapshot::tag(false), snapshot->id}).require();
    }
    snapshots_.reset(); // a changed one has another identifier
}

const std::vector<Snapshot>& EarlierBackups::all()
{
    if (!snapshots_)
        snapshots_ = madeBy(hostNames_, snapshotsIn(repository_, restic_));
    return *snapshots_;
}

bool EarlierBackups::holdsFile(const Snapshot& snapshot, const QString& folder) const
{
    bool file = false;
    restic_
        .run({u"ls"_s, u"--json"_s, u"--no-lock"_s, u"--recursive"_s, snapshot.id, folder},
             [&file](const QByteArray& line) { file = file || line.contains(R"("type":"file")"); })
        .require();
    return file;
}

EarlierBackups::Latest EarlierBackups::latestOf(Latest begin, const QString& folder, const QString& justMade)
{
    return std::find_if(begin, all().rend(), [&](const Snapshot& snapshot) {
        return snapshot.complete && (justMade.isEmpty() || !snapshot.id.startsWith(justMade)) &&
               std::ranges::any_of(snapshot.sources, [&](const QString& source) { return covers(source, folder); });
    });
}

bool EarlierBackups::heldFilesFrom(Latest begin, const QString& folder, const QString& justMade)
{
    const auto found = latestOf(begin, folder, justMade);
    return found != all().rend() && holdsFile(*found, folder);
}

} // namespace quillon
