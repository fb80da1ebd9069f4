#include "QtRunLoop.h"

#include <ctime>

namespace quillon {

std::chrono::milliseconds uptimeClockNow()
{
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time); // clock_gettime(2): does not count time in suspend
    return std::chrono::floor<std::chrono::milliseconds>(std::chrono::seconds(time.tv_sec) +
                                                         std::chrono::nanoseconds(time.tv_nsec));
}

} // namespace quillon
