#pragma once

#include "FileLock.h"
#include "ResticOutput.h"

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <optional>
#include <sys/types.h>
#include <vector>

namespace quillon {

/// A date as `status` writes it, such as "2026-11-21 07:22:58 +0000".
QString statusDate(const QDateTime& date);

/// Why the last backup failed, or what was wrong with one that completed.
struct LastFailure {
    QString date; ///< a statusDate()
    QString destinationId;
    QString cause;             ///< a word for programs, such as "NoSpace"
    QString description;       ///< a sentence for people
    qlonglong unreadFiles = 0; ///< files that a completed backup lacks

    /// As it stands in the status.
    QVariantMap toDictionary() const;
};

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

/// What one run has done, kept in a file of the state folder.
struct RunLog {
    QString begun; ///< a statusDate(), as `ended`
    QString ended;
    QString destinationId;
    QString disk;        ///< its name
    QString result;      ///< "Completed", "Incomplete", "Failed" or "Stopped"
    QString description; ///< what was wrong, for people; empty where nothing was
    QString backup;      ///< the backup's name; empty where none was made
    qlonglong files = 0;
    qlonglong newFiles = 0;
    qlonglong changedFiles = 0;
    qlonglong bytesAdded = 0; ///< to the repository
    QStringList unread;       ///< every path that could not be read
    QString words;            ///< what restic said on standard error

    /// Keeps it, and the latest 199 besides. False when it could not be written.
    bool write(const QString& stateFolder) const;

    /// Those kept, oldest first.
    static std::vector<RunLog> all(const QString& stateFolder);

    QString line() const; ///< one line of an overview
    QStringList text() const;
};

/// How the worker learns what `status` has told its callers: an empty file per run and kind of report. Making a file
/// that exists already changes nothing, so any number of callers may mark at once.
class ReportMarks {
public:
    explicit ReportMarks(const QString& stateFolder);

    /// Throws Failure when the folder cannot be made.
    void clear() const;

    /// A caller has been told that this run runs, or that it is finishing.
    void mark(const QString& runId, bool finishing) const;

    bool isReported(const QString& runId) const;
    bool isFinishingReported(const QString& runId) const;

private:
    QString path(const QString& runId, bool finishing) const;

    QString folder_;
};

} // namespace quillon
