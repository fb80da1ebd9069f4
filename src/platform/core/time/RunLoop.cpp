#include "RunLoop.h"

#include "ProcessInfo.h"

#include <QCoreApplication>

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace quillon {

using namespace std::chrono_literals;
using std::chrono::milliseconds;

/// What a Timer handle and its RunLoop share. An empty block marks an invalidated timer.
struct TimerState {
    RunLoop::Block block;
    std::chrono::milliseconds due{};                     ///< on the uptime clock
    std::optional<std::chrono::milliseconds> interval{}; ///< of a repeating timer
    std::optional<Date> fireDate{};                      ///< on the wall clock, which a timer may have to wait for too
};

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

void RunLoop::enqueue(Block block)
{
    queue_.push_back(std::move(block));
    requestWake();
}

Timer RunLoop::scheduleOnce(Date fireDate, Block block)
{
    return schedule({std::move(block), uptime() + std::max(fireDate - now() + 1ms, 0ms), {}, fireDate});
}

Timer RunLoop::scheduleAfter(Seconds uptime, Block block)
{
    return schedule({std::move(block), this->uptime() + std::chrono::round<milliseconds>(uptime)});
}

Timer RunLoop::scheduleRepeating(Seconds interval, Block block)
{
    const auto period = std::max(std::chrono::round<milliseconds>(interval), 1ms);
    return schedule({std::move(block), uptime() + period, period});
}

Timer RunLoop::schedule(TimerState state)
{
    auto shared = std::make_shared<TimerState>(std::move(state));
    timers_.emplace_back(shared);
    requestWake();
    return Timer(std::move(shared));
}

void RunLoop::runTurn()
{
    runQueuedBlocks();
    runDueTimers();
    requestWake();
}

void RunLoop::runQueuedBlocks()
{
    // Blocks queued by these blocks wait for the next turn, so a block that queues itself starves nobody.
    for (auto remaining = queue_.size(); remaining > 0 && !queue_.empty(); --remaining) {
        const Block block = std::move(queue_.front());
        queue_.pop_front();
        run(block);
    }
}

void RunLoop::runDueTimers()
{
    std::vector<std::shared_ptr<TimerState>> due;
    const auto clock = uptime();
    for (const auto& weak : timers_) {
        auto timer = weak.lock();
        if (timer && timer->block && timer->due <= clock)
            due.push_back(std::move(timer));
    }
    std::stable_sort(due.begin(), due.end(), [](const auto& a, const auto& b) { return a->due < b->due; });
    for (const auto& timer : due)
        runTimer(timer);
}

void RunLoop::runTimer(const std::shared_ptr<TimerState>& timer)
{
    if (!timer->block || timer->due > uptime())
        return; // an earlier block of this turn invalidated it, or opened an event loop that has run it
    if (timer->interval) {
        timer->due += *timer->interval;
        if (timer->due <= uptime())
            timer->due = uptime() + *timer->interval;
        run(Block(timer->block));
        return;
    }
    if (timer->fireDate && *timer->fireDate + 1ms > now()) {
        timer->due = uptime() + (*timer->fireDate + 1ms - now()); // the wall clock was set back meanwhile
        return;
    }
    run(std::exchange(timer->block, nullptr));
}

void RunLoop::run(const Block& block)
{
    // A block that opens an event loop of its own, such as an alert, leaves to that one what waits behind it.
    requestWake();
    block();
}

std::optional<milliseconds> RunLoop::nextDue() const
{
    if (!queue_.empty())
        return uptime();
    std::optional<milliseconds> next;
    for (const auto& weak : timers_) {
        const auto timer = weak.lock();
        if (timer && timer->block && (!next || timer->due < *next))
            next = timer->due;
    }
    return next;
}

void RunLoop::requestWake()
{
    std::erase_if(timers_, [](const auto& weak) {
        const auto timer = weak.lock();
        return !timer || !timer->block;
    });
    if (const auto next = nextDue())
        wakeAt(*next);
}

namespace {

// QTimer counts milliseconds in an int, 24 days at most; waking once an hour for a farther date costs nothing.
constexpr milliseconds longestWait = 1h;

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

milliseconds QtRunLoop::uptime() const
{
    return systemUptime();
}

void QtRunLoop::wakeAt(milliseconds uptime)
{
    const auto wait = std::clamp(uptime - this->uptime(), 0ms, longestWait);
    wake_.start(wait);
}

namespace {

// A signal handler is given nothing but the signal's number.
volatile sig_atomic_t writeEnd = -1;

void passOn(int)
{
    const char byte = 0;
    [[maybe_unused]] const auto written = write(writeEnd, &byte, 1);
}

void handleWith(void (*handler)(int))
{
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        sigaction(signal, &action, nullptr);
}

} // namespace

QuitSignals::QuitSignals()
{
    if (pipe(pipe_.data()) != 0)
        return; // the signals end the program as they always did
    for (const int end : pipe_) {
        fcntl(end, F_SETFD, FD_CLOEXEC);
        fcntl(end, F_SETFL, O_NONBLOCK);
    }
    writeEnd = pipe_[1];
    notifier_.setSocket(pipe_[0]);
    QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this] {
        char byte = 0;
        while (read(pipe_[0], &byte, 1) == 1) {
        }
        QCoreApplication::quit();
    });
    notifier_.setEnabled(true);
    handleWith(passOn);
}

QuitSignals::~QuitSignals()
{
    handleWith(SIG_DFL);
    for (const int end : pipe_) {
        if (end >= 0)
            close(end);
    }
}

} // namespace quillon
