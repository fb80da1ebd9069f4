#pragma once

#include <QtCore/qtestsupport_core.h>

namespace quillon {

/// Runs the event loop until the condition holds; false when it never did. The bound only ends a test that hangs.
template<typename Condition>
bool runUntil(Condition condition, int boundSeconds = 240)
{
    return QTest::qWaitFor(condition, boundSeconds * 1000);
}

} // namespace quillon
