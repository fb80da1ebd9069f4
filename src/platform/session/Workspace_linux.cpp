#include "Workspace_linux.h"

#include "RunLoop.h"
#include "Services.h"

#include <QFile>
#include <QProcess>
#include <QSocketNotifier>

#include <optional>
#include <utility>

namespace quillon {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

LogindSleepWatch::LogindSleepWatch(const QDBusConnection& systemBus, QString reason)
    : reason_(std::move(reason))
    , lock_(systemBus, LogindSleepLock::Mode::Delay)
{
    if (!systemBus.isConnected())
        return;
    QDBusConnection(systemBus).connect(logind::service, logind::path, logind::interface, u"PrepareForSleep"_s, this,
                                       SLOT(prepareForSleep(bool)));
    connect(&lock_, &LogindSleepLock::ownerChanged, this, &LogindSleepWatch::ownerChanged);
    lock_.hold(reason_);
}

void LogindSleepWatch::prepareForSleep(bool start)
{
    sleeping_ = start;
    if (start) {
        Q_EMIT willSleep();
        lock_.release();
    } else {
        lock_.hold(reason_);
        Q_EMIT didWake();
    }
}

void LogindSleepWatch::ownerChanged()
{
    // Who announced the sleep cannot announce the wake any more. A wake too many does no harm, a missing one would
    // leave the schedule on hold.
    if (sleeping_)
        prepareForSleep(false);
}

namespace {

// What xdg-open(1) cannot open it refuses within moments; whatever runs for longer is the program that shows the page.
constexpr Seconds longestRefusal = 10s;

// QProcess ends its child when it is destroyed. With a shell in between, that is the shell: a browser that xdg-open
// runs in the foreground outlives this program.
constexpr auto openInBackground = "xdg-open \"$1\" & wait \"$!\""_L1;

/// One address on its way; a child of the workspace, gone when the process has ended.
class Opening final : public QObject {
public:
    Opening(RunLoop& runLoop, Workspace::Completion completion, QObject* parent)
        : QObject(parent)
        , runLoop_(runLoop)
        , completion_(std::move(completion))
    {
        process_.setStandardInputFile(QProcess::nullDevice());
        process_.setStandardOutputFile(QProcess::nullDevice());
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        connect(&process_, &QProcess::finished, this,
                [this](int status, QProcess::ExitStatus exit) { finish(exit == QProcess::NormalExit && status == 0); });
        connect(&process_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                finish(false);
        });
    }

    ~Opening() override
    {
        process_.disconnect(this);
        process_.kill();
        process_.waitForFinished();
    }

    void start(const QUrl& url)
    {
        patience_ = runLoop_.scheduleAfter(longestRefusal, [this] { report(true); });
        process_.start(u"/bin/sh"_s, {u"-c"_s, openInBackground, u"sh"_s, url.toString(QUrl::FullyEncoded)});
    }

private:
    void finish(bool opened)
    {
        report(opened);
        deleteLater();
    }

    void report(bool opened)
    {
        patience_.invalidate();
        if (auto completion = std::exchange(completion_, {}))
            runLoop_.enqueue([completion = std::move(completion), opened] { completion(opened); });
    }

    RunLoop& runLoop_;
    Workspace::Completion completion_;
    Timer patience_;
    QProcess process_;
};

} // namespace

LinuxWorkspace::LinuxWorkspace(RunLoop& runLoop, const QDBusConnection& systemBus, WorkspaceNeeds needs)
    : runLoop_(runLoop)
    , ownPrograms_(std::move(needs.ownPrograms))
    , ownApplications_(std::move(needs.ownApplications))
    , sleepWatch_(systemBus, std::move(needs.sleepReason))
{
    connect(&sleepWatch_, &LogindSleepWatch::willSleep, this, &Workspace::willSleep);
    connect(&sleepWatch_, &LogindSleepWatch::didWake, this, &Workspace::didWake);
}

void LinuxWorkspace::openURL(const QUrl& url, Completion completion)
{
    if (const QString program = ownPrograms_.value(url); !program.isEmpty()) {
        report(QProcess::startDetached(program, {}), std::move(completion));
        return;
    }
    // xdg-open would take the text of a relative address for a file name or an option.
    if (url.isValid() && !url.isRelative()) {
        auto* opening = new Opening(runLoop_, std::move(completion), this);
        opening->start(url);
    } else {
        report(false, std::move(completion));
    }
}

void LinuxWorkspace::openApplication(const QString& bundleIdentifier, Completion completion)
{
    const QString program = ownApplications_.value(bundleIdentifier);
    report(!program.isEmpty() && QProcess::startDetached(program, {}), std::move(completion));
}

void LinuxWorkspace::report(bool opened, Completion completion)
{
    if (completion)
        runLoop_.enqueue([completion = std::move(completion), opened] { completion(opened); });
}

std::unique_ptr<Workspace> makeWorkspace(RunLoop& runLoop, const WorkspaceNeeds& needs)
{
    return std::make_unique<LinuxWorkspace>(runLoop, QDBusConnection::systemBus(), needs);
}

namespace {

/// The kernel marks the list of mounts as exceptional once for every change, proc(5).
class KernelMountWatch final : public MountWatch {
public:
    void setWatching(bool watching) override
    {
        if (watching == change_.has_value())
            return;
        change_.reset();
        mounts_.close();
        if (!watching || !mounts_.open(QIODevice::ReadOnly))
            return;
        change_.emplace(mounts_.handle(), QSocketNotifier::Exception);
        connect(&*change_, &QSocketNotifier::activated, this, &MountWatch::changed);
    }

private:
    QFile mounts_{u"/proc/self/mountinfo"_s};
    std::optional<QSocketNotifier> change_;
};

} // namespace

std::unique_ptr<MountWatch> makeMountWatch()
{
    return std::make_unique<KernelMountWatch>();
}

} // namespace quillon
