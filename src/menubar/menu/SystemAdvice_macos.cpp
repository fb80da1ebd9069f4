#include "SystemAdvice.h"

namespace quillon {

std::optional<AlertRequest> restoreGuide(const QStringList& /*latestBackups*/)
{
    return std::nullopt;
}

QString startFailureReason(std::int32_t /*exitStatus*/)
{
    return {};
}

} // namespace quillon
