#pragma once

#include "Destination.h"
#include "Folders.h"
#include "ListedFile.h"
#include "Repository.h"
#include "Snapshot.h"

#include <QString>
#include <QStringList>

#include <deque>
#include <optional>
#include <vector>

namespace quillon {

class History;
class Restic;

/// Something in a backup, or all of it.
struct PlaceInBackup {
    const Repository& repository;
    Snapshot snapshot;
    QString path; ///< absolute; empty for everything

    /// A backup knows its files by paths without links, people know them by others: the path, and where it leads to on
    /// this computer if that is another one.
    QStringList paths() const;
};

/// Finds what people name. It reads the list of a disk's backups once.
class BackupFinder {
public:
    /// Both must outlive this object.
    BackupFinder(const std::vector<Destination>& destinations, const Folders& folders);

    /// `name` is a backup's name as `listbackups` prints it, followed by an absolute path in it, or by nothing. The
    /// place is good as long as this object lives. Throws Failure where there is no such backup, or more than one.
    PlaceInBackup find(const QString& name);

    /// The same as the history remembers it, without a look at the list. Only the backup's identifier is known, and it
    /// may be gone; its sources are taken to be the likely ones.
    std::optional<PlaceInBackup> recall(const QString& name, const History& history, const QStringList& likelySources);

private:
    struct Disk {
        Destination destination;
        std::optional<Repository> repository;           ///< nothing where it is not there
        std::optional<std::vector<Snapshot>> snapshots; ///< once they have been read
    };
    Disk& disk(const Destination& destination);

    const std::vector<Destination>& destinations_;
    const Folders& folders_;
    std::deque<Disk> disks_; ///< places refer to them
};

using FileHandler = FindOutput::FileHandler;

/// What is directly in a folder of the backup, as restic tells it, file by file; of a file that itself. Without a path
/// the folders that the backup was made of, which is quick where they are those of the snapshot. False where the backup
/// has nothing at that path. Throws Failure, also where there is no backup of that identifier.
bool listFolder(const Restic& restic, const Snapshot& snapshot, const QString& path, const FileHandler& onFile);

/// The same with all that is below, folders ahead of what they hold.
bool listTree(const Restic& restic, const Snapshot& snapshot, const QString& path, const FileHandler& onFile);

/// Of those paths the ones that the backup has, each by itself. Throws Failure.
std::vector<ListedFile> describe(const Restic& restic, const Snapshot& snapshot, const QStringList& paths);

/// All that `restic find` finds with such options for patterns, backup by backup, in no order of theirs; each is named
/// after what was found in it. What lies in a folder that matches is found, too. Throws Failure, also where a part of a
/// backup cannot be read.
void findFiles(
    const Restic& restic, const QStringList& options, const QStringList& patterns, const FileHandler& onFile,
    const FindOutput::BackupHandler& onBackup = [](const QString&) {});

} // namespace quillon
