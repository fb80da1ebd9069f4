#include "StoredAndSentNames.h"

namespace quillon {

/// Nothing else watches over the backups here, or keeps the machine awake for them.
QVariantMap systemDefaults()
{
    return {{settingskeys::daysWithoutBackup, 10LL}, {settingskeys::stayAwake, 1LL}};
}

} // namespace quillon
