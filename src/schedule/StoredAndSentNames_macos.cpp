#include "StoredAndSentNames.h"

namespace quillon {

/// The system tells users itself when backups fail to come.
QVariantMap systemDefaults()
{
    return {};
}

} // namespace quillon
