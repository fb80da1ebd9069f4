#pragma once

#include <QString>

#include <memory>

namespace quillon {

/// Keeps the machine from going to sleep by itself. Neither a closed lid nor an empty battery waits for it.
class AwakeLock {
public:
    AwakeLock() = default;
    AwakeLock(const AwakeLock&) = delete;
    AwakeLock& operator=(const AwakeLock&) = delete;
    /// Lets go of it.
    virtual ~AwakeLock() = default;

    /// `reason` is what the system tells users who ask, already localised. Holding it twice is holding it once.
    virtual void hold(const QString& reason) = 0;
    virtual void release() = 0;
};

std::unique_ptr<AwakeLock> makeAwakeLock();

} // namespace quillon
