#include "Listing.h"

#include "Failure.h"
#include "NetworkProbe.h"
#include "Paths.h"
#include "Restic.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace quillon {

using namespace Qt::StringLiterals;

QStringList PlaceInBackup::paths() const
{
    QStringList paths{path, resolvedPath(path)};
    paths.removeDuplicates();
    return paths;
}

namespace {

/// Without dots and doubled slashes, but for those of a URL.
QString cleanName(const QString& name, const Destination& destination)
{
    const bool beginsWithUrl = destination.isNetwork() && name.startsWith(destination.path);
    return beginsWithUrl ? destination.path + QDir::cleanPath(name.mid(destination.path.size()))
                         : QDir::cleanPath(name);
}

} // namespace

BackupFinder::BackupFinder(const std::vector<Destination>& destinations, const Folders& folders)
    : destinations_(destinations)
    , folders_(folders)
{
}

PlaceInBackup BackupFinder::find(const QString& name)
{
    QString absence;
    for (const Destination& destination : destinations_) {
        const QString clean = cleanName(name, destination);
        if (!covers(destination.path, clean))
            continue;
        const ReadableDisk* const disk = this->disk(destination);
        if (disk == nullptr) {
            absence = destination.absence();
            continue;
        }
        const auto found = holdersOf(disk->snapshots, clean);
        if (found.empty())
            continue;
        const qsizetype length = found.front().name().size();
        if (found.size() > 1)
            throw Failure(ExitStatus::NoBackup, u"\"%1\" names more than one backup."_s.arg(clean.left(length)));
        return {disk->repository, found.front(), clean.mid(length)};
    }
    if (!absence.isEmpty())
        throw Failure(ExitStatus::DestinationMissing, absence);
    throw Failure(ExitStatus::NoBackup, u"\"%1\" is not in any backup. See \"tmutil listbackups\"."_s.arg(name));
}

const ReadableDisk* BackupFinder::disk(const Destination& destination)
{
    const auto known = std::ranges::find_if(
        disks_, [&](const ReadableDisk& disk) { return disk.repository.destination() == destination; });
    if (known != disks_.end())
        return &*known;
    auto repository =
        presentOf({destination}, folders_).empty() ? std::nullopt : Repository::open(destination, folders_);
    if (!repository)
        return nullptr;
    auto snapshots = snapshotsIn(*repository, Restic(*repository, folders_, nullptr));
    return &disks_.emplace_back(ReadableDisk{std::move(*repository), std::move(snapshots)});
}

namespace {

/// Reading needs no lock, so it works during a prune and on a disk that cannot be written.
void runLs(const Restic& restic, const Snapshot& snapshot, const QStringList& folders, const FileHandler& onFile)
{
    const QStringList arguments{u"ls"_s, u"--json"_s, u"--no-lock"_s, snapshot.id};
    restic
        .run(arguments + folders,
             [&onFile](const QByteArray& line) {
                 if (const auto file = ListedFile::fromJson(line))
                     onFile(*file);
             })
        .require();
}

QStringList of(const Snapshot& snapshot)
{
    return {u"--snapshot"_s, snapshot.id};
}

/// Links with what they lead to, as many at a time as fit into a command line.
void tellLinks(const Restic& restic, const Snapshot& snapshot, QStringList links, const FileHandler& onFile)
{
    constexpr qsizetype most = 200;
    links.removeDuplicates();
    while (!links.isEmpty()) {
        const QStringList some = links.first(std::min(most, links.size()));
        QStringList patterns;
        std::ranges::transform(some, std::back_inserter(patterns), Restic::literalPattern);
        findFiles(restic, of(snapshot), patterns, [&](const ListedFile& file) {
            if (file.kind == ListedFile::Kind::Link && some.contains(file.path))
                onFile(file);
        });
        links.remove(0, some.size());
    }
}

/// A backup made by hand may have other paths for what it was made of; then what is at its top counts.
void listRoots(const Restic& restic, const Snapshot& snapshot, const FileHandler& onFile)
{
    std::vector<ListedFile> roots;
    std::vector<ListedFile> others;
    // The folders around them: of a folder that is named, restic reads each that lies in it.
    QStringList around{u"/"_s};
    std::ranges::transform(snapshot.sources, std::back_inserter(around),
                           [](const QString& source) { return QFileInfo(source).path(); });
    around.removeDuplicates();
    runLs(restic, snapshot, around, [&](const ListedFile& file) {
        if (snapshot.sources.contains(file.path))
            roots.push_back(file);
        else if (file.parent().isEmpty())
            others.push_back(file);
    });
    std::ranges::for_each(roots.empty() ? others : roots, onFile);
}

} // namespace

bool listFolder(const Restic& restic, const Snapshot& snapshot, const QString& path, const FileHandler& onFile)
{
    if (path.isEmpty()) {
        listRoots(restic, snapshot, onFile);
        return true;
    }
    if (!isTold(path)) // `restic ls` compares paths byte by byte
        return listTree(restic, snapshot, path, [&, depth = path.count(u'/') + 1](const ListedFile& file) {
            if (file.path.count(u'/') <= depth)
                onFile(file);
        });
    bool isThere = false;
    QStringList links;
    runLs(restic, snapshot, {path}, [&](const ListedFile& file) {
        const bool isFolderItself = file.path == path && file.kind == ListedFile::Kind::Folder;
        isThere = isThere || file.path == path;
        if (isFolderItself || (file.path != path && file.parent() != path))
            return;
        if (file.kind == ListedFile::Kind::Link)
            links.append(file.path);
        else
            onFile(file);
    });
    tellLinks(restic, snapshot, links, onFile);
    return isThere;
}

bool listTree(const Restic& restic, const Snapshot& snapshot, const QString& path, const FileHandler& onFile)
{
    const QString told = toldPath(path);
    bool isThere = path.isEmpty();
    findFiles(restic, of(snapshot), {path.isEmpty() ? u"*"_s : Restic::literalPattern(path)},
              [&](const ListedFile& file) {
                  isThere = isThere || file.path == told;
                  if (covers(told, file.path) && (file.path != told || file.kind != ListedFile::Kind::Folder))
                      onFile(file);
              });
    return isThere;
}

std::vector<ListedFile> describe(const Restic& restic, const Snapshot& snapshot, const QStringList& paths)
{
    std::vector<ListedFile> known;
    if (paths.isEmpty())
        return known;
    runLs(restic, snapshot, paths, [&](const ListedFile& file) {
        if (paths.contains(file.path))
            known.push_back(file);
    });
    return known;
}

void findFiles(const Restic& restic, const QStringList& options, const QStringList& patterns, const FileHandler& onFile,
               const FindOutput::BackupHandler& onBackup)
{
    FindOutput output(onFile, onBackup);
    restic.readInPieces()
        .run(QStringList{u"find"_s, u"--json"_s, u"--no-lock"_s} + options + QStringList(u"--"_s) + patterns,
             [&output](const QByteArray& piece) { output.read(piece); })
        .require();
    if (!output.isWhole())
        throw Failure(ExitStatus::Failed, u"A part of the backups is damaged; what lies in it is not listed."_s);
}

} // namespace quillon
