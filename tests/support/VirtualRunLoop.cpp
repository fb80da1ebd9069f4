#include "VirtualRunLoop.h"

#include <stdexcept>

namespace quillon {

namespace {

// More turns than this without time passing are a loop that never ends.
constexpr int turnBound = 100'000;

} // namespace

VirtualRunLoop::VirtualRunLoop(Date start)
    : now_(start)
{
}

void VirtualRunLoop::settle()
{
    for (int turns = 0;; ++turns) {
        const auto next = nextDue();
        if (!next || *next > uptime_)
            return;
        if (turns == turnBound)
            throw std::logic_error("the run loop never comes to rest");
        runTurn();
    }
}

void VirtualRunLoop::advance(Seconds interval)
{
    const auto end = uptime_ + std::chrono::round<std::chrono::milliseconds>(interval);
    settle();
    for (auto next = nextDue(); next && *next <= end; next = nextDue()) {
        now_ += *next - uptime_;
        uptime_ = *next;
        settle();
    }
    now_ += end - uptime_;
    uptime_ = end;
}

void VirtualRunLoop::advanceTo(Date date)
{
    advance(date - now_);
}

void VirtualRunLoop::stepWallClock(Seconds step)
{
    now_ = dateByAdding(now_, step);
}

} // namespace quillon
