#include "ClockWatch.h"

#include "Calendar.h"

#include <utility>

namespace quillon {

using namespace std::chrono_literals;

namespace {

// More than a clock that is kept right by the network drifts between two looks.
constexpr auto jumpThreshold = 2s;

std::chrono::milliseconds wallAheadOfUptime(const RunLoop& runLoop)
{
    return runLoop.now().time_since_epoch() - runLoop.uptime();
}

} // namespace

ClockWatch::ClockWatch(const RunLoop& runLoop)
    : runLoop_(runLoop)
    , wallAheadOfUptime_(wallAheadOfUptime(runLoop))
    , timeZone_(Calendar::hostTimeZone())
{
}

ClockWatch::Change ClockWatch::look()
{
    const auto previous = std::exchange(wallAheadOfUptime_, wallAheadOfUptime(runLoop_));
    const QString previousZone = std::exchange(timeZone_, Calendar::hostTimeZone());
    Change change;
    if (const auto step = wallAheadOfUptime_ - previous; std::chrono::abs(step) > jumpThreshold)
        change.step = step;
    change.newTimeZone = timeZone_ != previousZone;
    return change;
}

} // namespace quillon
