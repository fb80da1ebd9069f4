#include "Backup.h"

#include "BackupOutput.h"
#include "Failure.h"
#include "History.h"
#include "KeyStore.h"
#include "Paths.h"
#include "RepositorySetup.h"
#include "Restic.h"
#include "Retention.h"
#include "Room.h"
#include "RunState.h"
#include "StopRequest.h"
#include "Verification.h"

#include <QFileInfo>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// The exit status of `restic backup` for a snapshot that lacks files which could not be read (restic-backup(1)).
constexpr int someFilesUnread = 3;

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
        return {ResticDiagnosis::of(problem).cause(), description};
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
        findSources();
        observer_(phase::findingChanges, {});
        copy();
        // Whoever watches takes this phase for a backup that counts.
        if (lostSources_.isEmpty())
            observer_(phase::thinningPostBackup, {});
        cleanUp();
        if (!lostSources_.isEmpty())
            result_.end = BackupResult::End::Incomplete;
        result_.failure = remark();
    } catch (const Stopped&) {
        result_.end = BackupResult::End::Stopped;
        if (!removed_.empty())
            result_.failure = failure({u"SpaceMade"_s, removal()});
    } catch (const Problem& problem) {
        result_.end = BackupResult::End::Failed;
        result_.failure = failure({problem.cause, (problem.description + u' ' + removal()).trimmed()});
    } catch (const Failure& missing) { // restic was removed meanwhile
        result_.end = BackupResult::End::Failed;
        result_.failure = failure({u"ResticMissing"_s, (missing.message() + u' ' + removal()).trimmed()});
    }
    return result_;
}

void Backup::findDisk()
{
    repository_ = RepositoryFolder::open(destination_);
    if (!repository_) {
        const bool foreign = RepositoryFolder::contents(destination_) == RepositoryFolder::Contents::Foreign;
        throw Problem{foreign ? u"NoPermission"_s : u"DestinationMissing"_s,
                      foreign ? u"\"%1\" is not yours, or leads elsewhere."_s.arg(destination_.repository())
                              : destination_.absence()};
    }
    const KeyStore keys(folders_.configuration);
    if (!keys.contains(destination_.id))
        throw Problem::of(ResticProblem::WrongKey,
                          u"The key of the backup disk \"%1\" is missing."_s.arg(destination_.name));
    if (!QFileInfo(keys.path(destination_.id)).isReadable())
        throw Problem::of(ResticProblem::WrongKey, u"The key of the backup disk \"%1\", \"%2\", cannot be read."_s.arg(
                                                       destination_.name, keys.path(destination_.id)));
}

void Backup::prepareRepository()
{
    // restic would try again for a quarter of an hour.
    if (!repository_->isWritable())
        throw Problem::of(ResticProblem::NoPermission,
                          u"The backup disk \"%1\" cannot be written to."_s.arg(destination_.name));
    while (isFull(*repository_) && repository_->hasConfig() && makeRoom()) {
    }
    if (isFull(*repository_))
        throw Problem::of(ResticProblem::NoSpace, u"The backup disk \"%1\" is full."_s.arg(destination_.name));
    if (repository_->hasConfig())
        repairIfDamaged();
    else
        makeRepository();
}

/// What is still on this computer is then stored anew, also for the backups that lack it.
void Backup::repairIfDamaged()
{
    auto damage = history_.damage(destination_.id);
    if (!damage || damage->repaired)
        return;
    try {
        repairRepository(*repository_, damage->findings.packs, restic());
    } catch (const Failure& failure) {
        if (stop_.isMade())
            throw Stopped();
        throw Problem{u"Damaged"_s, u"The damaged backups could not be repaired: %1"_s.arg(failure.message())};
    }
    repaired_ = true;
    damage->repaired = true;
    history_.setDamage(destination_.id, damage);
    history_.save();
}

void Backup::makeRepository()
{
    if (const QDateTime last = history_.lastBackup(destination_.id); repository_->isEmpty() && last.isValid())
        throw Problem::of(
            ResticProblem::NoRepository,
            u"The backups on the disk \"%1\", the last of %2, are gone. To begin anew on it, set it again with "
            "\"tmutil setdestination\"."_s.arg(destination_.name, statusDate(last)));
    NewRepository made = quillon::makeRepository(destination_, folders_, stop_);
    if (stop_.isMade())
        throw Stopped();
    if (made.outcome.exitStatus != 0)
        throw Problem::of(made.outcome);
    if (!made.folder)
        throw Problem::of(ResticProblem::NoRepository,
                          u"The backups on the disk \"%1\" are damaged: %2."_s.arg(destination_.name, made.refusal));
    repository_ = std::move(made.folder);
    history_.noteNewRepository(destination_.id);
}

Restic Backup::restic() const
{
    return {*repository_, folders_, &stop_};
}

void Backup::findSources()
{
    sources_ = SourceSet::of(configuration_, folders_);
    findLostSources(sources_.missing, "is not there"_L1);
    for (const QString& source : sources_.leftOut)
        lackingSources_.append(u"The folder \"%1\" is left out by an exclusion."_s.arg(source));
    if (sources_.folders.isEmpty())
        throw Problem{u"NoSource"_s, (lostSources_ + lackingSources_).join(u' ')};
    findLostSources(sources_.withoutFiles(), "is empty or cannot be read"_L1);
}

/// The mount point of a disk that is not there looks like a folder whose files have been deleted.
void Backup::findLostSources(const QStringList& suspects, QLatin1StringView state)
{
    for (const QString& source : suspects) {
        if (heldFiles(source))
            lostSources_.append(u"The folder \"%1\" %2, and held files before. If that is meant to be so, remove it "
                                "with \"tmutil removesource\"."_s.arg(source, state));
        else if (sources_.missing.contains(source))
            lackingSources_.append(u"The folder \"%1\" is not there."_s.arg(source));
    }
}

/// Whether the latest complete backup of that folder has a file in it.
bool Backup::heldFiles(const QString& source)
{
    if (!earlier_)
        earlier_ = snapshotsIn(*repository_, restic());
    if (!snapshotId_.isEmpty())
        std::erase_if(*earlier_, [this](const Snapshot& one) { return one.id.startsWith(snapshotId_); });
    const auto found = std::find_if(earlier_->rbegin(), earlier_->rend(), [&source](const Snapshot& snapshot) {
        return snapshot.complete &&
               std::ranges::any_of(snapshot.sources, [&](const QString& folder) { return covers(folder, source); });
    });
    if (found == earlier_->rend())
        return false;
    bool file = false;
    const auto outcome =
        restic().run({u"ls"_s, u"--json"_s, u"--no-lock"_s, u"--recursive"_s, found->id, source},
                     [&file](const QByteArray& line) { file = file || line.contains(R"("type":"file")"); });
    if (stop_.isMade())
        throw Stopped();
    if (outcome.exitStatus != 0)
        throw Problem::of(outcome);
    return file;
}

void Backup::copy()
{
    const Restic program = restic();
    for (bool unlocked = false;; unlocked = true) {
        const QStringList arguments =
            QStringList{u"backup"_s, u"--json"_s, u"--verbose=2"_s, u"--tag"_s, Snapshot::tag(lostSources_.isEmpty())} +
            sources_.arguments();
        BackupOutput output(sources_.folders, repaired_);
        const auto outcome = program.run(
            arguments,
            [&](const QByteArray& line) {
                if (output.readLine(line))
                    observer_(phase::copying, output.progress());
            },
            [&](const QByteArray& line) { output.readMessage(line); });
        snapshotId_ = output.snapshotId();
        unreadFiles_ = output.unreadPaths().size();
        note(output, outcome);
        const bool isMade = !snapshotId_.isEmpty() && !outcome.diskGone;
        if (isMade && lostSources_.isEmpty()) {
            findLostSources(output.emptySources(), "is empty or cannot be read"_L1);
            if (lostSources_.isEmpty())
                remember();
            else
                markIncomplete();
        }
        if (stop_.isMade())
            throw Stopped();
        if (isMade && (outcome.exitStatus == 0 || outcome.exitStatus == someFilesUnread))
            return;
        const auto problem = outcome.diagnosis().problem;
        if (problem == ResticProblem::Locked && !unlocked) {
            resticOrThrow({u"unlock"_s});
            continue;
        }
        if (problem == ResticProblem::NoSpace && makeRoom())
            continue;
        throw Problem::of(outcome);
    }
}

void Backup::note(const BackupOutput& output, const ResticOutcome& outcome)
{
    log_.files = output.progress() ? output.progress()->files : 0;
    log_.newFiles = output.newFiles();
    log_.changedFiles = output.changedFiles();
    log_.bytesAdded = output.bytesAdded();
    log_.unread = output.unreadPaths();
    log_.words += outcome.errorText;
}

/// A source was lost while it was read.
void Backup::markIncomplete()
{
    resticOrThrow({u"tag"_s, u"--set"_s, Snapshot::tag(false), snapshotId_});
    snapshotId_.clear(); // it has another one now
}

/// Before anything else is done: whatever ends this process while it cleans up, the backup counts.
void Backup::remember()
{
    history_.setLastBackup(destination_.id, QDateTime::currentDateTimeUtc());
    history_.setLastFailure(destination_.id, remark());
    history_.save();
}

/// The backup is made by now: what keeps old ones from being thinned is worth a remark, unless the disk is full.
void Backup::cleanUp()
{
    try {
        thin();
    } catch (const Failure& failure) {
        if (stop_.isMade())
            throw Stopped();
        thinningProblem_ = failure.message();
    } catch (const Problem& problem) {
        if (problem.cause == ResticDiagnosis::of(ResticProblem::NoSpace).cause())
            throw;
        thinningProblem_ = problem.description;
    }
}

void Backup::thin()
{
    if (repository_->hasLocks())
        resticOrThrow({u"unlock"_s}); // removes those of processes that have died
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const auto snapshots = snapshotsIn(*repository_, restic());
    for (const Snapshot& snapshot : snapshots) {
        const bool isNew = snapshotId_.isEmpty() ? !snapshot.complete : snapshot.id.startsWith(snapshotId_);
        if (isNew)
            log_.backup = snapshot.name();
    }
    forget(dispensable(snapshots, configuration_.keepRules(), snapshotId_, now), restic());
    if (stop_.isMade())
        throw Stopped();
    if (isWeekOver(history_.lastPrune(destination_.id), now)) {
        resticOrThrow({u"prune"_s});
        history_.setLastPrune(destination_.id, now);
    }
    keepReserve(*repository_);
}

/// Thinning comes after copying, and a full disk lets no copy be completed: without this it would stay full. Only the
/// backup itself can tell how much room it needs, so it is tried again after each step, of which the first takes
/// nothing that anybody misses. False when no further one can be taken.
bool Backup::makeRoom()
{
    try {
        if (roomWanted_)
            return removeLeastMissed(*repository_, restic(), *roomWanted_, removed_);
        roomWanted_ = removeLeftovers(*repository_, restic(), configuration_.keepRules());
        return true;
    } catch (const Failure&) {
        if (stop_.isMade())
            throw Stopped();
        return false; // the full disk is what is reported
    }
}

void Backup::resticOrThrow(const QStringList& arguments) const
{
    const auto outcome = restic().runUnlocking(arguments);
    if (stop_.isMade())
        throw Stopped();
    if (outcome.exitStatus != 0)
        throw Problem::of(outcome);
}

LastFailure Backup::failure(const Problem& problem) const
{
    return {statusDate(QDateTime::currentDateTimeUtc()), destination_.id, problem.cause, problem.description};
}

/// A sentence on what was removed for want of room, whatever came of the backup; empty where nothing was.
QString Backup::removal() const
{
    if (removed_.empty())
        return {};
    return removed_.size() == 1
               ? u"The disk was full, and the backup \"%1\" was removed."_s.arg(removed_.front().name())
               : u"The disk was full, and %1 old backups, from \"%2\" to \"%3\", were removed."_s.arg(
                     QString::number(removed_.size()), removed_.front().name(), removed_.back().name());
}

std::optional<LastFailure> Backup::remark() const
{
    QString cause;
    QStringList sentences;
    if (!thinningProblem_.isEmpty()) {
        cause = u"Thinning"_s;
        sentences.append(u"Old backups could not be thinned: %1"_s.arg(thinningProblem_));
    }
    if (!removed_.empty()) {
        cause = u"SpaceMade"_s;
        sentences.append(removal());
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
    if (!lostSources_.isEmpty()) {
        cause = u"SourceLost"_s;
        sentences = lostSources_ + sentences;
    }
    if (cause.isEmpty())
        return std::nullopt;
    LastFailure remark = failure({cause, sentences.join(u' ')});
    remark.unreadFiles = unreadFiles_;
    return remark;
}

} // namespace quillon
