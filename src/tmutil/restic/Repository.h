#pragma once

#include "NetworkPlace.h"
#include "RepositoryFolder.h"

#include <optional>
#include <vector>

namespace quillon {

class Restic;

/// The repository of a destination, ready for restic: a folder that is held open or a network place, of which only
/// restic can tell what is there.
class Repository {
public:
    /// Nothing where the disk is not there or not as it should be. A network place is not asked. Throws Failure where
    /// nothing is known of how to reach that.
    static std::optional<Repository> open(const Destination& destination, const Folders& folders);

    /// A folder that is open, and a network place of which nothing is kept yet.
    explicit Repository(RepositoryFolder folder);
    Repository(Destination destination, NetworkAccess access);

    const Destination& destination() const { return destination_; }

    /// Nothing for a network place, which has no room to be measured and no files to be looked at.
    const RepositoryFolder* folder() const { return folder_ ? &*folder_ : nullptr; }
    RepositoryFolder* folder() { return folder_ ? &*folder_ : nullptr; }
    /// Nothing for a disk.
    const NetworkAccess* access() const { return access_ ? &*access_ : nullptr; }

    /// As of a RepositoryFolder. Of a network place nothing of it is known; what fails there says so itself.
    bool isNew() const { return folder_ && !folder_->hasConfig() && folder_->isEmpty(); }
    bool isEmpty() const { return folder_ && folder_->isEmpty(); }
    bool hasConfig() const { return !folder_ || folder_->hasConfig(); }
    bool isWritable() const { return !folder_ || folder_->isWritable(); }
    bool isStillThere() const { return !folder_ || folder_->isStillThere(); }
    void requireWritable() const;
    void requireConfig() const;

private:
    Destination destination_;
    std::optional<RepositoryFolder> folder_;
    std::optional<NetworkAccess> access_;
};

/// Of those files of data the ones that are there and not as they were written.
QStringList damagedPacks(const Repository& repository, const Restic& restic, const QStringList& packs);

/// Whether the record of a backup, of that identifier or one that begins so, is there as it was written. Throws Failure
/// where that cannot be told.
bool holdsSnapshot(const Repository& repository, const Restic& restic, const QString& identifier);

/// Records of backups that are not as they were written.
struct DamagedRecords {
    qlonglong putAside = 0;
    QStringList left; ///< by their names in the repository
};

/// On a disk they are moved into a folder beside the others, so that they keep restic from nothing; at a network place,
/// which only restic knows how to reach, they stay. Throws Failure.
DamagedRecords putAsideDamagedRecords(const Repository& repository, const Restic& restic);

/// Prepares a damaged repository for the next backup, which stores anew what it does not find: restic saves what it can
/// of files of data that are not as they were written, if it knows how to, and the index is made anew. Throws Failure.
void repairRepository(const Repository& repository, const QStringList& packs, const Restic& restic);

} // namespace quillon
