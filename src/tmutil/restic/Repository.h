#pragma once

#include "NetworkPlace.h"
#include "RepositoryFolder.h"
#include "Restic.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace quillon {

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

/// What came of making a repository.
struct NewRepository {
    std::optional<Repository> repository; ///< nothing where it was not made
    ResticOutcome outcome;
    QString refusal; ///< why it could not take the place of the destination's folder, which is not empty
};

/// Makes a repository in the destination's folder, which has to be empty, under its key. It is made under another name,
/// so that it is whole or not there. Throws Failure.
NewRepository makeRepository(const Destination& destination, const Folders& folders, const StopRequest& stop);

/// Makes a repository at a network place that has none, under its destination's key. Throws Failure.
void makeRepository(const Repository& place, const Folders& folders, const StopRequest& stop);

/// Whether the repository of a destination is opened by the key that is kept for it; true where that cannot be told.
bool isOpenedByKey(const Destination& destination, const Folders& folders);

/// Opens a repository besides the key that is kept on this computer.
struct RecoveryKey {
    QString key;        ///< as makeRecoveryKey() writes it
    QString identifier; ///< what restic knows it by; no secret
};

/// Those there are, by their identifiers. This and the following throw Failure.
QStringList recoveryKeys(const Restic& restic);
/// Makes one besides the older, which are all there are. It is to be shown before they are removed.
RecoveryKey addRecoveryKey(const Restic& restic, const QStringList& older);
void removeRecoveryKeys(const Restic& restic, const QStringList& identifiers);

/// The repositories that may be meant by a path: those on a backup disk, and one that lies at the path itself.
std::vector<Repository> repositoriesAt(const QString& path);

/// Finds the one of those which the passphrase opens, makes sure that a key of this computer's opens it from now on,
/// and gives its destination. The passphrase counts as a recovery key that the user has. `path` is what people call
/// them. Throws Failure.
Destination takeUpRepository(const std::vector<Repository>& candidates, const QString& path, const QString& passphrase,
                             const Folders& folders, const StopRequest& stop);

/// A secret in a file that no disk holds, so that it ends with this process however that ends: restic takes none as an
/// argument.
class SecretFile {
public:
    /// Throws Failure.
    explicit SecretFile(const QString& secret);
    SecretFile(const SecretFile&) = delete;
    SecretFile& operator=(const SecretFile&) = delete;
    ~SecretFile();

    /// For the user's own processes, as long as this object is there (proc(5)).
    QString path() const;

private:
    int descriptor_;
};

} // namespace quillon
