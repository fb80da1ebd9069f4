#pragma once

#include <chrono>

namespace quillon {

/// Time since an arbitrary start on the clock that stands still while the system sleeps.
std::chrono::milliseconds uptimeClockNow();

} // namespace quillon
