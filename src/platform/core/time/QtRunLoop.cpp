#include "QtRunLoop.h"

#include "ProcessInfo.h"

#include <algorithm>

namespace quillon {

using namespace std::chrono_literals;

namespace {

// QTimer counts milliseconds in an int, 24 days at most; waking once an hour for a farther date costs nothing.
constexpr std::chrono::milliseconds longestWait = 1h;

} // namespace

QtRunLoop::QtRunLoop()
{
    wake_.setSingleShot(true);
    wake_.setTimerType(Qt::PreciseTimer); // coarse timers are up to 5 % late
    connect(&wake_, &QTimer::timeout, this, [this] { runTurn(); });
}

Date QtRunLoop::now() const
{
    return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
}

std::chrono::milliseconds QtRunLoop::uptime() const
{
    return systemUptime();
}

void QtRunLoop::wakeAt(std::chrono::milliseconds uptime)
{
    const auto wait = std::clamp(uptime - this->uptime(), 0ms, longestWait);
    wake_.start(wait);
}

} // namespace quillon
