#pragma once

#include <QList>
#include <QScrollArea>

class QVBoxLayout;

namespace quillon {

class CalendarIntervalCellView;

/// The rows of the schedule's rules. As high as five rows; it scrolls when there are more, or less room. A row lives
/// until the table gets shorter than its place.
class CalendarIntervalTable final : public QScrollArea {
    Q_OBJECT

public:
    static constexpr int rowsInView = 5;

    explicit CalendarIntervalTable(QWidget* parent = nullptr);

    int numberOfRows() const { return static_cast<int>(rows_.size()); }
    /// Adds or removes rows at the end. A row may be removed while one of its signals is delivered.
    void setNumberOfRows(int count);
    CalendarIntervalCellView* viewAtRow(int row) const { return rows_.at(row); }
    void scrollRowToVisible(int row);
    /// From the table's upper edge; whether there is a row or not.
    int heightOfFirstRow() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void rowAdded(quillon::CalendarIntervalCellView* view);

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void addRow();
    void removeLastRow();
    QSize sizeOfRow() const;

    QVBoxLayout* layout_;
    QList<CalendarIntervalCellView*> rows_;
};

} // namespace quillon
