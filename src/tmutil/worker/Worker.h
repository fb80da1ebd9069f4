#pragma once

#include "Backup.h"
#include "Configuration.h"
#include "Folders.h"
#include "ProcessLock.h"
#include "RunState.h"
#include "StopRequest.h"

#include <QDeadlineTimer>

#include <optional>

namespace quillon {

class History;

/// The process that backs up: it holds the lock, shows its state to `status` and outlives whoever started it.
class Worker {
public:
    explicit Worker(const Folders& folders);

    /// Backs up to that destination and tells the caller how it ended. Throws Failure before the run is shown.
    void run(const QString& destinationId);

private:
    void takeLock();
    void begin(const Destination& destination);
    BackupResult backUp(const Destination& destination, const Configuration& configuration, History& history);
    void connectStop();
    bool show(QLatin1StringView phase, const std::optional<BackupProgress>& progress = {});
    void record(const BackupResult& result, History& history) const;
    void waitUntilSeen(const BackupResult& result);
    void verifyIfDue(const Destination& destination) const;

    Folders folders_;
    std::optional<ProcessLock> lock_;
    std::optional<RunState> abandoned_; ///< of a worker that died before this one
    StopRequest stop_;
    RunState state_;
    QDeadlineTimer nextProgress_; ///< not before then
};

} // namespace quillon
