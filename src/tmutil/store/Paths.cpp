#include "Paths.h"

#include "Failure.h"
#include "FileLock.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <algorithm>
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

QString decodePath(const QByteArray& path)
{
    QString text;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    for (qsizetype at = 0; at < path.size();) {
        // A character has up to four bytes, of which the first tells how many.
        const auto lead = static_cast<unsigned char>(path[at]);
        const qsizetype length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        const QString character = decoder(QByteArrayView(path).sliced(at, std::min(length, path.size() - at)));
        if (decoder.hasError() || (lead >= 0x80 && lead < 0xC0)) {
            text += QChar(static_cast<char16_t>(0xDC00 + lead));
            decoder.resetState();
            ++at;
        } else {
            text += character;
            at += length;
        }
    }
    return text;
}

QByteArray encodePath(const QString& path)
{
    QByteArray bytes;
    for (qsizetype at = 0; at < path.size(); ++at) {
        const QChar unit = path[at];
        const bool pair = unit.isHighSurrogate() && at + 1 < path.size() && path[at + 1].isLowSurrogate();
        if (!pair && unit.unicode() >= 0xDC80 && unit.unicode() <= 0xDCFF)
            bytes += static_cast<char>(unit.unicode() - 0xDC00);
        else
            bytes += QStringView(path).sliced(at, pair ? 2 : 1).toUtf8();
        at += pair ? 1 : 0;
    }
    return bytes;
}

QString shownPath(const QString& path)
{
    QString shown;
    for (qsizetype at = 0; at < path.size(); ++at) {
        const QChar unit = path[at];
        const bool pair = unit.isHighSurrogate() && at + 1 < path.size() && path[at + 1].isLowSurrogate();
        const char32_t character = pair ? QChar::surrogateToUcs4(unit, path[at + 1]) : unit.unicode();
        const bool isByte = character >= 0xDC80 && character <= 0xDCFF;
        if (character == U'\\')
            shown += "\\\\"_L1;
        else if (character == U'\n')
            shown += "\\n"_L1;
        else if (isByte || !QChar::isPrint(character))
            shown += "\\x"_L1 + QString::number(isByte ? character - 0xDC00 : character, 16).toUpper();
        else
            shown += QStringView(path).sliced(at, pair ? 2 : 1);
        at += pair ? 1 : 0;
    }
    return shown;
}

QString absolutePath(const QString& path)
{
    return QDir::cleanPath(QDir::current().absoluteFilePath(path));
}

QString ownPath(const QString& path)
{
    const QFileInfo file(absolutePath(path));
    const QString folder = QFileInfo(file.path()).canonicalFilePath();
    if (folder.isEmpty() || file.fileName().isEmpty())
        return file.filePath();
    return QDir(folder).filePath(file.fileName());
}

QString resolvedPath(const QString& path)
{
    for (QString existing = path; existing.size() > 1;
         existing.truncate(std::max<qsizetype>(existing.lastIndexOf(u'/'), 0))) {
        if (const QString canonical = QFileInfo(existing).canonicalFilePath(); !canonical.isEmpty())
            return canonical + path.mid(existing.size());
    }
    return path;
}

bool covers(const QString& folder, const QString& path)
{
    return path == folder || path.startsWith(folder.endsWith(u'/') ? folder : folder + u'/');
}

namespace {

/// Blanks, tabs, line breaks and backslashes are written as three octal digits.
QString unescaped(const QByteArray& field)
{
    QByteArray path;
    for (qsizetype at = 0; at < field.size(); ++at) {
        if (field[at] == '\\' && at + 3 < field.size()) {
            path += static_cast<char>(field.mid(at + 1, 3).toInt(nullptr, 8));
            at += 3;
        } else {
            path += field[at];
        }
    }
    return QFile::decodeName(path);
}

} // namespace

MountTable::MountTable(const QByteArray& mountinfo)
{
    constexpr qsizetype device = 2;
    constexpr qsizetype point = 4;
    for (const QByteArray& line : mountinfo.split('\n')) {
        if (const QByteArrayList fields = line.split(' '); fields.size() > point)
            mounts_.push_back({unescaped(fields[point]), fields[device]});
    }
}

MountTable MountTable::current()
{
    QFile table(u"/proc/self/mountinfo"_s);
    return MountTable(table.open(QIODevice::ReadOnly) ? table.readAll() : QByteArray());
}

const MountTable::Mount* MountTable::around(const QString& path) const
{
    const Mount* around = nullptr; // the last one counts where one lies over another
    for (const Mount& mount : mounts_) {
        if (covers(mount.point, path) && (around == nullptr || around->point.size() <= mount.point.size()))
            around = &mount;
    }
    return around;
}

bool MountTable::haveOneFileSystem(const QString& one, const QString& other) const
{
    const Mount* const first = around(one);
    const Mount* const second = around(other);
    return first != nullptr && second != nullptr && first->device == second->device;
}

QString MountTable::firstIn(const QString& folder) const
{
    const auto found = std::ranges::find_if(mounts_, [&](const Mount& mount) { return covers(folder, mount.point); });
    return found == mounts_.end() ? QString() : found->point;
}

QStringList MountTable::foreignMountPointsIn(const QString& folder) const
{
    const Mount* const around = this->around(folder);
    QStringList points;
    for (const Mount& mount : mounts_) {
        if (mount.point != folder && covers(folder, mount.point) && around != nullptr && mount.device != around->device)
            points.append(mount.point);
    }
    points.removeDuplicates();
    return points;
}

} // namespace quillon
