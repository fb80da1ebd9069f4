#pragma once

#include "DataManager.h"
#include "Ledger.h"
#include "RunFollower.h"
#include "RunLoop.h"
#include "Services.h"
#include "Task.h"
#include "UserDefaults.h"

#include <QObject>
#include <QString>

#include <cstdint>
#include <functional>
#include <list>
#include <optional>

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

/// What became of a command.
struct CommandResult {
    enum class Outcome {
        Accepted,
        NothingToDo, ///< there is a run already, or no more
        Unreadable,  ///< what Time Machine does cannot be told
        Refused,
    };
    Outcome outcome = Outcome::NothingToDo;
    std::int32_t exitStatus = 0; ///< of the tool, where it refused a start
    QString hookWords{};         ///< of the user's own program that did
};

/// For whoever gave a command from elsewhere than the menu: is told in place of an alert.
using CommandResultHandler = std::function<void(const CommandResult&)>;

/// Starts and stops backups, for the user and for the schedule, one command at a time: a second click would take effect
/// twice, and a scheduled start waits until the command that is under way has been answered.
class BackupCommands final : public QObject {
    Q_OBJECT

public:
    struct Services {
        RunLoop& runLoop;
        UserDefaults& defaults;
        DataManager& dataManager;
        AlertPresenter& alerts;
        TMUtil& tmutil;
        RunFollower& follower;
        Hooks& hooks;
    };

    explicit BackupCommands(const Services& services);

    bool isUnderWay() const { return isUnderWay_; }

    // While a command is under way another one has no effect, and its giver is told nothing.

    /// Starts a backup, or stops the one that runs.
    void backupNowClicked(CommandResultHandler told = {});
    /// Starts a backup, and leaves alone one that runs.
    void backupNowRequested(CommandResultHandler told = {});
    void backupNowSubMenuItemClicked(const QString& identifier, CommandResultHandler told = {});
    /// A start that nobody has asked for: `start` says when it was due and why.
    void startScheduledBackup(const quillon::LedgerEntry& start);

Q_SIGNALS:
    /// A command is under way: clicks have no effect until it has been answered.
    void began();
    /// A scheduled start was accepted.
    void scheduledBackupStarts();
    /// What has become of a start: why it was to be made, when and where to, and the outcome with its reason.
    void startAnswered(const quillon::LedgerEntry& start);

private:
    /// What a scheduled start was decided on.
    struct ScheduleSwitches {
        bool enabled;
        std::optional<Date> pauseUntil;

        bool operator==(const ScheduleSwitches&) const = default;
    };

    struct ScheduledStart {
        ScheduleSwitches switches;
        LedgerEntry start;
    };

    bool rotateBackupDisks() const;
    ScheduleSwitches switchesNow() const;
    void answer(LedgerEntry start, LedgerEntry::Outcome outcome, LedgerEntry::Reason reason = {});
    void answerRefusal(LedgerEntry start, std::int32_t exitStatus);
    void skip(const ScheduledStart& scheduled, LedgerEntry::Reason reason);
    void begin(CommandResultHandler told = {});
    void settle(const CommandResult& result = {});
    void answerBackupNow(const TMStatus& status, bool offeredToStop);
    void requestStop();
    void requestStart(const QString& identifier, bool rotateBackupDisks);
    void startNow(const LedgerEntry& start, bool rotateBackupDisks);
    void tellOfFailedStart(std::int32_t exitStatus);
    void tellOfHook(const QString& words);
    void askForScheduledStart(const ScheduledStart& scheduled);
    void answerScheduledStart(const TMStatus& status, const ScheduledStart& scheduled);
    void answerHook(const Hooks::Result& before, const ScheduledStart& scheduled);

    Services services_;
    bool isUnderWay_ = false;
    CommandResultHandler told_;
    std::optional<ScheduledStart> waitingStart_;
};

} // namespace quillon
