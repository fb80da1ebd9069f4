#include "MachineWatch.h"

#include "StoredAndSentNames.h"

#include <algorithm>
#include <chrono>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Cause = LedgerEntry::Cause;
using Outcome = LedgerEntry::Outcome;

namespace {

// At log-in the services that tell of it start, too.
constexpr Seconds untilPowerIsKnown{30.0};

// There are no more of one date.
constexpr int mostLookedAt = 50;

} // namespace

MachineWatch::MachineWatch(const Services& services)
    : services_(services)
{
    connect(&services_.powerSupply, &PowerSupply::changed, this, [this] { reviewHeld(false); });
}

void MachineWatch::start()
{
    followSettings();
    if (powerRule().onlyOnMains)
        takingUp_ = services_.runLoop.scheduleAfter(untilPowerIsKnown, [this] { takeUpHeld(); });
}

/// What an earlier launch of the program has held back.
void MachineWatch::takeUpHeld()
{
    const auto entries = services_.ledger.read({.most = mostLookedAt}).value_or(std::vector<LedgerEntry>());
    const bool isOpen = !entries.empty() && std::ranges::all_of(entries, [&](const LedgerEntry& entry) {
        return entry.date != entries.front().date || entry.reason == LedgerEntry::Reason::OnBattery;
    });
    if (isOpen && !held_)
        keepBack(entries.front());
}

void MachineWatch::followSettings()
{
    services_.powerSupply.setWatching(powerRule().onlyOnMains);
}

machinerules::PowerRule MachineWatch::powerRule() const
{
    const auto charge = services_.defaults.integer(settingskeys::chargeThatSuffices);
    return {.onlyOnMains = services_.defaults.integer(settingskeys::onlyOnMainsPower) == 1,
            .chargeThatSuffices = static_cast<int>(std::clamp(charge, qlonglong{0}, qlonglong{100}))};
}

machinerules::Moment MachineWatch::moment() const
{
    const auto pauseEnd = services_.defaults.date(settingskeys::pauseUntilDate);
    return {.powerAllows = machinerules::allows(powerRule(), services_.powerSupply.state()),
            .isScheduleEnabled = services_.dataManager.isScheduleEnabled(),
            .isPaused = pauseEnd && *pauseEnd > services_.runLoop.now(),
            .isActive = services_.follower.run().isActive() || services_.commands.isUnderWay(),
            .isAsleep = services_.schedule.isAsleep()};
}

void MachineWatch::takeStart()
{
    const DataManager& model = services_.dataManager;
    const Date due = model.nextScheduledBackupDate().value_or(services_.runLoop.now());
    const LedgerEntry start{.date = due, .cause = due == model.retryBackupDate() ? Cause::Retry : Cause::Schedule};
    held_.reset(); // it has been overtaken
    if (machinerules::allows(powerRule(), services_.powerSupply.state()))
        Q_EMIT startAllowed(start);
    else
        hold(start);
}

void MachineWatch::hold(const LedgerEntry& start)
{
    keepBack(start);
    services_.powerSupply.refresh();
    LedgerEntry entry = start;
    entry.outcome = Outcome::Skipped;
    entry.reason = LedgerEntry::Reason::OnBattery;
    services_.runLoop.enqueue([this, entry] { Q_EMIT startHeldBack(entry); }); // once the following one is planned
}

void MachineWatch::keepBack(const LedgerEntry& start)
{
    held_ = {.due = start.date,
             .isRetry = start.cause == Cause::Retry,
             .rules = services_.dataManager.calendarIntervalSettings()};
}

void MachineWatch::reviewHeld(bool completed)
{
    if (!held_)
        return;
    const DataManager& model = services_.dataManager;
    const machinerules::Since since{.now = services_.runLoop.now(),
                                    .moment = moment(),
                                    .completed = completed,
                                    .rules = model.calendarIntervalSettings(),
                                    .given = model.startFrom(held_->due),
                                    .following = model.startFrom(held_->due + 1ms),
                                    .planned = model.nextScheduledBackupDate(),
                                    .retriesWait = services_.schedule.retryWait() > 0s};
    const auto fate = machinerules::fateOf(*held_, since);
    if (fate == machinerules::Fate::Kept)
        return;
    const LedgerEntry start{.date = held_->due, .cause = held_->isRetry ? Cause::Retry : Cause::Schedule};
    held_.reset();
    if (fate == machinerules::Fate::Made)
        Q_EMIT startAllowed(start);
}

void MachineWatch::noteStart(const LedgerEntry& start)
{
    isOwnRun_ = isOwnRun_ || start.outcome == Outcome::Running;
}

void MachineWatch::noteStep(const BackupRun::Step& step)
{
    followSettings();
    keepAwake();
    reviewHeld(step.end && step.end->completed);
}

/// Not yet while a run is awaited: the one that never comes would keep the machine awake for ever.
void MachineWatch::keepAwake()
{
    const BackupRun& run = services_.follower.run();
    if (run.tmState() == TMState::NotRunning)
        isOwnRun_ = false;
    if (isOwnRun_ && run.isReported() && services_.defaults.integer(settingskeys::stayAwake) == 1)
        services_.awakeLock.hold(u"A backup is running"_s);
    else
        services_.awakeLock.release();
}

} // namespace quillon
