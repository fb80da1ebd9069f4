#pragma once

#include <QString>

#include <optional>
#include <sys/types.h>

namespace quillon {

/// A lock that belongs to one process and ends with it, however it ends (fcntl(2), F_SETLK). Others can ask who holds
/// it without ever getting in the holder's way.
///
/// A process must open the file of a lock that it holds through this object only: closing any other descriptor of the
/// same file would drop the lock.
class ProcessLock {
public:
    explicit ProcessLock(const QString& path);
    ProcessLock(const ProcessLock&) = delete;
    ProcessLock& operator=(const ProcessLock&) = delete;
    ~ProcessLock();

    /// False when another process holds it. Throws Failure when the file cannot be made or locked.
    bool tryLock();

    /// Waits until nobody else holds it. Throws Failure as tryLock() does.
    void lock();

    /// The process that holds the lock of that file; nothing when it is free. Throws Failure
    /// where that cannot be told.
    static std::optional<pid_t> holder(const QString& path);

private:
    bool set(int command);

    QString path_;
    int descriptor_ = -1;
};

} // namespace quillon
