#include "FilesModel.h"

#include "BackupSetup.h"
#include "DateFormatter.h"
#include "LocalizedString.h"
#include "Symbol_linux.h"
#include "Text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

const char* titleKey(FilesModel::Column column)
{
    static constexpr std::array keys{"browseNameColumn",  "browseSizeColumn",   "browseModifiedColumn",
                                     "browseSinceColumn", "browseFolderColumn", "browseBackupColumn"};
    return keys.at(static_cast<std::size_t>(column));
}

QString changeText(Since since)
{
    if (since == Since::Changed)
        return localizedString("browseChanged");
    return since == Since::Gone ? localizedString("browseGone") : QString();
}

} // namespace

void FilesModel::showFolder(const QString& folder, std::vector<FileEntry> files)
{
    beginResetModel();
    kind_ = Kind::Folder;
    folder_ = folder;
    files_ = std::move(files);
    changes_.clear();
    applyOrder();
    more_ = {};
    endResetModel();
}

void FilesModel::setChanges(std::vector<Since> changes)
{
    changes_ = std::move(changes);
    if (!files_.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void FilesModel::showFound(Kind kind, More more)
{
    beginResetModel();
    kind_ = kind;
    files_.clear();
    changes_.clear();
    more_ = std::move(more);
    endResetModel();
}

void FilesModel::append(const std::vector<FileEntry>& files)
{
    if (files.empty())
        return;
    beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(files.size()) - 1);
    files_.insert(files_.end(), files.begin(), files.end());
    endInsertRows();
}

void FilesModel::setBackupTitles(const QHash<QString, QString>& titles)
{
    backupTitles_ = titles;
}

Since FilesModel::since(int row) const
{
    const auto place = static_cast<std::size_t>(row);
    return place < changes_.size() ? changes_[place] : Since::Unknown;
}

int FilesModel::rowOf(const QString& path) const
{
    const auto found = std::ranges::find(files_, path, &FileEntry::path);
    return found == files_.end() ? -1 : static_cast<int>(found - files_.begin());
}

int FilesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(files_.size());
}

int FilesModel::columnCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    return kind_ == Kind::FoundEverywhere ? 5 : 4;
}

FilesModel::Column FilesModel::columnAt(Kind kind, int section)
{
    if (section < Fate)
        return static_cast<Column>(section);
    if (kind == Kind::Folder)
        return Fate;
    return section == Fate ? Folder : InBackup;
}

QVariant FilesModel::data(const QModelIndex& index, int role) const
{
    const Column column = columnAt(kind_, index.column());
    switch (role) {
    case Qt::DisplayRole:
        return text(index.row(), column);
    case Qt::ToolTipRole:
        return shownLongText(entry(index.row()).path).toHtmlEscaped();
    case Qt::AccessibleTextRole:
        return spokenText(index.row(), column);
    case Qt::DecorationRole:
        if (column != Name)
            return {};
        return rowSymbol(entry(index.row()).kind == FileKind::Folder ? u"folder"_s : u"doc"_s);
    case Qt::TextAlignmentRole:
        return column == Size ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    default:
        return {};
    }
}

QString FilesModel::text(int row, Column column) const
{
    const FileEntry& file = entry(row);
    switch (column) {
    case Name:
        return kind_ == Kind::Folder ? shownLongText(nameIn(folder_, file.path)) : shownName(file.path);
    case Size:
        return file.kind == FileKind::File && file.size ? sizeText(*file.size) : QString();
    case Modified:
        return file.modified
                   ? DateFormatter::string(*file.modified, DateFormatterStyle::Medium, DateFormatterStyle::Short)
                   : QString();
    case Fate:
        return changeText(since(row));
    case Folder:
        return shownLongText(folderAround(file.path));
    case InBackup:
        break;
    }
    return backupTitles_.value(file.backup, shownName(file.backup));
}

/// What those hear who do not see the symbol, and that a cell is empty.
QString FilesModel::spokenText(int row, Column column) const
{
    if (column != Name) {
        const QString shown = text(row, column);
        return shown.isEmpty() ? u"–"_s : shown;
    }
    const FileEntry& file = entry(row);
    QStringList parts{text(row, Name)};
    if (file.kind == FileKind::Folder)
        parts.append(localizedString("browseFolderKind"));
    if (file.kind == FileKind::Link)
        parts.append(localizedString("browseLinkTo").arg(shownLongText(file.target)));
    if (const QString change = changeText(since(row)); !change.isEmpty())
        parts.append(change);
    return parts.join(u", "_s);
}

QVariant FilesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const Column column = columnAt(kind_, section);
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::ToolTipRole && isFolder() && column <= Modified)
        return localizedString("browseSortTip").arg(sortKeys(column).toString(QKeySequence::NativeText));
    return role == Qt::DisplayRole ? localizedString(titleKey(column)) : QVariant();
}

void FilesModel::sort(int column, Qt::SortOrder order)
{
    static constexpr std::array by{FileOrder::By::Name, FileOrder::By::Size, FileOrder::By::Modified};
    order_ = {.by = by.at(static_cast<std::size_t>(column)), .descending = order == Qt::DescendingOrder};
    if (!isFolder())
        return;
    Q_EMIT layoutAboutToBeChanged();
    const std::vector<int> rows = applyOrder();
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex& old : before)
        after.append(index(rows.at(static_cast<std::size_t>(old.row())), old.column()));
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged();
}

QKeySequence FilesModel::sortKeys(Column column)
{
    return QKeyCombination(Qt::CTRL, static_cast<Qt::Key>(Qt::Key_1 + static_cast<int>(column)));
}

/// Returns the new row of each old one.
std::vector<int> FilesModel::applyOrder()
{
    const auto places = sortedPlaces(files_, order_);
    std::vector<FileEntry> files;
    std::vector<Since> changes;
    std::vector<int> rows(files_.size());
    files.reserve(files_.size());
    for (const std::size_t place : places) {
        rows[place] = static_cast<int>(files.size());
        files.push_back(std::move(files_[place]));
        if (!changes_.empty())
            changes.push_back(changes_[place]);
    }
    files_ = std::move(files);
    changes_ = std::move(changes);
    return rows;
}

bool FilesModel::canFetchMore(const QModelIndex& parent) const
{
    return !parent.isValid() && more_;
}

void FilesModel::fetchMore(const QModelIndex& /*parent*/)
{
    const auto files = more_();
    if (files.empty())
        more_ = {};
    append(files);
}

} // namespace quillon
