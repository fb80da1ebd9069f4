#pragma once

#include "RunLoop.h"

#include <QString>

#include <chrono>

namespace quillon {

/// Notices that the wall clock was set, or the time zone changed, since it was last looked at.
class ClockWatch {
public:
    struct Change {
        std::chrono::milliseconds step{0}; ///< how far the wall clock was set, negative for back; 0 for mere drift
        bool newTimeZone = false;
    };

    explicit ClockWatch(const RunLoop& runLoop);

    /// What changed since the last look.
    Change look();

private:
    const RunLoop& runLoop_;
    std::chrono::milliseconds wallAheadOfUptime_{};
    QString timeZone_;
};

} // namespace quillon
