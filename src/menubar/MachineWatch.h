#pragma once

#include "AwakeLock.h"
#include "BackupCommands.h"
#include "DataManager.h"
#include "Ledger.h"
#include "MachineRules.h"
#include "PowerSupply.h"
#include "RunFollower.h"
#include "RunLoop.h"
#include "ScheduleWatch.h"
#include "UserDefaults.h"

#include <QObject>

#include <optional>

namespace quillon {

/// Applies the user's rules about the machine: holds starts back while power does not allow them, and keeps the machine
/// awake for backups that were started here. What the rules say is decided in machinerules.
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

    explicit MachineWatch(const Services& services);

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
    void keepAwake();

    Services services_;
    std::optional<machinerules::HeldStart> held_;
    Timer takingUp_;
    bool isOwnRun_ = false; ///< the run that goes on or is awaited was asked for here
};

} // namespace quillon
