#include "RunLedger.h"

#include "LocalizedString.h"
#include "StoredAndSent.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace quillon {

using namespace std::chrono_literals;

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
    const auto later = model.startsBetween(instantAfter(due), services_.runLoop.now());
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
