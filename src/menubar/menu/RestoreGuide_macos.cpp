#include "RestoreGuide.h"

namespace quillon {

std::optional<AlertRequest> restoreGuide(const QStringList& /*latestBackups*/)
{
    return std::nullopt;
}

} // namespace quillon
