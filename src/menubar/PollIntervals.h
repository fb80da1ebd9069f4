#pragma once

/// How often Time Machine is asked for its status, in seconds.
namespace quillon::pollintervals {

inline constexpr double idle = 15.0;
inline constexpr double running = 3.0;
/// From an accepted start until Time Machine reports the run.
inline constexpr double starting = 0.2;

} // namespace quillon::pollintervals
