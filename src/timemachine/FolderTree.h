#pragma once

namespace quillon {

/// Removes a folder of that name and all below it, and never anything that a link leads to. Folders that their owner
/// may not write are made writable first. What cannot be removed stays.
void removeFolderTree(int parentDescriptor, const char* name);

} // namespace quillon
