#include "BackupCommands.h"

#include "HostSystem.h"
#include "LocalizedString.h"
#include "StoredAndSent.h"

#include <QFile>
#include <QPointer>
#include <QProcessEnvironment>
#include <QStandardPaths>

#include <algorithm>
#include <chrono>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto longest = 10min;
constexpr qsizetype wordsBound = 2000; // characters, of some tens of thousands of entries

QString nameOf(Hooks::Event event)
{
    switch (event) {
    case Hooks::Event::Before:
        return u"before"_s;
    case Hooks::Event::Completed:
        return u"completed"_s;
    case Hooks::Event::Failed:
        return u"failed"_s;
    case Hooks::Event::Skipped:
        return u"skipped"_s;
    }
    Q_UNREACHABLE();
}

/// What others could have written would run with this user's rights.
bool isOwn(const struct stat& entry)
{
    return (entry.st_uid == geteuid() || entry.st_uid == 0) && (entry.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

bool mayRun(const QString& folder, const QString& program)
{
    struct stat place {};
    struct stat file {};
    const QByteArray path = QFile::encodeName(program);
    return stat(QFile::encodeName(folder).constData(), &place) == 0 && isOwn(place) &&
           stat(path.constData(), &file) == 0 && isOwn(file) && S_ISREG(file.st_mode) &&
           access(path.constData(), X_OK) == 0;
}

/// That of this program, which scripts need for PATH and HOME, and what has happened.
QStringList environmentOf(const QString& event, const LedgerEntry& entry)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QUILLON_EVENT"_s, event);
    environment.insert(u"QUILLON_DISK"_s, entry.diskIdentifier);
    environment.insert(u"QUILLON_DISK_NAME"_s, entry.diskName);
    environment.insert(u"QUILLON_BYTES"_s, entry.bytes ? QString::number(*entry.bytes) : QString());
    environment.insert(
        u"QUILLON_DURATION"_s,
        entry.began && entry.ended
            ? QString::number(std::chrono::duration_cast<std::chrono::seconds>(*entry.ended - *entry.began).count())
            : QString());
    environment.insert(u"QUILLON_REASON"_s, quillon::nameOf(entry.reason));
    return environment.toStringList();
}

/// What it complained of comes last.
QString wordsOf(const QByteArray& output, const QByteArray& errors)
{
    return QString::fromUtf8(output.trimmed() + '\n' + errors).trimmed().right(wordsBound);
}

} // namespace

struct Hooks::Run {
    QPointer<QObject> whoAsks;
    Completion completion;
    std::unique_ptr<RunningTask> child{};
    Timer limit{};
    QByteArray output{};
    bool tookTooLong = false;

    Result resultOf(const QString& program, const TaskResult& ended) const
    {
        const QString words = wordsOf(output, ended.errors);
        if (tookTooLong)
            return {false, localizedString("hookTooLongMessage").arg(program)};
        if (ended.status == 0)
            return {true, words};
        const QString line = words.section(u'\n', -1);
        return {false, line.isEmpty() ? localizedString("hookStatusMessage").arg(program, QString::number(ended.status))
                                      : line};
    }
};

Hooks::Hooks(Services services)
    : services_(std::move(services))
{
}

Hooks::~Hooks() = default;

void Hooks::run(Event event, const LedgerEntry& entry, QObject* whoAsks, const Completion& completion)
{
    const QString program = services_.folder + u'/' + nameOf(event);
    if (services_.folder.isEmpty() || !QFile::exists(program)) {
        completion({});
        return;
    }
    if (!mayRun(services_.folder, program)) {
        services_.runLoop.enqueue([whoAsks = QPointer<QObject>(whoAsks), completion, program] {
            if (whoAsks)
                completion({false, localizedString("hookNotRunMessage").arg(program)});
        });
        return;
    }
    launch(running_.emplace_back(Run{whoAsks, completion}), program, environmentOf(nameOf(event), entry));
}

void Hooks::launch(Run& run, const QString& program, const QStringList& environment)
{
    const TaskRequest request{
        .executable = program,
        .arguments = {},
        .environment = environment,
        .captureErrors = true,
        .takeOutput = [&run](const QByteArray& bytes) { run.output = (run.output + bytes).right(Task::errorBound); }};
    run.limit = services_.runLoop.scheduleAfter(longest, [&run] {
        run.tookTooLong = true;
        run.child->kill();
    });
    run.child = services_.launcher.launch(request, [this, &run, program](const TaskResult& ended) {
        const auto whoAsks = run.whoAsks;
        const auto completion = run.completion;
        const Result result = run.resultOf(program, ended);
        running_.remove_if([&run](const Run& one) { return &one == &run; });
        if (whoAsks)
            completion(result);
    });
}

QString hooksFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/quillon/hooks"_L1;
}

BackupCommands::BackupCommands(const Services& services)
    : services_(services)
{
}

bool BackupCommands::rotateBackupDisks() const
{
    return services_.defaults.integer(settingskeys::rotateBackupDisks) == 1;
}

BackupCommands::ScheduleSwitches BackupCommands::switchesNow() const
{
    const auto end = services_.defaults.date(settingskeys::pauseUntilDate);
    return {services_.dataManager.isScheduleEnabled(), end && *end > services_.runLoop.now() ? end : std::nullopt};
}

void BackupCommands::begin(CommandResultHandler told)
{
    isUnderWay_ = true;
    told_ = std::move(told);
    Q_EMIT began();
}

void BackupCommands::settle(const CommandResult& result)
{
    isUnderWay_ = false;
    services_.follower.updateStatusBar();
    if (const auto told = std::exchange(told_, {}))
        told(result);
    if (const auto waiting = std::exchange(waitingStart_, std::nullopt))
        askForScheduledStart(*waiting);
}

void BackupCommands::backupNowClicked(CommandResultHandler told)
{
    if (isUnderWay_)
        return;
    const bool offeredToStop = services_.follower.run().isActive();
    begin(std::move(told));
    services_.follower.askForStatus(
        [this, offeredToStop](const TMStatus& status) { answerBackupNow(status, offeredToStop); });
}

void BackupCommands::backupNowRequested(CommandResultHandler told)
{
    const BackupRun& run = services_.follower.run();
    if (isUnderWay_ || run.isActive())
        return;
    begin(std::move(told));
    services_.follower.askForStatus([this, &run](const TMStatus& status) {
        if (status.state != TMState::Running && status.state != TMState::Stopping && !run.isActive()) {
            answerBackupNow(status, false);
            return;
        }
        services_.follower.take(status, BackupRun::Asked::ByCommand);
        settle();
    });
}

void BackupCommands::answerBackupNow(const TMStatus& status, bool offeredToStop)
{
    if (offeredToStop && status.state == TMState::Unknown) { // the next poll may know more
        settle({CommandResult::Outcome::Unreadable});
        return;
    }
    const bool mayBeAboutToRun = services_.follower.run().tmState() == TMState::Starting;
    // A run that has ended since the last poll is to be recorded before the next one begins.
    services_.follower.take(status, BackupRun::Asked::ByCommand);
    if (status.state == TMState::Running || status.state == TMState::Stopping || mayBeAboutToRun)
        requestStop();
    else if (offeredToStop)
        settle(); // who wanted to end a run does not want another one
    else
        requestStart({}, rotateBackupDisks());
}

void BackupCommands::backupNowSubMenuItemClicked(const QString& identifier, CommandResultHandler told)
{
    if (isUnderWay_)
        return;
    begin(std::move(told));
    requestStart(identifier, false);
}

void BackupCommands::requestStop()
{
    services_.tmutil.stopBackupWithCompletionHandler([this](bool, bool success) {
        if (success)
            services_.follower.stopAccepted();
        settle({success ? CommandResult::Outcome::Accepted : CommandResult::Outcome::Refused});
    });
}

void BackupCommands::requestStart(const QString& identifier, bool rotateBackupDisks)
{
    const LedgerEntry wanted{
        .date = services_.runLoop.now(), .cause = LedgerEntry::Cause::User, .diskIdentifier = identifier};
    services_.hooks.run(Hooks::Event::Before, wanted, this, [=, this](const Hooks::Result& before) {
        LedgerEntry entry = wanted;
        entry.detail = before.words;
        if (before.succeeded) {
            startNow(entry, rotateBackupDisks);
            return;
        }
        answer(entry, LedgerEntry::Outcome::Skipped, LedgerEntry::Reason::HookFailed);
        if (!told_)
            services_.runLoop.enqueue([this, words = before.words] { tellOfHook(words); });
        settle({.outcome = CommandResult::Outcome::Refused, .hookWords = before.words});
    });
}

void BackupCommands::startNow(const LedgerEntry& start, bool rotateBackupDisks)
{
    services_.tmutil.startBackupOnDiskWithIdentifier(
        start.diskIdentifier, rotateBackupDisks, [this, start](std::int32_t exitStatus, bool success) {
            if (success) {
                // The backup that a waiting start was to begin begins now.
                if (const auto waiting = std::exchange(waitingStart_, std::nullopt))
                    skip(*waiting, LedgerEntry::Reason::StartedByHand);
                services_.follower.startAccepted();
                answer(start, LedgerEntry::Outcome::Running);
            } else {
                answerRefusal(start, exitStatus);
                if (!told_)
                    services_.runLoop.enqueue([this, exitStatus] { tellOfFailedStart(exitStatus); });
            }
            settle({success ? CommandResult::Outcome::Accepted : CommandResult::Outcome::Refused, exitStatus});
        });
}

void BackupCommands::answer(LedgerEntry start, LedgerEntry::Outcome outcome, LedgerEntry::Reason reason)
{
    start.outcome = outcome;
    start.reason = reason;
    Q_EMIT startAnswered(start);
}

void BackupCommands::answerRefusal(LedgerEntry start, std::int32_t exitStatus)
{
    start.exitStatus = exitStatus;
    answer(start, LedgerEntry::Outcome::Refused, LedgerEntry::Reason::ToolRefused);
}

void BackupCommands::skip(const ScheduledStart& scheduled, LedgerEntry::Reason reason)
{
    answer(scheduled.start, LedgerEntry::Outcome::Skipped, reason);
}

void BackupCommands::tellOfFailedStart(std::int32_t exitStatus)
{
    AlertRequest warning;
    warning.messageText = localizedString("AlertTitleWarning");
    warning.informativeText = localizedString("failedToStartBackupMessage").arg(exitStatus);
    if (const QString reason = startFailureReason(exitStatus); !reason.isEmpty())
        warning.informativeText += u"\n\n"_s + reason;
    warning.buttons = {localizedString("AlertButtonClose")};
    services_.alerts.present(warning, {});
}

void BackupCommands::tellOfHook(const QString& words)
{
    AlertRequest warning;
    warning.messageText = localizedString("AlertTitleWarning");
    warning.informativeText = localizedString("hookStoppedBackupMessage") + u"\n\n"_s + words;
    warning.buttons = {localizedString("AlertButtonClose")};
    services_.alerts.present(warning, {});
}

void BackupCommands::startScheduledBackup(const LedgerEntry& start)
{
    askForScheduledStart({switchesNow(), start});
}

void BackupCommands::askForScheduledStart(const ScheduledStart& scheduled)
{
    if (isUnderWay_) { // the user is starting or stopping a backup at this moment
        if (const auto earlier = std::exchange(waitingStart_, scheduled))
            skip(*earlier, LedgerEntry::Reason::Overtaken);
        return;
    }
    begin();
    services_.follower.askForStatus(
        [this, scheduled](const TMStatus& status) { answerScheduledStart(status, scheduled); });
}

void BackupCommands::answerScheduledStart(const TMStatus& status, const ScheduledStart& scheduled)
{
    using Reason = LedgerEntry::Reason;
    if (status.state == TMState::Unknown) { // which is no reason to do anything, and tells nothing of a run
        skip(scheduled, Reason::Unreadable);
        settle();
        return;
    }
    if (status.state != TMState::NotRunning || scheduled.switches != switchesNow()) {
        services_.follower.take(status, BackupRun::Asked::ByPoll);
        skip(scheduled, status.state != TMState::NotRunning ? Reason::BackupRan : Reason::SettingsChanged);
        settle();
        return;
    }
    // A run that has ended since the last poll is to be recorded before the next one begins.
    services_.follower.take(status, BackupRun::Asked::ByCommand);
    services_.hooks.run(Hooks::Event::Before, scheduled.start, this,
                        [this, scheduled](const Hooks::Result& before) { answerHook(before, scheduled); });
}

/// It may have taken minutes.
void BackupCommands::answerHook(const Hooks::Result& before, const ScheduledStart& scheduled)
{
    using Reason = LedgerEntry::Reason;
    ScheduledStart next = scheduled;
    next.start.detail = before.words;
    const bool isReported = services_.follower.run().isReported();
    if (!before.succeeded || isReported || scheduled.switches != switchesNow()) {
        skip(next, !before.succeeded ? Reason::HookFailed : isReported ? Reason::BackupRan : Reason::SettingsChanged);
        settle();
        return;
    }
    services_.tmutil.startBackupOnDiskWithIdentifier({}, rotateBackupDisks(),
                                                     [this, start = next.start](std::int32_t exitStatus, bool success) {
                                                         if (success) {
                                                             services_.follower.startAccepted();
                                                             answer(start, LedgerEntry::Outcome::Running);
                                                             Q_EMIT scheduledBackupStarts();
                                                         } else {
                                                             answerRefusal(start, exitStatus);
                                                         }
                                                         settle();
                                                     });
}

} // namespace quillon
