#include "UtilityPriority.h"

#include <linux/ioprio.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace quillon {

namespace {

constexpr int utilityNiceness = 10; // what nice(1) adds by itself
constexpr int lowestBestEffort = 7; // ioprio_set(2); the idle class could starve for as long as a backup runs

} // namespace

void lowerToUtilityPriority() noexcept
{
    [[maybe_unused]] const int niceness = nice(utilityNiceness);
    syscall(SYS_ioprio_set, IOPRIO_WHO_PROCESS, 0, IOPRIO_PRIO_VALUE(IOPRIO_CLASS_BE, lowestBestEffort));
}

} // namespace quillon
