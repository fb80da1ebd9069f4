#pragma once

#include <QString>

namespace quillon {

struct Folders;

/// `setdestination`: sets the disk, makes a repository and a recovery key where there is none, and says what to do with
/// it; where no person may have read that, it stands in the disk's report. What the history knows of the disk becomes
/// what is on it. Throws Failure where the disk was not set.
void setDestination(const Folders& folders, const QString& path, bool append);

/// `recoverykey`: makes a new one and says what to do with it; then the older open nothing any more. Throws Failure.
void renewRecoveryKey(const Folders& folders, const QString& destinationId);

/// `adopt`: takes up backups that another computer, or restic by hand, has made, with what standard input gives to open
/// them. Throws Failure.
void adopt(const Folders& folders, const QString& path);

} // namespace quillon
