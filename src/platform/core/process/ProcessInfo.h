#pragma once

#include <cstdint>

namespace quillon {

/// Version of an operating system.
struct OperatingSystemVersion {
    std::int64_t major = 0;
    std::int64_t minor = 0;
    std::int64_t patch = 0;
};

/// Version of the system that runs this program. On Linux, which has no version of that kind, 14.0.0 unless the
/// environment variable QUILLON_SYSTEM_VERSION says otherwise.
OperatingSystemVersion operatingSystemVersion();

} // namespace quillon
