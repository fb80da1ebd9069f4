#include "FolderTree.h"

#include <QDirIterator>

#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

namespace {

void empty(DIR* folder)
{
    while (const dirent* entry = readdir(folder)) {
        const char* const name = entry->d_name;
        if (std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0)
            continue;
        if (unlinkat(dirfd(folder), name, 0) != 0)
            removeFolderTree(dirfd(folder), name);
    }
}

/// A folder that may not be listed can be opened for nothing but to be named, in /proc, where its rights can change.
bool giveAllRights(int parentDescriptor, const char* name)
{
    const int handle = openat(parentDescriptor, name, O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (handle < 0)
        return false;
    chmod(("/proc/self/fd/" + std::to_string(handle)).c_str(), S_IRWXU);
    close(handle);
    return true;
}

} // namespace

void removeFolderTree(int parentDescriptor, const char* name)
{
    if (!giveAllRights(parentDescriptor, name))
        return;
    const int descriptor = openat(parentDescriptor, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0)
        return;
    if (DIR* folder = fdopendir(descriptor)) {
        empty(folder);
        closedir(folder);
    } else {
        close(descriptor);
    }
    unlinkat(parentDescriptor, name, AT_REMOVEDIR);
}

qlonglong sizeOfFolder(const QString& path)
{
    qlonglong bytes = 0;
    for (QDirIterator files(path, QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDirIterator::Subdirectories);
         files.hasNext();)
        bytes += files.nextFileInfo().size();
    return bytes;
}

} // namespace quillon
