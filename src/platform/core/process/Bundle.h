#pragma once

#include <QString>

namespace quillon {

/// The application's own version, such as "1.0.0".
QString bundleShortVersion();

/// The build number of this version.
QString bundleVersion();

} // namespace quillon
