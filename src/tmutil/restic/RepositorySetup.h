#pragma once

#include "RepositoryFolder.h"
#include "Restic.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace quillon {

/// What came of making a repository.
struct NewRepository {
    std::optional<RepositoryFolder> folder; ///< nothing where it was not made
    ResticOutcome outcome;
    QString refusal; ///< why it could not take the place of the destination's folder, which is not empty
};

/// Makes a repository in the destination's folder, which has to be empty, under its key. It is made under another name,
/// so that it is whole or not there. Throws Failure.
NewRepository makeRepository(const Destination& destination, const Folders& folders, const StopRequest& stop);

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

/// Finds the repository at that path which the passphrase opens, on a backup disk or at the path itself, makes sure
/// that a key of this computer's opens it from now on, and gives its destination. The passphrase counts as a recovery
/// key that the user has. Throws Failure.
Destination takeUpRepository(const QString& path, const QString& passphrase, const Folders& folders,
                             const StopRequest& stop);

} // namespace quillon
