#include "Folders.h"

#include "Failure.h"

#include <QDir>
#include <QFile>

#include <pwd.h>
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

void makePrivateFolder(const QString& path)
{
    constexpr auto ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
    if (QFileInfo(path).isDir())
        return;
    const QString parent = QFileInfo(path).path();
    if (!QDir().mkpath(parent) || !QDir().mkdir(path, ownerOnly))
        throw Failure(ExitStatus::CannotWrite, u"The folder \"%1\" cannot be made."_s.arg(path));
}

} // namespace quillon
