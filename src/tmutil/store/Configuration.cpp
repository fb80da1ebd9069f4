#include "Configuration.h"

#include "Destination.h"
#include "Failure.h"
#include "Paths.h"
#include "PropertyList.h"
#include "RepositoryFolder.h"
#include "RunState.h"

#include <QDir>
#include <QFileInfo>
#include <QUuid>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr auto destinationsKey = "Destinations"_L1;
constexpr auto sourcesKey = "Sources"_L1;
constexpr auto namesKey = "ExcludedNames"_L1;
constexpr auto largestKey = "LargestFile"_L1;
constexpr auto keepKey = "Keep"_L1;
constexpr auto exclusionsKey = "Exclusions"_L1;

void requireStorable(const QString& path)
{
    if (!propertylist::toXml(path))
        throw Failure(ExitStatus::NoInput, u"\"%1\" has characters that a configuration cannot hold."_s.arg(path));
}

/// The folder's own path, free of links and of dots.
QString existingFolder(const QString& path)
{
    QString canonical = QFileInfo(path).canonicalFilePath();
    if (canonical.isEmpty())
        throw Failure(ExitStatus::NoInput, u"\"%1\" does not exist."_s.arg(path));
    if (!QFileInfo(canonical).isDir())
        throw Failure(ExitStatus::NoInput, u"\"%1\" is not a folder."_s.arg(path));
    requireStorable(canonical);
    return canonical;
}

/// The path of a file, folder or link itself, which is what a backup meets on its way.
QString existingPath(const QString& path)
{
    const QFileInfo file(absolutePath(path));
    if (!file.exists() && !file.isSymLink())
        throw Failure(ExitStatus::NoInput, u"\"%1\" does not exist."_s.arg(path));
    QString own = ownPath(path);
    requireStorable(own);
    return own;
}

QString volumeName(const QString& path)
{
    const QString last = QFileInfo(path).fileName();
    return last.isEmpty() ? path : last;
}

Destination destinationFrom(const QVariantMap& entry)
{
    return {entry.value(u"ID"_s).toString(), entry.value(u"Name"_s).toString(), entry.value(u"Path"_s).toString(),
            entry.value(u"Repository"_s).toBool()};
}

QVariantMap toDictionary(const Destination& destination)
{
    QVariantMap entry{{u"ID"_s, destination.id}, {u"Name"_s, destination.name}, {u"Path"_s, destination.path}};
    if (destination.bare)
        entry.insert(u"Repository"_s, qlonglong{1});
    return entry;
}

} // namespace

Configuration::Configuration(const Folders& folders, IfLost ifLost)
    : folders_(folders)
    , ifLost_(ifLost)
{
    read();
}

QStringList Configuration::sources() const
{
    const QStringList named = contents_.value(sourcesKey).toStringList();
    return named.isEmpty() ? QStringList(folders_.home) : named;
}

QString Configuration::sourceOnDisk(const QString& path, const MountTable& mounts) const
{
    for (const QString& source : sources()) {
        // The others were free of links when they were added.
        if (mounts.haveOneFileSystem(source == folders_.home ? resolvedPath(source) : source, path))
            return source;
    }
    return {};
}

Destination Configuration::setDestination(const QString& path, bool append, const Opens& opens)
{
    const QString folder = existingFolder(path);
    Destination destination;
    change([&] {
        destination = destinationAt(folder, opens);
        RepositoryFolder::make(destination);
        const KeyStore keys(folders_.configuration);
        const auto contents = RepositoryFolder::contents(destination);
        // A new key would open nothing, and be taken for the right one.
        if (!keys.contains(destination.id) && contents != RepositoryFolder::Contents::Empty)
            throw Failure(
                ExitStatus::WrongKey,
                u"The key of the backups on this disk, \"%1\", is missing. Put it back, or take the disk up with "
                "its recovery key by \"tmutil adopt\"."_s.arg(keys.path(destination.id)));
        keys.ensure(destination.id);
        if (!append)
            destinations_.clear();
        put(destination);
    });
    return destination;
}

void Configuration::takeUp(const Destination& destination, bool append)
{
    requireStorable(destination.path);
    change([&] {
        if (!append)
            destinations_.clear();
        put(destination);
    });
}

/// A disk is known by its identifier wherever it is mounted.
void Configuration::put(const Destination& destination)
{
    const auto known = std::ranges::find(destinations_, destination.id, &Destination::id);
    if (known == destinations_.end())
        return destinations_.push_back(destination);
    if (known->path != destination.path && known->isPresent())
        throw Failure(
            ExitStatus::NoInput,
            u"The backups at \"%1\" are a copy of those at \"%2\", which are set already. Of two copies one "
            "can be used: remove the other with \"tmutil removedestination\"."_s.arg(destination.path, known->path));
    *known = destination;
}

void Configuration::removeDestination(const QString& id)
{
    change([&] {
        const auto removed = std::erase_if(destinations_, [&id](const Destination& destination) {
            return destination.id.compare(id, Qt::CaseInsensitive) == 0;
        });
        if (removed == 0)
            throw Failure(ExitStatus::UnknownDestination,
                          u"No backup disk or network place has the identifier \"%1\"."_s.arg(id));
    });
}

void Configuration::addSource(const QString& path)
{
    const QString folder = existingFolder(path);
    change([&] {
        const QStringList excluded = exclusions();
        const auto cover = std::ranges::find_if(excluded, [&](const QString& one) { return covers(one, folder); });
        if (cover != excluded.end())
            throw Failure(ExitStatus::LeftOut, u"\"%1\" is left out of backups."_s.arg(*cover));
        QStringList named = contents_.value(sourcesKey).toStringList();
        if (!named.contains(folder))
            setPaths(sourcesKey, named << folder);
    });
}

void Configuration::removeSource(const QString& path)
{
    change([&] {
        QStringList named = contents_.value(sourcesKey).toStringList();
        if (named.removeAll(absolutePath(path)) + named.removeAll(QFileInfo(path).canonicalFilePath()) == 0)
            throw Failure(ExitStatus::NotListed,
                          named.isEmpty() ? u"No folder has been added; the home folder is backed up until one is."_s
                                          : u"\"%1\" is none of the folders to back up."_s.arg(path));
        setPaths(sourcesKey, named);
    });
}

KeepRules Configuration::keepRules() const
{
    const QVariantMap entry = contents_.value(keepKey).toMap();
    const auto number = [&entry](const QString& key, int usual) {
        return entry.contains(key) ? static_cast<int>(entry.value(key).toLongLong()) : usual;
    };
    const KeepRules usual;
    return {std::max(number(u"Hourly"_s, usual.hourly), 1), number(u"Daily"_s, usual.daily),
            number(u"Weekly"_s, usual.weekly)};
}

void Configuration::setKeepRules(const KeepRules& rules)
{
    change([&] {
        KeepRules now = keepRules();
        for (int KeepRules::*const rule : {&KeepRules::hourly, &KeepRules::daily, &KeepRules::weekly}) {
            if (rules.*rule >= 0)
                now.*rule = rules.*rule;
        }
        contents_.insert(keepKey, QVariantMap{{u"Hourly"_s, qlonglong{now.hourly}},
                                              {u"Daily"_s, qlonglong{now.daily}},
                                              {u"Weekly"_s, qlonglong{now.weekly}}});
    });
}

QStringList Configuration::exclusions() const
{
    return contents_.value(exclusionsKey).toStringList();
}

void Configuration::addExclusions(const QStringList& paths)
{
    change([&] {
        QStringList all = exclusions();
        for (const QString& path : paths) {
            const QString own = existingPath(path);
            const QStringList read = sources();
            if (std::ranges::any_of(read, [&own](const QString& source) { return covers(own, source); }))
                throw Failure(ExitStatus::LeftOut,
                              u"\"%1\" is to be backed up, or a folder in it is. Remove that first."_s.arg(path));
            if (!all.contains(own))
                all.append(own);
        }
        setPaths(exclusionsKey, all);
    });
}

void Configuration::removeExclusions(const QStringList& paths)
{
    change([&] {
        QStringList left = exclusions();
        for (const QString& path : paths) {
            if (left.removeAll(absolutePath(path)) + left.removeAll(ownPath(path)) == 0)
                throw Failure(ExitStatus::NotListed, u"\"%1\" is not left out by itself."_s.arg(path));
        }
        setPaths(exclusionsKey, left);
    });
}

QStringList Configuration::excludedNames() const
{
    return contents_.value(namesKey).toStringList();
}

qlonglong Configuration::largestFile() const
{
    return contents_.value(largestKey).toLongLong();
}

void Configuration::requireNames(const QStringList& patterns)
{
    for (const QString& pattern : patterns) {
        requireStorable(pattern);
        // What else restic takes for a pattern is not what people mean by it.
        if (pattern.contains(u'/') || pattern.contains(u'[') || pattern.contains(u'\\') || pattern == "."_L1 ||
            pattern == ".."_L1)
            throw Failure(
                ExitStatus::NoInput,
                u"\"%1\" is no name: of what restic takes for a pattern only * and ? are known."_s.arg(pattern));
    }
}

void Configuration::addExcludedNames(const QStringList& patterns)
{
    requireNames(patterns);
    change([&] {
        QStringList all = excludedNames();
        for (const QString& pattern : patterns) {
            if (!all.contains(pattern))
                all.append(pattern);
        }
        setPaths(namesKey, all);
    });
}

void Configuration::removeExcludedNames(const QStringList& patterns)
{
    change([&] {
        QStringList left = excludedNames();
        for (const QString& pattern : patterns) {
            if (left.removeAll(pattern) == 0)
                throw Failure(ExitStatus::NotListed, u"The name \"%1\" is not left out."_s.arg(pattern));
        }
        setPaths(namesKey, left);
    });
}

void Configuration::setLargestFile(qlonglong bytes)
{
    change([&] { contents_.insert(largestKey, bytes); });
}

/// On the newest contents, under the lock. What throws changes nothing.
void Configuration::change(const std::function<void()>& edit)
{
    needPrivateFolder(folders_.configuration);
    ProcessLock lock(file() + ".lock"_L1);
    lock.lock();
    read();
    edit();
    write();
}

void Configuration::setPaths(const QString& key, const QStringList& paths)
{
    contents_.insert(key, QVariantList(paths.begin(), paths.end()));
}

void Configuration::read()
{
    const auto kept = readKeptPropertyList(file());
    if (!kept.contents && ifLost_ == IfLost::Refuse)
        throw Failure(
            ExitStatus::Configuration,
            u"The configuration \"%1\" is damaged, and so is the version before it. Set what you back up to again with "
            "\"tmutil setdestination\"; the damaged file is kept."_s.arg(file()));
    complaint_ = kept.damaged
                     ? u"The configuration \"%1\" is damaged or gone; the version before it is used. Look whether the "
                       "disks and folders are right; the next change puts a damaged file aside."_s.arg(file())
                     : QString();
    contents_ = kept.contents.value_or(QVariantMap());
    destinations_.clear();
    for (const QVariant& entry : contents_.value(destinationsKey).toList()) {
        const Destination destination = destinationFrom(entry.toMap());
        if (!destination.id.isEmpty() && (QDir::isAbsolutePath(destination.path) || destination.isNetwork()))
            destinations_.push_back(destination);
    }
}

void Configuration::write()
{
    QVariantList entries;
    for (const Destination& destination : destinations_)
        entries.append(toDictionary(destination));
    contents_.insert(destinationsKey, entries);
    if (!writeKeptPropertyList(file(), contents_))
        throw Failure(ExitStatus::CannotWrite, u"The configuration \"%1\" cannot be written."_s.arg(file()));
}

QString Configuration::file() const
{
    return folders_.configuration + "/configuration.plist"_L1;
}

Destination Configuration::destinationAt(const QString& path, const Opens& opens) const
{
    using Contents = RepositoryFolder::Contents;
    const auto known = std::ranges::find(destinations_, path, &Destination::path);
    if (known != destinations_.end() && RepositoryFolder::contents(*known) != Contents::Absent)
        return *known; // where it is another's now, that is said
    const KeyStore keys(folders_.configuration);
    for (const QString& id : QDir(Destination::backupFolder(path)).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        Destination found{id, volumeName(path), path};
        const Contents contents = keys.contains(id) ? RepositoryFolder::contents(found) : Contents::Absent;
        const bool isOwn = contents == Contents::Repository
                               ? opens(found)
                               : contents != Contents::Absent && contents != Contents::Foreign;
        if (isOwn || !RepositoryFolder::trap(found).isEmpty())
            return found;
    }
    return {QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper(), volumeName(path), path};
}

} // namespace quillon
