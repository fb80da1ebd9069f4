#pragma once

#include "Ledger.h"

#include <QAbstractTableModel>

#include <vector>

namespace quillon {

/// Entries of the ledger as rows of a view.
class LogModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { When, Outcome, Cause, Disk, Size, Duration };

    using QAbstractTableModel::QAbstractTableModel;

    /// Days are told as seen from `now`.
    void show(std::vector<LedgerEntry> entries, Date now);

    const std::vector<LedgerEntry>& entries() const { return entries_; }
    /// The row of the entry with that identifier; -1 where there is none.
    int rowOf(std::int64_t id) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const LedgerEntry& entry, int column) const;

    std::vector<LedgerEntry> entries_;
    Date now_;
};

} // namespace quillon
