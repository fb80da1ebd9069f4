#include "TimePicker.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace quillon {

namespace {

constexpr int noon = 12;
constexpr int halfDay = noon * 3600;

} // namespace

TimePicker::TimePicker(QWidget* parent)
    : QTimeEdit(parent)
{
    setWrapping(true);
    lineEdit()->installEventFilter(this);
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

/// Where nothing is selected Qt drops what is typed into a part that is full, and they all are.
bool TimePicker::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != lineEdit() || event->type() != QEvent::MouseButtonRelease)
        return QTimeEdit::eventFilter(watched, event);
    lineEdit()->event(event);
    setSelectedSection(currentSection());
    return true;
}

/// Qt takes the whole marker or nothing: a single letter would be dropped without a word.
void TimePicker::keyPressEvent(QKeyEvent* event)
{
    const bool isLetter = (event->modifiers() & ~Qt::ShiftModifier) == Qt::NoModifier &&
                          (event->key() == Qt::Key_A || event->key() == Qt::Key_P);
    if (currentSection() != AmPmSection || !isLetter) {
        QTimeEdit::keyPressEvent(event);
        if (event->key() == Qt::Key_Home || event->key() == Qt::Key_End)
            setSelectedSection(currentSection());
        return;
    }
    if ((event->key() == Qt::Key_P) != (time().hour() >= noon))
        stepBy(1);
}

} // namespace quillon
