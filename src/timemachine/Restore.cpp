#include "Restore.h"

#include "Failure.h"
#include "Paths.h"
#include "Restic.h"
#include "Snapshot.h"
#include "StopRequest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// What is to be restored from where.
struct Wanted {
    Destination destination;
    Snapshot snapshot;
    QString path; ///< absolute; empty for everything
};

Wanted find(const QString& source, const std::vector<Destination>& destinations, const Folders& folders)
{
    const QString clean = QDir::cleanPath(source);
    for (const Destination& destination : destinations) {
        if (!covers(destination.path, clean) || !destination.isPresent())
            continue;
        const auto snapshots = snapshotsOn(destination, Restic(destination, folders, nullptr));
        const auto named = [&clean](const Snapshot& snapshot) { return covers(snapshot.name(), clean); };
        const auto found = std::ranges::find_if(snapshots, named);
        if (found == snapshots.end())
            continue;
        if (std::ranges::count_if(snapshots, named) > 1)
            throw Failure(ExitStatus::NoBackup, u"\"%1\" names more than one backup."_s.arg(found->name()));
        return {destination, *found, clean.mid(found->name().size())};
    }
    throw Failure(ExitStatus::NoBackup, u"\"%1\" is not in any backup. See \"tmutil listbackups\"."_s.arg(source));
}

QString freeTarget(const QString& target)
{
    const QFileInfo file(QDir::cleanPath(QFileInfo(target).absoluteFilePath()));
    if (file.exists() || file.isSymLink())
        throw Failure(ExitStatus::PathExists, u"\"%1\" exists already; nothing was restored."_s.arg(target));
    if (!QFileInfo(file.path()).isDir())
        throw Failure(ExitStatus::NoInput, u"The folder \"%1\" does not exist."_s.arg(file.path()));
    return file.filePath();
}

/// Moves without overwriting. A folder that its owner may not write, which cannot be moved, is made writable for it.
void move(const QString& from, const QString& to)
{
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    struct stat state {};
    if (lstat(source.constData(), &state) != 0)
        throw Failure(ExitStatus::NoBackup, u"The backup has nothing at that path."_s);
    const QByteArray parent = QFile::encodeName(QFileInfo(from).path());
    const bool readOnlyFolder = S_ISDIR(state.st_mode) && (state.st_mode & S_IWUSR) == 0;
    chmod(parent.constData(), S_IRWXU);
    if (readOnlyFolder)
        chmod(source.constData(), (state.st_mode & ALLPERMS) | S_IWUSR);
    const bool moved = renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) == 0 ||
                       (errno == EINVAL && access(target.constData(), F_OK) != 0 &&
                        std::rename(source.constData(), target.constData()) == 0);
    const int error = errno;
    if (readOnlyFolder)
        chmod((moved ? target : source).constData(), state.st_mode & ALLPERMS);
    if (!moved)
        throw Failure(ExitStatus::CannotWrite, u"\"%1\" cannot be made: %2."_s.arg(to, qt_error_string(error)));
}

/// Where restic restores to: beside the target, so that moving it there is one step.
class WorkFolder {
public:
    explicit WorkFolder(const QString& target)
        : folder_(QFileInfo(target).path() + "/.tmutil-restore-XXXXXX"_L1)
    {
        if (!folder_.isValid())
            throw Failure(ExitStatus::CannotWrite, u"\"%1\" cannot be made: %2."_s.arg(target, folder_.errorString()));
    }
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

    /// Folders that came back read-only, or half of what was wanted, don't stay behind.
    ~WorkFolder()
    {
        namespace fs = std::filesystem;
        std::error_code error;
        fs::recursive_directory_iterator entry(QFile::encodeName(folder_.path()).constData(), error);
        for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
            if (entry->symlink_status(error).type() == fs::file_type::directory)
                fs::permissions(entry->path(), fs::perms::owner_all, fs::perm_options::add, error);
        }
    }

    QString path() const { return folder_.path(); }

private:
    QTemporaryDir folder_;
};

} // namespace

void restore(const QString& source, const QString& target, const std::vector<Destination>& destinations,
             const Folders& folders)
{
    const QString free = freeTarget(target);
    const Wanted wanted = find(source, destinations, folders);
    const StopRequest stop; // while there is a folder to be cleared away
    const WorkFolder work(free);
    const QString tree = work.path() + "/tree"_L1;
    QStringList arguments{u"restore"_s, wanted.snapshot.id, u"--target"_s, tree};
    if (!wanted.path.isEmpty())
        arguments << u"--include"_s << Restic::literalPattern(wanted.path);
    if (!QFileInfo(wanted.destination.repository() + "/locks"_L1).isWritable())
        arguments << u"--no-lock"_s; // a disk that is mounted read-only
    const auto outcome = Restic(wanted.destination, folders, &stop).run(arguments);
    if (stop.isMade())
        throw Failure(ExitStatus::Stopped, u"The restore was stopped; nothing was restored."_s);
    if (outcome.exitStatus != 0)
        throw Failure(ExitStatus::Failed, outcome.diagnosis().description);
    move(tree + wanted.path, free);
}

} // namespace quillon
