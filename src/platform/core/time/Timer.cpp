#include "Timer.h"

#include "TimerState.h"

#include <utility>

namespace quillon {

Timer::Timer(std::shared_ptr<TimerState> state)
    : state_(std::move(state))
{
}

Timer& Timer::operator=(Timer&& other) noexcept
{
    if (this != &other) {
        invalidate();
        state_ = std::move(other.state_);
    }
    return *this;
}

Timer::~Timer()
{
    invalidate();
}

bool Timer::isValid() const
{
    return state_ && state_->block;
}

void Timer::invalidate()
{
    if (state_)
        state_->block = nullptr;
}

void Timer::fire()
{
    if (!isValid())
        return;
    // The block may replace this very handle: what it needs is held here while it runs.
    const RunLoop::Block block = state_->block;
    if (!state_->interval)
        invalidate();
    block();
}

} // namespace quillon
