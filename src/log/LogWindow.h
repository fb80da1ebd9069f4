#pragma once

#include "AlertPresenter.h"
#include "LogModel.h"
#include "RunLoop.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QPushButton;
class QTreeView;

namespace quillon {

class DayStrip;

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
