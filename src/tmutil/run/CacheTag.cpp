#include "CacheTag.h"

#include "Paths.h"

#include <QFile>

#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr auto tagName = "CACHEDIR.TAG";
constexpr QByteArrayView signature{"Signature: 8a477f597d28d172789f06886806bc55"};

/// The folders in one, or nothing but `isTagged` where it bears the tag. Links are not followed.
QByteArrayList foldersIn(const QByteArray& path, bool& isTagged)
{
    QByteArrayList found;
    DIR* const folder = opendir(path.constData());
    if (folder == nullptr)
        return found;
    for (const dirent* entry = readdir(folder); entry != nullptr && !isTagged; entry = readdir(folder)) {
        const char* const name = entry->d_name;
        struct stat state {};
        if (std::strcmp(name, tagName) == 0)
            isTagged = isTaggedAsCache(decodePath(path));
        const bool isFolder =
            entry->d_type == DT_DIR ||
            (entry->d_type == DT_UNKNOWN && fstatat(dirfd(folder), name, &state, AT_SYMLINK_NOFOLLOW) == 0 &&
             S_ISDIR(state.st_mode));
        if (isFolder && std::strcmp(name, ".") != 0 && std::strcmp(name, "..") != 0)
            found.append(path + '/' + name);
    }
    closedir(folder);
    return found;
}

} // namespace

bool isTaggedAsCache(const QString& folder)
{
    const QByteArray tag = encodePath(folder) + '/' + tagName;
    const int file = open(tag.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return false;
    QByteArray head(signature.size(), '\0');
    const bool isRead = read(file, head.data(), static_cast<size_t>(head.size())) == head.size();
    close(file);
    return isRead && head == signature;
}

QStringList foldersTaggedAsCache(const QString& folder, const std::function<bool(const QString& folder)>& isSkipped)
{
    QStringList found;
    for (QByteArrayList left{encodePath(folder)}; !left.isEmpty();) {
        const QByteArray path = left.takeLast();
        if (isSkipped(decodePath(path)))
            continue;
        bool isTagged = false;
        const QByteArrayList inside = foldersIn(path, isTagged);
        if (isTagged)
            found.append(decodePath(path));
        else
            left += inside;
    }
    return found;
}

} // namespace quillon
