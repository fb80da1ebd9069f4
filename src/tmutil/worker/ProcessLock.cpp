#include "ProcessLock.h"

#include "Failure.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr struct flock wholeFile {
    F_WRLCK, SEEK_SET, 0, 0, 0
};

// A pipe in the place of the file must not be waited for.
constexpr int openFlags = O_CLOEXEC | O_NONBLOCK;

} // namespace

ProcessLock::ProcessLock(const QString& path)
    : path_(path)
{
}

ProcessLock::~ProcessLock()
{
    if (descriptor_ >= 0)
        close(descriptor_);
}

bool ProcessLock::tryLock()
{
    return set(F_SETLK);
}

void ProcessLock::lock()
{
    while (!set(F_SETLKW)) {
    }
}

bool ProcessLock::set(int command)
{
    if (descriptor_ < 0)
        descriptor_ = open(QFile::encodeName(path_).constData(), O_RDWR | O_CREAT | openFlags, S_IRUSR | S_IWUSR);
    if (descriptor_ >= 0) {
        struct flock request = wholeFile;
        if (fcntl(descriptor_, command, &request) == 0)
            return true;
        if (errno == EACCES || errno == EAGAIN || errno == EINTR)
            return false;
    }
    throw Failure(ExitStatus::CannotWrite,
                  u"The lock \"%1\" cannot be taken: %2."_s.arg(path_, qt_error_string(errno)));
}

std::optional<pid_t> ProcessLock::holder(const QString& path)
{
    const int descriptor = open(QFile::encodeName(path).constData(), O_RDONLY | openFlags);
    if (descriptor < 0 && errno == ENOENT)
        return std::nullopt;
    if (descriptor < 0)
        throw Failure(ExitStatus::StateDamaged,
                      u"The lock \"%1\" cannot be read: %2."_s.arg(path, qt_error_string(errno)));
    struct flock request = wholeFile;
    const bool held = fcntl(descriptor, F_GETLK, &request) == 0 && request.l_type != F_UNLCK;
    close(descriptor);
    if (!held)
        return std::nullopt;
    return request.l_pid;
}

} // namespace quillon
