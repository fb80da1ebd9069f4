#pragma once

#include <QDateTime>
#include <QString>

#include <optional>
#include <sys/types.h>

namespace quillon {

class RepositoryFolder;
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
void removeStaleLocks(const RepositoryFolder& repository, const Restic& restic);

} // namespace quillon
