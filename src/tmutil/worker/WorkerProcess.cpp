#include "Failure.h"
#include "Output.h"
#include "RunState.h"
#include "Verification.h"
#include "Worker.h"

#include <QDeadlineTimer>
#include <QThread>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
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
    constexpr auto patience = 10s;
    const auto run = RunState::current(stateFolder);
    if (!run)
        Verification::stopRunning(stateFolder);
    if (!run || run->isFinishing())
        return;
    kill(run->worker, SIGTERM);
    for (const QDeadlineTimer limit(patience); !limit.hasExpired(); QThread::msleep(20)) {
        const auto now = RunState::current(stateFolder);
        if (!now || now->runId != run->runId || now->stopping || now->isFinishing())
            return;
    }
    throw Failure(ExitStatus::Failed, u"The backup does not react."_s);
}

} // namespace quillon
