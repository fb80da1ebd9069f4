#include "ProcessInfo.h"

#include <QString>
#include <QVersionNumber>

namespace quillon {

OperatingSystemVersion operatingSystemVersion()
{
    const auto version = QVersionNumber::fromString(qEnvironmentVariable("QUILLON_SYSTEM_VERSION"));
    if (version.isNull())
        return {14, 0, 0};
    return {version.majorVersion(), version.minorVersion(), version.microVersion()};
}

} // namespace quillon
