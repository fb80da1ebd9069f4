#pragma once

#include "CommandLine.h"

#include <QString>
#include <QStringList>

namespace quillon {

struct Folders;

/// `listexclusions`: for people the paths that the user has named; for programs, as XML, the names and the size as
/// well.
void listExclusions(const Folders& folders, bool xml);

/// `listexclusions -a`: also what nobody has named.
void listAllExclusions(const Folders& folders);

/// `isexcluded`. Throws Failure, as all of these do.
void isExcluded(const Folders& folders, const QStringList& paths);

/// `excludename` and `excludelarger`; a trial only says what of the present sources that would leave out.
void excludeNames(const Folders& folders, const QStringList& patterns, bool trial, bool xml);
void excludeLarger(const Folders& folders, const QString& megabytes, bool trial, bool xml);

/// `listbackups` and `latestbackup`. A disk that cannot be read is named on standard error.
void listBackups(const Folders& folders, bool xml);
void latestBackup(const Folders& folders);

/// `listfiles`.
void listFiles(const Folders& folders, const CommandLine& line);

/// `findfiles`, and `versions`: the backups that hold one path, newest first, the same content once.
void findFiles(const Folders& folders, const CommandLine& line);
void versions(const Folders& folders, const CommandLine& line);

/// `restore`: one thing under a name that is free; or, with a rule for what is in the way, any number into a folder or
/// each to where it was. What could not be restored is named, and the others are.
void restore(const Folders& folders, const CommandLine& line);

struct Destination;

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

/// Does what the command line asks for, output to standard output included. Throws Failure.
void runCommand(const CommandLine& line);

} // namespace quillon
