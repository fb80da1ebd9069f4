#pragma once

#include "Ledger.h"

#include <optional>
#include <span>
#include <vector>

class QSqlDatabase;
class QSqlError;

namespace quillon {

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
