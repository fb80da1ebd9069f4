#pragma once

#include <QList>
#include <QScrollArea>
#include <QTime>
#include <QWidget>

#include <memory>

class QVBoxLayout;
class QAbstractButton;
namespace Ui {
class CalendarIntervalCell;
}

namespace quillon {

/// Lets the wheel change a control only where it has the keyboard: over any other it scrolls what is around. The
/// control owns the guard.
class WheelGuard final : public QObject {
    Q_OBJECT

public:
    explicit WheelGuard(QWidget* control);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

/// One rule of the schedule as a row that reads as a sentence: back up on this day at this time. The signals tell of
/// changes by the user, never of fill().
class CalendarIntervalCellView final : public QWidget {
    Q_OBJECT

public:
    explicit CalendarIntervalCellView(QWidget* parent = nullptr);
    ~CalendarIntervalCellView() override;

    /// @param row the rule's place in the list
    /// @param day the rule's day code; one that the menu does not have shows as none
    void fill(int row, qlonglong day, QTime time);
    int row() const { return row_; }
    /// Day code of the chosen item.
    qlonglong day() const;
    QTime time() const;
    QAbstractButton* deleteButton() const;

    /// Gives the keyboard to the row's first control.
    void takeKeyboard();
    /// Puts the row's controls behind `widget` in the order of the Tab key; returns the last of them.
    QWidget* setTabOrderAfter(QWidget* widget);

Q_SIGNALS:
    void dayChanged();
    void timeChanged();
    void deleteButtonPressed();

private:
    void titleDayMenu();
    void applyTitles();
    void describe();

    std::unique_ptr<Ui::CalendarIntervalCell> ui_;
    int row_ = 0;
};

/// The rows of the schedule's rules. As high as five rows; it scrolls when there are more. A row lives until the table
/// gets shorter than its place.
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
    void paintEvent(QPaintEvent* event) override;

private:
    void addRow();
    void removeLastRow();
    QSize sizeOfRow() const;

    QVBoxLayout* layout_;
    QList<CalendarIntervalCellView*> rows_;
};

} // namespace quillon
