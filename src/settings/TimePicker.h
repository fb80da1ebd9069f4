#pragma once

#include <QSpinBox>
#include <QString>
#include <QStyleOptionSpinBox>
#include <QTimeEdit>

namespace quillon {

/// The display format of a QTimeEdit for the Unicode date pattern (UTS 35) of a time of day: hours and minutes in the
/// pattern's order and with its separators, "Ap" where the pattern has a day period. Nothing else that a pattern may
/// hold is a part of a time picker.
QString timePickerFormat(const QString& pattern);

/// The two arrows of a spin box without its text field, for a value that another control shows.
class Stepper final : public QSpinBox {
    Q_OBJECT

public:
    explicit Stepper(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QStyleOptionSpinBox wholeSpinBox() const;
};

/// A field for a time of day. Its arrows go round, and switch between the halves of the day; so do the keys A and P, in
/// every language. What is typed replaces the part of the time where the cursor is or, where all of it is selected, the
/// time from its hours on. A digit that cannot go on with the hours begins the minutes.
class TimePicker final : public QTimeEdit {
    Q_OBJECT

public:
    explicit TimePicker(QWidget* parent = nullptr);

    void stepBy(int steps) override;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void selectPart(int index);
    void type(int digit);
    int largest(Section part) const;
    void setPart(Section part, int value);

    int typedDigits_ = 0; ///< by the keys just pressed
    int typed_ = 0;       ///< what they make
    Section typedPart_ = NoSection;
};

} // namespace quillon
