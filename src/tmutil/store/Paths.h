#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace quillon {

/// A path from the command line, where it may hold any byte: one that is no UTF-8 becomes a lone surrogate, U+DC80 to
/// U+DCFF, which encodePath() turns back.
QString decodePath(const QByteArray& path);
QByteArray encodePath(const QString& path);

/// The same on one line, for people: what a line cannot show as \n, \x1B and the like, and a backslash doubled.
QString shownPath(const QString& path);

/// Without dots, relative to the working folder; links stay.
QString absolutePath(const QString& path);

/// The path under which a backup meets that entry: its folder is free of links, the entry may be one.
QString ownPath(const QString& path);

/// The same place by a path without links, as far as it exists.
QString resolvedPath(const QString& path);

/// Whether the path is that folder's own or leads into it. Both are absolute and clean.
bool covers(const QString& folder, const QString& path);

/// The file systems that are mounted, as the kernel lists them: proc(5), "/proc/[pid]/mountinfo".
class MountTable {
public:
    explicit MountTable(const QByteArray& mountinfo);
    static MountTable current();

    /// The mount points inside that folder of file systems other than the folder's own. Parts of the same file system
    /// that are mounted by themselves, as subvolumes are, are not among them.
    QStringList foreignMountPointsIn(const QString& folder) const;

    /// The first mount point at that path or below it, of whatever file system; empty where there is none.
    QString firstIn(const QString& folder) const;

    /// Whether two paths lie on one file system. Neither is looked at, for a disk that hangs would block that.
    bool haveOneFileSystem(const QString& one, const QString& other) const;

private:
    struct Mount {
        QString point;
        QByteArray device;
    };
    const Mount* around(const QString& path) const;

    std::vector<Mount> mounts_;
};

} // namespace quillon
