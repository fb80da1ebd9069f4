#pragma once

#include "BackupOutput.h"
#include "FileLock.h"
#include "RunLog.h"

#include <QString>
#include <QVariantMap>

#include <optional>
#include <sys/types.h>

namespace quillon {

/// The lock of a file for this program, which ends with a Failure where a lock cannot be had at all.
class ProcessLock {
public:
    explicit ProcessLock(const QString& path);

    /// False when another process holds it.
    bool tryLock();

    /// Waits until nobody else holds it.
    void lock();

    /// The process that holds the lock of that file; nothing when it is free.
    static std::optional<pid_t> holder(const QString& path);

private:
    bool taken(FileLock::Outcome outcome) const;

    FileLock lock_;
};

/// The words under which a run's steps are known; the system tool's own.
namespace phase {
inline constexpr QLatin1StringView starting{"Starting"};
inline constexpr QLatin1StringView findingBackupVolume{"FindingBackupVol"};
inline constexpr QLatin1StringView mountingBackupVolume{"MountingBackupVol"};
inline constexpr QLatin1StringView preparingSourceVolumes{"PreparingSourceVolumes"};
inline constexpr QLatin1StringView findingChanges{"FindingChanges"};
inline constexpr QLatin1StringView copying{"Copying"};
inline constexpr QLatin1StringView thinningPostBackup{"ThinningPostBackup"};
inline constexpr QLatin1StringView finishing{"Finishing"};
} // namespace phase

/// A backup that runs. The worker writes it to a file of the state folder; everybody else reads it there.
struct RunState {
    QString runId;
    pid_t worker = 0;
    QString destinationId;
    QString mountPoint;
    QString phase;
    QString stateChange; ///< when the phase began, a statusDate()
    bool stopping = false;
    std::optional<BackupProgress> progress; ///< while copying

    /// The running backup. A file whose worker no longer holds the lock counts for nothing, so that a worker that was
    /// killed shows as not running at once. Throws Failure where it cannot be told.
    static std::optional<RunState> current(const QString& stateFolder);

    /// The run of a worker that died before its snapshot was whole.
    static std::optional<RunState> abandoned(const QString& stateFolder);

    /// The lock that the worker holds as long as it lives.
    static QString lockPath(const QString& stateFolder);

    /// False when it could not be written.
    bool write(const QString& stateFolder) const;
    static void remove(const QString& stateFolder);

    /// What is remembered of an abandoned run.
    LastFailure interruption() const;

    /// Whether the snapshot is whole, and remembered as the last backup.
    bool isComplete() const { return phase == phase::thinningPostBackup || isFinishing(); }
    bool isFinishing() const { return phase == phase::finishing; }

    /// The dictionary that `status` prints.
    QVariantMap toDictionary() const;
};

} // namespace quillon
