#include "SourceSet.h"

#include "Configuration.h"
#include "Paths.h"
#include "Restic.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <fnmatch.h>
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

namespace {

bool coveredByAny(const QStringList& folders, const QString& path)
{
    return std::ranges::any_of(folders, [&path](const QString& folder) { return covers(folder, path); });
}

/// restic looks for the tag beside each item: in a source it would leave nothing of it but the tag, and beside a source
/// not even that. Naming a folder is how the user says that it is to be backed up.
bool isInCache(const QString& source)
{
    return isTaggedAsCache(source) || isTaggedAsCache(QFileInfo(source).path());
}

/// Whether a folder from that source down to the path, which may be one, bears the tag.
bool isInCacheBelow(const QString& source, const QString& path)
{
    for (QString folder = path; covers(source, folder) && folder != source; folder = QFileInfo(folder).path()) {
        if (isTaggedAsCache(folder))
            return true;
    }
    return false;
}

/// Whether a name of that file, or of a folder on the way to it from a source, or its size leaves it out.
bool omits(const QStringList& names, qlonglong largest, const QString& source, const QFileInfo& file)
{
    const QStringList parts = file.filePath().mid(source.size()).split(u'/', Qt::SkipEmptyParts);
    const bool isNamed = std::ranges::any_of(parts, [&names](const QString& part) {
        return std::ranges::any_of(names, [&part](const QString& name) {
            return fnmatch(name.toUtf8().constData(), part.toUtf8().constData(), 0) == 0;
        });
    });
    return isNamed || (largest > 0 && file.isFile() && file.size() > largest);
}

/// A backup disk that lies in a source is left out whole, unless a source lies in it in turn: then only the backups.
QString excludedFolder(const Destination& destination, const QStringList& sources)
{
    const bool holdsSource =
        std::ranges::any_of(sources, [&](const QString& source) { return covers(destination.path, source); });
    return coveredByAny(sources, destination.path) && !holdsSource ? destination.path
                                                                   : Destination::backupFolder(destination.path);
}

} // namespace

SourceSet SourceSet::of(const Configuration& configuration, const Folders& folders, const MountTable& mounts)
{
    SourceSet set;
    set.excluded = configuration.exclusions();
    set.excludedNames = configuration.excludedNames();
    set.largestFile = configuration.largestFile();
    for (const QString& source : configuration.sources()) {
        const QString canonical = QFileInfo(source).canonicalFilePath();
        if (canonical.isEmpty())
            set.missing.append(source);
        else if (coveredByAny(set.excluded, canonical))
            set.leftOut.append(source);
        else
            set.folders.append(canonical);
        if (!canonical.isEmpty() && canonical != source)
            set.moved.append(source);
    }
    set.folders.removeDuplicates();

    for (const Destination& destination : configuration.destinations()) {
        if (!destination.isNetwork())
            set.leaveOut(excludedFolder(destination, set.folders), u"a backup disk"_s);
    }
    for (const QString& own : {folders.cache, folders.state}) {
        const QString canonical = QFileInfo(own).canonicalFilePath();
        set.leaveOut(canonical.isEmpty() ? own : canonical, u"tmutil's own files"_s);
    }
    set.leaveOutUnlessSource(resolvedPath(QFileInfo(folders.cache).path()), u"caches"_s);
    set.leaveOutUnlessSource(resolvedPath(folders.home) + "/.local/share/Trash"_L1, u"the wastebasket"_s);
    for (const QString& source : set.folders) {
        set.leaveOutUnlessSource(source + "/.Trash-"_L1 + QString::number(getuid()), u"the wastebasket"_s);
        for (const QString& point : mounts.foreignMountPointsIn(source)) {
            if (set.leaveOutUnlessSource(point, u"another file system"_s))
                set.otherFileSystems.append(point);
        }
    }
    return set;
}

bool SourceSet::leaveOut(const QString& path, const QString& reason)
{
    if (coveredByAny(excluded, path))
        return false;
    excluded.append(path);
    automatic.emplace_back(path, reason);
    return true;
}

/// Naming a folder is how the user says that it is to be backed up.
bool SourceSet::leaveOutUnlessSource(const QString& path, const QString& reason)
{
    return std::ranges::none_of(folders, [&path](const QString& source) { return covers(path, source); }) &&
           leaveOut(path, reason);
}

QStringList SourceSet::withoutFiles() const
{
    QStringList without;
    std::ranges::copy_if(folders, std::back_inserter(without), [](const QString& folder) {
        return !QDirIterator(folder, QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDirIterator::Subdirectories)
                    .hasNext();
    });
    return without;
}

SourceSet::Omission SourceSet::omittedBy(const QStringList& names, qlonglong largest) const
{
    Omission omission;
    for (const QString& folder : folders) {
        for (QDirIterator files(folder, QDir::Files | QDir::Hidden | QDir::System | QDir::NoSymLinks,
                                QDirIterator::Subdirectories);
             files.hasNext();) {
            const QFileInfo file = files.nextFileInfo();
            const QString path = file.filePath();
            if (coveredByAny(excluded, path) || omits(excludedNames, largestFile, folder, file))
                continue;
            if (omits(names, largest, folder, file)) {
                ++omission.files;
                omission.bytes += file.size();
            }
        }
    }
    return omission;
}

bool SourceSet::contains(const QString& path) const
{
    return !coveredByAny(excluded, path) && std::ranges::any_of(folders, [&](const QString& folder) {
        return covers(folder, path) && !omits(excludedNames, largestFile, folder, QFileInfo(path)) &&
               !(leavesCachesOut() && isInCacheBelow(folder, path));
    });
}

bool SourceSet::leavesCachesOut() const
{
    return std::ranges::none_of(folders, isInCache);
}

QStringList SourceSet::caches() const
{
    QStringList found;
    if (!leavesCachesOut())
        return found;
    for (const QString& source : folders)
        found += foldersTaggedAsCache(source, [&](const QString& folder) {
            return excluded.contains(folder) || omits(excludedNames, 0, source, QFileInfo(folder));
        });
    return found;
}

QStringList SourceSet::arguments() const
{
    QStringList arguments;
    if (leavesCachesOut())
        arguments << u"--exclude-caches"_s;
    for (const QString& path : excluded)
        arguments << u"--exclude"_s << Restic::literalPattern(path);
    for (const QString& folder : folders) {
        for (const QString& name : excludedNames) // of what is in it; it may bear one itself
            arguments << u"--exclude"_s << Restic::literalPattern(folder) + "/**/"_L1 + name;
    }
    if (largestFile > 0)
        arguments << u"--exclude-larger-than"_s << QString::number(largestFile);
    return arguments << u"--"_s << folders;
}

} // namespace quillon
