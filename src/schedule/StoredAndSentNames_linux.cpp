#include "StoredAndSentNames.h"

namespace quillon {

/// Nothing else watches over the backups here.
QVariantMap systemDefaults()
{
    return {{settingskeys::daysWithoutBackup, 10LL}};
}

} // namespace quillon
