#pragma once

#include "BackupReader.h"
#include "Contents.h"
#include "FilesModel.h"
#include "Services.h"

#include <QObject>
#include <QString>
#include <QTemporaryDir>
#include <QWidget>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;
class QTreeView;

namespace quillon {

/// Shows files of a backup in the programs that the desktop has for them: copies that nobody can write to, in a folder
/// for the user alone, gone with this.
class Preview final : public QObject {
    Q_OBJECT

public:
    /// All outlive this object. `folder` is where the copies are put; what an earlier program left there is removed.
    Preview(const Setup::Services& services, Workspace& workspace, QString folder);

    /// In place of one that is still being fetched.
    void show(const QString& backup, const FileEntry& file);

Q_SIGNALS:
    /// A line on what is under way, or nothing.
    void progressed(const QString& line);

private:
    void open(const QString& name, const QString& copy);
    void fail(const QString& name, const QString& complaint);

    const Setup::Services& services_;
    Workspace& workspace_;
    QString folder_;
    std::optional<QTemporaryDir> copies_;
    int count_ = 0;
    std::unique_ptr<ToolCall> fetching_;
};

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
