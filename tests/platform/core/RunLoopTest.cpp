#include "RunLoop.h"

#include "EventLoop.h"
#include "VirtualRunLoop.h"

#include <QEventLoop>
#include <QTimer>

#include <gtest/gtest.h>
#include <vector>

namespace quillon {

using namespace std::chrono;

namespace {

constexpr Date start = sys_days(2026y / March / 1);

class RunLoopTest : public testing::Test {
protected:
    RunLoop::Block note(int mark)
    {
        return [this, mark] { marks.push_back(mark); };
    }

    VirtualRunLoop loop{start};
    std::vector<int> marks;
};

TEST_F(RunLoopTest, BlocksRunInOrderInALaterTurnAndWithinAnEventLoopThatOneOfThemOpens)
{
    loop.enqueue([this] { loop.enqueue(note(2)); });
    loop.enqueue([this] {
        loop.settle();
        marks.push_back(3);
    });
    loop.enqueue(note(1));
    EXPECT_TRUE(marks.empty());
    loop.settle();
    EXPECT_EQ(marks, (std::vector{1, 2, 3}));
}

TEST_F(RunLoopTest, AOneShotTimerRunsOnceAndOnlyWhenNowIsPastItsDateHoweverFarAhead)
{
    constexpr Date date = start + days(35); // more milliseconds than an int holds
    std::vector<Date> runs;
    const Timer timer = loop.scheduleOnce(date, [&] { runs.push_back(loop.now()); });
    loop.advanceTo(date);
    EXPECT_TRUE(runs.empty()) << "now equals the date";
    loop.advance(1h);
    EXPECT_EQ(runs, (std::vector<Date>{date + 1ms}));
    EXPECT_FALSE(timer.isValid());
}

TEST_F(RunLoopTest, AWallClockSetBackDelaysAOneShotTimerAndSetForwardDoesNotHurryIt)
{
    const Timer back = loop.scheduleOnce(start + 1h, note(1));
    const Timer pace = loop.scheduleRepeating(45min, note(0));
    loop.stepWallClock(-30min);
    loop.advance(1h + 1s);
    EXPECT_EQ(marks, std::vector{0}) << "its date has not come yet";
    loop.advance(30min);
    EXPECT_EQ(marks, (std::vector{0, 0, 1}));
    const Timer forward = loop.scheduleOnce(loop.now() + 1h, note(2));
    loop.stepWallClock(3h);
    loop.advance(59min);
    EXPECT_EQ(marks, (std::vector{0, 0, 1, 0}));
    loop.advance(2min);
    EXPECT_EQ(marks, (std::vector{0, 0, 1, 0, 2}));
}

TEST_F(RunLoopTest, FireLeavesARepeatingTimersScheduleAloneAndUsesAOneShotTimerUp)
{
    Timer repeating = loop.scheduleRepeating(15s, note(1));
    loop.advance(10s);
    repeating.fire();
    loop.advance(5s);
    EXPECT_EQ(marks, (std::vector{1, 1}));
    repeating.invalidate();

    Timer once = loop.scheduleOnce(loop.now() + 10s, note(2));
    once.fire();
    EXPECT_FALSE(once.isValid());
    once.fire();
    Timer().fire();
    loop.advance(1h);
    EXPECT_EQ(marks, (std::vector{1, 1, 2}));
}

TEST_F(RunLoopTest, ATimerIsReplacedOrInvalidatedInAnyBlockAndByLettingGoOfItsHandle)
{
    Timer once;
    once = loop.scheduleOnce(start + 1s, [&] {
        marks.push_back(1);
        once = loop.scheduleOnce(loop.now() + 1s, note(2));
    });
    Timer repeating;
    repeating = loop.scheduleRepeating(1s, [&, alive = std::make_shared<int>(3)] {
        repeating = Timer();
        marks.push_back(*alive);
    });
    Timer other;
    const Timer first = loop.scheduleOnce(start + 1s, [&] { other.invalidate(); });
    other = loop.scheduleOnce(start + 1s, note(4)); // of the same moment
    {
        const Timer dropped = loop.scheduleOnce(start + 1s, note(5));
    }
    loop.advance(10s);
    EXPECT_EQ(marks, (std::vector{3, 1, 2}));
}

TEST(QtRunLoopTest, TimersRunInOrderPastTheirDateAndGoOnInANestedLoopAsBlocksDo)
{
    QtRunLoop loop;
    std::vector<int> marks;
    int ticks = 0;
    const Date date = loop.now() + 30ms;
    const Timer far = loop.scheduleOnce(loop.now() + days(35), [&] { marks.push_back(9); });
    const Timer second = loop.scheduleOnce(date, [&] {
        EXPECT_GT(loop.now(), date);
        marks.push_back(2);
    });
    const Timer first = loop.scheduleOnce(date - 20ms, [&] { marks.push_back(1); });
    const Timer repeating = loop.scheduleRepeating(2ms, [&] { ++ticks; });
    QEventLoop menu;
    QTimer::singleShot(4min, &menu, &QEventLoop::quit); // only ends a test that hangs
    loop.enqueue([&] { menu.exec(); });
    loop.enqueue([&] {
        marks.push_back(menu.isRunning() ? 0 : 8);
        menu.quit();
    });
    EXPECT_EQ(ticks, 0);
    EXPECT_TRUE(runUntil([&] { return ticks >= 3 && marks.size() == 3; }));
    EXPECT_EQ(marks, (std::vector{0, 1, 2}));
    EXPECT_TRUE(far.isValid());
}

} // namespace
} // namespace quillon
