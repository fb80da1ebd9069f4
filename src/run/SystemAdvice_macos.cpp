#include "SystemAdvice.h"

namespace quillon {

QString startFailureReason(std::int32_t /*exitStatus*/)
{
    return {};
}

} // namespace quillon
