#pragma once

#include <memory>

namespace quillon {

class RunLoop;
struct TimerState;

/// Owner's handle on a timer of a RunLoop; letting go of the handle invalidates the timer.
///
/// A default-constructed handle stands for "no timer". Main thread only.
class Timer {
public:
    Timer() = default;
    Timer(Timer&& other) noexcept = default;
    Timer& operator=(Timer&& other) noexcept;
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;
    ~Timer();

    bool isValid() const;

    /// After this the block never runs again. Safe from inside the block itself.
    void invalidate();

    /// Runs the block now. A repeating timer keeps its schedule, a one-shot timer is invalidated; an invalid timer
    /// does nothing.
    void fire();

private:
    friend class RunLoop;
    explicit Timer(std::shared_ptr<TimerState> state);

    std::shared_ptr<TimerState> state_;
};

} // namespace quillon
