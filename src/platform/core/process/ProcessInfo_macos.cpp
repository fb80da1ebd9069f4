#include "ProcessInfo.h"

#include <QOperatingSystemVersion>

namespace quillon {

OperatingSystemVersion operatingSystemVersion()
{
    const auto version = QOperatingSystemVersion::current();
    return {version.majorVersion(), version.minorVersion(), version.microVersion()};
}

} // namespace quillon
