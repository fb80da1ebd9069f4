#pragma once

#include "CommandLine.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

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

class Repository;
class StopRequest;
struct Destination;

/// `setdestination`: sets the disk or the network place, makes a repository and a recovery key where there is none, and
/// says what to do with it; where no person may have read that, the disk's report asks for one. What the history knows
/// of the disk becomes what is on it. A trial keeps nothing of a network place and says what is there. Throws Failure
/// where nothing was set.
void setDestination(const Folders& folders, const CommandLine& line);
void setNetworkDestination(const Folders& folders, const CommandLine& line);

/// A repository has been made: what the history knows of the one before it is over.
void noteNewRepository(const Destination& destination, const Folders& folders);

/// What follows once a destination is set: what the history knows becomes what is there, and a recovery key is made
/// where there is none. It says so where that cannot be done.
void welcome(const Destination& destination, bool isNew, const std::function<Repository()>& open,
             const Folders& folders, const StopRequest& stop);

/// For `adopt`: hands on the backups at a network place, none or one, and what keeps their destination once a key opens
/// them.
using TakeUp = std::function<void(const std::vector<Repository>& candidates,
                                  const std::function<void(const Destination& destination)>& keep)>;
void adoptNetworkPlace(const Folders& folders, const CommandLine& line, const TakeUp& takeUp);

/// `recoverykey`: makes a new one and says what to do with it; then the older open nothing any more. A program, which
/// is told it as XML, has to say by its identifier that the user has kept it: until then the older open the backups as
/// before. The disk is there. Both throw Failure.
void renewRecoveryKey(const Folders& folders, const Destination& destination, bool xml);
void keepRecoveryKey(const Folders& folders, const Destination& destination, const QString& identifier);

/// `adopt`: takes up backups that another computer, or restic by hand, has made, with what standard input gives to open
/// them. Throws Failure.
void adopt(const Folders& folders, const CommandLine& line);

/// Does what the command line asks for, output to standard output included. Throws Failure.
void runCommand(const CommandLine& line);

} // namespace quillon
