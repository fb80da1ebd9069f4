#pragma once

#include "Restic.h"
#include "Snapshot.h"

#include <QDateTime>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace quillon {

/// The backups that this computer had made before a run, to be held against what the run finds. They are read once
/// they are asked for. All operations throw Failure.
class EarlierBackups {
public:
    /// `repository` must outlive this object. The names are those that this computer has had.
    EarlierBackups(const RepositoryFolder& repository, Restic restic, const QStringList& hostNames);

    /// Whether the latest complete one of that folder has a file in it; `justMade`, an identifier or its beginning, is
    /// none of them.
    bool heldFiles(const QString& folder, const QString& justMade = {});

    /// Of those folders the ones of which the latest complete one has a file in it; a cache's tag is none.
    QStringList thatHeldFiles(const QStringList& folders);

    /// Whether there is one of that identifier.
    bool contains(const QString& identifier);

    /// Of those made since then, the ones that lack a source which held files before become incomplete.
    void markEmptied(const QDateTime& since);

private:
    const std::vector<Snapshot>& all();
    bool holdsFile(const Snapshot& snapshot, const QString& folder) const;
    using Latest = std::vector<Snapshot>::const_reverse_iterator;
    Latest latestOf(Latest begin, const QString& folder, const QString& justMade = {});
    void findFiles(const QString& backup, const QStringList& folders, QSet<QString>& held) const;
    bool heldFilesFrom(Latest begin, const QString& folder, const QString& justMade = {});

    const RepositoryFolder& repository_;
    Restic restic_;
    QStringList hostNames_;
    std::optional<std::vector<Snapshot>> snapshots_;
};

} // namespace quillon
