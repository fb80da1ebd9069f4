#include "LogModel.h"

#include "DataHelper.h"
#include "DayStrip.h"
#include "LocalizedString.h"
#include "LogWords.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

void LogModel::show(std::vector<LedgerEntry> entries, Date now)
{
    beginResetModel();
    entries_ = std::move(entries);
    now_ = now;
    endResetModel();
}

int LogModel::rowOf(std::int64_t id) const
{
    const auto found = std::ranges::find(entries_, id, &LedgerEntry::id);
    return found == entries_.end() ? -1 : static_cast<int>(found - entries_.begin());
}

int LogModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

int LogModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Duration + 1;
}

QVariant LogModel::data(const QModelIndex& index, int role) const
{
    const LedgerEntry& entry = entries_.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case Qt::DisplayRole:
        return text(entry, index.column());
    case Qt::AccessibleTextRole: { // an empty cell would be passed over
        const QString shown = text(entry, index.column());
        return shown.isEmpty() ? u"–"_s : shown;
    }
    case Qt::DecorationRole:
        return index.column() == When ? QVariant(markIcon(logwords::markOf(entry.outcome))) : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() >= Size ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    default:
        return {};
    }
}

QString LogModel::text(const LedgerEntry& entry, int column) const
{
    switch (column) {
    case When:
        return DataHelper::dayAndTime(entry.date, DateFormatterStyle::Medium, now_);
    case Outcome:
        return logwords::outcome(entry.outcome);
    case Cause:
        return logwords::cause(entry.cause);
    case Disk:
        return logwords::disk(entry);
    case Size:
        return logwords::size(entry);
    default:
        return logwords::duration(entry);
    }
}

QVariant LogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole && section >= Size)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    static constexpr std::array keys{"logDateTitle", "logOutcomeTitle", "logCauseTitle",
                                     "logDiskTitle", "logSizeTitle",    "logDurationTitle"};
    return localizedString(keys.at(static_cast<std::size_t>(section)));
}

} // namespace quillon
