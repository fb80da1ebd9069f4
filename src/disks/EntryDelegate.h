#pragma once

#include <QStyledItemDelegate>

namespace quillon {

/// Draws an entry of a list: a symbol, a bold title, and lines of details below it, long ones shortened in the middle.
class EntryDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    static constexpr int detailsRole = Qt::UserRole + 1; ///< QStringList
    static constexpr int symbolRole = Qt::UserRole + 2;  ///< QString, the symbol's name
    static constexpr int dimmedRole = Qt::UserRole + 3;  ///< bool: what it stands for is not there

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace quillon
