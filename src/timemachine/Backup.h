#pragma once

#include "BackupProgress.h"
#include "Configuration.h"
#include "Folders.h"
#include "LastFailure.h"

#include <QDateTime>
#include <QStringList>

#include <functional>
#include <optional>

namespace quillon {

class History;
class StopRequest;

/// How a backup ended.
struct BackupResult {
    enum class End { Completed, Failed, Stopped };

    End end = End::Completed;
    std::optional<LastFailure> failure; ///< why it failed, or what a completed backup lacks
};

/// One backup, from looking for the disk to cleaning up behind it. Runs in the worker, in order, in its main thread.
class Backup {
public:
    /// Told of each phase as it begins and, while copying, of progress.
    using Observer = std::function<void(QLatin1StringView phase, const std::optional<BackupProgress>& progress)>;

    /// `history` and `stop` must outlive this object.
    Backup(const Destination& destination, const Configuration& configuration, const Folders& folders, History& history,
           const StopRequest& stop, Observer observer);

    BackupResult run();

private:
    struct Problem;
    struct Stopped {};

    void findDisk() const;
    void prepareRepository();
    QStringList findSources();
    void copy(const QStringList& sourceArguments);
    void remember();
    void cleanUp();
    bool newestBackupIsDatedLast() const;
    void thin();
    void makeRoom();
    void resticOrThrow(const QStringList& arguments) const;
    LastFailure failure(const Problem& problem) const;
    std::optional<LastFailure> remark() const;

    Destination destination_;
    Configuration configuration_;
    Folders folders_;
    History& history_;
    const StopRequest& stop_;
    Observer observer_;
    QStringList lackingSources_; ///< sentences on those that are not there or left out
    QString snapshotId_;
    qlonglong unreadFiles_ = 0;
    QString thinningProblem_;
    BackupResult result_;
};

} // namespace quillon
