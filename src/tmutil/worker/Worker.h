#pragma once

#include "Backup.h"
#include "Configuration.h"
#include "Failure.h"
#include "Paths.h"
#include "Restic.h"
#include "RunState.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QString>

#include <optional>

namespace quillon {

/// The worker's end of the line to the `startbackup` that has started it. The caller may hang up at any time.
class CallerChannel {
public:
    /// The descriptor at which a worker finds its channel.
    static constexpr int descriptor = 3;

    /// The lock is held, and the status shows the run.
    void tellReady() const;

    /// The worker ends.
    void tellEnd(ExitStatus status, const QString& message) const;

private:
    static void send(const QByteArray& line);
};

/// Starts a worker for that destination, in a session of its own and with nothing of this process open, and returns
/// once `status` shows the run; with `block` when the run has ended, with what is to be said about it. Throws Failure
/// when the worker did not begin or, with `block`, when the backup did not complete.
QString startWorker(const QString& destinationId, bool block);

/// Asks the running worker to end and returns once its state tells so. Does nothing where no backup runs or where it is
/// complete but for the good-bye. A verification is ended, too.
void stopWorker(const QString& stateFolder);

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
