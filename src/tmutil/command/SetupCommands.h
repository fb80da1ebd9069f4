#pragma once

#include <QString>

namespace quillon {

struct Destination;
struct Folders;

/// `setdestination`: sets the disk, makes a repository and a recovery key where there is none, and says what to do with
/// it; where no person may have read that, the disk's report asks for one. What the history knows of the disk becomes
/// what is on it. Throws Failure where the disk was not set.
void setDestination(const Folders& folders, const QString& path, bool append);

/// `recoverykey`: makes a new one and says what to do with it; then the older open nothing any more. A program, which
/// is told it as XML, has to say by its identifier that the user has kept it: until then the older open the backups as
/// before. The disk is there. Both throw Failure.
void renewRecoveryKey(const Folders& folders, const Destination& destination, bool xml);
void keepRecoveryKey(const Folders& folders, const Destination& destination, const QString& identifier);

/// `adopt`: takes up backups that another computer, or restic by hand, has made, with what standard input gives to open
/// them. Throws Failure.
void adopt(const Folders& folders, const QString& path);

} // namespace quillon
