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
    void begin(const Destination& destination);
    BackupResult backUp(const Destination& destination, History& history);
    void connectStop();
    bool show(QLatin1StringView phase, const std::optional<BackupProgress>& progress = {});
    void record(const BackupResult& result, History& history) const;
    void waitUntilSeen(const BackupResult& result);
    void verifyIfDue(const Destination& destination) const;

    Folders folders_;
    Configuration configuration_;
    std::optional<ProcessLock> lock_;
    StopRequest stop_;
    RunState state_;
    QDeadlineTimer nextProgress_; ///< not before then
};

} // namespace quillon
