#pragma once

#include "Destination.h"
#include "Listing.h"
#include "Paths.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <sys/stat.h>
#include <vector>

namespace quillon {

/// The mode of what is at that path, links not followed; 0 where there is nothing.
mode_t modeOf(const QString& path);

/// What is in the folder `root` at a path in which U+FFFD stands for any byte that is no UTF-8, since that is what
/// restic tells of such names.
QStringList entriesToldAs(const QString& root, const QString& path);

/// Files are all but folders.
struct TreeSize {
    qint64 files = 0;
    qint64 bytes = 0;
};

/// What has come back so far.
TreeSize sizeOfTree(const QString& path);

/// What came back of a file that is damaged must not be taken for the file: it gets the ending ".incomplete". The paths
/// are those in the backup. Gives those that still may be taken for it.
QStringList markDamaged(const QString& tree, QStringList paths);

/// Gives files their holes back, which restic before 0.15 fills with zeros, without a trace in their times. Files that
/// cannot be written, and file systems without holes, keep the zeros. It ends early where it is asked to.
void digHoles(const QString& tree, const std::function<bool()>& isStopped);

/// What becomes of something that is in the way of a restore.
enum class RestoreRule {
    Refuse,   ///< it stays, and nothing is restored
    KeepBoth, ///< it stays, and what is restored gets a name of its own
    Replace,  ///< it goes, once what is restored is complete in its place
    Skip,     ///< it stays, and nothing is restored, which is no failure
};

/// A name that is not taken: "NAME (restored DATE)", where a file keeps its ending, with a number where that is taken,
/// too. It is no longer than a name may be.
QString freeName(const QString& name, bool isFile, const QString& date,
                 const std::function<bool(const QString& name)>& isTaken);

/// Why what is at that path must not be replaced, as a sentence: what is mounted in it, backup disks and tmutil's own
/// files would go with it. Empty where it may be.
QString replacementRefusal(const QString& path, const MountTable& mounts, const std::vector<Destination>& destinations,
                           const Folders& folders);

/// Moves without overwriting; false where something is in the way. A folder that its owner may not write, which cannot
/// be moved, is made writable for it. Throws Failure.
bool moveInto(const QString& from, const QString& to);

/// Moves to where something is, which then lies at `from`. Throws Failure, and has changed nothing then.
void exchange(const QString& from, const QString& to);

/// The same for file systems that cannot do it in one step: what is there is put aside under a hidden name beside it,
/// and put back where the move fails.
void exchangeInTurns(const QString& from, const QString& to);

/// The folders on the way to a path that are gone.
class MissingFolders {
public:
    explicit MissingFolders(const QString& folder);
    MissingFolders(const MissingFolders&) = delete;
    MissingFolders& operator=(const MissingFolders&) = delete;
    /// Removes those made, unless they are kept.
    ~MissingFolders();

    /// From the outermost on.
    const QStringList& paths() const { return paths_; }

    /// For this user only, until they are kept. Throws Failure.
    void make();

    /// With the rights, and as far as that is allowed the owner, that the backup has of each.
    void keep(const std::vector<ListedFile>& known);

private:
    QStringList paths_;
    qsizetype made_ = 0;
};

} // namespace quillon
