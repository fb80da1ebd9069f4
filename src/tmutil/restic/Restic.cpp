#include "Restic.h"

#include "Destination.h"
#include "Repository.h"
#include "ResticDiagnosis.h"

#include <QDir>
#include <QEventLoop>
#include <QJsonDocument>
#include <QProcess>
#include <QSocketNotifier>
#include <QStandardPaths>
#include <QTimer>

#include <chrono>
#include <csignal>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace quillon {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

bool endWithParent(int signal, pid_t parent) noexcept
{
    prctl(PR_SET_PDEATHSIG, signal);
    return getppid() == parent;
}

namespace {

int blockedSignalsDescriptor()
{
    sigset_t signals{};
    sigemptyset(&signals);
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        sigaddset(&signals, number);
    sigprocmask(SIG_BLOCK, &signals, nullptr);
    return signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
}

} // namespace

StopRequest::StopRequest()
    : descriptor_(blockedSignalsDescriptor())
{
    auto* notifier = new QSocketNotifier(descriptor_, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &StopRequest::readSignal);
}

StopRequest::~StopRequest()
{
    close(descriptor_);
}

void StopRequest::readSignal()
{
    signalfd_siginfo information{};
    if (read(descriptor_, &information, sizeof information) != sizeof information || made_)
        return;
    made_ = true;
    Q_EMIT made();
}

namespace {

constexpr qsizetype errorTextBound = qsizetype{64} * 1024;

// restic answers an interrupt at once; a disk that hangs may keep it.
constexpr auto patience = 30s;

// How often it is looked whether the disk is still there. Without it, restic would try for minutes.
constexpr auto diskInterval = 500ms;
constexpr auto patienceWithoutDisk = 3s;

// A killed worker's restic is interrupted and ends at once; init may take two seconds to notice, and until then restic
// takes it for alive.
constexpr int unlockings = 6;
constexpr auto lockInterval = 1s;

QStringList searchPath()
{
    return u"" QUILLON_RESTIC_FOLDERS ""_s.split(u':');
}

/// Runs in the child, between fork and exec. Without a folder, a number below zero, it stays where it is.
void prepareChild(int folder, pid_t parent)
{
    if (!endWithParent(SIGINT, parent) || (folder >= 0 && fchdir(folder) != 0))
        _exit(126);
    sigset_t none{};
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    std::signal(SIGINT, SIG_DFL); // a shell's background jobs inherit it ignored
}

void readOutput(QProcess& process, const Restic::LineHandler& onOutput, bool inPieces, ResticOutcome& outcome)
{
    process.setReadChannel(QProcess::StandardOutput);
    if (!onOutput) {
        outcome.output += process.readAll();
        return;
    }
    if (inPieces)
        return onOutput(process.readAll());
    while (process.canReadLine())
        onOutput(process.readLine());
}

/// From 0.17 on, what ends a restic that was asked for JSON is a message, too (restic, "Scripting: JSON output").
bool keepWordsOfEnd(const QByteArray& line, ResticOutcome& outcome)
{
    const auto message = QJsonDocument::fromJson(line);
    if (message["message_type"_L1].toString() != "exit_error"_L1)
        return false;
    outcome.errorText += message["message"_L1].toString() + u'\n';
    return true;
}

void readMessages(QProcess& process, const Restic::LineHandler& onMessage, ResticOutcome& outcome)
{
    process.setReadChannel(QProcess::StandardError);
    while (process.canReadLine()) {
        const QByteArray line = process.readLine();
        if (onMessage)
            onMessage(line);
        const bool isMessage = line.startsWith('{');
        const bool isKept = isMessage && keepWordsOfEnd(line, outcome);
        if (!isKept && !(isMessage && onMessage) && outcome.errorText.size() < errorTextBound)
            outcome.errorText += QString::fromUtf8(line);
    }
}

bool isLocked(const ResticOutcome& outcome)
{
    return outcome.exitStatus != 0 && outcome.diagnosis().problem == ResticProblem::Locked;
}

void interrupt(QProcess& process, std::chrono::milliseconds limit)
{
    if (process.state() == QProcess::NotRunning)
        return; // it has no identifier any more
    ::kill(static_cast<pid_t>(process.processId()), SIGINT);
    QTimer::singleShot(limit, &process, &QProcess::kill);
}

} // namespace

ResticDiagnosis ResticOutcome::diagnosis() const
{
    if (diskGone || stuck)
        return ResticDiagnosis::of(diskGone ? ResticProblem::DiskGone : ResticProblem::NoSpace);
    return onNetwork ? ResticDiagnosis::ofNetwork(errorText, exitStatus, workFolder)
                     : ResticDiagnosis::of(errorText, exitStatus, workFolder);
}

Failure ResticOutcome::failure() const
{
    return diagnosis().failure();
}

void ResticOutcome::require() const
{
    if (exitStatus != 0)
        throw failure();
}

Restic::Restic(const Repository& repository, const Folders& folders, const StopRequest* stop, const QString& keyFile)
    : repository_(repository)
    , executable_(executable())
    , environment_(
          {u"HOME="_s + folders.home, u"PATH="_s + searchPath().join(u':'),
           u"RESTIC_CACHE_DIR="_s + cacheFolder(folders), u"TMPDIR="_s + cacheFolder(folders),
           u"RESTIC_PASSWORD_FILE="_s +
               (keyFile.isEmpty() ? KeyStore(folders.configuration).path(repository.destination().id) : keyFile),
           u"RESTIC_PROGRESS_FPS=3"_s})
    , workFolder_(cacheFolder(folders))
    , stop_(stop)
{
    if (keyFile.isEmpty())
        KeyStore(folders.configuration).require(repository.destination());
    if (const NetworkAccess* const access = repository.access()) {
        environment_ += access->environment();
        options_ = access->options();
    } else {
        options_ = {u"--repo"_s, u"."_s};
    }
    QDir().mkpath(workFolder_); // its temporary files need it ahead of its cache
}

QString Restic::executable(const QString& program)
{
    QString found = QStandardPaths::findExecutable(program, searchPath());
    if (found.isEmpty())
        throw Failure(ExitStatus::ResticMissing, u"%1 is not installed."_s.arg(program), u"ResticMissing"_s);
    return found;
}

void Restic::prepare(QProcess& process, const QStringList& arguments) const
{
    const RepositoryFolder* const folder = repository_.folder();
    process.setProgram(executable_);
    process.setArguments(options_ + arguments);
    process.setEnvironment(environment_);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setWorkingDirectory(workFolder_);
    process.setChildProcessModifier(
        [folder = folder != nullptr ? folder->descriptor() : -1, parent = getpid()] { prepareChild(folder, parent); });
}

ResticOutcome Restic::run(const QStringList& arguments, const LineHandler& onOutput, const LineHandler& onMessage) const
{
    ResticOutcome outcome;
    outcome.onNetwork = repository_.access() != nullptr;
    QProcess process;
    QEventLoop loop;
    prepare(process, arguments);
    QObject::connect(&process, &QProcess::readyReadStandardOutput, &process,
                     [&] { readOutput(process, onOutput, inPieces_, outcome); });
    QObject::connect(&process, &QProcess::readyReadStandardError, &process,
                     [&] { readMessages(process, onMessage, outcome); });
    QObject::connect(&process, &QProcess::finished, &loop, &QEventLoop::quit);
    QObject::connect(&process, &QProcess::errorOccurred, &loop, [&](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            loop.quit();
    });
    if (stop_ != nullptr)
        QObject::connect(stop_, &StopRequest::made, &process, [&process] { interrupt(process, patience); });
    QTimer diskWatch;
    QObject::connect(&diskWatch, &QTimer::timeout, &process, [&] {
        outcome.diskGone = !repository_.isStillThere();
        outcome.stuck = !outcome.diskGone && isStuck_ && isStuck_();
        if (!outcome.diskGone && !outcome.stuck)
            return;
        diskWatch.stop();
        interrupt(process, patienceWithoutDisk);
    });
    diskWatch.start(diskInterval);

    process.start();
    if (!process.waitForStarted()) {
        return {.exitStatus = 127, .output = {}, .errorText = process.errorString(), .workFolder = {}};
    }
    if (isStopped())
        interrupt(process, patience);
    if (process.state() != QProcess::NotRunning)
        loop.exec();

    readOutput(process, onOutput, inPieces_, outcome);
    readMessages(process, onMessage, outcome);
    outcome.workFolder = workFolder_;
    outcome.diskGone = outcome.diskGone || !repository_.isStillThere();
    outcome.exitStatus = process.exitStatus() == QProcess::CrashExit ? -process.exitCode() : process.exitCode();
    return outcome;
}

ResticOutcome Restic::runUnlocking(const QStringList& arguments, const LineHandler& onOutput,
                                   const LineHandler& onMessage) const
{
    auto outcome = run(arguments, onOutput, onMessage);
    for (int unlocked = 0; unlocked < unlockings && isLocked(outcome) && !isStopped(); ++unlocked) {
        if (unlocked > 0)
            pause();
        removeStaleLocks(repository_, *this);
        if (isStopped())
            break;
        outcome = run(arguments, onOutput, onMessage);
    }
    return outcome;
}

bool Restic::isStopped() const
{
    return stop_ != nullptr && stop_->isMade();
}

/// A stop ends it.
void Restic::pause() const
{
    QEventLoop loop;
    QTimer::singleShot(lockInterval, &loop, &QEventLoop::quit);
    if (stop_ != nullptr)
        QObject::connect(stop_, &StopRequest::made, &loop, &QEventLoop::quit);
    if (!isStopped())
        loop.exec();
}

Restic Restic::endedWhen(const std::function<bool()>& isStuck) const
{
    Restic other = *this;
    other.isStuck_ = isStuck;
    return other;
}

Restic Restic::readInPieces() const
{
    Restic other = *this;
    other.inPieces_ = true;
    return other;
}

Restic Restic::withFeature(const QString& name) const
{
    Restic other = *this;
    other.environment_.append(u"RESTIC_FEATURES="_s + name);
    return other;
}

QString Restic::literalPattern(const QString& path)
{
    QString pattern;
    for (const QChar character : path) {
        if (u"\\*?["_s.contains(character))
            pattern += u'\\';
        // A byte that is no UTF-8, as decodePath() gives it, cannot be passed on; restic takes each for one character.
        const bool isByte = character.unicode() >= 0xDC80 && character.unicode() <= 0xDCFF;
        const bool isPair = pattern.size() > 0 && pattern.back().isHighSurrogate();
        pattern += (isByte && !isPair) || character == QChar::ReplacementCharacter ? QChar(u'?') : character;
    }
    return pattern;
}

QString Restic::cacheFolder(const Folders& folders)
{
    return folders.cache + "/restic"_L1;
}

} // namespace quillon
