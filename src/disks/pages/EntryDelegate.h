#pragma once

#include <QStyledItemDelegate>

namespace quillon {

/// Draws an entry of a list: a symbol, a bold title, lines of details below it, long ones shortened in the middle, and
/// remarks, which are wrapped. Everything has at least 4.5:1 contrast to its ground (WCAG 2.1, 1.4.3).
class EntryDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    static constexpr int detailsRole = Qt::UserRole + 1; ///< QStringList
    static constexpr int symbolRole = Qt::UserRole + 2;  ///< QString, the symbol's name
    static constexpr int dimmedRole = Qt::UserRole + 3;  ///< bool: what it stands for is not there
    static constexpr int remarksRole = Qt::UserRole + 4; ///< QStringList

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace quillon
