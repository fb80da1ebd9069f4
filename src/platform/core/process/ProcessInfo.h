#pragma once

#include <chrono>
#include <cstdint>

namespace quillon {

/// Version of an operating system.
struct OperatingSystemVersion {
    std::int64_t major = 0;
    std::int64_t minor = 0;
    std::int64_t patch = 0;
};

/// Version of the system that runs this program; 14.0.0 on Linux, which has no version of that kind.
OperatingSystemVersion operatingSystemVersion();

/// Time since an arbitrary start on the clock that stands still while the system sleeps.
std::chrono::milliseconds systemUptime();

/// Lowers processor and I/O priority of the calling process to that of work which the user started but does not wait
/// for. A niceness that is as high already is left alone, so that a child of such a process may ask for it again.
/// Async-signal-safe: it runs in a child between fork and exec. What the system refuses is left as it is.
void lowerToUtilityPriority() noexcept;

} // namespace quillon
