#include "FileLock.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

bool makePrivateFolder(const QString& path)
{
    const QFileInfo folder(path);
    if (folder.isDir())
        return true;
    if (const QString above = folder.absolutePath(); above != folder.absoluteFilePath() && !makePrivateFolder(above))
        return false;
    return mkdir(QFile::encodeName(path).constData(), S_IRWXU) == 0 || (errno == EEXIST && QFileInfo(path).isDir());
}

namespace {

struct flock wholeFile()
{
    struct flock request {};
    request.l_type = F_WRLCK;
    request.l_whence = SEEK_SET;
    return request;
}

// A pipe in the place of the file must not be waited for.
constexpr int openFlags = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
constexpr mode_t ownerOnly = S_IRUSR | S_IWUSR;

} // namespace

FileLock::FileLock(const QString& path)
    : path_(path)
{
}

FileLock::~FileLock()
{
    release();
}

FileLock::Outcome FileLock::tryLock()
{
    return set(F_SETLK);
}

FileLock::Outcome FileLock::lock()
{
    Outcome outcome = set(F_SETLKW);
    while (outcome == Outcome::Anothers) // a signal came
        outcome = set(F_SETLKW);
    return outcome;
}

void FileLock::release()
{
    if (descriptor_ >= 0)
        close(descriptor_);
    descriptor_ = -1;
}

FileLock::Outcome FileLock::set(int command)
{
    if (descriptor_ < 0)
        descriptor_ = open(QFile::encodeName(path_).constData(), O_RDWR | O_CREAT | openFlags, ownerOnly);
    if (descriptor_ >= 0) {
        fchmod(descriptor_, ownerOnly); // of a file that was made for all to read
        struct flock request = wholeFile();
        if (fcntl(descriptor_, command, &request) == 0)
            return Outcome::Taken;
        if (errno == EACCES || errno == EAGAIN || errno == EINTR)
            return Outcome::Anothers;
    }
    errorString_ = qt_error_string(errno);
    return Outcome::Impossible;
}

bool FileLock::write(const QByteArray& bytes)
{
    return ftruncate(descriptor_, 0) == 0 &&
           pwrite(descriptor_, bytes.constData(), static_cast<std::size_t>(bytes.size()), 0) == bytes.size();
}

FileLock::Holder FileLock::holder(const QString& path)
{
    const int descriptor = open(QFile::encodeName(path).constData(), O_RDONLY | openFlags);
    if (descriptor < 0 && errno == ENOENT)
        return {};
    if (descriptor < 0)
        return {std::nullopt, qt_error_string(errno)};
    struct flock request = wholeFile();
    const bool held = fcntl(descriptor, F_GETLK, &request) == 0 && request.l_type != F_UNLCK;
    close(descriptor);
    if (!held)
        return {};
    return {request.l_pid, {}};
}

} // namespace quillon
