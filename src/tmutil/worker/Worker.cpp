#include "Worker.h"

#include "Destination.h"
#include "Failure.h"
#include "History.h"
#include "ProcessInfo.h"
#include "RunState.h"
#include "Verification.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QEventLoop>
#include <QThread>
#include <QTimer>
#include <QUuid>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <spawn.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// What is given to posix_spawn(3): files, signals and session of the worker.
class Surroundings {
public:
    explicit Surroundings(int channel)
    {
        posix_spawn_file_actions_init(&files);
        posix_spawn_file_actions_adddup2(&files, channel, CallerChannel::descriptor);
        posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        for (const int output : {STDOUT_FILENO, STDERR_FILENO})
            posix_spawn_file_actions_addopen(&files, output, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addclosefrom_np(&files, CallerChannel::descriptor + 1);
        posix_spawn_file_actions_addchdir_np(&files, "/"); // whatever disk the caller stands on may be taken out

        posix_spawnattr_init(&attributes);
        sigset_t signals{};
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&attributes, &signals);
        sigfillset(&signals);
        posix_spawnattr_setsigdefault(&attributes, &signals);
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    Surroundings(const Surroundings&) = delete;
    Surroundings& operator=(const Surroundings&) = delete;
    ~Surroundings()
    {
        posix_spawn_file_actions_destroy(&files);
        posix_spawnattr_destroy(&attributes);
    }

    posix_spawn_file_actions_t files{};
    posix_spawnattr_t attributes{};
};

/// Reads the worker's lines.
class Line {
public:
    explicit Line(int descriptor)
        : descriptor_(descriptor)
    {
    }
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;
    ~Line() { close(descriptor_); }

    /// Waits for the next line. Throws Failure when the worker has died without one.
    QByteArray next()
    {
        while (!buffer_.contains('\n')) {
            std::array<char, 1024> bytes{};
            const auto count = read(descriptor_, bytes.data(), bytes.size());
            if (count > 0)
                buffer_.append(bytes.data(), count);
            else if (count == 0 || errno != EINTR)
                throw Failure(ExitStatus::Failed, u"The backup ended unexpectedly."_s);
        }
        const auto end = buffer_.indexOf('\n');
        QByteArray line = buffer_.left(end);
        buffer_.remove(0, end + 1);
        return line;
    }

private:
    int descriptor_;
    QByteArray buffer_;
};

/// The descriptor at which the worker's lines arrive.
int spawnWorker(const QString& destinationId)
{
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
        throw Failure(ExitStatus::Failed, u"The backup cannot be started: %1."_s.arg(qt_error_string(errno)));
    const Surroundings surroundings(ends[1]);
    std::array<QByteArray, 4> words{"tmutil", "runbackup", "-d", destinationId.toUtf8()};
    std::array<char*, 5> arguments{words[0].data(), words[1].data(), words[2].data(), words[3].data(), nullptr};
    pid_t worker = 0;
    const int error = posix_spawn(&worker, "/proc/self/exe", &surroundings.files, &surroundings.attributes,
                                  arguments.data(), environ);
    close(ends[1]);
    if (error != 0) {
        close(ends[0]);
        throw Failure(ExitStatus::Failed, u"The backup cannot be started: %1."_s.arg(qt_error_string(error)));
    }
    return ends[0];
}

} // namespace

void CallerChannel::tellReady() const
{
    send("ready\n");
}

void CallerChannel::tellEnd(ExitStatus status, const QString& message) const
{
    send(QByteArray::number(static_cast<int>(status)) + ' ' + message.simplified().toUtf8() + '\n');
}

void CallerChannel::send(const QByteArray& line)
{
    // Lines this short go out whole. That nobody listens any more is no concern of the backup's.
    [[maybe_unused]] const auto sent =
        ::send(descriptor, line.constData(), static_cast<size_t>(line.size()), MSG_NOSIGNAL);
}

QString startWorker(const QString& destinationId, bool block)
{
    Line worker(spawnWorker(destinationId));
    QByteArray line = worker.next();
    if (line == "ready") {
        if (!block)
            return {};
        line = worker.next();
    }
    const auto blank = line.indexOf(' ');
    const auto status = static_cast<ExitStatus>(line.left(blank).toInt());
    QString message = QString::fromUtf8(line.mid(blank + 1));
    if (status != ExitStatus::Success)
        throw Failure(status, message);
    return message;
}

void stopWorker(const QString& stateFolder)
{
    constexpr auto grace = 10s;
    const auto run = RunState::current(stateFolder);
    if (!run)
        Verification::stopRunning(stateFolder);
    if (!run || run->isFinishing())
        return;
    kill(run->worker, SIGTERM);
    for (const QDeadlineTimer limit(grace); !limit.hasExpired(); QThread::msleep(20)) {
        const auto now = RunState::current(stateFolder);
        if (!now || now->runId != run->runId || now->stopping || now->isFinishing())
            return;
    }
    throw Failure(ExitStatus::Failed, u"The backup does not react."_s);
}

namespace {

// Callers that watch a run ask every three seconds, and one that first sees a run while it finishes has to see it once
// more to know that it was a run that completed: counted from the first answer that tells of it.
constexpr auto shortestFinishing = 6s;
constexpr auto longestWait = 10s;

// For a predecessor to let go of the lock that it no longer needs.
constexpr auto lockWait = 5s;

// Nobody looks more often than five times a second.
constexpr auto progressInterval = 200ms;

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

QString wordFor(BackupResult::End end)
{
    switch (end) {
    case BackupResult::End::Completed:
        return u"Completed"_s;
    case BackupResult::End::Incomplete:
        return u"Incomplete"_s;
    case BackupResult::End::Stopped:
        return u"Stopped"_s;
    case BackupResult::End::Failed:
        break;
    }
    return u"Failed"_s;
}

Failure endOf(const BackupResult& result)
{
    const QString description = result.failure ? result.failure->description : QString();
    switch (result.end) {
    case BackupResult::End::Completed:
        return {ExitStatus::Success, description};
    case BackupResult::End::Incomplete:
        return {ExitStatus::Incomplete, description};
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
{
}

void Worker::run(const QString& destinationId)
{
    lowerToUtilityPriority();
    takeLock();
    const Configuration configuration(folders_); // what removes a disk holds the lock as well
    const Destination destination = namedDestination(configuration.destinations(), destinationId);
    begin(destination);
    const CallerChannel caller;
    caller.tellReady();
    Verification::stopRunning(folders_.state); // it reads on when the backup has ended

    History history(folders_.state);
    history.setLastDestination(destination.id);
    history.save();
    connectStop();
    const BackupResult result = backUp(destination, configuration, history);
    record(result, history);
    waitUntilSeen(result);

    RunState::remove(folders_.state);
    lock_.reset();
    const Failure end = endOf(result);
    caller.tellEnd(end.status(), end.message());
    if (result.end == BackupResult::End::Completed && !stop_.isMade())
        verifyIfDue(destination);
}

/// The disk is let go of when it is done.
BackupResult Worker::backUp(const Destination& destination, const Configuration& configuration, History& history)
{
    const QString begun = statusDate(QDateTime::currentDateTimeUtc());
    Backup backup(destination, configuration, folders_, history, stop_,
                  [this](QLatin1StringView phase, const auto& progress) { show(phase, progress); });
    BackupResult result = backup.run();
    RunLog log = backup.log();
    log.begun = begun;
    log.ended = statusDate(QDateTime::currentDateTimeUtc());
    log.destinationId = destination.id;
    log.disk = destination.name;
    log.result = wordFor(result.end);
    log.description = result.failure ? result.failure->description : QString();
    log.write(folders_.state);
    return result;
}

void Worker::takeLock()
{
    needPrivateFolder(folders_.state);
    lock_.emplace(RunState::lockPath(folders_.state));
    const QDeadlineTimer limit(lockWait);
    // Asked before the lock is held, which a look at its holder would drop.
    abandoned_ = RunState::abandoned(folders_.state);
    while (!lock_->tryLock()) {
        if (RunState::current(folders_.state) || limit.hasExpired())
            throw Failure(ExitStatus::AlreadyRunning, u"A backup is already running."_s);
        QThread::msleep(20);
        abandoned_ = RunState::abandoned(folders_.state);
    }
}

void Worker::begin(const Destination& destination)
{
    removeUnfinishedFiles(folders_.state);
    if (abandoned_) {
        History history(folders_.state);
        history.setLastFailure(abandoned_->destinationId, abandoned_->interruption());
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
        throw Failure(ExitStatus::CannotWrite,
                      hasRoom(folders_.state)
                          ? u"The folder \"%1\" cannot be written to."_s.arg(folders_.state)
                          : u"The disk that holds \"%1\" is full; no backup can be made until there is room."_s.arg(
                                folders_.state));
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
        history.setLastFailure(state_.destinationId, result.failure);
    history.save();
}

/// By now nobody takes this process for a backup any more, and the next one ends it.
void Worker::verifyIfDue(const Destination& destination) const
{
    if (!Verification::isDue(History(folders_.state), destination.id))
        return;
    try {
        if (const auto repository = Repository::open(destination, folders_))
            Verification::runAndRemember(*repository, folders_, stop_, false);
    } catch (const Failure&) { // it is due again after the next backup
    }
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
