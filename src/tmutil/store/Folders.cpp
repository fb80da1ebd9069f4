#include "Folders.h"

#include "Failure.h"
#include "FileLock.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <pwd.h>
#include <string>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QString homeFolder()
{
    const passwd* user = getpwuid(getuid());
    if (user == nullptr || user->pw_dir == nullptr || *user->pw_dir == '\0')
        throw Failure(ExitStatus::Configuration, u"The password database has no home folder for this user."_s);
    return QFile::decodeName(user->pw_dir);
}

/// A relative path in an XDG variable is to be ignored: freedesktop.org, "basedir".
QString ownFolder(const char* variable, const QString& fallback)
{
    const QString base = qEnvironmentVariable(variable);
    return (QDir::isAbsolutePath(base) ? QDir::cleanPath(base) : fallback) + "/quillon-timemachine"_L1;
}

} // namespace

Folders Folders::ofUser()
{
    const QString home = homeFolder();
    return {home, ownFolder("XDG_CONFIG_HOME", home + "/.config"_L1),
            ownFolder("XDG_STATE_HOME", home + "/.local/state"_L1), ownFolder("XDG_CACHE_HOME", home + "/.cache"_L1)};
}

bool hasRoom(const QString& folder)
{
    constexpr unsigned long long smallFiles = 64ULL * 1024;
    struct statvfs room {};
    return statvfs(QFile::encodeName(folder).constData(), &room) != 0 || room.f_blocks == 0 ||
           room.f_bavail * room.f_frsize >= smallFiles;
}

void needPrivateFolder(const QString& path)
{
    if (!makePrivateFolder(path))
        throw Failure(ExitStatus::CannotWrite, u"The folder \"%1\" cannot be made."_s.arg(path));
}

namespace {

QString beside(const QString& path, QLatin1StringView what)
{
    const QFileInfo file(path);
    return file.path() + u'/' + file.completeBaseName() + u'-' + what + u'.' + file.suffix();
}

/// The file stays where it is: writing the next version may fail, most likely on the full disk that damaged this one.
void keepBeside(const QString& path, QLatin1StringView what)
{
    const QByteArray fresh = QFile::encodeName(beside(path, "fresh"_L1));
    unlink(fresh.constData());
    if (link(QFile::encodeName(path).constData(), fresh.constData()) == 0)
        std::rename(fresh.constData(), QFile::encodeName(beside(path, what)).constData());
}

} // namespace

KeptPropertyList readKeptPropertyList(const QString& path)
{
    const QString previous = beside(path, "previous"_L1);
    const bool isLost = !QFile::exists(path) && QFile::exists(previous);
    if (auto contents = readPropertyListFile(path); contents && !isLost)
        return {std::move(contents), false};
    return {QFile::exists(previous) ? readPropertyListFile(previous) : std::nullopt, true};
}

bool writeKeptPropertyList(const QString& path, const QVariantMap& contents)
{
    if (const auto current = readPropertyListFile(path); !current)
        keepBeside(path, "damaged"_L1);
    else if (*current != contents)
        keepBeside(path, "previous"_L1);
    return writePropertyListFile(path, contents);
}

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
