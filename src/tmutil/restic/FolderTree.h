#pragma once

#include <QString>

namespace quillon {

/// Removes a folder of that name and all below it, and never anything that a link leads to. Folders that their owner
/// may not write are made writable first. What cannot be removed stays.
void removeFolderTree(int parentDescriptor, const char* name);

/// The bytes in all files of a folder and of those below it, without what links lead to.
qlonglong sizeOfFolder(const QString& path);

} // namespace quillon
