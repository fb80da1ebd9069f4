#include "QtRunLoop.h"

#include <ctime>

namespace quillon {

std::chrono::milliseconds uptimeClockNow()
{
    // CLOCK_MONOTONIC goes on during sleep on this system, CLOCK_UPTIME_RAW does not (clock_gettime(3)).
    return std::chrono::floor<std::chrono::milliseconds>(
        std::chrono::nanoseconds(clock_gettime_nsec_np(CLOCK_UPTIME_RAW)));
}

} // namespace quillon
