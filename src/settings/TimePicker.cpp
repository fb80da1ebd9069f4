#include "TimePicker.h"

#include <QKeyEvent>

namespace quillon {

namespace {

constexpr int noon = 12;
constexpr int halfDay = noon * 3600;

} // namespace

TimePicker::TimePicker(QWidget* parent)
    : QTimeEdit(parent)
{
    setWrapping(true);
}

void TimePicker::stepBy(int steps)
{
    if (currentSection() != AmPmSection) {
        QTimeEdit::stepBy(steps);
        return;
    }
    setTime(time().addSecs(steps * halfDay)); // Qt stops in the afternoon: half a day further would be another day
    setSelectedSection(AmPmSection);
}

/// Qt takes the whole marker or nothing: a single letter would be dropped without a word.
void TimePicker::keyPressEvent(QKeyEvent* event)
{
    const bool isLetter = (event->modifiers() & ~Qt::ShiftModifier) == Qt::NoModifier &&
                          (event->key() == Qt::Key_A || event->key() == Qt::Key_P);
    if (currentSection() != AmPmSection || !isLetter) {
        QTimeEdit::keyPressEvent(event);
        return;
    }
    if ((event->key() == Qt::Key_P) != (time().hour() >= noon))
        stepBy(1);
}

} // namespace quillon
