#include "TimePicker.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>

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

void TimePicker::keyPressEvent(QKeyEvent* event)
{
    const bool isPlain = (event->modifiers() & ~Qt::ShiftModifier) == Qt::NoModifier;
    switch (isPlain ? event->key() : 0) {
    case Qt::Key_Left:
        selectPart(currentSectionIndex() - 1);
        return;
    case Qt::Key_Right:
        selectPart(currentSectionIndex() + 1);
        return;
    case Qt::Key_Home:
        selectPart(0);
        return;
    case Qt::Key_End:
        selectPart(sectionCount() - 1);
        return;
    case Qt::Key_A:
    case Qt::Key_P:
        if (currentSection() != AmPmSection)
            break;
        // Qt takes the whole marker or nothing: a single letter would be dropped without a word.
        if ((event->key() == Qt::Key_P) != (time().hour() >= noon))
            stepBy(1);
        return;
    default:
        break;
    }
    QTimeEdit::keyPressEvent(event);
}

void TimePicker::selectPart(int index)
{
    setSelectedSection(sectionAt(std::clamp(index, 0, sectionCount() - 1)));
}

} // namespace quillon
