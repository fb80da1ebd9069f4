#pragma once

#include "Date.h"
#include "TMReports.h"

#include <QString>

#include <chrono>
#include <cstdint>
#include <optional>

namespace quillon {

/// Progress of one backup run, as it is shown.
///
/// Time Machine reports progress and remaining time only while it copies. From the moment copying ends, the percentage
/// is carried on to 100 % over the time that was still estimated then.
class RunProgress {
public:
    double percentage() const { return percentage_; }       ///< a fraction
    double timeRemaining() const { return timeRemaining_; } ///< seconds
    std::int64_t bytesCopied() const { return bytesCopied_; }

    /// The run has left its copying phase; to be called before the answer that says so is taken in.
    void copyPhaseEnded(Date now);

    void update(const TMStatus& status, Date now);

private:
    struct CopyPhaseEndEvent {
        Date date;
        double percentage;
        double timeRemaining;
    };

    double percentage_ = 0;
    double timeRemaining_ = 0;
    std::int64_t bytesCopied_ = 0;
    std::optional<CopyPhaseEndEvent> copyPhaseEnd_;
};

/// One backup run as a value: what Time Machine does as far as it has told, and how much of it has been acted on.
///
/// What Time Machine does (tmState):
///
/// | state          | what happens                                  | becomes      |
/// |----------------|-----------------------------------------------|--------------|
/// | any            | a start was accepted                          | Starting     |
/// | Starting       | a poll: no run                                | Starting     |
/// | Starting       | an answer that a command asked for: no run    | NotRunning   |
/// | any other      | a report: no run                              | NotRunning   |
/// | any            | a report: running, stopping, unknown          | as reported  |
///
/// What has been acted on (uiState), at each step:
///
/// | acted on       | tmState              | the step                  | polls          |
/// |----------------|----------------------|---------------------------|----------------|
/// | not Running    | Running              | the run begins            | running        |
/// | Running        | NotRunning, Unknown  | the run ends              | idle           |
/// | not Running    | NotRunning, Unknown  | a stop counts no more     | idle           |
/// | any            | any other            | nothing                   | as they were   |
///
/// "Starting" has no time-out; after a minute its polls become those of a run.
class BackupRun {
public:
    /// How often Time Machine is asked.
    enum class Pace { Idle, Running, Starting };
    /// What a report answers: the regular question, or one that a command is about to act on.
    enum class Asked { ByPoll, ByCommand };

    /// How a run ended.
    struct End {
        std::optional<Date> completed; ///< when it reached its finishing phases; nothing for one that did not
        bool stoppedByUser = false;
        std::optional<QString> disk; ///< identifier of the destination
        std::int64_t bytes = 0;
        QString failure{}; ///< in the tool's words; empty where it told none, and for a run that did not fail

        bool failed() const { return !completed && !stoppedByUser; }
        bool operator==(const End&) const = default;
    };
    struct Step {
        bool began = false;
        std::optional<End> end{};

        bool operator==(const Step&) const = default;
    };

    TMState tmState() const { return tmState_; }
    TMState uiState() const { return uiState_; }
    /// Raw word of the phase.
    const QString& tmPhase() const { return tmPhase_; }
    /// The phase as of the last step; a property of a run that nothing in this program asks for.
    const QString& previousTmPhase() const { return previousTmPhase_; }
    const RunProgress& progress() const { return progress_; }
    /// A stop was accepted and the run has not ended yet.
    bool stopBackupConfirmed() const { return stopBackupConfirmed_; }
    /// When the run reached its finishing phases. It stays after the run's end until the next one is first seen.
    std::optional<Date> backupCompleteDate() const { return backupCompleteDate_; }
    /// Of the backups on any disk, as Time Machine last told while no backup ran.
    bool damageIsKnown() const { return damageIsKnown_; }
    const std::optional<QString>& activeBackupDiskIdentifier() const { return activeBackupDiskIdentifier_; }
    Pace pace() const { return pace_; }

    bool isActive() const;
    /// A backup runs, as Time Machine has it.
    bool isReported() const { return tmState_ == TMState::Running || tmState_ == TMState::Stopping; }

    void take(const TMStatus& status, Asked asked, Date now);
    void startAccepted(std::chrono::milliseconds uptime);
    void stopAccepted() { stopBackupConfirmed_ = true; }
    /// Time goes by.
    void tick(std::chrono::milliseconds uptime);
    /// Acts on what has been taken in since the last step.
    Step step();

private:
    void enter(TMState state, const QString& phase);
    void markCompletion(const TMStatus& status, Date now);
    End end();

    TMState tmState_ = TMState::Unknown;
    TMState uiState_ = TMState::NotRunning;
    QString tmPhase_ = QStringLiteral("NotRunning");
    QString previousTmPhase_;
    RunProgress progress_;
    bool stopBackupConfirmed_ = false;
    std::optional<Date> backupCompleteDate_;
    std::optional<QString> activeBackupDiskIdentifier_;
    QString lastFailure_; ///< as of the last report
    bool damageIsKnown_ = false;
    Pace pace_ = Pace::Idle;
    std::chrono::milliseconds startAccepted_{0}; ///< on the uptime clock
};

} // namespace quillon
