#pragma once

#include "DataManager.h"
#include "DisksInMenu.h"
#include "Ledger.h"
#include "RunFollower.h"
#include "RunLoop.h"
#include "StartDecision.h"
#include "Task.h"
#include "UserDefaults.h"

#include <QObject>
#include <QString>

#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <span>

namespace quillon {

/// Runs the user's own programs ahead of a start and after what has become of one: executables in one folder, each
/// with the name of its event. Nothing waits for them but the start that one precedes.
class Hooks {
public:
    enum class Event { Before, Completed, Failed, Skipped };

    struct Services {
        RunLoop& runLoop;
        TaskLauncher& launcher;
        QString folder;
    };

    struct Result {
        bool succeeded = true;
        QString words{}; ///< what it printed, bounded; of one that failed its last line, or why it was not run
    };
    using Completion = std::function<void(const Result& result)>;

    explicit Hooks(Services services);
    Hooks(const Hooks&) = delete;
    Hooks& operator=(const Hooks&) = delete;
    ~Hooks();

    /// Calls the completion at once where the event has no program, else in a later turn, unless `whoAsks` is gone.
    void run(Event event, const LedgerEntry& entry, QObject* whoAsks, const Completion& completion);

private:
    struct Run;

    void launch(Run& run, const QString& program, const QStringList& environment);

    Services services_;
    std::list<Run> running_;
};

/// Where they are looked for.
QString hooksFolder();

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
