#pragma once

#include <cstdint>

namespace quillon {

/// Which icon the menu bar shows; stored between launches.
enum class MenuBarIconState : std::int64_t {
    None = -1, ///< no image, before anything was set
    Idle = 1,
    Running = 2,
    Completed = 3, ///< a run ended, completed or stopped by the user
    UpdateAvailable = 4,
    Failed = 5,         ///< a run ended without completing and without a user's stop
    MissedSchedule = 6, ///< a scheduled backup was found missed on wake
};

} // namespace quillon
