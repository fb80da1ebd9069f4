#pragma once

#include <QTime>
#include <QWidget>

#include <memory>

class QAbstractButton;
namespace Ui {
class CalendarIntervalCell;
}

namespace quillon {

/// Lets the wheel change a control only where the user has gone to: what it merely passes over is scrolled. It is the
/// control's own.
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

} // namespace quillon
