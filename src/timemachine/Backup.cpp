#include "Backup.h"

#include "BackupOutput.h"
#include "Failure.h"
#include "History.h"
#include "KeyStore.h"
#include "Restic.h"
#include "Retention.h"
#include "RunState.h"
#include "Snapshot.h"
#include "SourceSet.h"
#include "StopRequest.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <cstdio>
#include <sys/statvfs.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// Less room than this does not even hold restic's lock and index files.
constexpr unsigned long long leastRoom = 1024ULL * 1024;

// The exit status of `restic backup` for a snapshot that lacks files which could not be read (restic-backup(1)).
constexpr int someFilesUnread = 3;

bool isFull(const QByteArray& path)
{
    struct statvfs room {};
    return statvfs(path.constData(), &room) == 0 && room.f_blocks > 0 && room.f_bavail * room.f_frsize < leastRoom;
}

} // namespace

/// Ends a run; caught in run().
struct Backup::Problem {
    QString cause;
    QString description;

    static Problem of(const ResticOutcome& outcome)
    {
        const ResticDiagnosis diagnosis = outcome.diagnosis();
        return {diagnosis.cause(), diagnosis.description};
    }
    static Problem of(ResticProblem problem, const QString& description)
    {
        return {ResticDiagnosis{problem, {}}.cause(), description};
    }
};

Backup::Backup(const Destination& destination, const Configuration& configuration, const Folders& folders,
               History& history, const StopRequest& stop, Observer observer)
    : destination_(destination)
    , configuration_(configuration)
    , folders_(folders)
    , history_(history)
    , stop_(stop)
    , observer_(std::move(observer))
{
}

BackupResult Backup::run()
{
    try {
        observer_(phase::findingBackupVolume, {});
        findDisk();
        observer_(phase::mountingBackupVolume, {});
        prepareRepository();
        observer_(phase::preparingSourceVolumes, {});
        const QStringList sources = findSources();
        observer_(phase::findingChanges, {});
        copy(sources);
        observer_(phase::thinningPostBackup, {});
        cleanUp();
        result_.failure = remark();
    } catch (const Stopped&) {
        result_.end = BackupResult::End::Stopped;
    } catch (const Problem& problem) {
        result_.end = BackupResult::End::Failed;
        result_.failure = failure(problem);
    } catch (const Failure& missing) { // restic was removed meanwhile
        result_.end = BackupResult::End::Failed;
        result_.failure = failure(Problem{u"ResticMissing"_s, missing.message()});
    }
    return result_;
}

void Backup::findDisk() const
{
    if (!destination_.isPresent())
        throw Problem{u"DestinationMissing"_s, u"The backup disk \"%1\" is not there."_s.arg(destination_.name)};
    if (!KeyStore(folders_.configuration).contains(destination_.id))
        throw Problem::of(ResticProblem::WrongKey,
                          u"The key of the backup disk \"%1\" is missing."_s.arg(destination_.name));
}

void Backup::prepareRepository()
{
    const QByteArray repository = QFile::encodeName(destination_.repository());
    // restic would try again for a quarter of an hour.
    if (access(repository.constData(), W_OK) != 0)
        throw Problem::of(ResticProblem::NoPermission,
                          u"The backup disk \"%1\" cannot be written to."_s.arg(destination_.name));
    const bool exists = QFile::exists(destination_.repository() + "/config"_L1);
    if (isFull(repository) && exists)
        makeRoom();
    if (isFull(repository))
        throw Problem::of(ResticProblem::NoSpace, u"The backup disk \"%1\" is full."_s.arg(destination_.name));
    if (exists)
        return;

    // Made under another name, so that a repository is whole or not there; an empty folder gives way to it.
    const QString fresh = destination_.repository() + ".new"_L1;
    QDir(fresh).removeRecursively();
    const auto outcome = Restic(destination_, folders_, &stop_).runOn(fresh, {u"init"_s});
    if (stop_.isMade())
        throw Stopped();
    if (outcome.exitStatus != 0)
        throw Problem::of(outcome);
    if (std::rename(QFile::encodeName(fresh).constData(), repository.constData()) != 0) {
        const QString reason = qt_error_string(errno);
        QDir(fresh).removeRecursively();
        throw Problem::of(ResticProblem::NoRepository,
                          u"The backups on the disk \"%1\" are damaged: %2."_s.arg(destination_.name, reason));
    }
    history_.setLastPrune(destination_.id, QDateTime::currentDateTimeUtc()); // nothing to prune in an empty one
}

QStringList Backup::findSources()
{
    const SourceSet set = SourceSet::of(configuration_, folders_);
    for (const QString& source : set.missing)
        lackingSources_.append(u"The folder \"%1\" is not there."_s.arg(source));
    for (const QString& source : set.leftOut)
        lackingSources_.append(u"The folder \"%1\" is left out by an exclusion."_s.arg(source));
    if (set.folders.isEmpty())
        throw Problem{u"NoSource"_s, lackingSources_.join(u' ')};
    return set.arguments();
}

void Backup::copy(const QStringList& sourceArguments)
{
    const Restic restic(destination_, folders_, &stop_);
    const QStringList arguments =
        QStringList{u"backup"_s, u"--json"_s, u"--verbose=2"_s, u"--tag"_s, Restic::tag()} + sourceArguments;
    for (bool unlocked = false;; unlocked = true) {
        BackupOutput output;
        const auto outcome = restic.run(
            arguments,
            [&](const QByteArray& line) {
                if (output.readLine(line))
                    observer_(phase::copying, output.progress());
            },
            [&](const QByteArray& line) { output.readMessage(line); });
        snapshotId_ = output.snapshotId();
        unreadFiles_ = output.unreadFiles();
        if (!snapshotId_.isEmpty())
            remember();
        if (stop_.isMade())
            throw Stopped();
        if (!snapshotId_.isEmpty() && (outcome.exitStatus == 0 || outcome.exitStatus == someFilesUnread))
            return;
        const auto problem = outcome.diagnosis().problem;
        if (problem == ResticProblem::Locked && !unlocked) {
            resticOrThrow({u"unlock"_s});
            continue;
        }
        if (problem == ResticProblem::NoSpace)
            makeRoom();
        throw Problem::of(outcome);
    }
}

/// Before anything else is done: whatever ends this process while it cleans up, the backup counts.
void Backup::remember()
{
    history_.setLastBackup(destination_.id, QDateTime::currentDateTimeUtc());
    history_.setLastFailure(remark());
    history_.save();
}

/// The backup is complete by now: what keeps old ones from being thinned is worth a remark, unless the disk is full.
void Backup::cleanUp()
{
    try {
        if (newestBackupIsDatedLast())
            thin();
        else
            thinningProblem_ = u"The clock was set back, and a backup with a later date is there."_s;
    } catch (const Failure& failure) {
        thinningProblem_ = failure.message();
    } catch (const Problem& problem) {
        if (problem.cause == (ResticDiagnosis{ResticProblem::NoSpace, {}}.cause()))
            throw;
        thinningProblem_ = problem.description;
    }
}

/// Thinning keeps what has the latest date: the backup just made must not lose to one from before a clock was set back.
bool Backup::newestBackupIsDatedLast() const
{
    const auto snapshots = snapshotsOn(destination_, Restic(destination_, folders_, &stop_));
    // restic tells the beginning of the identifier only.
    return !snapshots.empty() && snapshots.back().id.startsWith(snapshotId_);
}

void Backup::thin()
{
    resticOrThrow(forgetArguments(Restic::tag()));
    if (const QDateTime now = QDateTime::currentDateTimeUtc(); isPruneDue(history_.lastPrune(destination_.id), now)) {
        resticOrThrow({u"prune"_s});
        history_.setLastPrune(destination_.id, now);
    }
}

/// Thinning comes after copying, and a full disk lets no copy be completed: without this it would stay full.
void Backup::makeRoom()
{
    if (!isPruneDue(history_.lastPrune(destination_.id), QDateTime::currentDateTimeUtc()))
        return;
    try {
        thin();
    } catch (const Problem&) {
        return; // the full disk is what is reported
    }
}

/// A lock that a dead process left behind is removed once; one that is in use is not.
void Backup::resticOrThrow(const QStringList& arguments) const
{
    const Restic restic(destination_, folders_, &stop_);
    auto outcome = restic.run(arguments);
    if (outcome.exitStatus != 0 && outcome.diagnosis().problem == ResticProblem::Locked && !stop_.isMade() &&
        restic.run({u"unlock"_s}).exitStatus == 0 && !stop_.isMade())
        outcome = restic.run(arguments);
    if (stop_.isMade())
        throw Stopped();
    if (outcome.exitStatus != 0)
        throw Problem::of(outcome);
}

LastFailure Backup::failure(const Problem& problem) const
{
    return {statusDate(QDateTime::currentDateTimeUtc()), destination_.id, problem.cause, problem.description};
}

std::optional<LastFailure> Backup::remark() const
{
    QString cause;
    QStringList sentences;
    if (!thinningProblem_.isEmpty()) {
        cause = u"Thinning"_s;
        sentences.append(u"Old backups could not be thinned: %1"_s.arg(thinningProblem_));
    }
    if (!lackingSources_.isEmpty()) {
        cause = u"MissingSource"_s;
        sentences = lackingSources_ + sentences;
    }
    if (unreadFiles_ > 0) {
        cause = u"UnreadFiles"_s;
        sentences.prepend(unreadFiles_ == 1 ? u"One file could not be read."_s
                                            : u"%1 files could not be read."_s.arg(unreadFiles_));
    }
    if (cause.isEmpty())
        return std::nullopt;
    LastFailure remark = failure({cause, sentences.join(u' ')});
    remark.unreadFiles = unreadFiles_;
    return remark;
}

} // namespace quillon
