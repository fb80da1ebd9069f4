#pragma once

#include <QTest>

namespace quillon {

/// Runs the event loop until the condition holds; false when it does not come true within four minutes.
template<typename Condition>
bool eventually(Condition condition)
{
    constexpr int patienceMs = 240'000; // it only ends a test that hangs
    return QTest::qWaitFor(condition, patienceMs);
}

} // namespace quillon
