#pragma once

#include "TaskLauncher.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace quillon {

/// A mounted file system that can be offered as a backup disk.
struct MountedDisk {
    QString name; ///< its label or, without one, that of its folder
    QString path; ///< where it is mounted
    std::optional<qint64> bytesFree;

    bool operator==(const MountedDisk&) const = default;
};

/// The disks in what `lsblk` of util-linux prints as JSON: mounted, writable, and not part of the running system.
std::vector<MountedDisk> readMountedDisks(const QByteArray& lsblk);

/// Which disks are mounted. lsblk is asked, in a process of its own: a disk that hangs would block whoever asks the
/// kernel for its room. Main thread only.
class MountedDisks {
public:
    /// The launcher must outlive this object.
    MountedDisks(TaskLauncher& launcher, QString lsblk);
    MountedDisks(const MountedDisks&) = delete;
    MountedDisks& operator=(const MountedDisks&) = delete;
    ~MountedDisks();

    /// What is known so far.
    const std::vector<MountedDisk>& list() const { return list_; }

    /// Asks anew, unless an answer is still awaited.
    void refresh();

private:
    TaskLauncher& launcher_;
    QString lsblk_;
    std::unique_ptr<RunningTask> child_;
    std::vector<MountedDisk> list_;
};

} // namespace quillon
