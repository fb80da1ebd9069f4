#pragma once

#include "Destination.h"
#include "Folders.h"

#include <QString>

#include <vector>

namespace quillon {

/// Gives a file or a tree back. `source` is a backup's name as `listbackups` prints it, followed by the absolute path
/// of what is wanted; the name alone stands for everything. `target` must not exist, but its folder must: nothing is
/// ever overwritten, and it appears whole or not at all. Throws Failure.
void restore(const QString& source, const QString& target, const std::vector<Destination>& destinations,
             const Folders& folders);

} // namespace quillon
