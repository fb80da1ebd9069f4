#include "ProcessInfo.h"

#include <ctime>
#include <linux/ioprio.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace quillon {

OperatingSystemVersion operatingSystemVersion()
{
    return {14, 0, 0};
}

std::chrono::milliseconds systemUptime()
{
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time); // clock_gettime(2): does not count time in suspend
    return std::chrono::floor<std::chrono::milliseconds>(std::chrono::seconds(time.tv_sec) +
                                                         std::chrono::nanoseconds(time.tv_nsec));
}

namespace {

constexpr int utilityNiceness = 10; // what nice(1) adds to a shell's 0
constexpr int lowestBestEffort = 7; // ioprio_set(2); in the idle class other users of the disk could starve `status`

} // namespace

void lowerToUtilityPriority() noexcept
{
    if (getpriority(PRIO_PROCESS, 0) < utilityNiceness)
        setpriority(PRIO_PROCESS, 0, utilityNiceness);
    syscall(SYS_ioprio_set, IOPRIO_WHO_PROCESS, 0, IOPRIO_PRIO_VALUE(IOPRIO_CLASS_BE, lowestBestEffort));
}

} // namespace quillon
