#include "RestoredTree.h"

#include "ListedFile.h"
#include "Paths.h"

#include <QByteArrayList>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <fts.h>
#include <memory>
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

} // namespace quillon
