#include "StoredAndSentNames.h"

namespace quillon {

/// Nothing else watches over the backups here, keeps the machine awake for them, or starts one that is late when its
/// disk comes.
QVariantMap systemDefaults()
{
    using namespace settingskeys;
    return {{daysWithoutBackup, 10LL}, {stayAwake, 1LL}, {startWhenDiskAppears, 1LL}};
}

} // namespace quillon
