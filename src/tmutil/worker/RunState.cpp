#include "RunState.h"

#include "Failure.h"
#include "PropertyListFile.h"

#include <QFile>

namespace quillon {

using namespace Qt::StringLiterals;

ProcessLock::ProcessLock(const QString& path)
    : lock_(path)
{
}

bool ProcessLock::tryLock()
{
    return taken(lock_.tryLock());
}

void ProcessLock::lock()
{
    taken(lock_.lock());
}

bool ProcessLock::taken(FileLock::Outcome outcome) const
{
    if (outcome == FileLock::Outcome::Impossible)
        throw Failure(ExitStatus::CannotWrite,
                      u"The lock \"%1\" cannot be taken: %2."_s.arg(lock_.path(), lock_.errorString()));
    return outcome == FileLock::Outcome::Taken;
}

std::optional<pid_t> ProcessLock::holder(const QString& path)
{
    const auto found = FileLock::holder(path);
    if (!found.error.isEmpty())
        throw Failure(ExitStatus::StateDamaged, u"The lock \"%1\" cannot be read: %2."_s.arg(path, found.error));
    return found.process;
}

namespace {

constexpr auto runIdKey = "RunID"_L1;
constexpr auto workerKey = "Worker"_L1;
constexpr auto statusKey = "Status"_L1;

QString file(const QString& stateFolder)
{
    return stateFolder + "/run.plist"_L1;
}

std::optional<BackupProgress> readProgress(const QVariantMap& entry)
{
    if (entry.isEmpty())
        return std::nullopt;
    BackupProgress progress{.bytes = entry.value(u"bytes"_s).toLongLong(),
                            .totalBytes = entry.value(u"totalBytes"_s).toLongLong(),
                            .files = entry.value(u"files"_s).toLongLong(),
                            .totalFiles = entry.value(u"totalFiles"_s).toLongLong()};
    if (const double fraction = entry.value(u"Percent"_s).toDouble(); fraction >= 0)
        progress.fraction = fraction;
    if (const QVariant seconds = entry.value(u"TimeRemaining"_s); seconds.isValid())
        progress.secondsRemaining = seconds.toLongLong();
    return progress;
}

std::optional<RunState> fromDictionary(const std::optional<QVariantMap>& contents)
{
    if (!contents || contents->isEmpty())
        return std::nullopt;
    const QVariantMap status = contents->value(statusKey).toMap();
    return RunState{.runId = contents->value(runIdKey).toString(),
                    .worker = static_cast<pid_t>(contents->value(workerKey).toLongLong()),
                    .destinationId = status.value(u"DestinationID"_s).toString(),
                    .mountPoint = status.value(u"DestinationMountPoint"_s).toString(),
                    .phase = status.value(u"BackupPhase"_s).toString(),
                    .stateChange = status.value(u"DateOfStateChange"_s).toString(),
                    .stopping = status.value(u"Stopping"_s).toBool(),
                    .progress = readProgress(status.value(u"Progress"_s).toMap())};
}

} // namespace

std::optional<RunState> RunState::current(const QString& stateFolder)
{
    const auto holder = ProcessLock::holder(lockPath(stateFolder));
    if (!holder)
        return std::nullopt;
    const auto contents = readPropertyListFile(file(stateFolder));
    if (!contents)
        throw Failure(ExitStatus::StateDamaged,
                      u"The state of the backup, \"%1\", cannot be read."_s.arg(file(stateFolder)));
    auto state = fromDictionary(contents);
    // A worker that has the lock but not yet a state, or no longer, has not begun or is done. The kernel gives no
    // process out of reach a number, and to a signal 0 and -1 stand for many.
    if (!state || state->worker != *holder || *holder <= 0)
        return std::nullopt;
    return state;
}

std::optional<RunState> RunState::abandoned(const QString& stateFolder)
{
    // One that a power failure has damaged tells nothing any more.
    const auto state = fromDictionary(readPropertyListFile(file(stateFolder)));
    if (!state || ProcessLock::holder(lockPath(stateFolder)) == state->worker)
        return std::nullopt;
    // A worker that ends takes its file away before it gives up the lock: one that is still there was left behind.
    auto again = fromDictionary(readPropertyListFile(file(stateFolder)));
    if (!again || again->runId != state->runId || again->isComplete())
        return std::nullopt;
    return again;
}

LastFailure RunState::interruption() const
{
    return {stateChange, destinationId, u"Interrupted"_s, u"The backup was interrupted before it was complete."_s};
}

QString RunState::lockPath(const QString& stateFolder)
{
    return stateFolder + "/worker.lock"_L1;
}

bool RunState::write(const QString& stateFolder) const
{
    return replacePropertyListFile(
        file(stateFolder),
        {{runIdKey, runId}, {workerKey, static_cast<qlonglong>(worker)}, {statusKey, toDictionary()}});
}

void RunState::remove(const QString& stateFolder)
{
    QFile::remove(file(stateFolder));
}

QVariantMap RunState::toDictionary() const
{
    QVariantMap entry{{u"BackupPhase"_s, phase},
                      {u"ClientID"_s, u"com.apple.backupd"_s},
                      {u"DateOfStateChange"_s, stateChange},
                      {u"DestinationID"_s, destinationId},
                      {u"DestinationMountPoint"_s, mountPoint},
                      {u"Running"_s, qlonglong{1}},
                      {u"Stopping"_s, qlonglong{stopping ? 1 : 0}}};
    if (progress)
        entry.insert(u"Progress"_s, progress->toDictionary());
    return entry;
}

} // namespace quillon
