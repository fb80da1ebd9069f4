#include "Placement.h"

#include "Failure.h"
#include "Listing.h"
#include "Paths.h"

#include <QByteArrayList>
#include <QUuid>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <fts.h>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace quillon {

using namespace Qt::StringLiterals;

mode_t modeOf(const QString& path)
{
    struct stat state {};
    return lstat(encodePath(path).constData(), &state) == 0 ? state.st_mode : 0;
}

namespace {

bool isToldAs(const QString& name, const QString& told)
{
    return std::ranges::equal(name, told, [](QChar unit, QChar toldUnit) {
        const bool isByte = unit.unicode() >= 0xDC80 && unit.unicode() <= 0xDCFF;
        return unit == toldUnit || (isByte && toldUnit == QChar::ReplacementCharacter);
    });
}

QStringList namesIn(const QString& folder)
{
    QStringList names;
    DIR* const entries = opendir(encodePath(folder + u'/').constData());
    if (entries == nullptr)
        return names;
    for (const dirent* entry = readdir(entries); entry != nullptr; entry = readdir(entries))
        names.append(decodePath(entry->d_name));
    closedir(entries);
    return names;
}

/// Calls for everything in a tree, from its top on, links not followed.
void walk(const QString& path, const std::function<void(const FTSENT& entry)>& visit)
{
    QByteArray top = encodePath(path);
    std::array<char*, 2> tops{top.data(), nullptr};
    FTS* const tree = fts_open(tops.data(), FTS_PHYSICAL | FTS_NOCHDIR, nullptr);
    if (tree == nullptr)
        return;
    while (const FTSENT* const entry = fts_read(tree))
        visit(*entry);
    fts_close(tree);
}

} // namespace

QStringList entriesToldAs(const QString& root, const QString& path)
{
    QStringList found{root};
    for (const QString& part : path.split(u'/', Qt::SkipEmptyParts)) {
        QStringList next;
        for (const QString& folder : std::as_const(found)) {
            if (const QString exact = folder + u'/' + part; modeOf(exact) != 0)
                next.append(exact);
            else if (part.contains(QChar::ReplacementCharacter))
                for (const QString& name : namesIn(folder)) {
                    if (isToldAs(name, part))
                        next.append(folder + u'/' + name);
                }
        }
        found = next;
    }
    return found;
}

TreeSize sizeOfTree(const QString& path)
{
    TreeSize size;
    walk(path, [&size](const FTSENT& entry) {
        const bool isFile = entry.fts_info == FTS_F;
        if (isFile || entry.fts_info == FTS_SL || entry.fts_info == FTS_SLNONE || entry.fts_info == FTS_DEFAULT)
            ++size.files;
        if (isFile)
            size.bytes += entry.fts_statp->st_size;
    });
    return size;
}

namespace {

/// Renames within its folder, which may be one that its owner may not write.
bool addSuffix(const QString& file, const QString& suffix)
{
    const QByteArray from = encodePath(file);
    const QByteArray folder = from.left(from.lastIndexOf('/'));
    const mode_t mode = modeOf(decodePath(folder)) & ALLPERMS;
    chmod(folder.constData(), mode | S_IRWXU);
    const bool renamed = std::rename(from.constData(), encodePath(file + suffix).constData()) == 0;
    chmod(folder.constData(), mode);
    return renamed;
}

} // namespace

QStringList markDamaged(const QString& tree, QStringList paths)
{
    paths.removeIf([&tree](const QString& path) {
        const QString file = tree + path;
        QString suffix = u".incomplete"_s;
        while (modeOf(file + suffix) != 0)
            suffix += u'~';
        return !S_ISREG(modeOf(file)) || addSuffix(file, suffix);
    });
    return paths;
}

namespace {

constexpr off_t blockSize = 4096;
constexpr off_t leastHole = 16 * blockSize; // shorter ones give back little, and break files into pieces

/// Rows of zeros become holes.
void dig(int file, off_t size)
{
    constexpr std::size_t pieceSize = 64 * leastHole;
    std::vector<char> piece(pieceSize);
    off_t zeros = 0; // before the place that is looked at
    const auto punch = [&](off_t end) {
        const off_t length = std::exchange(zeros, 0);
        return length < leastHole ||
               fallocate(file, FALLOC_FL_PUNCH_HOLE | FALLOC_FL_KEEP_SIZE, end - length, length) == 0;
    };
    for (off_t at = 0; at < size;) {
        const ssize_t got = pread(file, piece.data(), pieceSize, at);
        if (got <= 0)
            return;
        for (ssize_t from = 0; from < got; from += blockSize) {
            const auto length = static_cast<std::size_t>(std::min<off_t>(blockSize, got - from));
            const char* const block = piece.data() + from;
            if (block[0] == 0 && std::memcmp(block, block + 1, length - 1) == 0)
                zeros += static_cast<off_t>(length);
            else if (!punch(at + from))
                return;
        }
        at += got;
    }
    punch(size);
}

void digHolesIn(const FTSENT& entry)
{
    const struct stat& state = *entry.fts_statp;
    // Writing takes these rights away, and what replaces them.
    const bool isPrivileged =
        (state.st_mode & (S_ISUID | S_ISGID)) != 0 || lgetxattr(entry.fts_path, "security.capability", nullptr, 0) >= 0;
    if (state.st_size < leastHole || isPrivileged)
        return;
    constexpr int flags = O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    int file = open(entry.fts_path, flags);
    const bool isReadOnly = file < 0 && errno == EACCES && chmod(entry.fts_path, S_IRUSR | S_IWUSR) == 0;
    if (isReadOnly) {
        file = open(entry.fts_path, flags);
        chmod(entry.fts_path, state.st_mode & ALLPERMS);
    }
    if (file < 0)
        return;
    dig(file, state.st_size);
    const std::array times{state.st_atim, state.st_mtim};
    futimens(file, times.data());
    close(file);
}

} // namespace

void digHoles(const QString& tree, const std::function<bool()>& isStopped)
{
    walk(tree, [&isStopped](const FTSENT& entry) {
        if (entry.fts_info == FTS_F && !isStopped())
            digHolesIn(entry);
    });
}

namespace {

Failure cannotBeMade(const QString& path, int error)
{
    return {ExitStatus::CannotWrite, u"\"%1\" cannot be made: %2."_s.arg(path, qt_error_string(error))};
}

/// Where the ending of a file's name begins, or its end where it has none.
qsizetype beginOfEnding(const QString& name)
{
    constexpr qsizetype longestEnding = 16; // what is longer, or has blanks, is a part of a sentence
    const qsizetype dot = name.lastIndexOf(u'.');
    const bool isEnding = dot > 0 && name.size() - dot <= longestEnding && !name.mid(dot).contains(u' ');
    return isEnding ? dot : name.size();
}

/// A folder that its owner may not write cannot be moved to another one: it is writable as long as this lives.
class WritableFolder {
public:
    explicit WritableFolder(const QString& path)
        : handle_(open(encodePath(path).constData(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC))
    {
        struct stat state {};
        if (handle_ < 0 || fstat(handle_, &state) != 0 || (state.st_mode & S_IWUSR) != 0)
            return;
        mode_ = state.st_mode & ALLPERMS;
        isChanged_ = chmod(name().c_str(), mode_ | S_IWUSR) == 0;
    }
    WritableFolder(const WritableFolder&) = delete;
    WritableFolder& operator=(const WritableFolder&) = delete;
    ~WritableFolder()
    {
        if (isChanged_)
            chmod(name().c_str(), mode_);
        if (handle_ >= 0)
            close(handle_);
    }

private:
    /// A handle follows its folder wherever that is moved.
    std::string name() const { return "/proc/self/fd/" + std::to_string(handle_); }

    int handle_;
    mode_t mode_ = 0;
    bool isChanged_ = false;
};

/// The folder around what restic has made may be one that its owner may not write, too.
void openUp(const QByteArray& path)
{
    chmod(path.left(path.lastIndexOf('/')).constData(), S_IRWXU);
}

} // namespace

QString freeName(const QString& name, bool isFile, const QString& date,
                 const std::function<bool(const QString& name)>& isTaken)
{
    const qsizetype split = isFile ? beginOfEnding(name) : name.size();
    QString begin = name.left(split);
    for (int number = 1;; ++number) {
        const QString rest =
            u" (restored %1%2)"_s.arg(date, number > 1 ? u" %1"_s.arg(number) : QString()) + name.mid(split);
        while (encodePath(begin + rest).size() > NAME_MAX)
            begin.chop(
                begin.back().isLowSurrogate() && begin.size() > 1 && begin[begin.size() - 2].isHighSurrogate() ? 2 : 1);
        if (QString free = begin + rest; !isTaken(free))
            return free;
    }
}

QString replacementRefusal(const QString& path, const MountTable& mounts, const std::vector<Destination>& destinations,
                           const Folders& folders)
{
    const QString place = resolvedPath(path);
    for (const Destination& destination : destinations) {
        if (!destination.isNetwork() && covers(place, resolvedPath(destination.path)))
            return u"\"%1\" is not replaced: the backup disk \"%2\" is in it."_s.arg(path, destination.path);
    }
    for (const QString& own : {folders.configuration, folders.state}) {
        if (covers(place, resolvedPath(own)))
            return u"\"%1\" is not replaced: tmutil's own files are in it, at \"%2\"."_s.arg(path, own);
    }
    if (const QString mount = mounts.firstIn(place); !mount.isEmpty())
        return u"\"%1\" is not replaced: a file system is mounted at \"%2\"."_s.arg(path, mount);
    return {};
}

bool moveInto(const QString& from, const QString& to)
{
    const QByteArray source = encodePath(from);
    const QByteArray target = encodePath(to);
    openUp(source);
    const WritableFolder writable(from);
    if (renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) == 0 ||
        (errno == EINVAL && modeOf(to) == 0 && std::rename(source.constData(), target.constData()) == 0))
        return true;
    const int error = errno;
    if (modeOf(to) == 0)
        throw cannotBeMade(to, error);
    return false;
}

void exchange(const QString& from, const QString& to)
{
    openUp(encodePath(from));
    const WritableFolder restored(from);
    const WritableFolder present(to);
    if (renameat2(AT_FDCWD, encodePath(from).constData(), AT_FDCWD, encodePath(to).constData(), RENAME_EXCHANGE) == 0)
        return;
    if (errno != EINVAL)
        throw cannotBeMade(to, errno);
    exchangeInTurns(from, to);
}

void exchangeInTurns(const QString& from, const QString& to)
{
    const QByteArray source = encodePath(from);
    const QByteArray target = encodePath(to);
    const QByteArray aside =
        target.left(target.lastIndexOf('/') + 1) + ".replaced-" + QUuid::createUuid().toByteArray(QUuid::Id128);
    if (std::rename(target.constData(), aside.constData()) != 0)
        throw cannotBeMade(to, errno);
    if (std::rename(source.constData(), target.constData()) != 0) {
        const int error = errno;
        std::rename(aside.constData(), target.constData());
        throw cannotBeMade(to, error);
    }
    std::rename(aside.constData(), source.constData());
}

MissingFolders::MissingFolders(const QString& folder)
{
    for (QString path = folder; path.size() > 1 && modeOf(path) == 0;
         path.truncate(std::max<qsizetype>(path.lastIndexOf(u'/'), 0)))
        paths_.prepend(path);
}

MissingFolders::~MissingFolders()
{
    for (; made_ > 0; --made_)
        rmdir(encodePath(paths_[made_ - 1]).constData());
}

void MissingFolders::make()
{
    for (; made_ < paths_.size(); ++made_) {
        if (mkdir(encodePath(paths_[made_]).constData(), S_IRWXU) != 0)
            throw cannotBeMade(paths_[made_], errno);
    }
}

void MissingFolders::keep(const std::vector<ListedFile>& known)
{
    for (; made_ > 0; --made_) {
        const QString& path = paths_[made_ - 1];
        const auto folder = std::ranges::find(known, toldPath(path), &ListedFile::path);
        if (folder == known.end())
            continue;
        // Only root can give files away; to anybody else they belong already, as far as they may.
        [[maybe_unused]] const int given = lchown(encodePath(path).constData(), folder->owner, folder->group);
        chmod(encodePath(path).constData(), folder->mode);
    }
}

} // namespace quillon
