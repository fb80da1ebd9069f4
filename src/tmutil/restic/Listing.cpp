#include "Listing.h"

#include "Failure.h"
#include "History.h"
#include "NetworkProbe.h"
#include "Paths.h"
#include "Restic.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <iterator>
#include <sys/stat.h>
#include <tuple>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

ListedFile::Kind kindOf(const QString& type)
{
    if (type == "file"_L1)
        return ListedFile::Kind::File;
    if (type == "dir"_L1)
        return ListedFile::Kind::Folder;
    return type == "symlink"_L1 ? ListedFile::Kind::Link : ListedFile::Kind::Other;
}

/// restic writes modes as Go has them, where special rights have bits of their own: pkg.go.dev/io/fs#FileMode.
mode_t rightsOf(qint64 mode)
{
    static constexpr std::array specials{std::pair{23, S_ISUID}, std::pair{22, S_ISGID}, std::pair{20, S_ISVTX}};
    auto rights = static_cast<mode_t>(mode & (S_IRWXU | S_IRWXG | S_IRWXO));
    for (const auto& [bit, special] : specials) {
        if ((mode >> bit & 1) != 0)
            rights |= static_cast<mode_t>(special);
    }
    return rights;
}

bool isByte(QChar unit)
{
    return unit.unicode() >= 0xDC80 && unit.unicode() <= 0xDCFF;
}

} // namespace

std::optional<ListedFile> ListedFile::fromJson(const QByteArray& object)
{
    const QJsonObject node = QJsonDocument::fromJson(object).object();
    const QString path = node.value("path"_L1).toString();
    const QString type = node.value("type"_L1).toString();
    if (path.isEmpty() || type.isEmpty())
        return std::nullopt;
    return ListedFile{.path = path,
                      .kind = kindOf(type),
                      .size = node.value("size"_L1).toInteger(),
                      .modified = QDateTime::fromString(node.value("mtime"_L1).toString(), Qt::ISODateWithMs).toUTC(),
                      .mode = rightsOf(node.value("mode"_L1).toInteger()),
                      .owner = static_cast<uid_t>(node.value("uid"_L1).toInteger()),
                      .group = static_cast<gid_t>(node.value("gid"_L1).toInteger()),
                      .target = node.value("linktarget"_L1).toString()};
}

QString toldPath(const QString& path)
{
    QString told = path;
    for (qsizetype at = 0; at < told.size(); ++at) {
        if (isByte(told[at]) && (at == 0 || !told[at - 1].isHighSurrogate()))
            told[at] = QChar::ReplacementCharacter;
    }
    return told;
}

bool isTold(const QString& path)
{
    return !toldPath(path).contains(QChar::ReplacementCharacter);
}

NamePattern::NamePattern(const QString& pattern)
{
    const QString whole = pattern.contains(u'*') || pattern.contains(u'?') ? pattern : u'*' + pattern + u'*';
    QString expression;
    for (const QChar character : whole) {
        const bool isWildcard = character == u'*' || character == u'?';
        expression += character == u'*' ? u".*"_s
                      : isWildcard      ? u"."_s
                                        : QRegularExpression::escape(QString(character));
        // Only of ASCII does every version of restic know the letters that differ in case alone.
        const bool isPlain = character.unicode() < 0x80 && character != u'\\' && character != u'[';
        if (const QChar found = isPlain ? character : u'*'; found != u'*' || !forRestic_.endsWith(found))
            forRestic_ += found;
    }
    expression_ =
        QRegularExpression(QRegularExpression::anchoredPattern(expression),
                           QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption |
                               QRegularExpression::UseUnicodePropertiesOption);
}

std::vector<Version> distinctVersions(std::vector<Version> all)
{
    std::ranges::stable_sort(all, std::greater(), &Version::date);
    const auto isLike = [](const Version& a, const Version& b) {
        const auto content = [](const ListedFile& file) {
            return std::tuple(file.kind, file.size, file.modified, file.target);
        };
        return content(a.file) == content(b.file);
    };
    // Of libstdc++ 12 clang 14 cannot compile std::ranges::unique().
    all.erase(std::unique(all.begin(), all.end(), isLike), all.end());
    return all;
}

FindOutput::FindOutput(FileHandler onFile, BackupHandler onBackup)
    : onFile_(std::move(onFile))
    , onBackup_(std::move(onBackup))
{
}

void FindOutput::read(const QByteArray& piece)
{
    for (const char byte : piece) {
        if (braces_ > 1)
            readInside(byte);
        else
            readOutside(byte);
    }
}

/// Around the objects of files. All that is said of a backup as a whole stands before and behind its list of files.
void FindOutput::readOutside(char byte)
{
    const bool isOfBackup = braces_ == 1 && brackets_ == 1;
    switch (byte) {
    case '{':
        ++braces_;
        (braces_ == 1 ? backup_ : file_) = "{";
        return;
    case '}':
        braces_ = 0;
        onBackup_(QJsonDocument::fromJson(backup_ + '}').object().value("snapshot"_L1).toString());
        return;
    case '[':
        ++brackets_;
        break;
    case ']':
        --brackets_;
        break;
    default:
        if (!isOfBackup && std::strchr(", \n", byte) == nullptr)
            isWhole_ = false;
        if (!isOfBackup)
            return;
    }
    if (braces_ == 1)
        backup_ += byte;
}

void FindOutput::readInside(char byte)
{
    file_ += byte;
    if (isText_) {
        isText_ = isEscaped_ || byte != '"';
        isEscaped_ = !isEscaped_ && byte == '\\';
        return;
    }
    isText_ = byte == '"';
    if (byte == '{')
        ++braces_;
    else if (byte == '}' && --braces_ == 1) {
        if (const auto file = ListedFile::fromJson(file_))
            onFile_(*file);
    }
}

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
        Disk& disk = this->disk(destination);
        if (!disk.repository) {
            absence = destination.absence();
            continue;
        }
        if (!disk.snapshots)
            disk.snapshots = snapshotsIn(*disk.repository, Restic(*disk.repository, folders_, nullptr));
        const auto found = holdersOf(*disk.snapshots, clean);
        if (found.empty())
            continue;
        const qsizetype length = found.front().name().size();
        if (found.size() > 1)
            throw Failure(ExitStatus::NoBackup, u"\"%1\" names more than one backup."_s.arg(clean.left(length)));
        return {*disk.repository, found.front(), clean.mid(length)};
    }
    if (!absence.isEmpty())
        throw Failure(ExitStatus::DestinationMissing, absence);
    throw Failure(ExitStatus::NoBackup, u"\"%1\" is not in any backup. See \"tmutil listbackups\"."_s.arg(name));
}

std::optional<PlaceInBackup> BackupFinder::recall(const QString& name, const History& history,
                                                  const QStringList& likelySources)
{
    for (const Destination& destination : destinations_) {
        const QString clean = cleanName(name, destination);
        if (!covers(destination.path, clean))
            continue;
        QVariantList found = history.backups(destination.id);
        found.removeIf(
            [&clean](const QVariant& one) { return !covers(one.toMap().value(u"Name"_s).toString(), clean); });
        const Disk* const disk = found.size() == 1 ? &this->disk(destination) : nullptr;
        if (disk == nullptr || !disk->repository)
            continue;
        const QVariantMap backup = found.first().toMap();
        Snapshot snapshot;
        snapshot.id = backup.value(u"Snapshot"_s).toString();
        snapshot.sources = likelySources;
        return PlaceInBackup{*disk->repository, std::move(snapshot),
                             clean.mid(backup.value(u"Name"_s).toString().size())};
    }
    return std::nullopt;
}

BackupFinder::Disk& BackupFinder::disk(const Destination& destination)
{
    const auto known = std::ranges::find(disks_, destination, &Disk::destination);
    if (known != disks_.end())
        return *known;
    return disks_.emplace_back(Disk{.destination = destination,
                                    .repository = presentOf({destination}, folders_).empty()
                                                      ? std::nullopt
                                                      : Repository::open(destination, folders_),
                                    .snapshots = std::nullopt});
}

namespace {

/// Takes the folders that a backup was made of.
using SourcesHandler = std::function<void(const QStringList& sources)>;

/// What restic says of the backup itself stands ahead of the files, and is all that tells that there is one: restic
/// only complains of an identifier that it does not find. Reading needs no lock, so it works during a prune and on a
/// disk that cannot be written.
void runLs(const Restic& restic, const Snapshot& snapshot, const QStringList& folders, const FileHandler& onFile,
           const SourcesHandler& onSources = {})
{
    const QStringList arguments{u"ls"_s, u"--json"_s, u"--no-lock"_s, snapshot.id};
    bool isThere = false;
    const auto outcome = restic.run(arguments + folders, [&](const QByteArray& line) {
        if (const auto file = ListedFile::fromJson(line))
            return onFile(*file);
        const auto sources = sourcesIn(line);
        isThere = isThere || sources;
        if (sources && onSources)
            onSources(*sources);
    });
    outcome.require();
    if (!isThere)
        throw Failure(ExitStatus::NoBackup, u"The backup is no longer there."_s);
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

/// The folders around them: of a folder that is named, restic reads each that lies in it.
QStringList foldersAround(const QStringList& sources)
{
    QStringList around{u"/"_s};
    std::ranges::transform(sources, std::back_inserter(around),
                           [](const QString& source) { return QFileInfo(source).path(); });
    around.removeDuplicates();
    return around;
}

/// A backup made by hand may have other paths for what it was made of; then what is at its top counts.
void listRoots(const Restic& restic, const Snapshot& snapshot, const FileHandler& onFile)
{
    std::vector<ListedFile> roots;
    std::vector<ListedFile> others;
    QStringList sources = snapshot.sources;
    const auto take = [&](const ListedFile& file) {
        if (sources.contains(file.path))
            roots.push_back(file);
        else if (file.parent().isEmpty())
            others.push_back(file);
    };
    QStringList asked;
    const auto isAsked = [&asked](const QString& folder) { return asked.contains(folder); };
    while (!std::ranges::all_of(foldersAround(sources), isAsked)) { // at most twice: what restic says of them is true
        asked = foldersAround(sources);
        roots.clear();
        others.clear();
        runLs(restic, snapshot, asked, take, [&sources](const QStringList& recorded) { sources = recorded; });
    }
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
