#pragma once

#include "RunLoop.h"
#include "Task.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace quillon {

/// A mounted file system that can be offered as a backup disk.
struct MountedDisk {
    QString name; ///< its label or, without one, that of its folder; fit to be shown
    QString path; ///< where it is mounted
    std::optional<qint64> bytesFree;

    bool operator==(const MountedDisk&) const = default;
};

/// The disks in what `lsblk` of util-linux prints as JSON: mounted, writable, and not part of the running system.
/// Nothing where it has printed something else.
std::optional<std::vector<MountedDisk>> readMountedDisks(const QByteArray& lsblk);

/// Which disks are mounted. lsblk is asked, in a process of its own: a disk that hangs would block whoever asks the
/// kernel for its room, and blocks lsblk, too, which then is given up.
class MountedDisks {
public:
    enum class State {
        Asked,  ///< for the first time
        Known,  ///< by the last answer
        Failed, ///< there was none, or none in time
    };

    /// Launcher and run loop must outlive this object.
    MountedDisks(TaskLauncher& launcher, RunLoop& runLoop, QString lsblk);
    MountedDisks(const MountedDisks&) = delete;
    MountedDisks& operator=(const MountedDisks&) = delete;
    ~MountedDisks();

    State state() const { return state_; }

    /// Empty unless they are known.
    const std::vector<MountedDisk>& list() const { return list_; }

    /// Asks anew, unless an answer is still awaited.
    void refresh();

private:
    void take(const TaskResult& result);
    void fail();

    TaskLauncher& launcher_;
    RunLoop& runLoop_;
    QString lsblk_;
    State state_ = State::Asked;
    Timer limit_;
    std::unique_ptr<RunningTask> child_;
    std::vector<MountedDisk> list_;
};

} // namespace quillon
