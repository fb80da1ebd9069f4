#include "TMUtil.h"

#include "HostSystem.h"
#include "TMReports.h"

#include <chrono>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

bool onlyReads(const QString& command)
{
    return command == "status"_L1 || command == "destinationinfo"_L1;
}

/// How long a child may run: a backup disk that must spin up first takes its time to answer a start.
std::chrono::seconds timeLimit(const QString& command)
{
    return onlyReads(command) ? 60s : 120s;
}

std::optional<QByteArray> onlyUtf8(const std::optional<QByteArray>& output)
{
    return output && output->isValidUtf8() ? output : std::nullopt;
}

} // namespace

QString tmutilPath()
{
    const QString chosen = qEnvironmentVariable("QUILLON_TMUTIL");
    return chosen.isEmpty() ? systemTmutilPath() : chosen;
}

TMUtilQueue::TMUtilQueue(TaskLauncher& launcher, RunLoop& runLoop, QString executable)
    : launcher_(launcher)
    , runLoop_(runLoop)
    , executable_(std::move(executable))
{
}

void TMUtilQueue::submit(Request request)
{
    if (shutDown_)
        return;
    if (delivering_) {
        waiting_.insert(waiting_.begin() + static_cast<std::ptrdiff_t>(urgent_), std::move(request));
        ++urgent_;
    } else {
        waiting_.push_back(std::move(request));
    }
    if (!busy_)
        launchNext();
}

void TMUtilQueue::shutDown()
{
    if (child_ && !onlyReads(childCommand_))
        child_.reset();
    abandon();
}

void TMUtilQueue::abandon()
{
    shutDown_ = true;
    waiting_.clear();
    timeout_.invalidate();
    if (child_)
        child_->kill();
    child_.reset();
}

void TMUtilQueue::launchNext()
{
    delivering_ = false;
    urgent_ = 0;
    busy_ = !waiting_.empty();
    if (!busy_)
        return;
    Request request = std::move(waiting_.front());
    waiting_.pop_front();
    if (request.enterSlot)
        request.enterSlot(handlers_);
    childCommand_ = request.command;

    TaskRequest task;
    task.executable = executable_;
    task.arguments = QStringList(request.command) + request.arguments;
    // The tool runs with this one variable; it names the command to whoever looks at the process.
    task.environment = {u"command="_s + request.command};
    // A start that outlives this program must not die of printing to a pipe that nobody reads any more.
    task.captureOutput = request.parse || request.ended;
    task.captureErrors = static_cast<bool>(request.ended);
    task.input = request.input;
    tooSlow_ = false;
    timeout_ = runLoop_.scheduleAfter(request.longest.value_or(timeLimit(request.command)), [this] {
        tooSlow_ = true;
        child_->kill();
    });
    child_ = launcher_.launch(
        task, [this, request = std::move(request)](const TaskResult& result) { childEnded(request, result); });
}

void TMUtilQueue::childEnded(const Request& request, const TaskResult& result)
{
    if (shutDown_)
        return;
    const std::weak_ptr<void> life = life_; // a handler may do away with whoever asked, and with this
    timeout_.invalidate();
    delivering_ = true;
    reportExitStatus(request.command, result.status);
    if (request.parse)
        request.parse(onlyUtf8(result.output));
    if (request.ended)
        request.ended(result, tooSlow_);
    if (life.expired())
        return;
    // Behind the blocks that the handlers have just queued.
    runLoop_.enqueue([this, life] {
        if (life.expired())
            return;
        child_.reset();
        launchNext();
    });
}

void TMUtilQueue::reportExitStatus(const QString& command, int status)
{
    const TMUtilHandlers& handlers = handlers_;
    if (command == "status"_L1) {
        if (status > 0 && handlers.status)
            handlers.status(TMStatus::failure());
    } else if (command == "startbackup"_L1) {
        if (handlers.startbackup)
            handlers.startbackup(status, status == 0);
    } else if (command == "stopbackup"_L1) {
        if (handlers.stopbackup)
            handlers.stopbackup(status != 0, status == 0);
    } else if (command == "destinationinfo"_L1) {
        if (status > 0 && handlers.destinationinfo)
            handlers.destinationinfo(true, {});
    }
}

TMUtil::TMUtil(TMUtilQueue& queue, TimeMachineSettings& settings)
    : queue_(queue)
    , settings_(settings)
{
}

void TMUtil::getStatusWithCompletionHandler(StatusHandler handler)
{
    callTMUtilWithCommand(
        u"status"_s, {}, [handler = std::move(handler)](TMUtilHandlers& handlers) { handlers.status = handler; },
        [&queue = queue_](const std::optional<QByteArray>& output) {
            if (const auto reportTo = queue.handlers().status)
                reportTo(TMStatus::fromOutput(output));
        });
}

void TMUtil::getBackupDestinationsWithCompletionHandler(DestinationsHandler handler)
{
    callTMUtilWithCommand(
        u"destinationinfo"_s, {u"-X"_s},
        [handler = std::move(handler)](TMUtilHandlers& handlers) { handlers.destinationinfo = handler; },
        [&queue = queue_](const std::optional<QByteArray>& output) {
            const auto destinations = BackupDestinations::fromOutput(output);
            if (const auto reportTo = queue.handlers().destinationinfo)
                reportTo(destinations.success, destinations.list);
        });
}

void TMUtil::startBackupOnDiskWithIdentifier(const QString& identifier, bool rotateBackupDisks, StartHandler handler)
{
    QStringList arguments;
    if (!identifier.isEmpty())
        arguments = {u"-d"_s, identifier};
    else if (rotateBackupDisks)
        arguments = {u"-r"_s};
    callTMUtilWithCommand(u"startbackup"_s, arguments,
                          [handler = std::move(handler)](TMUtilHandlers& handlers) { handlers.startbackup = handler; },
                          {});
}

void TMUtil::stopBackupWithCompletionHandler(StopHandler handler)
{
    callTMUtilWithCommand(u"stopbackup"_s, {},
                          [handler = std::move(handler)](TMUtilHandlers& handlers) { handlers.stopbackup = handler; },
                          {});
}

void TMUtil::openTimeMachineSettings(const QString& applicationName)
{
    settings_.open(applicationName);
}

QString TMUtil::stringForBackupPhase(const QString& rawPhase) const
{
    return backupphase::phrase(rawPhase);
}

void TMUtil::callTMUtilWithCommand(const QString& command, const QStringList& arguments,
                                   std::function<void(TMUtilHandlers&)> enterSlot,
                                   std::function<void(const std::optional<QByteArray>&)> parse)
{
    queue_.submit({command, arguments, std::move(enterSlot), std::move(parse)});
}

} // namespace quillon
