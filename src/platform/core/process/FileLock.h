#pragma once

#include <QString>

#include <optional>
#include <sys/types.h>

namespace quillon {

/// Makes a folder and those above it that do not exist yet, each for the user alone; true when it exists afterwards.
bool makePrivateFolder(const QString& path);

/// The kernel's lock on a file. It belongs to one process and ends with it, however it ends (fcntl(2), F_SETLK); others
/// can ask who holds it without ever getting in the holder's way.
///
/// Only the user can open the file, for whoever can open one can hold its lock. The file stays when the lock is let go:
/// if it were removed, two processes could hold a lock of its name.
///
/// A process must open the file of a lock that it holds through this object only: closing any other descriptor of the
/// same file would drop the lock.
class FileLock {
public:
    enum class Outcome { Taken, Anothers, Impossible };

    explicit FileLock(const QString& path);
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    ~FileLock();

    QString path() const { return path_; }

    /// Impossible, with errorString(), where the file cannot be made or its file system has no locks.
    Outcome tryLock();

    /// The same, once nobody else holds it.
    Outcome lock();

    /// Gives the lock up; the object can take it again.
    void release();

    /// Replaces what the file holds, for others to read. Only while the lock is held.
    bool write(const QByteArray& bytes);

    QString errorString() const { return errorString_; }

    /// Who holds the lock of a file.
    struct Holder {
        std::optional<pid_t> process; ///< nothing where it is free; 0 or less for one in another name space
        QString error;                ///< why that cannot be told; else empty
    };
    static Holder holder(const QString& path);

private:
    Outcome set(int command);

    const QString path_;
    int descriptor_ = -1;
    QString errorString_;
};

} // namespace quillon
