#include "ProcessInfo.h"

#include <QOperatingSystemVersion>

#include <ctime>
#include <sys/resource.h>
#include <unistd.h>

namespace quillon {

OperatingSystemVersion operatingSystemVersion()
{
    const auto version = QOperatingSystemVersion::current();
    return {version.majorVersion(), version.minorVersion(), version.microVersion()};
}

std::chrono::milliseconds systemUptime()
{
    // CLOCK_MONOTONIC goes on during sleep on this system, CLOCK_UPTIME_RAW does not (clock_gettime(3)).
    return std::chrono::floor<std::chrono::milliseconds>(
        std::chrono::nanoseconds(clock_gettime_nsec_np(CLOCK_UPTIME_RAW)));
}

namespace {

constexpr int utilityNiceness = 10; // what nice(1) adds to a shell's 0

} // namespace

void lowerToUtilityPriority() noexcept
{
    if (getpriority(PRIO_PROCESS, 0) < utilityNiceness)
        setpriority(PRIO_PROCESS, 0, utilityNiceness);
    setiopolicy_np(IOPOL_TYPE_DISK, IOPOL_SCOPE_PROCESS, IOPOL_UTILITY); // getiopolicy_np(3)
}

} // namespace quillon
