#include "Worker.h"

#include "CallerChannel.h"
#include "DestinationChoice.h"
#include "Failure.h"
#include "History.h"
#include "ReportMarks.h"

#include <QDir>
#include <QEventLoop>
#include <QThread>
#include <QTimer>
#include <QUuid>

#include <chrono>
#include <functional>
#include <linux/ioprio.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// Callers that watch a run ask every three seconds, and one that first sees a run while it finishes has to see it once
// more to know that it was a run that completed: counted from the first answer that tells of it.
constexpr auto shortestFinishing = 6s;
constexpr auto longestWait = 10s;

// For a predecessor to let go of the lock that it no longer needs.
constexpr auto lockWait = 5s;

// Nobody looks more often than five times a second.
constexpr auto progressInterval = 200ms;

/// Best effort, but last in line: in the idle class the disk's other users could keep even `status` from an answer.
void lowerPriority()
{
    constexpr int leastOfBestEffort = 7;
    syscall(SYS_ioprio_set, IOPRIO_WHO_PROCESS, 0, IOPRIO_PRIO_VALUE(IOPRIO_CLASS_BE, leastOfBestEffort));
    [[maybe_unused]] const int niceness = nice(10);
}

/// Lets events pass until the condition holds; it is asked every 50 ms.
void waitUntil(const std::function<bool()>& condition)
{
    QEventLoop loop;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
        if (condition())
            loop.quit();
    });
    timer.start(50ms);
    if (!condition())
        loop.exec();
}

/// What a killed worker was writing when it died.
void removeUnfinishedFiles(const QString& stateFolder)
{
    QDir folder(stateFolder);
    for (const QString& name : folder.entryList({u"*.plist.*"_s}, QDir::Files))
        folder.remove(name);
}

Failure endOf(const BackupResult& result)
{
    const QString description = result.failure ? result.failure->description : QString();
    switch (result.end) {
    case BackupResult::End::Completed:
        return {ExitStatus::Success, description};
    case BackupResult::End::Stopped:
        return {ExitStatus::Stopped, u"The backup was stopped."_s};
    case BackupResult::End::Failed:
        break;
    }
    return {ExitStatus::Failed, description};
}

} // namespace

Worker::Worker(const Folders& folders)
    : folders_(folders)
    , configuration_(folders)
{
}

void Worker::run(const QString& destinationId)
{
    lowerPriority();
    const Destination destination = namedDestination(configuration_.destinations(), destinationId);
    begin(destination);
    const CallerChannel caller;
    caller.tellReady();

    History history(folders_.state);
    history.setLastDestination(destination.id);
    history.save();
    connectStop();
    Backup backup(destination, configuration_, folders_, history, stop_,
                  [this](QLatin1StringView phase, const auto& progress) { show(phase, progress); });
    const BackupResult result = backup.run();
    record(result, history);
    waitUntilSeen(result);

    RunState::remove(folders_.state);
    lock_.reset();
    const Failure end = endOf(result);
    caller.tellEnd(end.status(), end.message());
}

void Worker::begin(const Destination& destination)
{
    makePrivateFolder(folders_.state);
    lock_.emplace(RunState::lockPath(folders_.state));
    const QDeadlineTimer limit(lockWait);
    // Asked before the lock is held, which a look at its holder would drop.
    auto abandoned = RunState::abandoned(folders_.state);
    while (!lock_->tryLock()) {
        if (RunState::current(folders_.state) || limit.hasExpired())
            throw Failure(ExitStatus::AlreadyRunning, u"A backup is already running."_s);
        QThread::msleep(20);
        abandoned = RunState::abandoned(folders_.state);
    }

    removeUnfinishedFiles(folders_.state);
    if (abandoned) {
        History history(folders_.state);
        history.setLastFailure(abandoned->interruption());
        history.save();
    }
    ReportMarks(folders_.state).clear();
    state_ = {.runId = QUuid::createUuid().toString(QUuid::WithoutBraces),
              .worker = getpid(),
              .destinationId = destination.id,
              .mountPoint = destination.path,
              .phase = {},
              .stateChange = {},
              .stopping = false,
              .progress = {}};
    if (!show(phase::starting))
        throw Failure(ExitStatus::CannotWrite, u"The folder \"%1\" cannot be written to."_s.arg(folders_.state));
}

void Worker::connectStop()
{
    QObject::connect(&stop_, &StopRequest::made, &stop_, [this] {
        if (state_.isFinishing())
            return; // complete already
        state_.stopping = true;
        state_.write(folders_.state);
    });
}

bool Worker::show(QLatin1StringView phase, const std::optional<BackupProgress>& progress)
{
    state_.progress = progress;
    if (state_.phase != phase) {
        state_.phase = phase;
        state_.stateChange = statusDate(QDateTime::currentDateTimeUtc());
    } else if (!nextProgress_.hasExpired()) {
        return true;
    }
    nextProgress_.setRemainingTime(progressInterval);
    return state_.write(folders_.state);
}

void Worker::record(const BackupResult& result, History& history) const
{
    if (result.end != BackupResult::End::Stopped)
        history.setLastFailure(result.failure);
    history.save();
}

void Worker::waitUntilSeen(const BackupResult& result)
{
    const bool completed = result.end == BackupResult::End::Completed;
    if (completed)
        show(phase::finishing);
    const ReportMarks marks(folders_.state);
    QDeadlineTimer earliest(QDeadlineTimer::Forever);
    const QDeadlineTimer latest(longestWait);
    waitUntil([&] {
        if (latest.hasExpired())
            return true;
        if (!completed)
            return marks.isReported(state_.runId);
        if (earliest.isForever() && marks.isFinishingReported(state_.runId))
            earliest.setRemainingTime(shortestFinishing);
        return stop_.isMade() || earliest.hasExpired();
    });
}

} // namespace quillon
