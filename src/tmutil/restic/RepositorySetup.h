#pragma once

#include "Repository.h"
#include "Restic.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace quillon {

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
