#include "Restic.h"

#include "Failure.h"
#include "KeyStore.h"
#include "StopRequest.h"

#include <QDir>
#include <QEventLoop>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>

#include <chrono>
#include <csignal>
#include <sys/prctl.h>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr qsizetype errorTextBound = qsizetype{64} * 1024;

// restic answers an interrupt at once; a disk that hangs may keep it.
constexpr auto patience = 30s;

QStringList searchPath()
{
    return {u"/usr/local/bin"_s, u"/usr/bin"_s, u"/bin"_s};
}

/// Runs in the child, between fork and exec.
void prepareChild()
{
    sigset_t none{};
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    std::signal(SIGINT, SIG_DFL); // a shell's background jobs inherit it ignored
    prctl(PR_SET_PDEATHSIG, SIGINT);
}

void readOutput(QProcess& process, const Restic::LineHandler& onOutput, ResticOutcome& outcome)
{
    process.setReadChannel(QProcess::StandardOutput);
    if (!onOutput) {
        outcome.output += process.readAll();
        return;
    }
    while (process.canReadLine())
        onOutput(process.readLine());
}

void readMessages(QProcess& process, const Restic::LineHandler& onMessage, ResticOutcome& outcome)
{
    process.setReadChannel(QProcess::StandardError);
    while (process.canReadLine()) {
        const QByteArray line = process.readLine();
        if (onMessage && line.startsWith('{'))
            onMessage(line);
        else if (outcome.errorText.size() < errorTextBound)
            outcome.errorText += QString::fromUtf8(line);
    }
}

void interrupt(QProcess& process)
{
    if (process.state() == QProcess::NotRunning)
        return; // it has no identifier any more
    ::kill(static_cast<pid_t>(process.processId()), SIGINT);
    QTimer::singleShot(patience, &process, &QProcess::kill);
}

} // namespace

Restic::Restic(const Destination& destination, const Folders& folders, const StopRequest* stop)
    : executable_(executable())
    , repository_(destination.repository())
    , environment_({u"HOME="_s + folders.home, u"PATH="_s + searchPath().join(u':'),
                    u"RESTIC_CACHE_DIR="_s + cacheFolder(folders), u"TMPDIR="_s + cacheFolder(folders),
                    u"RESTIC_PASSWORD_FILE="_s + KeyStore(folders.configuration).path(destination.id),
                    u"RESTIC_PROGRESS_FPS=3"_s})
    , stop_(stop)
{
    QDir().mkpath(cacheFolder(folders)); // its temporary files need it ahead of its cache
}

QString Restic::executable()
{
    QString found = QStandardPaths::findExecutable(u"restic"_s, searchPath());
    if (found.isEmpty())
        throw Failure(ExitStatus::ResticMissing, u"restic is not installed."_s);
    return found;
}

QString Restic::tag()
{
    return u"quillon"_s;
}

ResticOutcome Restic::run(const QStringList& arguments, const LineHandler& onOutput, const LineHandler& onMessage) const
{
    return runOn(repository_, arguments, onOutput, onMessage);
}

ResticOutcome Restic::runOn(const QString& repository, const QStringList& arguments, const LineHandler& onOutput,
                            const LineHandler& onMessage) const
{
    ResticOutcome outcome;
    QProcess process;
    QEventLoop loop;
    process.setEnvironment(environment_);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setChildProcessModifier(prepareChild);
    QObject::connect(&process, &QProcess::readyReadStandardOutput, &process,
                     [&] { readOutput(process, onOutput, outcome); });
    QObject::connect(&process, &QProcess::readyReadStandardError, &process,
                     [&] { readMessages(process, onMessage, outcome); });
    QObject::connect(&process, &QProcess::finished, &loop, &QEventLoop::quit);
    QObject::connect(&process, &QProcess::errorOccurred, &loop, [&](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            loop.quit();
    });
    if (stop_ != nullptr)
        QObject::connect(stop_, &StopRequest::made, &process, [&process] { interrupt(process); });

    process.start(executable_, QStringList{u"--repo"_s, repository} + arguments);
    if (!process.waitForStarted()) {
        return {.exitStatus = 127, .output = {}, .errorText = process.errorString()};
    }
    if (stop_ != nullptr && stop_->isMade())
        interrupt(process);
    if (process.state() != QProcess::NotRunning)
        loop.exec();

    readOutput(process, onOutput, outcome);
    readMessages(process, onMessage, outcome);
    outcome.exitStatus = process.exitStatus() == QProcess::CrashExit ? -process.exitCode() : process.exitCode();
    return outcome;
}

QString Restic::literalPattern(const QString& path)
{
    QString pattern;
    for (const QChar character : path) {
        if (u"\\*?["_s.contains(character))
            pattern += u'\\';
        pattern += character;
    }
    return pattern;
}

QString Restic::cacheFolder(const Folders& folders)
{
    return folders.cache + "/restic"_L1;
}

} // namespace quillon
