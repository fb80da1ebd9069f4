#pragma once

#include "RunLoop.h"

namespace quillon {

/// What a Timer handle and its RunLoop share. An empty block marks an invalidated timer.
struct TimerState {
    RunLoop::Block block;
    std::chrono::milliseconds due{};                   ///< on the uptime clock
    std::optional<std::chrono::milliseconds> interval; ///< set for a repeating timer
    Date fireDate{};                                   ///< wall-clock date of a one-shot timer
};

} // namespace quillon
