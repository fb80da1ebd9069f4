#pragma once

#include <QTimeEdit>

namespace quillon {

/// A field for a time of day. Its arrows go round, and switch between the halves of the day, as the keys A and P do in
/// every language; wherever the user puts the cursor, what is typed next replaces that part of the time, or, where all
/// of it is selected, the time from its hours on. A digit that cannot go on with the hours begins the minutes. Main
/// thread only.
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
