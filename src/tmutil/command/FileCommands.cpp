#include "Commands.h"
#include "Configuration.h"
#include "Failure.h"
#include "History.h"
#include "Listing.h"
#include "NetworkProbe.h"
#include "Paths.h"
#include "Reports.h"
#include "Restic.h"

#include <QDir>

#include <algorithm>
#include <functional>
#include <iterator>
#include <optional>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// A disk that can be read, with its backups, oldest first.
struct ReadableDisk {
    Repository repository;
    std::vector<Snapshot> snapshots;
};

/// The disks present of which some backup can be read; a disk that cannot be is named. Throws Failure where there is no
/// backup.
std::vector<ReadableDisk> readableDisks(const Folders& folders)
{
    const Configuration configuration(folders);
    if (configuration.destinations().empty())
        throw Failure(ExitStatus::NoDestination,
                      u"No backup disk or network place is set. Set one with \"tmutil setdestination\"."_s);
    std::vector<ReadableDisk> disks;
    std::optional<Failure> unreadable;
    bool isAnyThere = false;
    for (const Destination& destination : presentOf(configuration.destinations(), folders)) {
        try {
            auto repository = Repository::open(destination, folders);
            if (!repository)
                continue;
            isAnyThere = true;
            auto snapshots = snapshotsIn(*repository, Restic(*repository, folders, nullptr));
            if (!snapshots.empty())
                disks.push_back({std::move(*repository), std::move(snapshots)});
        } catch (const Failure& failure) {
            unreadable = Failure(failure.status(), u"%1: %2"_s.arg(destination.name, failure.message()));
            printError(unreadable->message());
        }
    }
    if (!isAnyThere)
        throw Failure(ExitStatus::DestinationMissing, u"No backup disk or network place is there."_s);
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

void tellFile(const ListedFile& file, const QString& backup, bool json)
{
    if (!json)
        return print(lineOf(file, backup + file.path));
    QJsonObject object = jsonOf(file);
    object.insert(u"backup"_s, backup);
    printJson(object);
}

/// Calls for the files of one backup after the other.
using FoundHandler = std::function<void(const Snapshot& snapshot, const std::vector<ListedFile>& files)>;

/// What restic finds in the backups of a disk and counts. A backup is known only once all in it has been found.
void findOnDisk(const ReadableDisk& disk, const Folders& folders, const QStringList& options,
                const QStringList& patterns, const std::function<bool(const ListedFile&)>& counts,
                const FoundHandler& onFound)
{
    std::vector<ListedFile> found;
    const auto keep = [&](const ListedFile& file) {
        if (counts(file))
            found.push_back(file);
    };
    findFiles(Restic(disk.repository, folders, nullptr), options, patterns, keep, [&](const QString& id) {
        const auto snapshot = std::ranges::find(disk.snapshots, id, &Snapshot::id);
        if (snapshot != disk.snapshots.end())
            onFound(*snapshot, found);
        found.clear();
    });
}

/// Does it for each disk; one that cannot be read is named. Throws Failure in the end where there was any.
void onEachDisk(const Folders& folders, const std::function<void(const ReadableDisk& disk)>& work)
{
    std::optional<Failure> unreadable;
    for (const ReadableDisk& disk : readableDisks(folders)) {
        try {
            work(disk);
        } catch (const Failure& failure) {
            unreadable =
                Failure(failure.status(), u"%1: %2"_s.arg(disk.repository.destination().name, failure.message()));
            printError(unreadable->message());
        }
    }
    if (unreadable)
        throw Failure(unreadable->status(), u"Not all backups could be searched."_s);
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
    const Configuration configuration(folders);
    BackupFinder finder(configuration.destinations(), folders);
    bool isAnyTold = false;
    const auto list = [&](const PlaceInBackup& place) {
        const Restic restic(place.repository, folders, nullptr);
        return std::ranges::any_of(place.paths(), [&](const QString& path) {
            const qsizetype folder = toldPath(path).size() + 1;
            const auto tell = [&](const ListedFile& file) {
                const bool isBelow = !path.isEmpty() && file.path.size() > folder;
                isAnyTold = true;
                if (line.json)
                    printJson(jsonOf(file));
                else
                    print(lineOf(file, isBelow ? file.path.mid(folder) : file.path));
            };
            return line.recursive ? listTree(restic, place.snapshot, path, tell)
                                  : listFolder(restic, place.snapshot, path, tell);
        });
    };
    const QString name = line.operands.first();
    // Reading the list of all backups takes restic as long as reading a folder, for which somebody may be waiting.
    if (!line.recursive) {
        try {
            const auto place = finder.recall(name, History(folders.state), configuration.sources());
            if (place && list(*place))
                return;
        } catch (const Failure&) {
            if (isAnyTold)
                throw;
        }
    }
    if (!list(finder.find(name)))
        throw Failure(ExitStatus::NoBackup, u"The backup has nothing at that path."_s);
}

void findFiles(const Folders& folders, const CommandLine& line)
{
    std::vector<NamePattern> patterns;
    QStringList forRestic{};
    for (const QString& operand : line.operands) {
        if (operand.contains(u'/'))
            throw Failure(ExitStatus::Usage, u"\"%1\" is no name, but a path."_s.arg(operand));
        forRestic.append(patterns.emplace_back(toldPath(operand)).forRestic());
    }
    const auto counts = [&patterns](const ListedFile& file) {
        return std::ranges::any_of(patterns,
                                   [name = file.name()](const NamePattern& pattern) { return pattern.matches(name); });
    };
    const QStringList options{u"--ignore-case"_s};
    if (line.backup.isEmpty())
        return onEachDisk(folders, [&](const ReadableDisk& disk) {
            findOnDisk(disk, folders, options, forRestic, counts, [&](const Snapshot& snapshot, const auto& files) {
                for (const ListedFile& file : files)
                    tellFile(file, snapshot.name(), line.json);
            });
        });
    const auto destinations = Configuration(folders).destinations();
    BackupFinder finder(destinations, folders);
    const PlaceInBackup place = finder.find(line.backup);
    findFiles(Restic(place.repository, folders, nullptr), options + QStringList{u"--snapshot"_s, place.snapshot.id},
              forRestic, [&](const ListedFile& file) {
                  if (covers(toldPath(place.path), file.path) && counts(file))
                      tellFile(file, place.snapshot.name(), line.json);
              });
}

void versions(const Folders& folders, const CommandLine& line)
{
    const QString path = QDir::cleanPath(line.operands.first());
    if (!QDir::isAbsolutePath(path) || path == "/"_L1)
        throw Failure(ExitStatus::Usage, u"\"%1\" is no absolute path of a file or folder."_s.arg(path));
    QStringList paths{path, resolvedPath(path)};
    paths.removeDuplicates();
    QStringList told;
    QStringList patterns;
    std::ranges::transform(paths, std::back_inserter(told), toldPath);
    std::ranges::transform(paths, std::back_inserter(patterns), Restic::literalPattern);
    std::vector<Version> all;
    const auto tell = [&] {
        for (const Version& version : distinctVersions(all))
            tellFile(version.file, version.backup, line.json);
    };
    try {
        onEachDisk(folders, [&](const ReadableDisk& disk) {
            findOnDisk(
                disk, folders, {}, patterns, [&told](const ListedFile& file) { return told.contains(file.path); },
                [&all](const Snapshot& snapshot, const auto& files) {
                    for (const ListedFile& file : files)
                        all.push_back({snapshot.time, snapshot.name(), file});
                });
        });
    } catch (const Failure&) {
        tell(); // what the others have
        throw;
    }
    if (all.empty())
        throw Failure(ExitStatus::NoBackup, u"No backup has \"%1\"."_s.arg(path));
    tell();
}

} // namespace quillon
