#pragma once

#include "BackupSetup.h"
#include "ListPage.h"
#include "RunLoop.h"
#include "Setup.h"
#include "Task.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <map>
#include <memory>
#include <optional>
#include <vector>

class QLabel;
class QMenu;

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

/// The backup disks and places on servers: what is on them, what went wrong with them, and whether the user has their
/// recovery keys.
class DisksPage final : public ListPage {
    Q_OBJECT

public:
    /// The setup must outlive this object. `lsblk` is the path of the tool that lists mounted disks.
    DisksPage(Setup& setup, const QString& lsblk, QWidget* parent = nullptr);

    void reload();

private:
    QWidget* makeKeyBar();
    bool take(const QByteArray& answer);
    void showDisks();
    void measure();
    void fillMenu(QMenu& menu);
    void add(const QString& path);
    void addPlace();
    void editPlace(const QString& id);
    QStringList ids() const;
    void confirmRemoval(const QString& id, const QString& name);
    const BackupDisk* diskWithoutKey() const;
    void offerRecoveryKey(const BackupDisk& disk);
    void showRecoveryKey(const BackupDisk& disk, const RecoveryKey& key);

    Setup& setup_;
    MountedDisks mountedDisks_;
    std::vector<BackupDisk> disks_;
    std::optional<QStringList> idsBeforeAddition_; ///< until the disk that was added is seen
    std::map<QString, qint64> taken_;              ///< bytes of backups, by the disk's identifier
    QStringList measured_;                         ///< what taken_ tells of, or will
    QWidget* keyBar_;
    QLabel* keyLabel_;
    TmutilClient usage_; ///< of its own, since it may take long; last, so that no answer finds half a page
};

} // namespace quillon
