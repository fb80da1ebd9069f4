#include "MachineWatch.h"

#include "LocalizedString.h"
#include "StoredAndSent.h"

#include <algorithm>
#include <chrono>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Cause = LedgerEntry::Cause;
using Outcome = LedgerEntry::Outcome;

namespace {

// One disk that is plugged in changes the mounts several times.
constexpr Seconds untilMountsSettle{1.0};

// Somebody may only have wanted a file of it; what else comes up with it, such as its password, takes its time, too.
constexpr Seconds untilDiskStays{20.0};

// At log-in the services that tell of it start, too.
constexpr Seconds untilPowerIsKnown{30.0};

// What tells how the last start went is among the latest entries, of which some may have been skipped.
constexpr int mostLookedAt = 50;

} // namespace

AppearingDisks::AppearingDisks(RunLoop& runLoop, DisksInMenu& disks, MountWatch& mounts)
    : runLoop_(runLoop)
    , disks_(disks)
    , mounts_(mounts)
{
    connect(&mounts_, &MountWatch::changed, this, [this] {
        if (isWatching_ && !settling_.isValid())
            settling_ = runLoop_.scheduleAfter(untilMountsSettle, [this] { look(); });
    });
    connect(&disks_, &DisksInMenu::told, this, &AppearingDisks::take);
}

void AppearingDisks::setWatching(bool watching)
{
    if (watching == isWatching_)
        return;
    isWatching_ = watching;
    mounts_.setWatching(watching);
    mounted_.reset();
    came_.clear();
    settling_.invalidate();
    staying_.invalidate();
    if (watching)
        look();
}

void AppearingDisks::look()
{
    if (!disks_.request(DisksInMenu::Unreadable::KeepsThem)) // the answer that is awaited may be older than the change
        settling_ = runLoop_.scheduleAfter(untilMountsSettle, [this] { look(); });
    if (!came_.isEmpty()) // an answer may be unreadable
        staying_ = runLoop_.scheduleAfter(untilDiskStays, [this] { look(); });
}

void AppearingDisks::take(const QList<BackupDestination>& disks)
{
    if (!isWatching_)
        return;
    QSet<QString> mounted;
    for (const auto& disk : disks) {
        if (disk.isMounted)
            mounted.insert(disk.id);
    }
    const auto now = runLoop_.uptime();
    came_.removeIf([&mounted](const auto& disk) { return !mounted.contains(disk.key()); });
    const QSet<QString> newOnes = mounted - mounted_.value_or(mounted);
    for (const QString& id : newOnes)
        came_.insert(id, now);
    mounted_ = mounted;
    const auto haveStayed = came_.removeIf([now](const auto& disk) { return now - disk.value() >= untilDiskStays; });
    staying_.invalidate();
    if (!came_.isEmpty()) // whether it is still there has to be asked once more
        staying_ = runLoop_.scheduleAfter(untilDiskStays - (now - std::ranges::min(came_)), [this] { look(); });
    if (haveStayed > 0)
        Q_EMIT appeared();
}

MachineWatch::MachineWatch(const Services& services, DisksInMenu& disks, MountWatch& mounts)
    : services_(services)
    , disks_(services.runLoop, disks, mounts)
{
    connect(&services_.powerSupply, &PowerSupply::changed, this, [this] { reviewHeld(false); });
    connect(&disks_, &AppearingDisks::appeared, this, &MachineWatch::startForDisk);
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
    disks_.setWatching(services_.defaults.integer(settingskeys::startWhenDiskAppears) == 1);
}

machinerules::PowerRule MachineWatch::powerRule() const
{
    const auto charge = std::clamp(services_.defaults.integer(settingskeys::chargeThatSuffices), 0LL,
                                   settingskeys::mostChargeThatSuffices);
    return {.onlyOnMains = services_.defaults.integer(settingskeys::onlyOnMainsPower) == 1,
            .chargeThatSuffices = static_cast<int>(charge)};
}

bool MachineWatch::powerAllowsStart() const
{
    return machinerules::allows(powerRule(), services_.powerSupply.state());
}

machinerules::Moment MachineWatch::moment() const
{
    const auto pauseEnd = services_.defaults.date(settingskeys::pauseUntilDate);
    return {.powerAllows = powerAllowsStart(),
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
    if (powerAllowsStart())
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
                                    .following = model.startAfter(held_->due),
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

/// A retry that is pending is dropped by the run, and so is made where none comes of this.
void MachineWatch::startForDisk()
{
    if (!machinerules::startsForDisk(moment(), lastCameToNothing()))
        return;
    const Date now = services_.runLoop.now();
    if (const Seconds wait = services_.schedule.retryWait(); wait > 0s)
        services_.dataManager.setRetryBackupDate(dateByAdding(now, wait));
    else
        Q_EMIT startAllowed({.date = now, .cause = Cause::Retry});
}

bool MachineWatch::lastCameToNothing() const
{
    const auto entries = services_.ledger.read({.most = mostLookedAt}).value_or(std::vector<LedgerEntry>());
    const auto last =
        std::ranges::find_if(entries, [](const LedgerEntry& entry) { return entry.outcome != Outcome::Skipped; });
    return last != entries.end() &&
           (last->outcome == Outcome::Missed || last->outcome == Outcome::Failed || last->outcome == Outcome::Refused);
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
        services_.awakeLock.hold(localizedString("iconRunningDescription"));
    else
        services_.awakeLock.release();
}

} // namespace quillon
