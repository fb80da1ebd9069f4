#include "ClockWatch.h"

#include <utility>

namespace quillon {

using namespace std::chrono_literals;

namespace {

// More than a clock that is kept right by the network drifts between two looks.
constexpr auto jumpThreshold = 2s;

constexpr auto longestWaitForWake = 1min;

constexpr auto watchedAhead = std::chrono::days(366);

// Two looks are held against the same year, so that a change which time alone brings into view counts as none.
constexpr auto yearIsKept = std::chrono::days(1);

std::chrono::milliseconds wallAheadOfUptime(const RunLoop& runLoop)
{
    return runLoop.now().time_since_epoch() - runLoop.uptime();
}

} // namespace

ClockWatch::ClockWatch(const RunLoop& runLoop)
    : runLoop_(runLoop)
    , wallAheadOfUptime_(wallAheadOfUptime(runLoop))
    , zone_(zoneYearFrom(runLoop.now()))
{
}

ClockWatch::Change ClockWatch::look()
{
    asleepSince_.reset();
    const auto previous = std::exchange(wallAheadOfUptime_, wallAheadOfUptime(runLoop_));
    Change change;
    if (const auto step = wallAheadOfUptime_ - previous; std::chrono::abs(step) > jumpThreshold)
        change.step = step;
    const ZoneYear sameYear = zoneYearFrom(zone_.begin);
    change.newTimeZone = sameYear != zone_;
    const Date now = runLoop_.now();
    zone_ = std::chrono::abs(now - zone_.begin) > yearIsKept ? zoneYearFrom(now) : sameYear;
    return change;
}

bool ClockWatch::wakeUpWasLost() const
{
    return asleepSince_ && runLoop_.uptime() - *asleepSince_ > longestWaitForWake; // a clock that stands still in sleep
}

ClockWatch::ZoneYear ClockWatch::zoneYearFrom(Date begin)
{
    const Calendar calendar;
    return {begin, calendar.offsetFromUtc(begin), calendar.offsetChanges(begin, begin + watchedAhead)};
}

} // namespace quillon
