#include "WorkFolder.h"

#include "Failure.h"
#include "FolderTree.h"
#include "ListedFile.h"
#include "Paths.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QUuid>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
constexpr int linkFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC; // the way to the target is the user's own

} // namespace

WorkFolder::WorkFolder(const QString& parent)
    : parent_(open(encodePath(parent).constData(), linkFlags))
    , name_(".tmutil-restore-" + QUuid::createUuid().toByteArray(QUuid::Id128))
    , parentPath_(parent)
{
    if (parent_ < 0)
        throw Failure(ExitStatus::CannotWrite,
                      u"The folder \"%1\" cannot be opened: %2."_s.arg(parentPath_, qt_error_string(errno)));
    removeAbandoned();
    if (mkdirat(parent_, name_.constData(), S_IRWXU) == 0)
        folder_ = openat(parent_, name_.constData(), flags);
    if (folder_ < 0 || flock(folder_, LOCK_EX | LOCK_NB) != 0) {
        const QString reason = qt_error_string(errno);
        close(parent_);
        throw Failure(ExitStatus::CannotWrite,
                      u"The folder \"%1\" cannot be written to: %2."_s.arg(parentPath_, reason));
    }
}

WorkFolder::~WorkFolder()
{
    removeFolderTree(parent_, name_.constData());
    close(folder_);
    close(parent_);
}

QString WorkFolder::path() const
{
    return isTold(parentPath_) ? parentPath_ + u'/' + QString::fromLatin1(name_)
                               : u"/proc/%1/fd/%2"_s.arg(getpid()).arg(folder_);
}

void WorkFolder::removeAbandoned() const
{
    static const QRegularExpression ours(u"^\\.tmutil-restore-[0-9a-f]{32}$"_s);
    for (const QString& name : QDir(parentPath_).entryList({u".tmutil-restore-*"_s}, QDir::Dirs | QDir::Hidden)) {
        if (!ours.match(name).hasMatch())
            continue;
        const int folder = openat(parent_, QFile::encodeName(name).constData(), flags);
        struct stat state {};
        if (folder >= 0 && fstat(folder, &state) == 0 && state.st_uid == geteuid() &&
            flock(folder, LOCK_EX | LOCK_NB) == 0)
            removeFolderTree(parent_, QFile::encodeName(name).constData());
        if (folder >= 0)
            close(folder);
    }
}

} // namespace quillon
