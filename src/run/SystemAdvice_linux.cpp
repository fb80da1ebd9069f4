#include "LocalizedString.h"
#include "SystemAdvice.h"

namespace quillon {

QString startFailureReason(std::int32_t exitStatus)
{
    switch (exitStatus) { // tmutil(1), EXIT STATUS
    case 2:
        return localizedString("setupNoDiskMessage");
    case 4:
        return localizedString("startDiskAwayMessage");
    case 9:
        return localizedString("startResticMissingMessage");
    default:
        return {};
    }
}

} // namespace quillon
