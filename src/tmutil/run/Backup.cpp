#include "Backup.h"

#include "BackupRemark.h"
#include "Destination.h"
#include "History.h"
#include "NetworkProbe.h"
#include "Repository.h"
#include "Restic.h"
#include "ResticDiagnosis.h"
#include "ResticOutput.h"
#include "Retention.h"
#include "RunState.h"
#include "Verification.h"

#include <QSysInfo>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// The exit status of `restic backup` for a snapshot that lacks files which could not be read (restic-backup(1)).
constexpr int someFilesUnread = 3;

Failure failureOf(ResticProblem problem, const QString& description)
{
    return {ExitStatus::Failed, description, ResticDiagnosis::of(problem).cause()};
}

} // namespace

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
        if (remark_.lostSources.isEmpty())
            observer_(phase::thinningPostBackup, {});
        cleanUp();
        if (!remark_.lostSources.isEmpty())
            result_.end = BackupResult::End::Incomplete;
        result_.failure = lastRemark();
    } catch (const Failure& failure) {
        result_.end = stop_.isMade() ? BackupResult::End::Stopped : BackupResult::End::Failed;
        if (!stop_.isMade())
            result_.failure = lastFailure(failure.cause().isEmpty() ? u"Unknown"_s : failure.cause(),
                                          (failure.message() + u' ' + remark_.removal()).trimmed());
        else if (!remark_.removed.empty())
            result_.failure = lastFailure(u"SpaceMade"_s, remark_.removal());
    }
    return result_;
}

void Backup::endIfStopped() const
{
    if (stop_.isMade())
        throw Failure(ExitStatus::Stopped, u"The backup was stopped."_s);
}

void Backup::findDisk()
{
    repository_ = Repository::open(destination_, folders_);
    if (!repository_) {
        const bool foreign = RepositoryFolder::contents(destination_) == RepositoryFolder::Contents::Foreign;
        throw failureOf(foreign ? ResticProblem::NoPermission : ResticProblem::DiskGone, destination_.absence());
    }
    KeyStore(folders_.configuration).require(destination_);
    requireConnection(*repository_, folders_);
}

void Backup::prepareRepository()
{
    repository_->requireWritable();
    while (isFull(*repository_) && repository_->hasConfig() && makeRoom()) {
    }
    if (isFull(*repository_))
        throw failureOf(ResticProblem::NoSpace, u"The backup disk \"%1\" is full."_s.arg(destination_.name));
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
        throw Failure(ExitStatus::Failed, u"The damaged backups could not be repaired: %1"_s.arg(failure.message()),
                      u"Damaged"_s);
    }
    repaired_ = true;
    damage->repaired = true;
    history_.setDamage(destination_.id, damage);
    history_.save();
}

void Backup::makeRepository()
{
    if (destination_.bare || !repository_->isEmpty())
        repository_->requireConfig();
    if (const QDateTime last = history_.lastBackup(destination_.id); last.isValid())
        throw failureOf(
            ResticProblem::NoRepository,
            u"The backups on the disk \"%1\", the last of %2, are gone. To begin anew on it, set it again with "
            "\"tmutil setdestination\"."_s.arg(destination_.name, statusDate(last)));
    NewRepository made = quillon::makeRepository(destination_, folders_, stop_);
    endIfStopped();
    made.outcome.require();
    if (!made.repository)
        throw failureOf(ResticProblem::NoRepository,
                        u"The backups on the disk \"%1\" are damaged: %2."_s.arg(destination_.name, made.refusal));
    repository_.emplace(std::move(*made.repository));
    history_.noteNewRepository(destination_.id);
}

Restic Backup::restic() const
{
    return {*repository_, folders_, &stop_};
}

void Backup::findSources()
{
    sources_ = SourceSet::of(configuration_, folders_);
    history_.noteHostName(QSysInfo::machineHostName());
    earlier_.emplace(*repository_, restic(), history_.hostNames());
    findLostBackups();
    // A backup that is cut off before it was looked at bears the tag of a complete one.
    if (const QDateTime since = history_.uncheckedSince(destination_.id); since.isValid())
        earlier_->markEmptied(since);
    history_.setUncheckedSince(destination_.id, {});
    findLostSources(sources_.missing, "is not there"_L1);
    findLostSources(sources_.moved, "leads elsewhere by a link now"_L1);
    findLostSources(sources_.leftOut, "is left out by an exclusion"_L1);
    for (const QString& source : sources_.leftOut)
        remark_.lackingSources.append(u"The folder \"%1\" is left out by an exclusion."_s.arg(source));
    if (sources_.folders.isEmpty())
        throw Failure(ExitStatus::Failed, (remark_.lostSources + remark_.lackingSources).join(u' '), u"NoSource"_s);
    findLostSources(sources_.withoutFiles(), "is empty or cannot be read"_L1);
    findDroppedFolders();
}

/// The mount point of a disk that is not there looks like a folder whose files have been deleted.
void Backup::findLostSources(const QStringList& suspects, QLatin1StringView state)
{
    for (const QString& source : suspects) {
        if (earlier_->heldFiles(source, snapshotId_))
            remark_.lostSources.append(
                u"The folder \"%1\" %2, and held files before. If that is meant to be so, remove it "
                "with \"tmutil removesource\"."_s.arg(source, state));
        else if (sources_.missing.contains(source))
            remark_.lackingSources.append(u"The folder \"%1\" is not there."_s.arg(source));
    }
}

/// The latest backup is what no thinning takes, by whichever computer. What a prune would remove of those that are gone
/// is left alone for a week.
void Backup::findLostBackups()
{
    const QVariantList known = history_.backups(destination_.id);
    const auto isThere = [this](const QVariant& backup) {
        return earlier_->contains(backup.toMap().value(u"Snapshot"_s).toString());
    };
    if (known.isEmpty() || holdsSnapshot(*repository_, restic(), known.last().toMap().value(u"Snapshot"_s).toString()))
        return;
    remark_.lostBackups = known.size() - std::ranges::count_if(known, isThere);
    history_.setLastPrune(destination_.id, QDateTime::currentDateTimeUtc());
}

/// What has been damaged of them is no part of the new backup.
void Backup::findUnsavedFolders(const QStringList& unread)
{
    if (!history_.damage(destination_.id))
        return;
    for (const QString& folder : readableFolders(unread))
        remark_.lostSources.append(
            u"The folder \"%1\" could not be saved, since what is stored of it is damaged."_s.arg(folder));
}

/// On its first backup nothing tells that a source should hold something, but what lies in it does.
void Backup::findSwallowedSources(const QStringList& empty)
{
    const QStringList withoutFiles = empty.isEmpty() ? QStringList() : sources_.withoutFiles();
    for (const QString& source : empty) {
        if (!withoutFiles.contains(source))
            remark_.lackingSources.append(u"Of the folder \"%1\" nothing is backed up: all is left out."_s.arg(source));
    }
}

/// What another file system hides, or what a program tags as a cache, had been backed up without being named.
void Backup::findDroppedFolders()
{
    const auto held = [this](const QStringList& folders) { return earlier_->thatHeldFiles(folders); };
    QVariantMap judged = history_.otherFileSystems(destination_.id);
    for (const QString& folder : droppedFolders(judged, sources_.otherFileSystems, held))
        remark_.lackingSources.append(
            u"The folder \"%1\", which held files before, is on another file system and is not backed up: have it so "
            "by \"tmutil addsource\", or let it be by \"tmutil addexclusion\"."_s.arg(folder));
    history_.setOtherFileSystems(destination_.id, judged);
    judged = history_.caches(destination_.id);
    for (const QString& folder : droppedFolders(judged, sources_.caches(), held))
        remark_.lackingSources.append(
            u"The folder \"%1\", which was backed up before, is tagged as a cache and is left out: remove "
            "\"CACHEDIR.TAG\" from it, or let it be by \"tmutil addexclusion\"."_s.arg(folder));
    history_.setCaches(destination_.id, judged);
}

void Backup::copy()
{
    if (remark_.lostSources.isEmpty()) {
        history_.setUncheckedSince(destination_.id, QDateTime::currentDateTimeUtc());
        history_.save();
    }
    for (;;) {
        BackupOutput output(sources_.folders, repaired_);
        Standstill standstill;
        const Restic program = restic().endedWhen([&] {
            return standstill.isSince(output.progress(), std::chrono::steady_clock::now()) &&
                   isNearlyFull(*repository_);
        });
        const QStringList arguments = QStringList{u"backup"_s} + output.options() +
                                      QStringList{u"--tag"_s, Snapshot::tag(remark_.lostSources.isEmpty())} +
                                      parentOptions_ + sources_.arguments();
        const auto outcome = program.runUnlocking(
            arguments,
            [&](const QByteArray& line) {
                if (output.readLine(line))
                    observer_(phase::copying, output.progress());
            },
            [&](const QByteArray& line) { output.readMessage(line); });
        snapshotId_ = output.snapshotId();
        remark_.unreadFiles = output.unreadPaths().size();
        note(output, outcome);
        const bool isMade = !snapshotId_.isEmpty() && !outcome.diskGone;
        if (isMade && remark_.lostSources.isEmpty()) {
            findLostSources(output.emptySources(), "is empty or cannot be read"_L1);
            findUnsavedFolders(output.unreadPaths());
            findSwallowedSources(output.emptySources());
            if (remark_.lostSources.isEmpty())
                remember();
            else
                markIncomplete();
        }
        endIfStopped();
        if (isMade && (outcome.exitStatus == 0 || outcome.exitStatus == someFilesUnread))
            return;
        const ResticProblem problem = outcome.diagnosis().problem;
        if (problem == ResticProblem::Unknown && passDamagedRecords())
            continue;
        if (problem != ResticProblem::NoSpace || !makeRoom())
            throw outcome.failure();
    }
}

/// One damaged record of a backup keeps restic from making any, unless it is put aside or not looked at.
bool Backup::passDamagedRecords()
{
    const DamagedRecords damaged = putAsideDamagedRecords(*repository_, restic());
    remark_.damagedRecords += damaged.putAside;
    if (damaged.left.isEmpty() || !parentOptions_.isEmpty())
        return damaged.putAside > 0;
    remark_.damagedRecordsLeft = damaged.left;
    parentOptions_ = earlier_->parentOptions();
    return true;
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
    restic().runUnlocking({u"tag"_s, u"--set"_s, Snapshot::tag(false), snapshotId_}).require();
    snapshotId_.clear(); // it has another one now
    history_.setUncheckedSince(destination_.id, {});
    history_.save();
}

/// Before anything else is done: whatever ends this process while it cleans up, the backup counts. It does once its
/// record is found on the disk; restic may know it by its cache, and takes as long to start as to back up.
void Backup::remember()
{
    if (!holdsSnapshot(*repository_, restic(), snapshotId_))
        throw failureOf(ResticProblem::NoRepository,
                        u"The backup was written, but cannot be found on \"%1\"."_s.arg(destination_.name));
    history_.setUncheckedSince(destination_.id, {});
    history_.setLastBackup(destination_.id, QDateTime::currentDateTimeUtc());
    history_.setLastFailure(destination_.id, lastRemark());
    history_.save();
}

/// The backup is made by now: what keeps old ones from being thinned is worth a remark, unless the disk is full.
void Backup::cleanUp()
{
    try {
        thin();
    } catch (const Failure& failure) {
        if (stop_.isMade() || failure.cause() == ResticDiagnosis::of(ResticProblem::NoSpace).cause())
            throw;
        remark_.thinningProblem = failure.message();
    }
}

void Backup::thin()
{
    const Restic program = restic();
    removeStaleLocks(*repository_, program);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const auto snapshots = snapshotsIn(*repository_, program);
    for (const Snapshot& snapshot : snapshots) {
        if (snapshotId_.isEmpty() ? !snapshot.complete : snapshot.id.startsWith(snapshotId_))
            log_.backup = snapshot.name();
    }
    const auto leaving = dispensable(snapshots, configuration_.keepRules(), snapshotId_, now);
    auto staying = snapshots;
    std::erase_if(staying, [&leaving](const Snapshot& one) {
        return std::ranges::find(leaving, one.id, &Snapshot::id) != leaving.end();
    });
    history_.setBackups(destination_.id, staying, log_.backup, log_.bytesAdded);
    history_.save(); // ahead of it, or what a kill keeps from being noted would look as if it had been lost
    forget(leaving, program);
    endIfStopped();
    if (isWeekOver(history_.lastPrune(destination_.id), now)) {
        program.runUnlocking({u"prune"_s}).require();
        history_.setLastPrune(destination_.id, now);
    }
    keepReserve(*repository_);
}

/// Thinning comes after copying, and a full disk lets no copy be completed: without this it would stay full. Only the
/// backup itself can tell how much room it needs, so it is tried again after each step, of which the first takes
/// nothing that anybody misses. False when no further one can be taken.
bool Backup::makeRoom()
{
    if (repository_->folder() == nullptr)
        return false; // how much is free is not known
    try {
        if (roomWanted_)
            return removeLeastMissed(*repository_, restic(), *roomWanted_, remark_.removed);
        roomWanted_ = removeLeftovers(*repository_, restic(), configuration_.keepRules());
        return true;
    } catch (const Failure&) {
        endIfStopped();
        return false; // the full disk is what is reported
    }
}

LastFailure Backup::lastFailure(const QString& cause, const QString& description) const
{
    return {statusDate(QDateTime::currentDateTimeUtc()), destination_.id, cause, description};
}

/// Nothing for a backup without fault.
std::optional<LastFailure> Backup::lastRemark()
{
    remark_.lastVerification = history_.lastVerification(destination_.id);
    const auto text = remark_.text(QDateTime::currentDateTimeUtc());
    if (!text)
        return std::nullopt;
    LastFailure remark = lastFailure(text->first, text->second);
    remark.unreadFiles = remark_.unreadFiles;
    return remark;
}

} // namespace quillon
