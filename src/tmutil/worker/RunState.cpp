#include "RunState.h"

#include "Failure.h"
#include "FileLock.h"
#include "Paths.h"
#include "PropertyList.h"

#include <QDir>
#include <QFile>
#include <QUuid>

#include <fcntl.h>

namespace quillon {

using namespace Qt::StringLiterals;

QString statusDate(const QDateTime& date)
{
    return date.toUTC().toString(u"yyyy-MM-dd HH:mm:ss '+0000'"_s);
}

QVariantMap LastFailure::toDictionary() const
{
    QVariantMap entry{
        {u"Date"_s, date}, {u"DestinationID"_s, destinationId}, {u"Cause"_s, cause}, {u"Description"_s, description}};
    if (unreadFiles > 0)
        entry.insert(u"UnreadFiles"_s, unreadFiles);
    return entry;
}

namespace {

constexpr qsizetype keptRuns = 200;

QString folderOf(const QString& stateFolder)
{
    return stateFolder + "/log"_L1;
}

/// Names begin with the date, so that they sort by it.
QStringList logFilesIn(const QString& folder)
{
    return QDir(folder).entryList({u"*.plist"_s}, QDir::Files, QDir::Name);
}

RunLog runLogFrom(const QVariantMap& entry)
{
    const auto text = [&entry](const QString& key) { return entry.value(key).toString(); };
    const auto number = [&entry](const QString& key) { return entry.value(key).toLongLong(); };
    return {.begun = text(u"Begun"_s),
            .ended = text(u"Ended"_s),
            .destinationId = text(u"DestinationID"_s),
            .disk = text(u"Disk"_s),
            .result = text(u"Result"_s),
            .description = text(u"Description"_s),
            .backup = text(u"Backup"_s),
            .files = number(u"Files"_s),
            .newFiles = number(u"NewFiles"_s),
            .changedFiles = number(u"ChangedFiles"_s),
            .bytesAdded = number(u"BytesAdded"_s),
            .unread = entry.value(u"Unread"_s).toStringList(),
            .words = text(u"Words"_s)};
}

/// What is no character of XML could not be kept.
QString storable(QString text)
{
    for (QChar& character : text) {
        if (!character.isPrint() && !character.isSpace() && !character.isSurrogate())
            character = QChar::ReplacementCharacter;
    }
    return text;
}

} // namespace

bool RunLog::write(const QString& stateFolder) const
{
    const QString folder = folderOf(stateFolder);
    if (!makePrivateFolder(folder))
        return false;
    QVariantList paths;
    for (const QString& path : unread)
        paths.append(storable(path));
    const QString name = QString(begun).remove(u':').replace(u' ', u'-').left(17) + u'-' +
                         QUuid::createUuid().toString(QUuid::Id128).left(8) + ".plist"_L1;
    const bool written = replacePropertyListFile(folder + u'/' + name, {{u"Begun"_s, begun},
                                                                        {u"Ended"_s, ended},
                                                                        {u"DestinationID"_s, destinationId},
                                                                        {u"Disk"_s, disk},
                                                                        {u"Result"_s, result},
                                                                        {u"Description"_s, storable(description)},
                                                                        {u"Backup"_s, backup},
                                                                        {u"Files"_s, files},
                                                                        {u"NewFiles"_s, newFiles},
                                                                        {u"ChangedFiles"_s, changedFiles},
                                                                        {u"BytesAdded"_s, bytesAdded},
                                                                        {u"Unread"_s, paths},
                                                                        {u"Words"_s, storable(words)}});
    QStringList names = logFilesIn(folder);
    for (; names.size() > keptRuns; names.removeFirst())
        QFile::remove(folder + u'/' + names.first());
    return written;
}

std::vector<RunLog> RunLog::all(const QString& stateFolder)
{
    std::vector<RunLog> runs;
    for (const QString& name : logFilesIn(folderOf(stateFolder))) {
        if (const auto contents = readPropertyListFile(folderOf(stateFolder) + u'/' + name); contents)
            runs.push_back(runLogFrom(*contents));
    }
    return runs;
}

QString RunLog::line() const
{
    return u"%1  %2  \"%3\"  %4 new, %5 changed, %6 not read%7"_s.arg(begun, result.leftJustified(10), disk)
        .arg(newFiles)
        .arg(changedFiles)
        .arg(unread.size())
        .arg(backup.isEmpty() ? QString() : u"  "_s + backup);
}

QStringList RunLog::text() const
{
    QStringList lines{u"Begun:         "_s + begun,
                      u"Ended:         "_s + ended,
                      u"Disk:          %1 (%2)"_s.arg(disk, destinationId),
                      u"Result:        "_s + result,
                      u"Backup:        "_s + backup,
                      u"Files:         %1, of which %2 new and %3 changed"_s.arg(files).arg(newFiles).arg(changedFiles),
                      u"Bytes added:   "_s + QString::number(bytesAdded)};
    if (!description.isEmpty())
        lines.append(u"Remark:        "_s + description);
    for (const QString& path : unread)
        lines.append(u"Not read:      "_s + path);
    for (const QString& line : words.split(u'\n', Qt::SkipEmptyParts))
        lines.append(u"restic:        "_s + line);
    return lines;
}

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

ReportMarks::ReportMarks(const QString& stateFolder)
    : folder_(stateFolder + "/reported"_L1)
{
}

void ReportMarks::clear() const
{
    QFile::remove(folder_); // should it be a link: not what that leads to
    removeFolderTree(AT_FDCWD, QFile::encodeName(folder_).constData());
    needPrivateFolder(folder_);
}

void ReportMarks::mark(const QString& runId, bool finishing) const
{
    if (QFile file(path(runId, finishing)); !file.exists())
        file.open(QIODevice::WriteOnly);
}

bool ReportMarks::isReported(const QString& runId) const
{
    return QFile::exists(path(runId, false)) || isFinishingReported(runId);
}

bool ReportMarks::isFinishingReported(const QString& runId) const
{
    return QFile::exists(path(runId, true));
}

QString ReportMarks::path(const QString& runId, bool finishing) const
{
    return folder_ + u'/' + runId + (finishing ? "-finishing"_L1 : "-running"_L1);
}

} // namespace quillon
