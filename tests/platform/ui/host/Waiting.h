#pragma once

#include <QTest>

namespace quillon {

/// Runs the event loop until the condition holds; false when it does not come true within half a minute.
template<typename Condition>
bool eventually(Condition condition)
{
    constexpr int patienceMs = 30'000;
    return QTest::qWaitFor(condition, patienceMs);
}

} // namespace quillon
