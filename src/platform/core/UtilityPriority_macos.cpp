#include "UtilityPriority.h"

#include <sys/resource.h>
#include <unistd.h>

namespace quillon {

namespace {

constexpr int utilityNiceness = 10; // what nice(1) adds by itself

} // namespace

void lowerToUtilityPriority() noexcept
{
    [[maybe_unused]] const int niceness = nice(utilityNiceness);
    setiopolicy_np(IOPOL_TYPE_DISK, IOPOL_SCOPE_PROCESS, IOPOL_UTILITY); // getiopolicy_np(3)
}

} // namespace quillon
