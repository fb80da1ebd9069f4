#include "Commands.h"
#include "Configuration.h"
#include "Failure.h"
#include "History.h"
#include "Listing.h"
#include "Output.h"
#include "Restic.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// The disks present of which some backup can be read; a disk that cannot be is named. Throws Failure where there is no
/// backup.
std::vector<ReadableDisk> readableDisks(const Folders& folders)
{
    const Configuration configuration(folders);
    if (configuration.destinations().empty())
        throw Failure(ExitStatus::NoDestination, u"No backup disk is set. Set one with \"tmutil setdestination\"."_s);
    std::vector<ReadableDisk> disks;
    std::optional<Failure> unreadable;
    bool isAnyThere = false;
    for (const Destination& destination : configuration.destinations()) {
        auto repository = RepositoryFolder::open(destination);
        if (!repository)
            continue;
        isAnyThere = true;
        try {
            auto snapshots = snapshotsIn(*repository, Restic(*repository, folders, nullptr));
            if (!snapshots.empty())
                disks.push_back({std::move(*repository), std::move(snapshots)});
        } catch (const Failure& failure) {
            unreadable = Failure(failure.status(), u"%1: %2"_s.arg(destination.name, failure.message()));
            printError(unreadable->message());
        }
    }
    if (!isAnyThere)
        throw Failure(ExitStatus::DestinationMissing, u"No backup disk is there."_s);
    if (disks.empty())
        throw unreadable.value_or(Failure(ExitStatus::NoBackup, u"There are no backups."_s));
    return disks;
}

/// A backup, and the identifier of the disk that it is on.
using OnDisk = std::pair<Snapshot, QString>;

std::vector<OnDisk> allBackups(const Folders& folders)
{
    std::vector<OnDisk> all;
    for (const ReadableDisk& disk : readableDisks(folders)) {
        for (const Snapshot& snapshot : disk.snapshots)
            all.emplace_back(snapshot, disk.repository.destination().id);
    }
    std::ranges::stable_sort(all, {}, [](const OnDisk& backup) { return backup.first.time; });
    return all;
}

} // namespace

void latestBackup(const Folders& folders)
{
    std::vector<Snapshot> all;
    std::ranges::transform(allBackups(folders), std::back_inserter(all), &OnDisk::first);
    print(QStringList(latestOf(all, QDateTime::currentDateTimeUtc())->name()));
}

void listBackups(const Folders& folders, bool xml)
{
    const History history(folders.state);
    QStringList names;
    QVariantList entries;
    for (const auto& [snapshot, destination] : allBackups(folders)) {
        const QString name = snapshot.name();
        const auto damage = history.damage(destination);
        names.append(name);
        entries.append(QVariantMap{{u"Name"_s, name},
                                   {u"Date"_s, snapshot.time},
                                   {u"DestinationID"_s, destination},
                                   {u"Computer"_s, snapshot.host},
                                   {u"Complete"_s, snapshot.complete},
                                   {u"Damaged"_s, damage && damage->backups.contains(name)}});
    }
    if (xml)
        printXml(entries);
    else
        print(names);
}

void listFiles(const Folders& folders, const CommandLine& line)
{
    const auto destinations = Configuration(folders).destinations();
    BackupFinder finder(destinations, folders);
    const PlaceInBackup place = finder.find(line.operands.first());
    const Restic restic(place.repository, folders, nullptr);
    for (const QString& path : place.paths()) {
        const qsizetype folder = toldPath(path).size() + 1;
        const auto tell = [&](const ListedFile& file) {
            const bool isBelow = !path.isEmpty() && file.path.size() > folder;
            if (line.json)
                printJson(jsonOf(file));
            else
                print(lineOf(file, isBelow ? file.path.mid(folder) : file.path));
        };
        if (line.recursive ? listTree(restic, place.snapshot, path, tell)
                           : listFolder(restic, place.snapshot, path, tell))
            return;
    }
    throw Failure(ExitStatus::NoBackup, u"The backup has nothing at that path."_s);
}

} // namespace quillon
