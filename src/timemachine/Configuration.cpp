#include "Configuration.h"

#include "Failure.h"
#include "KeyStore.h"
#include "Paths.h"
#include "ProcessLock.h"
#include "PropertyList.h"
#include "PropertyListFile.h"

#include <QDir>
#include <QFileInfo>
#include <QUuid>

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr auto destinationsKey = "Destinations"_L1;
constexpr auto sourcesKey = "Sources"_L1;
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

/// Folders that this user shares with the others who back up to the same disk: everyone may add to the outer one,
/// nobody may touch what is another's. A file system without rights of its own has its mount options.
void makeRepositoryFolder(const Destination& destination)
{
    const QByteArray shared = QFile::encodeName(Destination::backupFolder(destination.path));
    const QByteArray own = QFile::encodeName(destination.repository());
    if (mkdir(shared.constData(), S_IRWXU) == 0)
        chmod(shared.constData(), S_ISVTX | S_IRWXU | S_IRWXG | S_IRWXO);
    if ((mkdir(own.constData(), S_IRWXU) != 0 && errno != EEXIST) || access(own.constData(), W_OK) != 0)
        throw Failure(ExitStatus::CannotWrite,
                      u"\"%1\" cannot be written to: %2."_s.arg(destination.repository(), qt_error_string(errno)));
}

Destination fromDictionary(const QVariantMap& entry)
{
    return {entry.value(u"ID"_s).toString(), entry.value(u"Name"_s).toString(), entry.value(u"Path"_s).toString()};
}

QVariantMap toDictionary(const Destination& destination)
{
    return {{u"ID"_s, destination.id}, {u"Name"_s, destination.name}, {u"Path"_s, destination.path}};
}

} // namespace

Configuration::Configuration(const Folders& folders)
    : folders_(folders)
{
    read();
}

QStringList Configuration::sources() const
{
    const QStringList named = contents_.value(sourcesKey).toStringList();
    return named.isEmpty() ? QStringList(folders_.home) : named;
}

Destination Configuration::setDestination(const QString& path, bool append)
{
    const QString folder = existingFolder(path);
    Destination destination;
    change([&] {
        destination = destinationAt(folder);
        makeRepositoryFolder(destination);
        KeyStore(folders_.configuration).ensure(destination.id);
        if (!append)
            destinations_.clear();
        if (std::ranges::find(destinations_, destination) == destinations_.end())
            destinations_.push_back(destination);
    });
    return destination;
}

void Configuration::removeDestination(const QString& id)
{
    change([&] {
        const auto removed = std::erase_if(destinations_, [&id](const Destination& destination) {
            return destination.id.compare(id, Qt::CaseInsensitive) == 0;
        });
        if (removed == 0)
            throw Failure(ExitStatus::UnknownDestination, u"No backup disk has the identifier \"%1\"."_s.arg(id));
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

/// On the newest contents, under the lock. What throws changes nothing.
void Configuration::change(const std::function<void()>& edit)
{
    makePrivateFolder(folders_.configuration);
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
    const auto contents = readPropertyListFile(file());
    if (!contents)
        throw Failure(ExitStatus::Configuration, u"The configuration \"%1\" is damaged."_s.arg(file()));
    contents_ = *contents;
    destinations_.clear();
    for (const QVariant& entry : contents_.value(destinationsKey).toList()) {
        const Destination destination = fromDictionary(entry.toMap());
        if (!destination.id.isEmpty() && QDir::isAbsolutePath(destination.path))
            destinations_.push_back(destination);
    }
}

void Configuration::write()
{
    QVariantList entries;
    for (const Destination& destination : destinations_)
        entries.append(toDictionary(destination));
    contents_.insert(destinationsKey, entries);
    if (!writePropertyListFile(file(), contents_))
        throw Failure(ExitStatus::CannotWrite, u"The configuration \"%1\" cannot be written."_s.arg(file()));
}

QString Configuration::file() const
{
    return folders_.configuration + "/configuration.plist"_L1;
}

Destination Configuration::destinationAt(const QString& path) const
{
    const auto known = std::ranges::find(destinations_, path, &Destination::path);
    if (known != destinations_.end() && known->isPresent())
        return *known;
    const KeyStore keys(folders_.configuration);
    for (const QString& id : QDir(Destination::backupFolder(path)).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (keys.contains(id))
            return {id, volumeName(path), path};
    }
    return {QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper(), volumeName(path), path};
}

} // namespace quillon
