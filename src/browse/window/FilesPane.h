#pragma once

#include "FilesModel.h"

#include <QWidget>

#include <utility>
#include <vector>

class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;
class QTreeView;

namespace quillon {

/// A folder of a backup with the way to it, or what a search has found. What a click or a key asks for is told; others
/// do it.
class FilesPane final : public QWidget {
    Q_OBJECT

public:
    /// The model must outlive this object.
    explicit FilesPane(FilesModel& model, QWidget* parent = nullptr);

    /// Empty for the outermost one.
    void setFolder(const QString& folder);
    void setBackEnabled(bool enabled);
    /// Where there are no rows: what is read, or why there are none.
    void tell(const QString& sentence, bool hasFailed);
    /// Something is selected in any case, so that the keyboard has where to begin.
    void select(const QString& path);
    /// Columns have the widths that fit what is in them, names the rest.
    void fitColumns();
    void takeKeyboard();

    /// The places in the model.
    std::vector<int> selectedRows() const;

Q_SIGNALS:
    void folderTyped(const QString& folder);
    void backAsked();
    void upAsked();
    void againAsked();
    void opened(int row);
    void previewAsked();
    void selectionChanged();

private:
    void addKeys();
    void sortBy(int column, Qt::SortOrder order);
    void updateSentence();

    FilesModel& model_;
    QString folder_;
    std::pair<int, Qt::SortOrder> sorted_{FilesModel::Name, Qt::AscendingOrder};
    QToolButton* back_;
    QToolButton* up_;
    QLineEdit* path_;
    QTreeView* view_;
    QLabel* sentence_;
    QPushButton* again_;
};

} // namespace quillon
