#pragma once

#include "BackupRemark.h"
#include "Configuration.h"
#include "Paths.h"
#include "Repository.h"
#include "ResticOutput.h"
#include "RunState.h"
#include "SourceSet.h"

#include <QDateTime>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace quillon {

class History;
class Restic;
struct ResticOutcome;
class StopRequest;

/// How a backup ended.
struct BackupResult {
    enum class End {
        Completed,
        Incomplete, ///< there is a backup, but it lacks a source that held files before, and does not count as one
        Failed,
        Stopped,
    };

    End end = End::Completed;
    std::optional<LastFailure> failure; ///< why it failed, or what a completed backup lacks
};

/// One backup, from looking for the disk to cleaning up behind it. Runs in the worker.
class Backup {
public:
    /// Told of each phase as it begins and, while copying, of progress.
    using Observer = std::function<void(QLatin1StringView phase, const std::optional<BackupProgress>& progress)>;

    /// `history` and `stop` must outlive this object.
    Backup(const Destination& destination, const Configuration& configuration, const Folders& folders, History& history,
           const StopRequest& stop, Observer observer);

    BackupResult run();

    /// What the run has done; its beginning and its end are the caller's to add.
    const RunLog& log() const { return log_; }

private:
    void endIfStopped() const;
    void findDisk();
    void prepareRepository();
    void makeRepository();
    void repairIfDamaged();
    Restic restic() const;
    void findSources();
    void findLostSources(const QStringList& suspects, QLatin1StringView state);
    void findDroppedFolders();
    void findLostBackups();
    void findUnsavedFolders(const QStringList& unread);
    void findSwallowedSources(const QStringList& empty);
    bool passDamagedRecords();
    void copy();
    void markIncomplete();
    void note(const BackupOutput& output, const ResticOutcome& outcome);
    void remember();
    void cleanUp();
    void thin();
    bool makeRoom();
    LastFailure lastFailure(const QString& cause, const QString& description) const;
    std::optional<LastFailure> lastRemark();

    Destination destination_;
    Configuration configuration_;
    Folders folders_;
    History& history_;
    const StopRequest& stop_;
    Observer observer_;
    std::optional<Repository> repository_; ///< the same from the beginning to the end
    SourceSet sources_;
    std::optional<EarlierBackups> earlier_;
    QString snapshotId_;
    bool repaired_ = false;
    QStringList parentOptions_;         ///< empty while restic looks itself for the backup to go on from
    std::optional<quint64> roomWanted_; ///< in blocks of the disk, once room has been made
    BackupRemark remark_;
    RunLog log_;
    BackupResult result_;
};

} // namespace quillon
