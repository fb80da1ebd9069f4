#include "Placement.h"

#include "Failure.h"
#include "RestoredTree.h"

#include <QUuid>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

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
