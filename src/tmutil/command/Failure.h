#pragma once

#include <QString>

#include <exception>
#include <utility>

namespace quillon {

/// What the exit statuses of tmutil mean; scripts may rely on them. Where sysexits.h has a number, it is taken.
enum class ExitStatus {
    Success = 0,
    Failed = 1,             ///< a backup or restore failed; the line on standard error says why
    NoDestination = 2,      ///< no backup disk has been set
    UnknownDestination = 3, ///< no backup disk has the identifier asked for
    DestinationMissing = 4, ///< the backup disk is not there
    AlreadyRunning = 5,     ///< a backup is running
    NoBackup = 6,           ///< there is no such backup, or nothing has been backed up yet
    PathExists = 7,         ///< a restore would overwrite something
    Stopped = 8,            ///< the backup that was waited for, or the restore, has been stopped
    ResticMissing = 9,      ///< restic, or ssh for a place on SFTP, is not installed
    NotListed = 10,         ///< what was to be removed is not among the sources or exclusions
    LeftOut = 11,           ///< a folder would be backed up and left out at once
    Incomplete = 12,        ///< a backup was made, but it lacks a folder that held files before
    RestoredInPart = 13,    ///< a restore gave back all that could be read, and not all that was wanted
    Damaged = 14,           ///< a verification has found damage
    WrongKey = 15,          ///< the key of a backup disk is missing, or what was given in its place opens nothing
    Untrusted = 16,         ///< the host key or the certificate of a server is not one to be trusted
    Usage = 64,             ///< EX_USAGE: the command line makes no sense
    StateDamaged = 65,      ///< EX_DATAERR: what tmutil remembers of runs cannot be read
    NoInput = 66,           ///< EX_NOINPUT: a file or folder that was named does not exist, or cannot be one
    CannotWrite = 73,       ///< EX_CANTCREAT: a file of tmutil's own, or the backup disk, cannot be written
    AccessDenied = 77,      ///< EX_NOPERM: a server does not let the user in
    Configuration = 78,     ///< EX_CONFIG: the configuration file is damaged
};

/// Why a command or a backup ends: one line for people, the exit status for scripts and, where a backup can fail of it,
/// the word under which its cause stands in the status, such as "NoSpace".
class Failure final : public std::exception {
public:
    Failure(ExitStatus status, QString message, QString cause = {})
        : status_(status)
        , message_(std::move(message))
        , cause_(std::move(cause))
        , text_(message_.toUtf8())
    {
    }

    ExitStatus status() const { return status_; }
    const QString& message() const { return message_; }
    const QString& cause() const { return cause_; }
    const char* what() const noexcept override { return text_.constData(); }

private:
    ExitStatus status_;
    QString message_;
    QString cause_;
    QByteArray text_;
};

} // namespace quillon
