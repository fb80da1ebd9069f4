#pragma once

#include "BackupReader.h"
#include "Backups.h"
#include "FilesModel.h"
#include "RunLoop.h"

#include <QHash>
#include <QString>
#include <QWidget>

#include <memory>
#include <utility>
#include <vector>

class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;
class QTreeView;
class QTreeWidget;

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

/// The versions of one file in all backups, the same content once.
class VersionsPane final : public QWidget {
    Q_OBJECT

public:
    /// The services must outlive this object.
    explicit VersionsPane(const Setup::Services& services, QWidget* parent = nullptr);

    /// How backups are called, by their names. What is shown is asked for anew when it is next wanted.
    void setBackupTitles(const QHash<QString, QString>& titles);
    /// Asks for the versions of that file, once nothing else is wanted for a moment.
    void want(const QString& path);
    /// Says what to do, as long as no file is chosen.
    void wantNone();

Q_SIGNALS:
    void chosen(const quillon::FileEntry& version);

private:
    void tell(const QString& sentence);
    void ask();
    void showVersions(const QString& complaint);

    const Setup::Services& services_;
    QHash<QString, QString> titles_;
    QString path_;
    Timer delay_;
    std::unique_ptr<ToolCall> asking_;
    QLabel* heading_;
    QLabel* sentence_;
    QTreeWidget* list_;
    std::vector<FileEntry> versions_;
};

} // namespace quillon
