#pragma once

#include "Failure.h"

#include <QDateTime>
#include <QString>

#include <optional>
#include <sys/types.h>

namespace quillon {

/// What restic can mean by failing. The exit statuses of 0.14 do not tell, so its words on standard error are read;
/// those of 0.17 and later do in part (restic, "Scripting: Exit codes"). Both are known nowhere else.
enum class ResticProblem {
    Locked,       ///< another process, or one that died, holds the repository
    NoRepository, ///< there is no repository, or a part of it is gone
    WrongKey,     ///< the key does not open it
    NoSpace,
    NoPermission,
    NoWorkSpace, ///< its own temporary files and its cache, on this computer, cannot be written
    // Of a network place:
    Unreachable,    ///< no such server, or it does not answer
    ConnectionLost, ///< while it worked
    AccessDenied,   ///< the server does not let the user in
    UnknownHostKey, ///< it is not known whether it is the server that it should be
    ChangedHostKey,
    BadCertificate,
    ServerFailed, ///< it answers with an error of its own
    DiskGone,     ///< not from restic's words: the disk was taken away while it worked
    Unknown,
};

struct ResticDiagnosis {
    ResticProblem problem = ResticProblem::Unknown;
    QString description; ///< one line for people; restic's own words where the problem is unknown

    /// A word for programs, such as "NoSpace".
    QString cause() const;

    /// What it means to a backup or a command.
    Failure failure() const;

    /// The description that goes with the problem.
    static ResticDiagnosis of(ResticProblem problem);

    /// Reads the standard error of a restic that failed with that exit status and had that folder for its temporary
    /// files and its cache. The repository's own files have relative paths.
    static ResticDiagnosis of(const QString& errorText, int exitStatus, const QString& workFolder = {});

    /// The same for a network place, be it that ssh has said it without restic.
    static ResticDiagnosis ofNetwork(const QString& errorText, int exitStatus, const QString& workFolder = {});
};

class Repository;
class Restic;

/// What restic has written into a lock of a repository.
struct ResticLock {
    QDateTime time; ///< of its last renewal, which comes every five minutes
    QString host;
    pid_t process = 0;

    /// From `restic cat lock`; nothing where that gave none.
    static std::optional<ResticLock> fromJson(const QByteArray& text);
};

/// What a process is to this computer.
enum class ProcessKind { None, Restic, Other, Unknown };

/// One of that number; looks at it and touches it in no way.
ProcessKind processKind(pid_t process);

/// Whether whoever made the lock is gone: `kind` tells of the process of that number here, `host` is this computer.
bool isStale(const ResticLock& lock, const QString& host, ProcessKind kind, const QDateTime& now);

/// Removes the locks that processes which have died left. `restic unlock` does too, but it finds out whether a process
/// lives by SIGHUP, which ends those that the number has passed to.
void removeStaleLocks(const Repository& repository, const Restic& restic);

} // namespace quillon
