#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>

namespace quillon {

/// Runs the event loop until the condition holds; false when it never did. The bound only ends a test that hangs.
template<typename Condition>
bool runUntil(Condition condition, int boundSeconds = 240)
{
    QDeadlineTimer deadline(boundSeconds * qint64{1000});
    while (!condition() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    return condition();
}

} // namespace quillon
