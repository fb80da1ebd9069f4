#pragma once

#include "BackupCommands.h"
#include "DataManager.h"
#include "DisksInMenu.h"
#include "Ledger.h"
#include "RunFollower.h"
#include "RunLoop.h"
#include "ScheduleWatch.h"
#include "Services.h"
#include "StartDecision.h"
#include "UserDefaults.h"

#include <QMap>
#include <QObject>
#include <QSet>

#include <chrono>
#include <optional>

namespace quillon {

/// Notices backup disks that come. Time Machine is asked for its disks only when the system says that something was
/// mounted or unmounted; those of its first answer are none that have come.
class AppearingDisks final : public QObject {
    Q_OBJECT

public:
    AppearingDisks(RunLoop& runLoop, DisksInMenu& disks, MountWatch& mounts);

    void setWatching(bool watching);

Q_SIGNALS:
    /// A disk has come and has been there for a while.
    void appeared();

private:
    void look();
    void take(const QList<BackupDestination>& disks);

    RunLoop& runLoop_;
    DisksInMenu& disks_;
    MountWatch& mounts_;
    bool isWatching_ = false;
    Timer settling_;                                ///< after a change, until the next look
    Timer staying_;                                 ///< the same while disks wait that have come
    std::optional<QSet<QString>> mounted_;          ///< identifiers, as of the last answer
    QMap<QString, std::chrono::milliseconds> came_; ///< on the uptime clock, those that wait
};

/// Applies the user's rules about the machine: holds starts back while power does not allow them, makes up for a backup
/// that came to nothing when a disk appears, and keeps the machine awake for backups that were started here. What the
/// rules say is decided in machinerules.
class MachineWatch final : public QObject {
    Q_OBJECT

public:
    struct Services {
        RunLoop& runLoop;
        const UserDefaults& defaults;
        DataManager& dataManager;
        const RunFollower& follower;
        const BackupCommands& commands;
        const ScheduleWatch& schedule;
        Ledger& ledger;
        PowerSupply& powerSupply;
        AwakeLock& awakeLock;
    };

    MachineWatch(const Services& services, DisksInMenu& disks, MountWatch& mounts);

    bool powerAllowsStart() const;
    /// A start that was due waits for power.
    bool isHoldingBack() const { return held_.has_value(); }
    /// To be called once, at the start.
    void start();
    /// Watches what the rules that are on need, and nothing else.
    void followSettings();
    /// The start that is due now, while the schedule still names it as the next one.
    void takeStart();
    void noteStart(const LedgerEntry& start);
    void noteStep(const BackupRun::Step& step);

Q_SIGNALS:
    /// A start is due, and the rules have nothing against it.
    void startAllowed(const quillon::LedgerEntry& start);
    void startHeldBack(const quillon::LedgerEntry& start);

private:
    machinerules::PowerRule powerRule() const;
    machinerules::Moment moment() const;
    void hold(const LedgerEntry& start);
    void keepBack(const LedgerEntry& start);
    void takeUpHeld();
    void reviewHeld(bool completed);
    void startForDisk();
    bool lastCameToNothing() const;
    void keepAwake();

    Services services_;
    AppearingDisks disks_;
    std::optional<machinerules::HeldStart> held_;
    Timer takingUp_;
    bool isOwnRun_ = false; ///< the run that goes on or is awaited was asked for here
};

} // namespace quillon
