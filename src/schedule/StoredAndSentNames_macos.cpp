#include "StoredAndSentNames.h"

namespace quillon {

/// The system tells users itself when backups fail to come, and sees to its own sleep and to disks that come.
QVariantMap systemDefaults()
{
    return {};
}

} // namespace quillon
