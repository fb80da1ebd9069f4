#include "BackupRemark.h"

#include "Paths.h"
#include "Repository.h"

#include <QFileInfo>
#include <QHash>
#include <QJsonDocument>

#include <algorithm>
#include <iterator>

namespace quillon {

using namespace Qt::StringLiterals;

EarlierBackups::EarlierBackups(const Repository& repository, Restic restic, const QStringList& hostNames)
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

QStringList EarlierBackups::parentOptions()
{
    const Snapshot* const latest = quillon::latestOf(all(), QDateTime::currentDateTimeUtc());
    return latest != nullptr ? QStringList{u"--parent"_s, latest->id} : QStringList{u"--force"_s};
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

EarlierBackups::Latest EarlierBackups::latestOf(const Latest& begin, const QString& folder, const QString& justMade)
{
    return std::find_if(begin, all().rend(), [&](const Snapshot& snapshot) {
        return snapshot.complete && (justMade.isEmpty() || !snapshot.id.startsWith(justMade)) &&
               std::ranges::any_of(snapshot.sources, [&](const QString& source) { return covers(source, folder); });
    });
}

bool EarlierBackups::heldFilesFrom(const Latest& begin, const QString& folder, const QString& justMade)
{
    const auto found = latestOf(begin, folder, justMade);
    return found != all().rend() && holdsFile(*found, folder);
}

namespace {

// A tenth of the data is read each week; a backup soon after may cut one short, but not month after month.
constexpr int verificationDays = 28;

QString counted(qlonglong files)
{
    return files == 1 ? u"One file could not be read."_s : u"%1 files could not be read."_s.arg(files);
}

} // namespace

QString BackupRemark::removal() const
{
    if (removed.empty())
        return {};
    return removed.size() == 1 ? u"The disk was full, and the backup \"%1\" was removed."_s.arg(removed.front().name())
                               : u"The disk was full, and %1 old backups, from \"%2\" to \"%3\", were removed."_s.arg(
                                     QString::number(removed.size()), removed.front().name(), removed.back().name());
}

std::optional<std::pair<QString, QString>> BackupRemark::text(const QDateTime& now) const
{
    QString cause;
    QStringList sentences;
    const auto add = [&](const QString& word, const QStringList& some) {
        if (some.isEmpty())
            return;
        if (cause.isEmpty())
            cause = word;
        sentences += some;
    };
    add(u"SourceLost"_s, lostSources);
    if (lostBackups > 0)
        add(u"BackupsLost"_s,
            {u"%1 earlier backups, the latest among them, are gone, and this program has not removed "
             u"them. "
             "\"restic recover\" may bring their files back within the coming week."_s.arg(lostBackups)});
    if (damagedRecords > 0)
        add(u"Damaged"_s, {u"The records of %1 backups were damaged and have been put aside."_s.arg(damagedRecords)});
    if (!damagedRecordsLeft.isEmpty())
        add(u"Damaged"_s,
            {u"The records of %1 backups are damaged. Old backups can be thinned again once these files of "
             "the network place are moved elsewhere: %2."_s.arg(QString::number(damagedRecordsLeft.size()),
                                                                damagedRecordsLeft.join(u", "_s))});
    if (unreadFiles > 0)
        add(u"UnreadFiles"_s, {counted(unreadFiles)});
    add(u"MissingSource"_s, lackingSources);
    if (!removed.empty())
        add(u"SpaceMade"_s, {removal()});
    if (!thinningProblem.isEmpty())
        add(u"Thinning"_s, {u"Old backups could not be thinned: %1"_s.arg(thinningProblem)});
    if (lastVerification.isValid() && lastVerification.addDays(verificationDays) < now)
        add(u"NotVerified"_s,
            {u"The backups have not been verified since %1. Leave the computer on, and the disk or the "
             "network connected, for a while after a backup, or call \"tmutil verify\"."_s.arg(
                 lastVerification.toLocalTime().toString(u"yyyy-MM-dd"_s))});
    if (cause.isEmpty())
        return std::nullopt;
    return std::pair(cause, sentences.join(u' '));
}

QStringList droppedFolders(QVariantMap& judged, const QStringList& leftOut,
                           const std::function<QStringList(const QStringList& folders)>& held)
{
    judged.removeIf([&leftOut](const auto& entry) { return !leftOut.contains(entry.key()); });
    QStringList fresh = leftOut;
    fresh.removeIf([&judged](const QString& folder) { return judged.contains(folder); });
    const QStringList lost = fresh.isEmpty() ? QStringList() : held(fresh);
    for (const QString& folder : fresh)
        judged.insert(folder, qlonglong{lost.contains(folder) ? 1 : 0});
    QStringList dropped = leftOut;
    dropped.removeIf([&judged](const QString& folder) { return !judged.value(folder).toBool(); });
    return dropped;
}

QStringList readableFolders(const QStringList& unread)
{
    QStringList folders = unread;
    folders.removeIf([](const QString& path) {
        const QFileInfo folder(path);
        return !folder.isDir() || !folder.isReadable() || !folder.isExecutable();
    });
    return folders;
}

} // namespace quillon
