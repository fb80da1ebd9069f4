#include "Commands.h"

#include "Configuration.h"
#include "Destination.h"
#include "Failure.h"
#include "History.h"
#include "NetworkProbe.h"
#include "Paths.h"
#include "Reports.h"
#include "RepositoryFolder.h"
#include "Restic.h"
#include "ResticOutput.h"
#include "Retention.h"
#include "RunState.h"
#include "Verification.h"
#include "Worker.h"

#include <QStorageInfo>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

void status(const Folders& folders)
{
    const StatusReport report(folders);
    print(report.text());
    report.markReported();
}

void destinationInfo(const Folders& folders, bool xml)
{
    const Configuration configuration(folders);
    const History history(folders.state);
    print(xml ? destinationXml(configuration, history, folders)
              : destinationText(configuration.destinations(), history, folders));
}

/// Under the worker's lock, so that no backup to that disk begins meanwhile.
void removeDestination(const Folders& folders, const QString& id)
{
    needPrivateFolder(folders.state);
    ProcessLock lock(RunState::lockPath(folders.state));
    if (!lock.tryLock()) {
        const auto run = RunState::current(folders.state);
        if (!run || run->destinationId.compare(id, Qt::CaseInsensitive) == 0)
            throw Failure(ExitStatus::AlreadyRunning, u"A backup to it is running, or about to. Stop it first."_s);
    }
    Configuration(folders).removeDestination(id);
    NetworkAccess::removeSecrets(folders, id.toUpper());
}

/// The disk that was named, or else the one that is rotated to or the usual one. It is there.
Destination chosenDestination(const Folders& folders, const CommandLine& line)
{
    const Configuration configuration(folders);
    const auto& destinations = configuration.destinations();
    const auto present = [&folders](const std::vector<Destination>& some) { return presentOf(some, folders); };
    if (line.destination.isEmpty()) {
        const History history(folders.state);
        return line.rotate ? rotatedDestination(destinations, history, present)
                           : usualDestination(destinations, history, present);
    }
    Destination named = namedDestination(destinations, line.destination);
    if (present({named}).empty())
        throw Failure(ExitStatus::DestinationMissing, named.absence());
    return named;
}

/// For people a path a line; for programs, since a path may hold line breaks, an XML property list.
void printPaths(const QStringList& paths, bool xml)
{
    if (!xml)
        return print(paths);
    printXml(QVariantList(paths.begin(), paths.end()));
}

void startBackup(const Folders& folders, const CommandLine& line)
{
    if (RunState::current(folders.state))
        throw Failure(ExitStatus::AlreadyRunning, u"A backup is already running."_s);
    const Destination destination = chosenDestination(folders, line);
    Restic::executable();
    if (const QString remark = startWorker(destination.id, line.block); !remark.isEmpty())
        printForPeople(QStringList(remark));
}

Repository openRepository(const Destination& destination, const Folders& folders)
{
    auto repository = Repository::open(destination, folders);
    if (!repository)
        throw Failure(ExitStatus::DestinationMissing, destination.absence());
    if (repository->isNew())
        throw Failure(ExitStatus::NoBackup, u"There are no backups."_s);
    repository->requireConfig();
    return std::move(*repository);
}

void recoveryKey(const Folders& folders, const CommandLine& line)
{
    const Destination destination = chosenDestination(folders, line);
    if (line.keptKey.isEmpty())
        renewRecoveryKey(folders, destination, line.xml);
    else
        keepRecoveryKey(folders, destination, line.keptKey);
}

void verify(const Folders& folders, const CommandLine& line)
{
    if (RunState::current(folders.state))
        throw Failure(ExitStatus::AlreadyRunning, u"A backup is running."_s);
    const Repository repository = openRepository(chosenDestination(folders, line), folders);
    needPrivateFolder(folders.state);
    const StopRequest stop;
    if (const auto damage = Verification::runAndRemember(repository, folders, stop, line.all))
        throw Failure(ExitStatus::Damaged, damage->description());
    print(QStringList(u"No damage was found."_s));
}

/// All of those named, or none. A name given once stands for one backup, the oldest of that name.
void deleteBackups(const Folders& folders, const QStringList& names)
{
    needPrivateFolder(folders.state);
    ProcessLock lock(RunState::lockPath(folders.state)); // no backup is to begin meanwhile
    if (!lock.tryLock())
        throw Failure(ExitStatus::AlreadyRunning, u"A backup is running."_s);
    const Configuration configuration(folders);
    const StopRequest stop;
    QStringList left = names;
    std::vector<std::pair<Repository, std::vector<Snapshot>>> found;
    for (const Destination& destination : presentOf(configuration.destinations(), folders)) {
        auto repository = Repository::open(destination, folders);
        if (!repository)
            continue;
        auto some = takeNamed(snapshotsIn(*repository, Restic(*repository, folders, &stop)), left);
        if (some.empty())
            continue;
        repository->requireWritable();
        found.emplace_back(std::move(*repository), std::move(some));
    }
    if (!left.isEmpty())
        throw Failure(ExitStatus::NoBackup, u"\"%1\" is no backup. See \"tmutil listbackups\"."_s.arg(left.first()));
    Verification::stopRunning(folders.state);
    History history(folders.state);
    for (const auto& [repository, snapshots] : found) {
        const Restic restic(repository, folders, &stop);
        removeReserve(repository); // a full disk could take not even a lock
        forget(snapshots, restic);
        history.forgetBackups(repository.destination().id, snapshots);
        history.save();
        restic.runUnlocking({u"prune"_s}).require();
        keepReserve(repository);
    }
}

/// The run that made that backup; without a name the latest that made one.
RunLog runOf(const Folders& folders, const QStringList& names)
{
    const auto runs = RunLog::all(folders.state);
    const auto found = std::find_if(runs.rbegin(), runs.rend(), [&names](const RunLog& run) {
        return names.isEmpty() ? !run.backup.isEmpty() : run.backup == names.first();
    });
    if (found == runs.rend())
        throw Failure(ExitStatus::NoBackup, u"Nothing is known of such a backup. See \"tmutil log\"."_s);
    return *found;
}

void log(const Folders& folders, const QStringList& names)
{
    if (!names.isEmpty())
        return printForPeople(runOf(folders, names).text());
    QStringList lines;
    for (const RunLog& run : RunLog::all(folders.state))
        lines.append(run.line());
    printForPeople(lines);
}

void retention(const Folders& folders, const KeepRules& rules)
{
    Configuration configuration(folders);
    if (rules.hourly >= 0 || rules.daily >= 0 || rules.weekly >= 0)
        configuration.setKeepRules(rules);
    const KeepRules now = configuration.keepRules();
    print(QStringList(
        u"%1 hourly, %2 daily and %3 weekly backups are kept."_s.arg(now.hourly).arg(now.daily).arg(now.weekly)));
}

/// For those who show it beside a disk: it takes no look into the backups.
void diskUsageXml(const Folders& folders)
{
    const Configuration configuration(folders);
    QVariantList disks;
    for (const Destination& destination : configuration.destinations()) {
        if (!destination.isNetwork() && destination.isPresent())
            disks.append(QVariantMap{{u"ID"_s, destination.id}, {u"Bytes"_s, sizeOfFolder(destination.repository())}});
    }
    printXml(disks);
}

QString roomTaken(const Destination& destination)
{
    if (destination.isNetwork())
        return u"%1: the room that the backups take there is not known."_s.arg(destination.path);
    const QStorageInfo room(destination.path);
    return u"%1: the backups take %2 bytes, %3 of %4 bytes are free."_s.arg(destination.path)
        .arg(sizeOfFolder(destination.repository()))
        .arg(room.bytesAvailable())
        .arg(room.bytesTotal());
}

/// What a backup has added is known of the runs that are logged; most of it is shared with others.
void diskUsage(const Folders& folders)
{
    const Configuration configuration(folders);
    const auto runs = RunLog::all(folders.state);
    for (const Destination& destination : presentOf(configuration.destinations(), folders)) {
        const auto repository = Repository::open(destination, folders);
        if (!repository)
            continue;
        QStringList lines{roomTaken(destination)};
        for (const Snapshot& snapshot : snapshotsIn(*repository, Restic(*repository, folders, nullptr))) {
            const auto run = std::ranges::find(runs, snapshot.name(), &RunLog::backup);
            lines.append(
                snapshot.name() +
                (run == runs.end() ? QString() : u"  %1 files, %2 bytes added"_s.arg(run->files).arg(run->bytesAdded)));
        }
        printForPeople(lines);
    }
}

void runBackup(const Folders& folders, const QString& destinationId)
{
    try {
        Worker(folders).run(destinationId);
    } catch (const Failure& failure) {
        CallerChannel().tellEnd(failure.status(), failure.message());
        throw;
    }
}

} // namespace

void runCommand(const CommandLine& line)
{
    const Folders folders = Folders::ofUser();
    switch (line.command) {
    case Command::Status:
        return status(folders);
    case Command::DestinationInfo:
        return destinationInfo(folders, line.xml);
    case Command::SetDestination:
        return setDestination(folders, line);
    case Command::RemoveDestination:
        return removeDestination(folders, line.operands.first());
    case Command::StartBackup:
        return startBackup(folders, line);
    case Command::StopBackup:
        return stopWorker(folders.state);
    case Command::LatestBackup:
        return latestBackup(folders);
    case Command::ListBackups:
        return listBackups(folders, line.xml);
    case Command::ListFiles:
        return listFiles(folders, line);
    case Command::FindFiles:
        return findFiles(folders, line);
    case Command::Versions:
        return versions(folders, line);
    case Command::Restore:
        return restore(folders, line);
    case Command::AddSource:
        return Configuration(folders).addSource(line.operands.first());
    case Command::RemoveSource:
        return Configuration(folders).removeSource(line.operands.first());
    case Command::ListSources:
        return printPaths(Configuration(folders).sources(), line.xml);
    case Command::AddExclusion:
        return Configuration(folders).addExclusions(line.operands);
    case Command::RemoveExclusion:
        return Configuration(folders).removeExclusions(line.operands);
    case Command::ListExclusions:
        if (line.append)
            return listAllExclusions(folders);
        return listExclusions(folders, line.xml);
    case Command::IsExcluded:
        return isExcluded(folders, line.operands);
    case Command::Verify:
        return verify(folders, line);
    case Command::RecoveryKey:
        return recoveryKey(folders, line);
    case Command::Adopt:
        return adopt(folders, line);
    case Command::DeleteBackup:
        return deleteBackups(folders, line.operands);
    case Command::Log:
        return log(folders, line.operands);
    case Command::ListUnread:
        return printPaths(runOf(folders, line.operands).unread, line.xml);
    case Command::Retention:
        return retention(folders, line.keep);
    case Command::ExcludeName:
        return excludeNames(folders, line.operands, line.trial, line.xml);
    case Command::IncludeName:
        return Configuration(folders).removeExcludedNames(line.operands);
    case Command::ExcludeLarger:
        return excludeLarger(folders, line.operands.first(), line.trial, line.xml);
    case Command::DiskUsage:
        return line.xml ? diskUsageXml(folders) : diskUsage(folders);
    case Command::RunBackup:
        return runBackup(folders, line.destination);
    case Command::Help:
        return print(CommandLine::usage().toUtf8());
    }
}

} // namespace quillon
