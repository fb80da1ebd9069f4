#pragma once

#include "Date.h"

#include <QObject>
#include <QString>

#include <climits>
#include <cstdint>
#include <optional>
#include <span>
#include <tuple>
#include <vector>

class QSqlDatabase;
class QSqlError;

namespace quillon {

/// What became of one start that was due or wanted, and of the run that it led to. A run that began elsewhere is an
/// entry too.
struct LedgerEntry {
    /// Why it began, or was to begin.
    enum class Cause { Schedule, Retry, User, Elsewhere };
    enum class Outcome {
        Running, ///< the start was accepted or the run was seen, and its end has not been
        Completed,
        Failed,
        Stopped, ///< by the user
        Unseen,  ///< a start was accepted, and nobody saw the run or its end
        Skipped, ///< not asked for: something stood in its way
        Missed,  ///< noticed too late
        Refused, ///< by Time Machine
    };
    enum class Reason {
        None,
        Paused,           ///< the schedule
        Asleep,           ///< the computer
        ClockSet,         ///< past it; a program that stood still for a minute looks the same
        BackupRan,        ///< another one
        StartedByHand,    ///< another one, in the same moment
        Unreadable,       ///< Time Machine's status, so that nothing is known
        SettingsChanged,  ///< the pause or the switch, between question and answer
        Overtaken,        ///< by a later start, while a command was waited for
        ToolRefused,      ///< `exitStatus` says why
        Incomplete,       ///< the run ended ahead of its finishing phases; `detail` may say why
        StoppedElsewhere, ///< not by Quillon
        NeverReported,    ///< the run, by Time Machine
        NotFollowed,      ///< Quillon ended ahead of the run
        HookFailed,       ///< the user's own program ahead of the start; `detail` is its last line
        Asked,            ///< by the user, ahead of it
        OnBattery,        ///< the computer; what is made up for later is an entry of its own
    };

    std::int64_t id = 0; ///< 0 until it is written for the first time
    Date date;           ///< when it was due; of what no schedule called for, when it was asked for or first seen
    Cause cause = Cause::Schedule;
    Outcome outcome = Outcome::Running;
    Reason reason = Reason::None;
    std::optional<std::int32_t> exitStatus{}; ///< of the tool that refused the start
    QString detail{};                         ///< the tool's own words, and those of the user's own programs
    std::optional<Date> began{};
    std::optional<Date> ended{};
    QString diskIdentifier{};
    QString diskName{};
    std::optional<std::int64_t> bytes{}; ///< copied, where that was told
    std::optional<Date> next{};          ///< what was planned then
    bool nextIsRetry = false;

    bool isDue() const { return cause == Cause::Schedule || cause == Cause::Retry; }
    /// Of one date the start that was made comes later than the one that was held back.
    bool isNewerThan(const LedgerEntry& other) const
    {
        return std::tie(date, began) > std::tie(other.date, other.began);
    }
    bool operator==(const LedgerEntry&) const = default;
};

/// Which entries are wanted, of those the newest.
struct LedgerFilter {
    std::optional<LedgerEntry::Outcome> outcome{};
    std::optional<QString> disk{}; ///< by its identifier
    int most = INT_MAX;

    bool takes(const LedgerEntry& entry) const
    {
        return (!outcome || entry.outcome == *outcome) && (!disk || entry.diskIdentifier == *disk);
    }
};

/// What became of every start and every run.
class Ledger : public QObject {
    Q_OBJECT

public:
    /// Takes new entries up, which get their identifiers with this, or the new state of those that have one.
    virtual void write(std::span<LedgerEntry> entries, Date now) = 0;

    /// The newest first; nothing when they cannot be read. Changes nothing that is kept.
    virtual std::optional<std::vector<LedgerEntry>> read(const LedgerFilter& filter = {}) = 0;

Q_SIGNALS:
    void changed();
};

/// The names that the file and scripts know them by.
QString nameOf(LedgerEntry::Cause cause);
QString nameOf(LedgerEntry::Outcome outcome);
QString nameOf(LedgerEntry::Reason reason);

/// What has that name; nothing for one that a later version may have written.
template<typename Kind>
std::optional<Kind> ledgerKindNamed(const QString& name);

/// The ledger of the last two years, in a file of SQLite's that is open only while it is read or written. Whatever goes
/// wrong with the file, backups go on: what cannot be written waits in memory for the next time, and a damaged file is
/// set aside for a new one.
class SqliteLedger final : public Ledger {
    Q_OBJECT

public:
    explicit SqliteLedger(QString file);
    /// Tries a last time to write what is not in the file yet.
    ~SqliteLedger() override;

    /// What is older than two years goes.
    void write(std::span<LedgerEntry> entries, Date now) override;
    /// What is not in the file yet is among it.
    std::optional<std::vector<LedgerEntry>> read(const LedgerFilter& filter = {}) override;

private:
    enum class Result { Done, Failed, Damaged };

    Result writeAll(std::optional<Date> now);
    Result writeInto(QSqlDatabase& database, std::optional<Date> now);
    void flush(std::optional<Date> now);
    bool setAside();
    Result failed(const QSqlError& error);
    Result failed(const QString& trouble);
    void complain(const QString& trouble);

    const QString file_;
    std::vector<LedgerEntry> unwritten_;
    bool isDamaged_ = false; ///< as reading has found it
    QString lastTrouble_;
};

} // namespace quillon
