#include "WheelGuard.h"

#include <QEvent>

namespace quillon {

WheelGuard::WheelGuard(QWidget* control)
    : QObject(control)
{
    control->setFocusPolicy(Qt::StrongFocus); // the wheel brings no focus along
    control->installEventFilter(this);
}

bool WheelGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus())
        return QObject::eventFilter(watched, event);
    event->ignore();
    return true;
}

} // namespace quillon
