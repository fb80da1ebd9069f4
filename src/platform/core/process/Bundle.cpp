#include "Bundle.h"

namespace quillon {

QString bundleShortVersion()
{
    return QStringLiteral(QUILLON_VERSION);
}

QString bundleVersion()
{
    return QStringLiteral(QUILLON_BUILD_NUMBER);
}

} // namespace quillon
