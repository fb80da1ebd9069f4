#pragma once

#include <QVariantMap>

namespace quillon {

/// What is read for settings that were never stored.
QVariantMap registeredDefaults();

} // namespace quillon
