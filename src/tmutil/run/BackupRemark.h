#pragma once

#include "Restic.h"
#include "ResticOutput.h"

#include <QDateTime>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace quillon {

/// The backups that this computer had made before a run, to be held against what the run finds. They are read once
/// they are asked for. All operations throw Failure.
class EarlierBackups {
public:
    /// `repository` must outlive this object. The names are those that this computer has had.
    EarlierBackups(const Repository& repository, Restic restic, const QStringList& hostNames);

    /// Whether the latest complete one of that folder has a file in it; `justMade`, an identifier or its beginning, is
    /// none of them.
    bool heldFiles(const QString& folder, const QString& justMade = {});

    /// Of those folders the ones of which the latest complete one has a file in it; a cache's tag is none.
    QStringList thatHeldFiles(const QStringList& folders);

    /// Whether there is one of that identifier.
    bool contains(const QString& identifier);

    /// What lets restic go on from the latest complete one, or from none, without a look at any other.
    QStringList parentOptions();

    /// Of those made since then, the ones that lack a source which held files before become incomplete.
    void markEmptied(const QDateTime& since);

private:
    const std::vector<Snapshot>& all();
    bool holdsFile(const Snapshot& snapshot, const QString& folder) const;
    using Latest = std::vector<Snapshot>::const_reverse_iterator;
    Latest latestOf(const Latest& begin, const QString& folder, const QString& justMade = {});
    void findFiles(const QString& backup, const QStringList& folders, QSet<QString>& held) const;
    bool heldFilesFrom(const Latest& begin, const QString& folder, const QString& justMade = {});

    const Repository& repository_;
    Restic restic_;
    QStringList hostNames_;
    std::optional<std::vector<Snapshot>> snapshots_;
};

/// What there is to say of a backup that was made.
struct BackupRemark {
    QStringList lostSources;    ///< sentences on sources that held files before and don't now
    QStringList lackingSources; ///< sentences on what is not there or left out
    qlonglong unreadFiles = 0;
    qlonglong lostBackups = 0;      ///< that were on the disk at the last run, and that nobody thins
    qlonglong damagedRecords = 0;   ///< of backups, put aside
    QStringList damagedRecordsLeft; ///< their files, at a network place
    std::vector<Snapshot> removed;  ///< for want of room, oldest first
    QString thinningProblem;
    QDateTime lastVerification; ///< invalid where there was none yet

    /// The cause, of several the gravest, as a word for programs, and sentences for people on all of them; nothing for
    /// a backup without fault.
    std::optional<std::pair<QString, QString>> text(const QDateTime& now) const;

    /// A sentence on what was removed, whatever came of the backup; empty where nothing was.
    QString removal() const;
};

/// Of the folders that a backup leaves out without the user's word the ones that had been backed up before. `judged`
/// holds what was found out about each, 1 or 0, as long as it is left out; only of those that are new there it is asked
/// which `held` files.
QStringList droppedFolders(QVariantMap& judged, const QStringList& leftOut,
                           const std::function<QStringList(const QStringList& folders)>& held);

/// Of the paths that restic could not save the folders that are there to be read. It can't be they that kept it from
/// that: where the disk has a damaged record of one, restic takes it for the folder's contents.
QStringList readableFolders(const QStringList& unread);

} // namespace quillon
