#pragma once

#include "Date.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <array>
#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quillon {

class RunLoop;
struct TimerState;

/// Owner's handle on a timer of a RunLoop; letting go of the handle invalidates the timer.
///
/// A default-constructed handle stands for "no timer".
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

/// The one source of the current time, of timers and of queued blocks.
///
/// The rules for timers live here, so that the real run loop and the virtual one of the tests share them; what differs
/// is the clock and the way of being woken.
///
/// - A timer for a date is due when its time on the uptime clock has come, and its block runs only once now() is later
///   than its date by at least 1 ms: whoever looks for "the next date from now on" inside the block finds a later one.
///   A wall clock that jumps forward does not make a timer run early; who plans by dates holds now() against uptime()
///   to notice jumps.
/// - The other timers follow the uptime clock alone, so that no step of the wall clock stalls them. A tick of a
///   repeating one that was missed is made up once, not once for every period.
class RunLoop {
public:
    using Block = std::function<void()>;

    RunLoop() = default;
    RunLoop(const RunLoop&) = delete;
    RunLoop& operator=(const RunLoop&) = delete;
    virtual ~RunLoop() = default;

    virtual Date now() const = 0;

    /// Time since an arbitrary start. Never steps; stands still while the system sleeps.
    virtual std::chrono::milliseconds uptime() const = 0;

    /// Runs the block in a later turn, after the blocks queued before it.
    void enqueue(Block block);

    /// A timer that runs once, at a wall-clock date any time ahead; a date not in the future is due at once.
    [[nodiscard]] Timer scheduleOnce(Date fireDate, Block block);

    /// A timer that runs once, after so much uptime.
    [[nodiscard]] Timer scheduleAfter(Seconds uptime, Block block);

    /// A timer that runs every `interval`, the first time one interval from now.
    [[nodiscard]] Timer scheduleRepeating(Seconds interval, Block block);

protected:
    /// Asks the implementation to call runTurn() when the uptime clock reaches `uptime`, replacing an earlier request.
    virtual void wakeAt(std::chrono::milliseconds uptime) = 0;

    /// Runs the blocks queued so far, then every timer that is due, and asks for the next wake-up.
    void runTurn();

    /// When runTurn() has something to do, on the uptime clock; nothing when it has not.
    std::optional<std::chrono::milliseconds> nextDue() const;

private:
    Timer schedule(TimerState state);
    void runQueuedBlocks();
    void runDueTimers();
    void runTimer(const std::shared_ptr<TimerState>& timer);
    void run(const Block& block);
    void requestWake();

    std::deque<Block> queue_;
    std::vector<std::weak_ptr<TimerState>> timers_;
};

/// The run loop of a real program, on the Qt event loop. Its blocks run also while a menu or an alert is open.
class QtRunLoop final : public QObject, public RunLoop {
    Q_OBJECT

public:
    QtRunLoop();

    Date now() const override;
    std::chrono::milliseconds uptime() const override;

protected:
    void wakeAt(std::chrono::milliseconds uptime) override;

private:
    QTimer wake_;
};

/// Makes the signals that ask a program to end (SIGTERM, SIGINT, SIGHUP) an orderly quit of the application. One object
/// per program, for as long as the event loop runs.
class QuitSignals {
public:
    QuitSignals();
    QuitSignals(const QuitSignals&) = delete;
    QuitSignals& operator=(const QuitSignals&) = delete;
    ~QuitSignals();

private:
    std::array<int, 2> pipe_{-1, -1};
    QSocketNotifier notifier_{QSocketNotifier::Read};
};

} // namespace quillon
