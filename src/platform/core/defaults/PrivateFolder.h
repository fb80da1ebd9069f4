#pragma once

#include <QString>

namespace quillon {

/// Makes a folder and those above it that do not exist yet, each for the user alone; true when it exists afterwards.
bool makePrivateFolder(const QString& path);

} // namespace quillon
