#include "Restore.h"

#include "Failure.h"
#include "FolderTree.h"
#include "Listing.h"
#include "Paths.h"
#include "Restic.h"
#include "StopRequest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUuid>

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView start{"ignoring error for "};
constexpr QLatin1StringView separator{": "};

bool isOfAttributes(const QString& words)
{
    // The calls that give a file its owner, rights, times and attributes back (restic, internal/restic/node.go). Its
    // contents are there by then.
    static const QRegularExpression calls(u"^(?:lchown|chmod|UtimesNano|xattr\\.\\w+) "_s);
    return calls.match(words).hasMatch();
}

bool isOfTarget(const QString& words)
{
    constexpr std::array ends{"no space left on device"_L1, "disk quota exceeded"_L1, "read-only file system"_L1};
    return std::ranges::any_of(ends, [&words](QLatin1StringView end) { return words.endsWith(end); });
}

} // namespace

RestoreErrors::RestoreErrors(std::function<bool(const QString& path)> isThere)
    : isThere_(std::move(isThere))
{
}

void RestoreErrors::read(const QByteArray& text)
{
    QByteArray message;
    const auto endMessage = [&] {
        if (!message.isEmpty())
            readMessage(decodePath(message.sliced(start.size(), message.size() - start.size() - 1)));
        message.clear();
    };
    // A line that begins nothing is the rest of a name.
    for (const QByteArray& line : text.split('\n')) {
        const bool begins = line.startsWith(QByteArray(start.data(), start.size()) + '/');
        if (begins || line.startsWith("Fatal: ") || line.isEmpty())
            endMessage();
        if (begins || !message.isEmpty())
            message += line + '\n';
    }
    endMessage();
}

void RestoreErrors::readMessage(const QString& text)
{
    qsizetype end = text.indexOf(separator);
    for (qsizetype at = text.lastIndexOf(separator); at > 0; at = text.lastIndexOf(separator, at - 1)) {
        if (isThere_(text.left(at))) {
            end = at;
            break;
        }
    }
    const QString path = end < 0 ? text : text.left(end);
    const QString words = end < 0 ? QString() : text.mid(end + separator.size());
    if (isOfAttributes(words))
        lackAttributes_ = true;
    else if (!isOfTarget(words))
        damaged_.append(path);
    else if (targetProblem_.isEmpty())
        targetProblem_ = words;
}

QStringList RestoreErrors::damaged() const
{
    QStringList once = damaged_;
    once.removeDuplicates();
    return once;
}

namespace {

QString freeTarget(const QString& target)
{
    const QFileInfo file(QDir::cleanPath(QFileInfo(target).absoluteFilePath()));
    if (file.exists() || file.isSymLink())
        throw Failure(ExitStatus::PathExists, u"\"%1\" exists already; nothing was restored."_s.arg(target));
    if (!QFileInfo(file.path()).isDir())
        throw Failure(ExitStatus::NoInput, u"The folder \"%1\" does not exist."_s.arg(file.path()));
    return file.filePath();
}

/// Moves without overwriting; false where there is nothing to be moved. A folder that its owner may not write, which
/// cannot be moved, is made writable for it.
bool move(const QString& from, const QString& to)
{
    const QByteArray source = encodePath(from);
    const QByteArray target = encodePath(to);
    struct stat state {};
    if (lstat(source.constData(), &state) != 0)
        return false;
    const QByteArray parent = source.left(source.lastIndexOf('/'));
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
    return true;
}

/// Where restic restores to: beside the target, so that moving it there is one step. The folder is locked as long as
/// somebody works in it, which tells what a killed restore has left behind.
class WorkFolder {
public:
    explicit WorkFolder(const QString& target)
        : parent_(open(encodePath(QFileInfo(target).path()).constData(), linkFlags))
        , name_(".tmutil-restore-" + QUuid::createUuid().toByteArray(QUuid::Id128))
        , parentPath_(QFileInfo(target).path())
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
            throw Failure(ExitStatus::CannotWrite, u"\"%1\" cannot be made: %2."_s.arg(target, reason));
        }
    }
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;
    ~WorkFolder()
    {
        removeFolderTree(parent_, name_.constData());
        close(folder_);
        close(parent_);
    }

    QString path() const { return parentPath_ + u'/' + QString::fromLatin1(name_); }

private:
    static constexpr int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    static constexpr int linkFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC; // the way to the target is the user's own

    void removeAbandoned() const
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

    int parent_;
    QByteArray name_;
    QString parentPath_;
    int folder_ = -1;
};

mode_t modeOf(const QByteArray& path)
{
    struct stat state {};
    return lstat(path.constData(), &state) == 0 ? state.st_mode : 0;
}

/// Renames within its folder, which may be one that its owner may not write.
bool addSuffix(const QString& file, const QString& suffix)
{
    const QByteArray from = encodePath(file);
    const QByteArray folder = from.left(from.lastIndexOf('/'));
    const mode_t mode = modeOf(folder) & ALLPERMS;
    chmod(folder.constData(), mode | S_IRWXU);
    const bool renamed = std::rename(from.constData(), encodePath(file + suffix).constData()) == 0;
    chmod(folder.constData(), mode);
    return renamed;
}

/// What came back of a file that is damaged must not be taken for the file. Gives those that still may be.
QStringList markDamaged(const QString& tree, QStringList paths)
{
    paths.removeIf([&tree](const QString& path) {
        const QString file = tree + path;
        QString suffix = u".incomplete"_s;
        while (modeOf(encodePath(file + suffix)) != 0)
            suffix += u'~';
        return !S_ISREG(modeOf(encodePath(file))) || addSuffix(file, suffix);
    });
    return paths;
}

QString listed(const QStringList& paths)
{
    QStringList shown;
    std::ranges::transform(paths, std::back_inserter(shown), shownPath);
    return shown.join(u", "_s);
}

QString partsLost(const RestoreErrors& errors, const QStringList& unmarked)
{
    QStringList sentences;
    if (const QStringList damaged = errors.damaged(); !damaged.isEmpty())
        sentences.append(u"All but what is damaged in the backup was restored. Missing or, by the name of "
                         "FILE.incomplete, with holes: %1"_s.arg(listed(damaged)));
    if (!unmarked.isEmpty())
        sentences.append(u"By their own names, with holes: %1"_s.arg(listed(unmarked)));
    if (errors.lackAttributes())
        sentences.append(u"Some files lack their owner, their rights or other attributes; their contents are whole."_s);
    return sentences.join(u' ');
}

QStringList argumentsFor(const PlaceInBackup& wanted, const QString& path, const QString& tree)
{
    QStringList arguments{u"restore"_s, wanted.snapshot.id, u"--target"_s, tree};
    if (!path.isEmpty())
        arguments << u"--include"_s << Restic::literalPattern(path);
    if (!wanted.repository.isWritable())
        arguments << u"--no-lock"_s; // a disk that is mounted read-only
    return arguments;
}

} // namespace

void restore(const QString& source, const QString& target, const std::vector<Destination>& destinations,
             const Folders& folders)
{
    const QString free = freeTarget(target);
    BackupFinder finder(destinations, folders);
    const PlaceInBackup wanted = finder.find(source);
    const StopRequest stop; // while there is a folder to be cleared away
    const WorkFolder work(free);
    const QStringList paths = wanted.paths();
    for (const QString& path : paths) {
        const QString tree = work.path() + "/tree"_L1 + QString::number(paths.indexOf(path));
        QByteArrayList lines;
        const auto run = [&](const QStringList& options) {
            lines.clear();
            return Restic(wanted.repository, folders, &stop)
                .runUnlocking(argumentsFor(wanted, path, tree) + options, {},
                              [&](const QByteArray& line) { lines.append(line); });
        };
        auto outcome = run({});
        if (outcome.exitStatus != 0 && outcome.diagnosis().problem == ResticProblem::NoSpace)
            outcome = run({u"--no-lock"_s}); // not even a lock fits on a full disk
        if (stop.isMade())
            throw Failure(ExitStatus::Stopped, u"The restore was stopped; nothing was restored."_s);
        RestoreErrors errors([&](const QString& one) { return one == path || modeOf(encodePath(tree + one)) != 0; });
        errors.read(lines.join());
        const QStringList damaged = errors.damaged();
        if (!errors.targetProblem().isEmpty())
            throw Failure(ExitStatus::CannotWrite, u"\"%1\" cannot take all that is to be restored: %2. Nothing was "
                                                   "restored."_s.arg(target, errors.targetProblem()));
        if (outcome.exitStatus < 0 || (outcome.exitStatus != 0 && damaged.isEmpty() && !errors.lackAttributes()))
            throw outcome.failure();
        const bool isDamaged = damaged.contains(path);
        if (isDamaged && !S_ISREG(modeOf(encodePath(tree + path))))
            throw Failure(ExitStatus::Failed, u"\"%1\" is damaged in the backup."_s.arg(shownPath(path)));
        const QStringList unmarked = markDamaged(tree, damaged);
        const QString suffix = isDamaged ? u".incomplete"_s : QString();
        if (!move(tree + path + suffix, free + suffix))
            continue;
        if (const QString lost = partsLost(errors, unmarked); !lost.isEmpty())
            throw Failure(ExitStatus::RestoredInPart, lost);
        return;
    }
    throw Failure(ExitStatus::NoBackup, u"The backup has nothing at that path."_s);
}

} // namespace quillon
