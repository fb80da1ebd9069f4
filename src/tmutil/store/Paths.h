#pragma once

#include "PropertyList.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace quillon {

/// Where the user's Time Machine keeps its own files. Callers pass no HOME, so the password database is asked; the XDG
/// variables (XDG Base Directory Specification) win where they are set.
struct Folders {
    QString home;
    QString configuration; ///< destinations, sources and keys: worth a copy elsewhere
    QString state;         ///< what is running and what happened last
    QString cache;         ///< restic's cache

    static Folders ofUser();
};

/// Whether a small file can still be written there; true where that cannot be told.
bool hasRoom(const QString& folder);

/// Makes the folder, parents included, readable by the user only. Throws Failure.
void needPrivateFolder(const QString& path);

/// A property list that is kept together with the version before it.
struct KeptPropertyList {
    std::optional<QVariantMap> contents; ///< of the version before where `damaged`; nothing where both are damaged
    bool damaged = false;                ///< or gone, while the version before it is there
};
KeptPropertyList readKeptPropertyList(const QString& path);

/// As writePropertyListFile(), with the version before kept as "NAME-previous.plist", and a damaged one put aside as
/// "NAME-damaged.plist".
bool writeKeptPropertyList(const QString& path, const QVariantMap& contents);

/// Removes a folder of that name and all below it, and never anything that a link leads to. Folders that their owner
/// may not write are made writable first. What cannot be removed stays.
void removeFolderTree(int parentDescriptor, const char* name);

/// The bytes in all files of a folder and of those below it, without what links lead to.
qlonglong sizeOfFolder(const QString& path);

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
