#include "RepositoryFolder.h"

#include "Failure.h"
#include "Paths.h"
#include "ResticDiagnosis.h"
#include "Text.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUuid>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

/// A descriptor that is closed in the end.
class Descriptor {
public:
    explicit Descriptor(int number)
        : number_(number)
    {
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor()
    {
        if (number_ >= 0)
            close(number_);
    }
    int get() const { return number_; }
    int release() { return std::exchange(number_, -1); }

private:
    int number_;
};

QByteArray encoded(const QString& path)
{
    return QFile::encodeName(path);
}

QByteArray lastPart(const QByteArray& path)
{
    return path.mid(path.lastIndexOf('/') + 1);
}

/// The name of the destination's folder in the one around it.
QByteArray nameOf(const Destination& destination)
{
    return lastPart(encoded(destination.repository()));
}

/// The folder around the destination's own, which all users of the disk share. The way to the disk's own folder was
/// free of links when it was set.
int openShared(const Destination& destination)
{
    if (destination.bare)
        return open(encoded(QFileInfo(destination.path).path()).constData(), folderFlags & ~O_NOFOLLOW);
    const Descriptor disk(open(encoded(destination.path).constData(), folderFlags & ~O_NOFOLLOW));
    return openat(disk.get(), lastPart(encoded(Destination::backupFolder(destination.path))).constData(), folderFlags);
}

/// Root can do as it likes anyway, and so can the owner of the disk: on a file system without rights of its own, all of
/// it belongs to whoever has mounted it.
bool isOwn(const Destination& destination, int descriptor)
{
    struct stat folder {};
    struct stat disk {};
    if (fstat(descriptor, &folder) != 0)
        return false;
    return folder.st_uid == geteuid() || folder.st_uid == 0 ||
           (stat(encoded(destination.path).constData(), &disk) == 0 && folder.st_uid == disk.st_uid);
}

/// The first entry of a folder that is neither a plain file nor a folder; empty where there is none.
QByteArray trapIn(int parent, const char* name)
{
    const int folder = openat(parent, name, folderFlags);
    if (folder < 0)
        return {};
    DIR* const entries = fdopendir(folder);
    if (entries == nullptr) {
        close(folder);
        return {};
    }
    QByteArray found;
    for (const dirent* entry = readdir(entries); entry != nullptr && found.isEmpty(); entry = readdir(entries)) {
        struct stat state {};
        const bool isPlain =
            entry->d_type == DT_REG || entry->d_type == DT_DIR ||
            (entry->d_type == DT_UNKNOWN && (fstatat(folder, entry->d_name, &state, AT_SYMLINK_NOFOLLOW) != 0 ||
                                             S_ISREG(state.st_mode) || S_ISDIR(state.st_mode)));
        if (!isPlain)
            found = QByteArray(name) + '/' + entry->d_name;
    }
    closedir(entries);
    return found;
}

/// The folder's own path counts from there.
QByteArray trapIn(int descriptor)
{
    for (const char* name : {"data", "index", "keys", "locks", "snapshots"}) {
        struct stat entry {};
        if (fstatat(descriptor, name, &entry, AT_SYMLINK_NOFOLLOW) != 0)
            continue;
        if (QByteArray trap = S_ISDIR(entry.st_mode) ? trapIn(descriptor, name) : name; !trap.isEmpty())
            return trap;
    }
    struct stat config {};
    return fstatat(descriptor, "config", &config, AT_SYMLINK_NOFOLLOW) == 0 && !S_ISREG(config.st_mode) ? "config" : "";
}

Descriptor openOwn(const Destination& destination)
{
    const Descriptor shared(openShared(destination));
    Descriptor own(openat(shared.get(), nameOf(destination).constData(), folderFlags));
    return Descriptor(isOwn(destination, own.get()) ? own.release() : -1);
}

QByteArrayList namesIn(int parent, const char* name)
{
    QByteArrayList names;
    const int copy = openat(parent, name, folderFlags);
    DIR* const entries = copy >= 0 ? fdopendir(copy) : nullptr;
    if (entries == nullptr)
        return names;
    for (const dirent* entry = readdir(entries); entry != nullptr; entry = readdir(entries)) {
        if (const QByteArray one = entry->d_name; one != "." && one != "..")
            names.append(one);
    }
    closedir(entries);
    return names;
}

bool isFolder(int parent, const QByteArray& name)
{
    struct stat entry {};
    return fstatat(parent, name.constData(), &entry, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(entry.st_mode);
}

/// Whether a folder holds no more than what making a repository in it leaves: no data, no index and no backup.
bool holdsNothingStored(int folder)
{
    const QByteArrayList names = namesIn(folder, ".");
    const bool isKnown = std::ranges::all_of(names, [](const QByteArray& name) {
        static const QByteArrayList known{"data", "index", "keys", "locks", "snapshots"};
        return known.contains(name) || name.startsWith("config");
    });
    const QByteArrayList data = namesIn(folder, "data");
    return isKnown && namesIn(folder, "index").isEmpty() && namesIn(folder, "snapshots").isEmpty() &&
           std::ranges::all_of(data, [folder](const QByteArray& name) {
               return isFolder(folder, "data/" + name) && namesIn(folder, ("data/" + name).constData()).isEmpty();
           });
}

/// What a process makes is locked as long as it lives.
void removeLeftovers(int shared, const Destination& destination)
{
    static const QRegularExpression ours(u"-[0-9a-f]{32}$"_s);
    for (const QByteArray& name : namesIn(shared, ".")) {
        const QString text = QFile::decodeName(name);
        if (!text.startsWith(destination.id) || ours.match(text).capturedStart() != destination.id.size())
            continue;
        const Descriptor folder(openat(shared, name.constData(), folderFlags));
        if (isOwn(destination, folder.get()) && flock(folder.get(), LOCK_EX | LOCK_NB) == 0 &&
            holdsNothingStored(folder.get()))
            removeFolderTree(shared, name.constData());
    }
}

Failure cannotBeWritten(const QString& path, int error)
{
    QString message = u"\"%1\" cannot be written to: %2."_s.arg(path, qt_error_string(error));
    if (error == EACCES)
        message += u" Whoever administers this computer can give you that folder."_s;
    return {ExitStatus::CannotWrite, message};
}

} // namespace

RepositoryFolder::Contents RepositoryFolder::contents(const Destination& destination)
{
    const Descriptor shared(openShared(destination));
    const QByteArray name = nameOf(destination);
    struct stat entry {};
    if (shared.get() < 0 || fstatat(shared.get(), name.constData(), &entry, AT_SYMLINK_NOFOLLOW) != 0)
        return Contents::Absent;
    const auto folder = open(destination);
    if (!folder)
        return Contents::Foreign;
    if (folder->hasConfig())
        return Contents::Repository;
    return folder->isEmpty() ? Contents::Empty : Contents::Damaged;
}

std::optional<RepositoryFolder> RepositoryFolder::open(const Destination& destination)
{
    Descriptor own = openOwn(destination);
    if (own.get() < 0 || !trapIn(own.get()).isEmpty())
        return std::nullopt;
    return RepositoryFolder(destination, encoded(destination.repository()), own.release());
}

QString RepositoryFolder::trap(const Destination& destination)
{
    const Descriptor own = openOwn(destination);
    const QByteArray name = own.get() >= 0 ? trapIn(own.get()) : QByteArray();
    return name.isEmpty() ? QString() : destination.repository() + u'/' + QFile::decodeName(name);
}

/// Everyone may add to the outer folder, nobody may touch what is another's. A file system without rights of its own
/// has its mount options.
void RepositoryFolder::make(const Destination& destination)
{
    const QString sharedPath = Destination::backupFolder(destination.path);
    const Descriptor disk(::open(encoded(destination.path).constData(), folderFlags & ~O_NOFOLLOW));
    const QByteArray sharedName = lastPart(encoded(sharedPath));
    const bool isNew = mkdirat(disk.get(), sharedName.constData(), S_IRWXU) == 0;
    if (!isNew && errno != EEXIST)
        throw cannotBeWritten(sharedPath, errno);
    const Descriptor shared(openat(disk.get(), sharedName.constData(), folderFlags));
    if (shared.get() < 0)
        throw cannotBeWritten(sharedPath, errno);
    if (isNew)
        fchmod(shared.get(), S_ISVTX | S_IRWXU | S_IRWXG | S_IRWXO);

    if (mkdirat(shared.get(), encoded(destination.id).constData(), S_IRWXU) != 0 && errno != EEXIST)
        throw cannotBeWritten(destination.repository(), errno);
    const auto own = open(destination);
    if (!own)
        throw Failure(ExitStatus::CannotWrite, destination.absence());
    if (!own->isWritable())
        throw cannotBeWritten(destination.repository(), errno);
}

RepositoryFolder RepositoryFolder::makeBeside(const Destination& destination)
{
    const Descriptor shared(openShared(destination));
    removeLeftovers(shared.get(), destination);
    const QString name = destination.id + u'-' + QUuid::createUuid().toString(QUuid::Id128);
    const QString path = Destination::backupFolder(destination.path) + u'/' + name;
    if (mkdirat(shared.get(), encoded(name).constData(), S_IRWXU) != 0)
        throw cannotBeWritten(path, errno);
    const int own = openat(shared.get(), encoded(name).constData(), folderFlags);
    if (own < 0)
        throw cannotBeWritten(path, errno);
    flock(own, LOCK_EX | LOCK_NB);
    return {destination, encoded(path), own};
}

RepositoryFolder::RepositoryFolder(const Destination& destination, QByteArray path, int descriptor)
    : destination_(destination)
    , path_(std::move(path))
    , descriptor_(descriptor)
{
}

RepositoryFolder::RepositoryFolder(RepositoryFolder&& other) noexcept
    : destination_(std::move(other.destination_))
    , path_(std::move(other.path_))
    , descriptor_(std::exchange(other.descriptor_, -1))
{
}

RepositoryFolder& RepositoryFolder::operator=(RepositoryFolder&& other) noexcept
{
    std::swap(destination_, other.destination_);
    std::swap(path_, other.path_);
    std::swap(descriptor_, other.descriptor_);
    return *this;
}

RepositoryFolder::~RepositoryFolder()
{
    if (descriptor_ >= 0)
        close(descriptor_);
}

QByteArrayList RepositoryFolder::namesIn(const char* folder) const
{
    return quillon::namesIn(descriptor_, folder);
}

void RepositoryFolder::removeLock(const QByteArray& name) const
{
    const Descriptor locks(openat(descriptor_, "locks", folderFlags));
    unlinkat(locks.get(), name.constData(), 0);
}

bool RepositoryFolder::isEmptyFolder(const char* name) const
{
    const int copy = openat(descriptor_, name, folderFlags);
    DIR* folder = copy >= 0 ? fdopendir(copy) : nullptr;
    if (folder == nullptr)
        return false;
    int entries = 0;
    while (readdir(folder) != nullptr)
        ++entries;
    closedir(folder);
    return entries <= 2; // itself and its parent
}

bool RepositoryFolder::isWritable() const
{
    return faccessat(descriptor_, ".", W_OK, AT_EACCESS) == 0;
}

void RepositoryFolder::requireWritable() const
{
    if (isWritable())
        return;
    const QString reason = qt_error_string(errno);
    throw Failure(ExitStatus::CannotWrite,
                  u"The backup disk \"%1\" cannot be written to: %2."_s.arg(shownText(destination_.name), reason),
                  ResticDiagnosis::of(ResticProblem::NoPermission).cause());
}

bool RepositoryFolder::hasConfig() const
{
    return faccessat(descriptor_, "config", F_OK, AT_EACCESS) == 0;
}

void RepositoryFolder::requireConfig() const
{
    if (!hasConfig())
        throw Failure(
            ExitStatus::Failed,
            u"The backups in \"%1\" cannot be opened: their file \"config\" is missing. Put it back from a copy "
            "of that folder; or, to begin anew, move the folder away and set the disk again with \"tmutil "
            "setdestination\"."_s.arg(destination_.repository()),
            ResticDiagnosis::of(ResticProblem::NoRepository).cause());
}

bool RepositoryFolder::isStillThere() const
{
    struct stat held {};
    struct stat found {};
    return fstat(descriptor_, &held) == 0 && lstat(path_.constData(), &found) == 0 && held.st_dev == found.st_dev &&
           held.st_ino == found.st_ino;
}

std::optional<QString> RepositoryFolder::moveIntoPlace()
{
    const Descriptor shared(openShared(destination_));
    if (renameat(shared.get(), lastPart(path_).constData(), shared.get(), encoded(destination_.id).constData()) != 0)
        return qt_error_string(errno);
    path_ = encoded(destination_.repository());
    return std::nullopt;
}

void RepositoryFolder::remove()
{
    const Descriptor shared(openShared(destination_));
    if (isStillThere())
        removeFolderTree(shared.get(), lastPart(path_).constData());
}

} // namespace quillon
