#pragma once

#include "BackupCommands.h"
#include "DataManager.h"
#include "DisksInMenu.h"
#include "Ledger.h"
#include "RunLoop.h"
#include "StartDecision.h"
#include "UserDefaults.h"

#include <QObject>
#include <QString>

#include <optional>
#include <span>

namespace quillon {

/// Notes in the ledger what became of every start and every run, and runs the user's own program for it: hears of what
/// others have decided, and decides nothing. Its slots come behind those that plan on the same signal, so that what is
/// planned next is known.
class RunLedger final : public QObject {
    Q_OBJECT

public:
    struct Services {
        RunLoop& runLoop;
        UserDefaults& defaults;
        DataManager& dataManager;
        RunFollower& follower;
        const DisksInMenu& disks; ///< for their names
        Ledger& ledger;
        Hooks& hooks;
    };

    explicit RunLedger(const Services& services);

    void noteStart(const LedgerEntry& start);
    /// The start that was armed for `due` has passed, and with it every later one up to now.
    void notePassed(Date due, bool isRetry, startdecision::Occasion occasion);
    /// Notes what a pause has made pass since the last look.
    void lookAtPause();
    void noteStep(const BackupRun::Step& step);

private:
    void takeUpLeftBehind();
    void beginRun();
    void endRun(const BackupRun::End& end);
    void conclude(LedgerEntry::Outcome outcome, LedgerEntry::Reason reason);
    void write(std::span<LedgerEntry> entries);
    void runHook(const LedgerEntry& entry);
    void addWords(const LedgerEntry& of, const QString& words);
    void writeEntry() { write({&*entry_, 1}); }

    Services services_;
    std::optional<LedgerEntry> entry_;      ///< of the run that goes on or is awaited
    std::optional<LedgerEntry> outOfSight_; ///< of the run that ended with a status that could not be read
    bool isStopping_ = false;               ///< Time Machine says so of the run
    bool knowsLeftBehind_ = false;
    std::optional<Date> pauseUntil_;
    Date pauseIsNotedUntil_;
};

} // namespace quillon
