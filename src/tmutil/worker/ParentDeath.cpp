#include "ParentDeath.h"

#include <sys/prctl.h>
#include <unistd.h>

namespace quillon {

bool endWithParent(int signal, pid_t parent) noexcept
{
    prctl(PR_SET_PDEATHSIG, signal);
    return getppid() == parent;
}

} // namespace quillon
