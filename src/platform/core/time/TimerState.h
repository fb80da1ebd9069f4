#pragma once

#include "RunLoop.h"

namespace quillon {

/// What a Timer handle and its RunLoop share. An empty block marks an invalidated timer.
struct TimerState {
    RunLoop::Block block;
    std::chrono::milliseconds due{};                     ///< on the uptime clock
    std::optional<std::chrono::milliseconds> interval{}; ///< of a repeating timer
    std::optional<Date> fireDate{};                      ///< on the wall clock, which a timer may have to wait for too
};

} // namespace quillon
