#pragma once

#include "RunLoop.h"

namespace quillon {

/// A run loop whose clocks the test moves: a year passes in milliseconds.
class VirtualRunLoop final : public RunLoop {
public:
    explicit VirtualRunLoop(Date start);

    Date now() const override { return now_; }
    std::chrono::milliseconds uptime() const override { return uptime_; }

    /// Lets time pass: every block and timer that falls due runs at its own moment, in order.
    void advance(Seconds interval);
    /// Advances to a wall-clock date that is not in the past.
    void advanceTo(Date date);
    /// Runs what is due now, without letting time pass.
    void settle();

    /// Somebody sets the wall clock: it steps, the uptime clock does not.
    void stepWallClock(Seconds step);

protected:
    void wakeAt(std::chrono::milliseconds) override {}

private:
    Date now_;
    std::chrono::milliseconds uptime_{0};
};

} // namespace quillon
