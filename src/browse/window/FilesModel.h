#pragma once

#include "Backups.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QKeySequence>

#include <functional>
#include <vector>

namespace quillon {

/// A folder of a backup, or what a search has found, as rows of a view.
class FilesModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum class Kind { Folder, FoundHere, FoundEverywhere };
    enum Column { Name, Size, Modified, Fate, Folder, InBackup };
    /// More of what a search finds; empty once there is no more.
    using More = std::function<std::vector<FileEntry>()>;

    using QAbstractTableModel::QAbstractTableModel;

    /// In the order of the last sort().
    void showFolder(const QString& folder, std::vector<FileEntry> files);
    /// Whether a folder is shown, which can be sorted; what is found stays in the order in which it comes.
    bool isFolder() const { return kind_ == Kind::Folder; }
    const std::vector<FileEntry>& files() const { return files_; }
    /// What became of the files of the folder, in their order.
    void setChanges(std::vector<Since> changes);
    /// Nothing at first; `more` is asked as far as somebody looks.
    void showFound(Kind kind, More more = {});
    void append(const std::vector<FileEntry>& files);
    /// How backups are called where they are shown, by their names.
    void setBackupTitles(const QHash<QString, QString>& titles);

    const FileEntry& entry(int row) const { return files_.at(static_cast<std::size_t>(row)); }
    Since since(int row) const;
    /// The row of a path; -1 where there is none.
    int rowOf(const QString& path) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// By one of the first three columns.
    void sort(int column, Qt::SortOrder order) override;
    /// What sorts by one of these, and the other way round when it is pressed again.
    static QKeySequence sortKeys(Column column);
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

private:
    static Column columnAt(Kind kind, int section);
    std::vector<int> applyOrder();
    QString text(int row, Column column) const;
    QString spokenText(int row, Column column) const;

    Kind kind_ = Kind::Folder;
    FileOrder order_;
    QString folder_;
    std::vector<FileEntry> files_;
    std::vector<Since> changes_; ///< empty while they are not known
    More more_;
    QHash<QString, QString> backupTitles_;
};

} // namespace quillon
