#include "Commands.h"

#include "CallerChannel.h"
#include "Configuration.h"
#include "DestinationChoice.h"
#include "DestinationReport.h"
#include "Failure.h"
#include "Folders.h"
#include "History.h"
#include "Paths.h"
#include "PropertyList.h"
#include "Restic.h"
#include "Restore.h"
#include "Snapshot.h"
#include "SourceSet.h"
#include "StatusReport.h"
#include "Worker.h"
#include "WorkerProcess.h"

#include <QFileInfo>

#include <algorithm>
#include <cstdio>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

void print(const QByteArray& text)
{
    const auto size = static_cast<size_t>(text.size());
    if (std::fwrite(text.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0)
        throw Failure(ExitStatus::CannotWrite, u"Standard output cannot be written to."_s);
}

void print(const QStringList& lines)
{
    for (const QString& line : lines)
        print(line.toUtf8() + '\n');
}

void status(const Folders& folders)
{
    const StatusReport report(folders.state);
    print(report.text());
    report.markReported();
}

void destinationInfo(const Folders& folders, bool xml)
{
    const Configuration configuration(folders);
    const History history(folders.state);
    if (!history.isReadable())
        throw Failure(ExitStatus::StateDamaged, history.lastFailure().value(u"Description"_s).toString());
    print(xml ? destinationXml(configuration.destinations(), history)
              : destinationText(configuration.destinations(), history));
}

void removeDestination(const Folders& folders, const QString& id)
{
    const auto run = RunState::current(folders.state);
    if (run && run->destinationId.compare(id, Qt::CaseInsensitive) == 0)
        throw Failure(ExitStatus::AlreadyRunning, u"A backup to this disk is running. Stop it first."_s);
    Configuration(folders).removeDestination(id);
}

/// For people a path a line; for programs, since a path may hold line breaks, an XML property list.
void printPaths(const QStringList& paths, bool xml)
{
    if (!xml)
        return print(paths);
    const auto list = propertylist::toXml(QVariantList(paths.begin(), paths.end()));
    if (!list)
        throw Failure(ExitStatus::Configuration, u"A path cannot be written as XML."_s);
    print(*list);
}

void isExcluded(const Folders& folders, const QStringList& paths)
{
    const SourceSet set = SourceSet::of(Configuration(folders), folders);
    QStringList lines;
    for (const QString& path : paths) {
        const QString own = ownPath(path);
        if (const QFileInfo file(own); !file.exists() && !file.isSymLink())
            throw Failure(ExitStatus::NoInput, u"\"%1\" does not exist."_s.arg(path));
        lines.append((set.contains(own) ? "[Included]    "_L1 : "[Excluded]    "_L1) + own);
    }
    print(lines);
}

void startBackup(const Folders& folders, const CommandLine& line)
{
    const Configuration configuration(folders);
    const History history(folders.state);
    if (RunState::current(folders.state))
        throw Failure(ExitStatus::AlreadyRunning, u"A backup is already running."_s);
    const auto& destinations = configuration.destinations();
    const Destination destination = !line.destination.isEmpty() ? namedDestination(destinations, line.destination)
                                    : line.rotate               ? rotatedDestination(destinations, history)
                                                                : usualDestination(destinations, history);
    Restic::executable();
    if (const QString remark = startWorker(destination.id, line.block); !remark.isEmpty())
        print(QStringList(remark));
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

/// The backups on all disks present, oldest first.
std::vector<Snapshot> snapshots(const Folders& folders)
{
    const Configuration configuration(folders);
    if (configuration.destinations().empty())
        throw Failure(ExitStatus::NoDestination, u"No backup disk is set. Set one with \"tmutil setdestination\"."_s);
    std::vector<Snapshot> all;
    for (const Destination& destination : configuration.destinations()) {
        if (!destination.isPresent())
            continue;
        const auto some = snapshotsOn(destination, Restic(destination, folders, nullptr));
        all.insert(all.end(), some.begin(), some.end());
    }
    if (all.empty())
        throw Failure(ExitStatus::NoBackup, u"There are no backups."_s);
    std::ranges::stable_sort(all, {}, &Snapshot::time);
    return all;
}

void listBackups(const Folders& folders)
{
    QStringList names;
    for (const Snapshot& snapshot : snapshots(folders))
        names.append(snapshot.name());
    print(names);
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
        Configuration(folders).setDestination(line.operands.first(), line.append);
        return;
    case Command::RemoveDestination:
        return removeDestination(folders, line.operands.first());
    case Command::StartBackup:
        return startBackup(folders, line);
    case Command::StopBackup:
        return stopWorker(folders.state);
    case Command::LatestBackup:
        return print(QStringList(snapshots(folders).back().name()));
    case Command::ListBackups:
        return listBackups(folders);
    case Command::Restore:
        return restore(line.operands[0], line.operands[1], Configuration(folders).destinations(), folders);
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
        return printPaths(Configuration(folders).exclusions(), line.xml);
    case Command::IsExcluded:
        return isExcluded(folders, line.operands);
    case Command::RunBackup:
        return runBackup(folders, line.destination);
    case Command::Help:
        return print(CommandLine::usage().toUtf8());
    }
}

} // namespace quillon
