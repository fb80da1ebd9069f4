#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <sys/stat.h>

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

} // namespace quillon
