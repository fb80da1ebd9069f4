#include "Commands.h"

#include "CallerChannel.h"
#include "Configuration.h"
#include "DestinationChoice.h"
#include "DestinationReport.h"
#include "Failure.h"
#include "Folders.h"
#include "History.h"
#include "Restic.h"
#include "Restore.h"
#include "Snapshot.h"
#include "StatusReport.h"
#include "Worker.h"
#include "WorkerProcess.h"

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
    const QString last = history.lastDestination();
    print(xml ? destinationXml(configuration.destinations(), last)
              : destinationText(configuration.destinations(), last));
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
    case Command::ListSources:
        return print(Configuration(folders).sources());
    case Command::RunBackup:
        return runBackup(folders, line.destination);
    case Command::Help:
        return print(CommandLine::usage().toUtf8());
    }
}

} // namespace quillon
