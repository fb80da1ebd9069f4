#pragma once

#include <QTest>

#include <functional>

namespace quillon {

/// Runs the event loop until the condition holds; false when it does not come true within half a minute.
inline bool eventually(const std::function<bool()>& condition)
{
    constexpr int patienceMs = 30'000;
    return QTest::qWaitFor(condition, patienceMs);
}

} // namespace quillon
