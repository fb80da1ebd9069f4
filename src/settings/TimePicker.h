#pragma once

#include <QTimeEdit>

namespace quillon {

/// A field for a time of day. Its arrows go round, and switch between the halves of the day, as the keys A and P do in
/// every language; wherever the user puts the cursor, what is typed next replaces that part of the time. Main thread
/// only.
class TimePicker final : public QTimeEdit {
    Q_OBJECT

public:
    explicit TimePicker(QWidget* parent = nullptr);

    void stepBy(int steps) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void selectPart(int index);
};

} // namespace quillon
