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

/// A recovery key opens a repository besides the key that is kept on this computer. All throw Failure.
/// Those there are, by restic's identifiers.
QStringList recoveryKeys(const Restic& restic);
/// Makes another one, which it gives. It is to be shown before the others are removed.
QString addRecoveryKey(const Restic& restic);
void removeRecoveryKeys(const Restic& restic, const QStringList& identifiers);

/// Finds the repository at that path which the passphrase opens, on a backup disk or at the path itself, makes sure
/// that a key of this computer's opens it from now on, and gives its destination. Throws Failure.
Destination takeUpRepository(const QString& path, const QString& passphrase, const Folders& folders,
                             const StopRequest& stop);

} // namespace quillon
