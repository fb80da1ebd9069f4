#include "RunLedger.h"

#include "LocalizedString.h"
#include "StoredAndSentNames.h"

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

using Cause = LedgerEntry::Cause;
using Outcome = LedgerEntry::Outcome;
using Reason = LedgerEntry::Reason;

namespace {

// A run that Quillon has left behind and one that it finds later may be two.
constexpr auto longestAbsence = 24h;

// Entries that come while a hook runs, at the most.
constexpr int recently = 200;

QString joined(const QString& words, const QString& more)
{
    return words.isEmpty() || more.isEmpty() ? words + more : words + u'\n' + more;
}

std::optional<Hooks::Event> eventOf(Outcome outcome)
{
    switch (outcome) {
    case Outcome::Completed:
        return Hooks::Event::Completed;
    case Outcome::Failed:
    case Outcome::Refused:
        return Hooks::Event::Failed;
    case Outcome::Skipped:
    case Outcome::Missed:
        return Hooks::Event::Skipped;
    case Outcome::Running:
    case Outcome::Stopped:
    case Outcome::Unseen:
        break;
    }
    return std::nullopt;
}

} // namespace

RunLedger::RunLedger(const Services& services)
    : services_(services)
    , pauseIsNotedUntil_(services.runLoop.now())
{
}

void RunLedger::noteStart(const LedgerEntry& start)
{
    LedgerEntry entry = start;
    const bool runGoesOn = entry_ && entry_->began;
    if (start.outcome == Outcome::Running && !runGoesOn) {
        conclude(Outcome::Unseen, Reason::NeverReported); // the one before it
        entry_ = start;
        writeEntry();
        return;
    }
    if (start.outcome == Outcome::Running) { // whose run cannot be told from the one that goes on
        entry.outcome = Outcome::Unseen;
        entry.reason = Reason::NeverReported;
    }
    write({&entry, 1});
}

void RunLedger::notePassed(Date due, bool isRetry, startdecision::Occasion occasion)
{
    const Reason reason = occasion == startdecision::Occasion::Woke ? Reason::Asleep : Reason::ClockSet;
    std::vector<LedgerEntry> passed{
        {.date = due, .cause = isRetry ? Cause::Retry : Cause::Schedule, .outcome = Outcome::Missed, .reason = reason}};
    const DataManager& model = services_.dataManager;
    const auto later = model.startsBetween(due + 1ms, services_.runLoop.now());
    for (const Date date : model.isScheduleEnabled() ? later : QList<Date>())
        passed.push_back({.date = date, .outcome = Outcome::Missed, .reason = reason});
    write(passed);
}

void RunLedger::lookAtPause()
{
    const DataManager& model = services_.dataManager;
    const Date now = services_.runLoop.now();
    const Date from = std::exchange(pauseIsNotedUntil_, now);
    const auto until = std::exchange(pauseUntil_, services_.defaults.date(settingskeys::pauseUntilDate));
    if (!until || !model.isScheduleEnabled())
        return;
    std::vector<LedgerEntry> passed;
    for (const Date date : model.startsBetween(from, std::min(now, *until)))
        passed.push_back({.date = date, .outcome = Outcome::Skipped, .reason = Reason::Paused});
    write(passed);
}

void RunLedger::noteStep(const BackupRun::Step& step)
{
    const TMState state = services_.follower.run().tmState();
    if (state != TMState::Unknown && !std::exchange(knowsLeftBehind_, true))
        takeUpLeftBehind();
    if (step.began)
        beginRun();
    if (step.end)
        endRun(*step.end);
    isStopping_ = state == TMState::Stopping;
    if (state != TMState::NotRunning)
        return;
    outOfSight_.reset();
    conclude(Outcome::Unseen, Reason::NeverReported);
}

/// What an earlier launch of the program has not seen the end of.
void RunLedger::takeUpLeftBehind()
{
    auto leftBehind = services_.ledger.read({.outcome = Outcome::Running}).value_or(std::vector<LedgerEntry>());
    const bool isSameRun = !entry_ && services_.follower.run().isReported() && !leftBehind.empty() &&
                           services_.runLoop.now() - leftBehind.front().date < longestAbsence;
    if (isSameRun)
        entry_ = leftBehind.front();
    std::erase_if(leftBehind, [this](const LedgerEntry& entry) { return entry_ && entry.id == entry_->id; });
    for (LedgerEntry& entry : leftBehind) {
        entry.outcome = Outcome::Unseen;
        entry.reason = Reason::NotFollowed;
    }
    if (!leftBehind.empty())
        services_.ledger.write(leftBehind, services_.runLoop.now());
}

void RunLedger::beginRun()
{
    const Date now = services_.runLoop.now();
    if (outOfSight_) // it was the status that failed, not the run
        entry_ = std::exchange(outOfSight_, {});
    if (!entry_)
        entry_ = {.date = now, .cause = Cause::Elsewhere};
    entry_->began = entry_->began.value_or(now);
    entry_->diskIdentifier = services_.follower.run().activeBackupDiskIdentifier().value_or(entry_->diskIdentifier);
    writeEntry();
}

void RunLedger::endRun(const BackupRun::End& end)
{
    const bool isUnreadable = services_.follower.run().tmState() == TMState::Unknown;
    if (isUnreadable)
        outOfSight_ = entry_;
    entry_->ended = services_.runLoop.now();
    if (end.bytes > 0)
        entry_->bytes = end.bytes;
    entry_->detail = joined(entry_->detail, end.failure);
    entry_->diskIdentifier = end.disk.value_or(entry_->diskIdentifier);
    if (!end.failed())
        conclude(end.completed ? Outcome::Completed : Outcome::Stopped, Reason::None);
    else if (isUnreadable)
        conclude(Outcome::Failed, Reason::Unreadable);
    else
        conclude(Outcome::Failed, isStopping_ ? Reason::StoppedElsewhere : Reason::Incomplete);
}

void RunLedger::conclude(Outcome outcome, Reason reason)
{
    if (!entry_)
        return;
    entry_->outcome = outcome;
    entry_->reason = reason;
    writeEntry();
    entry_.reset();
}

void RunLedger::write(std::span<LedgerEntry> entries)
{
    if (entries.empty())
        return;
    const QList<BackupDestination>& disks = services_.disks.backupDisks();
    for (LedgerEntry& entry : entries) {
        entry.next = services_.dataManager.nextScheduledBackupDate();
        entry.nextIsRetry = entry.next && entry.next == services_.dataManager.retryBackupDate();
        const auto disk = std::ranges::find(disks, entry.diskIdentifier, &BackupDestination::id);
        if (disk != disks.end())
            entry.diskName = disk->name;
    }
    services_.ledger.write(entries, services_.runLoop.now());
    runHook(entries.back()); // one will do for all that a long sleep has passed
}

void RunLedger::runHook(const LedgerEntry& entry)
{
    if (const auto event = eventOf(entry.outcome)) {
        services_.hooks.run(*event, entry, this,
                            [this, entry](const Hooks::Result& result) { addWords(entry, result.words); });
    }
}

/// Unless something else has become of it meanwhile.
void RunLedger::addWords(const LedgerEntry& of, const QString& words)
{
    if (words.isEmpty())
        return;
    auto entries =
        services_.ledger.read({.outcome = of.outcome, .most = recently}).value_or(std::vector<LedgerEntry>());
    const auto entry = std::ranges::find(entries, of.id, &LedgerEntry::id);
    if (entry == entries.end())
        return;
    entry->detail = joined(entry->detail, words);
    services_.ledger.write({&*entry, 1}, services_.runLoop.now());
}

} // namespace quillon
