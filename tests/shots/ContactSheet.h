#pragma once

#include <QDir>

namespace quillon {

/// Puts all pictures of a folder whose names begin with `prefix` side by side, with their names, into one picture;
/// false when it cannot be written.
bool drawContactSheet(const QDir& folder, const QString& prefix, const QString& path);

} // namespace quillon
