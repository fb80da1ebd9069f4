#include "Restore.h"

#include "Failure.h"
#include "Listing.h"
#include "Paths.h"
#include "Restic.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QTimer>
#include <QUuid>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <iterator>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

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

constexpr int workFolderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
constexpr int targetFolderFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC; // the way to the target is the user's own

/// Where restic restores to: in the folder of the target, so that moving it there is one step. It is locked as long as
/// somebody works in it, which tells what a killed restore has left behind; that is removed by the next one there. In
/// the end it is removed with all that is in it.
class WorkFolder {
public:
    /// Throws Failure where it cannot be made in that folder.
    explicit WorkFolder(const QString& parent);
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;
    ~WorkFolder();

    /// By this path restic finds it, too, which can be handed no name with bytes that are no UTF-8.
    QString path() const;

private:
    void removeAbandoned() const;

    int parent_;
    QByteArray name_;
    QString parentPath_;
    int folder_ = -1;
};

WorkFolder::WorkFolder(const QString& parent)
    : parent_(open(encodePath(parent).constData(), targetFolderFlags))
    , name_(".tmutil-restore-" + QUuid::createUuid().toByteArray(QUuid::Id128))
    , parentPath_(parent)
{
    if (parent_ < 0)
        throw Failure(ExitStatus::CannotWrite,
                      u"The folder \"%1\" cannot be opened: %2."_s.arg(parentPath_, qt_error_string(errno)));
    removeAbandoned();
    if (mkdirat(parent_, name_.constData(), S_IRWXU) == 0)
        folder_ = openat(parent_, name_.constData(), workFolderFlags);
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
        const int folder = openat(parent_, QFile::encodeName(name).constData(), workFolderFlags);
        struct stat state {};
        if (folder >= 0 && fstat(folder, &state) == 0 && state.st_uid == geteuid() &&
            flock(folder, LOCK_EX | LOCK_NB) == 0)
            removeFolderTree(parent_, QFile::encodeName(name).constData());
        if (folder >= 0)
            close(folder);
    }
}

Failure inTheWay(const QString& path)
{
    return {ExitStatus::PathExists, u"\"%1\" exists already; nothing was restored."_s.arg(path)};
}

bool isStopped(const StopRequest& stop)
{
    QCoreApplication::processEvents(); // a request may have come while no restic ran
    return stop.isMade();
}

void requireUnstopped(const StopRequest& stop)
{
    if (isStopped(stop))
        throw Failure(ExitStatus::Stopped, u"The restore was stopped; nothing was restored."_s);
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

QStringList argumentsFor(const PlaceInBackup& place, const QString& path, const QString& tree)
{
    QStringList arguments{u"restore"_s, place.snapshot.id, u"--target"_s, tree};
    if (!path.isEmpty())
        arguments << u"--include"_s << Restic::literalPattern(path);
    if (!place.repository.isWritable())
        arguments << u"--no-lock"_s; // a disk that is mounted read-only
    return arguments;
}

/// What has come back of the path; empty where nothing has.
QString itemIn(const QString& tree, const QString& path)
{
    const QStringList found = entriesToldAs(tree, path);
    if (found.size() > 1)
        throw Failure(ExitStatus::NoBackup,
                      u"\"%1\" stands for more than one file of the backup; restore the folder that they are in."_s.arg(
                          shownPath(path)));
    return found.isEmpty() || modeOf(found.first()) == 0 ? QString() : found.first();
}

} // namespace

Restore::Restore(const std::vector<Destination>& destinations, const Folders& folders, const StopRequest& stop,
                 ProgressHandler onProgress)
    : destinations_(destinations)
    , folders_(folders)
    , stop_(stop)
    , onProgress_(std::move(onProgress))
{
}

Restored Restore::run(const PlaceInBackup& place, const RestoreTarget& target) const
{
    const QString date = place.snapshot.time.toString(u"yyyy-MM-dd HHmmss"_s);
    const auto targetFor = [&](const QString& path) {
        const QString own = path.isEmpty() ? QString(date).replace(u' ', u'-') : path.section(u'/', -1);
        return (target.folder == "/"_L1 ? QString() : target.folder) + u'/' +
               (target.name.isEmpty() ? own : target.name);
    };
    if (const QString known = targetFor(place.path); modeOf(known) != 0) {
        if (target.rule == RestoreRule::Refuse)
            throw inTheWay(known);
        if (target.rule == RestoreRule::Skip)
            return {.path = known, .skipped = true};
    }
    requireUnstopped(stop_);
    const WorkFolder work(target.folder);
    const QStringList paths = place.paths();
    for (const QString& path : paths) {
        const QString tree = work.path() + "/tree"_L1 + QString::number(paths.indexOf(path));
        const RestoreErrors errors = fetch(place, path, tree);
        const QStringList damaged = errors.damaged();
        const QString item = itemIn(tree, path);
        const QString itsPath = item.isEmpty() ? path : item.mid(tree.size());
        const bool isItselfDamaged = damaged.contains(itsPath);
        if (isItselfDamaged && !S_ISREG(modeOf(item)))
            throw Failure(ExitStatus::Failed, u"\"%1\" is damaged in the backup."_s.arg(shownPath(path)), u"Damaged"_s);
        if (item.isEmpty())
            continue;
        const QStringList unmarked = markDamaged(tree, damaged);
        digHoles(tree, [this] { return isStopped(stop_); });
        requireUnstopped(stop_);
        const QString suffix = isItselfDamaged ? u".incomplete"_s : QString();
        // Where a link led to it, the name that was asked for is the one that was looked for in the target.
        const QString wanted = targetFor(isTold(place.path) ? place.path : itsPath);
        const bool isFree = target.rule == RestoreRule::Refuse || damaged.isEmpty();
        const TreeSize size = onProgress_ ? sizeOfTree(item + suffix) : TreeSize();
        const QString there = put(item + suffix, wanted + suffix, isFree ? target.rule : RestoreRule::KeepBoth, date);
        return {.path = there.isEmpty() ? wanted : there,
                .skipped = there.isEmpty(),
                .isDamaged = !damaged.isEmpty(),
                .lost = partsLost(errors, unmarked),
                .size = size};
    }
    throw Failure(ExitStatus::NoBackup, u"The backup has nothing at that path."_s);
}

/// Throws Failure where restic has done less than to restore all but what is damaged.
RestoreErrors Restore::fetch(const PlaceInBackup& place, const QString& path, const QString& tree) const
{
    QByteArrayList lines;
    ResticOutcome outcome;
    const auto run = [&](const QStringList& options) {
        lines.clear();
        outcome = Restic(place.repository, folders_, &stop_)
                      .runUnlocking(argumentsFor(place, path, tree) + options, {},
                                    [&](const QByteArray& line) { lines.append(line); });
    };
    watch(tree, [&] {
        run({});
        if (outcome.exitStatus != 0 && outcome.diagnosis().problem == ResticProblem::NoSpace)
            run({u"--no-lock"_s}); // not even a lock fits on a full disk
    });
    requireUnstopped(stop_);
    RestoreErrors errors([&](const QString& one) { return one == path || modeOf(tree + one) != 0; });
    errors.read(lines.join());
    if (!errors.targetProblem().isEmpty())
        throw Failure(ExitStatus::CannotWrite,
                      u"The folder cannot take all that is to be restored: %1. Nothing was restored."_s.arg(
                          errors.targetProblem()),
                      ResticDiagnosis::of(errors.targetProblem(), outcome.exitStatus).cause());
    if (outcome.exitStatus < 0 || (outcome.exitStatus != 0 && errors.damaged().isEmpty() && !errors.lackAttributes()))
        throw outcome.failure();
    return errors;
}

/// Gives where it is, or nothing where it was skipped.
QString Restore::put(const QString& from, const QString& to, RestoreRule rule, const QString& date) const
{
    if (rule == RestoreRule::Replace && modeOf(to) != 0) {
        if (const QString refusal = replacementRefusal(to, MountTable::current(), destinations_, folders_);
            !refusal.isEmpty())
            throw Failure(ExitStatus::PathExists, refusal);
        exchange(from, to);
        return to;
    }
    const QString folder = to.section(u'/', 0, -2) + u'/';
    const auto isTaken = [&folder](const QString& name) { return modeOf(folder + name) != 0; };
    QString free = to;
    while (!moveInto(from, free)) {
        if (rule == RestoreRule::Refuse)
            throw inTheWay(to);
        if (rule == RestoreRule::Skip)
            return {};
        free = folder + freeName(to.section(u'/', -1), !S_ISDIR(modeOf(from)), date, isTaken);
    }
    return free;
}

/// Looking takes time where much has come back already: it is not to slow the restore down.
void Restore::watch(const QString& tree, const std::function<void()>& work) const
{
    QTimer timer;
    timer.setInterval(500ms);
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        QElapsedTimer watch;
        watch.start();
        onProgress_(sizeOfTree(tree));
        timer.setInterval(std::max<std::chrono::milliseconds>(500ms, 10 * std::chrono::milliseconds(watch.elapsed())));
    });
    if (onProgress_)
        timer.start();
    work();
}

} // namespace quillon
