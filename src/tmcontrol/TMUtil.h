#pragma once

#include "RunLoop.h"
#include "TMReports.h"
#include "Task.h"
#include "TimeMachineSettings.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>

namespace quillon {

/// Path of the tmutil tool to run: the environment variable QUILLON_TMUTIL unless it is empty, else systemTmutilPath().
QString tmutilPath();

using StatusHandler = std::function<void(const TMStatus& status)>;
using StartHandler = std::function<void(std::int32_t exitStatus, bool success)>;
using StopHandler = std::function<void(bool failed, bool success)>;
using DestinationsHandler = std::function<void(bool success, const QList<BackupDestination>& destinations)>;

/// The handler that reports of each command kind go to: the one of the child launched last, never cleared.
struct TMUtilHandlers {
    StatusHandler status;
    StartHandler startbackup;
    StopHandler stopbackup;
    DestinationsHandler destinationinfo;
};

/// Runs the tmutil tool for all that share it, one child at a time.
///
/// When a child ends, the report of its exit status and then the parser's report are delivered in one turn, and the
/// queue moves on only after the blocks that those handlers queued: what a handler, or such a block, asks for runs
/// ahead of the requests that were already waiting.
class TMUtilQueue {
public:
    struct Request {
        QString command;
        QStringList arguments{};
        /// Puts the request's handler into its slot; called when the child is launched. May be empty.
        std::function<void(TMUtilHandlers&)> enterSlot{};
        /// Reads the child's standard output: nothing when it was not UTF-8 or too long. May be empty.
        std::function<void(const std::optional<QByteArray>&)> parse{};
        /// Takes the end of the child whole, with its standard error; `tooSlow` of one that was killed for its time.
        std::function<void(const TaskResult& result, bool tooSlow)> ended{};
        std::optional<Seconds> longest{};  ///< how long the child may run, where the command's own limit does not fit
        std::optional<QByteArray> input{}; ///< what the child reads from its standard input, where it is to read
    };

    /// `executable` is the path of the tool.
    TMUtilQueue(TaskLauncher& launcher, RunLoop& runLoop, QString executable);

    void submit(Request request);

    /// The program is about to end: reading children are ended, those that start or stop a backup are left to finish,
    /// and nothing more is run or reported.
    void shutDown();

    /// Gives up what runs and what waits; nothing more is run or reported.
    void abandon();

    TMUtilHandlers& handlers() { return handlers_; }

private:
    void launchNext();
    void childEnded(const Request& request, const TaskResult& result);
    void reportExitStatus(const QString& command, int status);

    TaskLauncher& launcher_;
    RunLoop& runLoop_;
    QString executable_;
    TMUtilHandlers handlers_;
    std::deque<Request> waiting_;
    std::unique_ptr<RunningTask> child_;
    QString childCommand_;
    Timer timeout_;
    bool tooSlow_ = false;    ///< the child was killed for its time
    bool busy_ = false;       ///< a child runs, or its reports are being delivered
    bool delivering_ = false; ///< requests made now run next
    std::size_t urgent_ = 0;  ///< how many requests at the front were made during this delivery
    bool shutDown_ = false;
    std::shared_ptr<void> life_ = std::make_shared<int>(); ///< gone with this
};

/// Time Machine control: reads what Time Machine does, starts and stops backups, opens its settings.
///
/// Results travel in handlers. A request that fails may be reported twice: once for the tool's exit status and once by
/// the parser of its output. Queue and settings live as long as the program: answers still under way refer to them.
class TMUtil {
public:
    TMUtil(TMUtilQueue& queue, TimeMachineSettings& settings);

    void getStatusWithCompletionHandler(StatusHandler handler);

    void getBackupDestinationsWithCompletionHandler(DestinationsHandler handler);

    /// Starts a backup to the disk of that identifier, or, where it is empty, to the next disk in rotation or to the
    /// one that Time Machine picks.
    void startBackupOnDiskWithIdentifier(const QString& identifier, bool rotateBackupDisks, StartHandler handler);

    void stopBackupWithCompletionHandler(StopHandler handler);

    /// Brings up the system's Time Machine settings; an alert about it calls this program `applicationName`.
    void openTimeMachineSettings(const QString& applicationName);

    /// English phrase of a raw phase word; "N/A" for none.
    QString stringForBackupPhase(const QString& rawPhase) const;

private:
    /// Runs one command of the tool.
    void callTMUtilWithCommand(const QString& command, const QStringList& arguments,
                               std::function<void(TMUtilHandlers&)> enterSlot,
                               std::function<void(const std::optional<QByteArray>&)> parse);

    TMUtilQueue& queue_;
    TimeMachineSettings& settings_;
};

} // namespace quillon
