#pragma once

#include "Ledger.h"
#include "RunLoop.h"
#include "Services.h"

#include <QAbstractTableModel>
#include <QWidget>

#include <vector>

class QComboBox;
class QLabel;
class QPushButton;
class QTreeView;

namespace quillon {

class DayStrip;

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

/// The window of the ledger: the last days at a glance, the entries with a filter, and of the one that is chosen the
/// reason. Reads the ledger while it is seen, and holds nothing of it otherwise.
class LogWindow final : public QWidget {
    Q_OBJECT

public:
    struct Services {
        RunLoop& runLoop;
        Ledger& ledger;
        AlertPresenter& alerts;
    };

    /// The services must outlive it.
    explicit LogWindow(const Services& services);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QWidget* makeFilterRow();
    QWidget* makeButtonRow();
    void prepareList();
    void addKeys();
    void fitToScreen();

    void reload();
    void fitColumns();
    void showDisks(const std::vector<LedgerEntry>& entries);
    void showDays(const std::vector<LedgerEntry>& entries);
    void showEntries();
    void showChosen();
    LedgerFilter filter() const;
    std::vector<LedgerEntry> chosenEntries() const;
    static void copy(const std::vector<LedgerEntry>& entries);
    void chooseFile();
    void save(const QString& file);

    Services services_;
    std::vector<LedgerEntry> entries_;
    LogModel model_;
    DayStrip* strip_;
    QLabel* stripLabel_;
    QComboBox* outcomes_;
    QComboBox* disks_;
    QTreeView* list_;
    QLabel* empty_;
    QLabel* details_;
    QPushButton* copyButton_;
    QPushButton* saveButton_;
};

} // namespace quillon
