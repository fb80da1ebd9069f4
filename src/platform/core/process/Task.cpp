#include "Task.h"

#include "ProcessInfo.h"

#include <QFile>
#include <QPointer>

#include <unistd.h>
#include <utility>
#include <vector>

namespace quillon {

namespace {

// What the child execs, complete before the fork: between fork and exec nothing may allocate.
class ExecImage {
public:
    explicit ExecImage(const TaskRequest& request)
        : path_(QFile::encodeName(request.executable))
    {
        arguments_.push_back(path_);
        for (const QString& argument : request.arguments)
            arguments_.push_back(argument.toLocal8Bit());
        for (const QString& entry : request.environment)
            environment_.push_back(entry.toLocal8Bit());
        argumentPointers_ = pointersTo(arguments_);
        environmentPointers_ = pointersTo(environment_);
    }

    [[noreturn]] void exec() const
    {
        execve(path_.constData(), argumentPointers_.data(), environmentPointers_.data());
        _exit(TaskResult::launchRefused);
    }

private:
    static std::vector<char*> pointersTo(std::vector<QByteArray>& texts)
    {
        std::vector<char*> pointers;
        for (QByteArray& text : texts)
            pointers.push_back(text.data());
        pointers.push_back(nullptr);
        return pointers;
    }

    QByteArray path_;
    std::vector<QByteArray> arguments_;
    std::vector<QByteArray> environment_;
    std::vector<char*> argumentPointers_;
    std::vector<char*> environmentPointers_;
};

} // namespace

ChildProcess::ChildProcess(const TaskRequest& request, TaskLauncher::Completion completion, QObject* parent)
    : QProcess(parent)
    , completion_(std::move(completion))
    , takeOutput_(request.takeOutput)
    , streamed_(request.takeOutput)
{
    setProgram(request.executable);
    setInputChannelMode(request.input ? ManagedInputChannel : ForwardedInputChannel);
    setProcessChannelMode(request.captureErrors ? SeparateChannels : ForwardedErrorChannel);
    if (!request.captureOutput)
        setStandardOutputFile(nullDevice());
    // QProcess hands LD_LIBRARY_PATH down whatever environment it is given, hence the exec of our own.
    setChildProcessModifier([image = std::make_shared<const ExecImage>(request)] {
        lowerToUtilityPriority();
        image->exec();
    });
    connect(this, &QProcess::readyReadStandardOutput, this, &ChildProcess::collectOutput);
    connect(this, &QProcess::readyReadStandardError, this, &ChildProcess::collectErrors);
    connect(this, &QProcess::finished, this, &ChildProcess::reportLater); // after a signal the status is its number
    connect(this, &QProcess::errorOccurred, this, [this](ProcessError error) {
        if (error == FailedToStart)
            reportLater(TaskResult::launchRefused);
    });
    start(request.input ? ReadWrite : ReadOnly);
    if (request.input) {
        write(*request.input);
        closeWriteChannel();
    }
}

ChildProcess::~ChildProcess()
{
    setProcessState(NotRunning); // otherwise QProcess ends the child and blocks until it is gone
}

void ChildProcess::collectOutput()
{
    if (streamed_) {
        const QByteArray bytes = readAllStandardOutput();
        if (takeOutput_)
            takeOutput_(bytes);
        return;
    }
    output_ += readAllStandardOutput();
    if (outputBoundExceeded_ || output_.size() > Task::outputBound) {
        outputBoundExceeded_ = true;
        output_.clear();
        kill();
    }
}

void ChildProcess::collectErrors()
{
    errors_ = (errors_ + readAllStandardError()).left(Task::errorBound);
}

void ChildProcess::reportLater(int status)
{
    // Queued, so that the completion may destroy the handle or the launcher: QProcess is out of the way by then.
    QMetaObject::invokeMethod(
        this,
        [this, status] {
            const auto completion = std::exchange(completion_, nullptr);
            const TaskResult result{status, outputBoundExceeded_ ? std::nullopt : std::optional(output_), errors_};
            deleteLater();
            if (completion)
                completion(result);
        },
        Qt::QueuedConnection);
}

namespace {

class RunningChild final : public RunningTask {
public:
    explicit RunningChild(ChildProcess* child)
        : child_(child)
    {
    }
    RunningChild(const RunningChild&) = delete;
    RunningChild& operator=(const RunningChild&) = delete;
    ~RunningChild() override
    {
        if (child_)
            child_->forgetCompletion();
    }

    void kill() override
    {
        if (child_)
            child_->kill();
    }

    void terminate() override
    {
        if (child_)
            child_->terminate();
    }

private:
    QPointer<ChildProcess> child_;
};

} // namespace

std::unique_ptr<RunningTask> Task::launch(const TaskRequest& request, Completion completion)
{
    return std::make_unique<RunningChild>(new ChildProcess(request, std::move(completion), &children_));
}

} // namespace quillon
