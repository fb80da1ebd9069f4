#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace quillon {

/// The file systems that are mounted, as the kernel lists them: proc(5), "/proc/[pid]/mountinfo".
class MountTable {
public:
    explicit MountTable(const QByteArray& mountinfo);
    static MountTable current();

    /// The mount points inside that folder of file systems other than the folder's own. Parts of the same file system
    /// that are mounted by themselves, as subvolumes are, are not among them.
    QStringList foreignMountPointsIn(const QString& folder) const;

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
