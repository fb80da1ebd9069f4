#include "VirtualRunLoop.h"

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

TEST_F(RunLoopTest, BlocksRunInOrderInALaterTurn)
{
    loop.enqueue([this] {
        marks.push_back(1);
        loop.enqueue(note(3));
    });
    loop.enqueue(note(2));
    EXPECT_TRUE(marks.empty());
    loop.settle();
    EXPECT_EQ(marks, (std::vector{1, 2, 3}));
}

TEST_F(RunLoopTest, ABlockThatOpensAnEventLoopLetsItRunWhatWaitsBehindIt)
{
    const auto openLoop = [this](int mark) {
        return [this, mark] {
            loop.settle();
            marks.push_back(mark);
        };
    };
    loop.enqueue(openLoop(2));
    loop.enqueue(note(1));
    loop.settle();
    const Timer first = loop.scheduleRepeating(1s, openLoop(4));
    const Timer second = loop.scheduleRepeating(1s, note(3));
    loop.advance(1s);
    EXPECT_EQ(marks, (std::vector{1, 2, 3, 4})) << "each once";
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

TEST_F(RunLoopTest, ATimerForADatePastRunsAtOnceButNotInsideTheCall)
{
    const Timer timer = loop.scheduleOnce(start - 24h, note(1));
    EXPECT_TRUE(marks.empty());
    loop.settle();
    EXPECT_EQ(marks, std::vector{1});
}

TEST_F(RunLoopTest, AWallClockSetBackDelaysAOneShotTimerAndSetForwardDoesNotHurryIt)
{
    const Timer back = loop.scheduleOnce(start + 1h, note(1));
    loop.stepWallClock(-30min);
    loop.advance(1h + 1s);
    EXPECT_TRUE(marks.empty()) << "its date has not come yet";
    loop.advance(30min);
    EXPECT_EQ(marks, std::vector{1});

    const Timer forward = loop.scheduleOnce(loop.now() + 1h, note(2));
    loop.stepWallClock(3h);
    loop.advance(59min);
    EXPECT_EQ(marks, std::vector{1});
    loop.advance(2min);
    EXPECT_EQ(marks, (std::vector{1, 2}));
}

TEST_F(RunLoopTest, ARepeatingTimerKeepsItsPaceThroughStepsOfTheWallClock)
{
    const Timer timer = loop.scheduleRepeating(15s, note(1));
    loop.advance(15s);
    loop.stepWallClock(-24h);
    loop.advance(30s);
    loop.stepWallClock(48h);
    loop.advance(30s);
    EXPECT_EQ(marks.size(), 5u);
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

TEST_F(RunLoopTest, ATimerMayBeReplacedOrInvalidatedInsideItsOwnBlock)
{
    Timer once;
    once = loop.scheduleOnce(start + 1s, [&] {
        marks.push_back(1);
        once = loop.scheduleOnce(loop.now() + 1s, note(2));
    });
    Timer repeating;
    const auto alive = std::make_shared<int>(3);
    repeating = loop.scheduleRepeating(1s, [&, alive] {
        repeating = Timer();
        marks.push_back(*alive);
    });
    loop.advance(10s);
    EXPECT_EQ(marks, (std::vector{3, 1, 2}));

    repeating = loop.scheduleRepeating(10s, [&] { repeating = loop.scheduleRepeating(10s, note(4)); });
    repeating.fire();
    loop.advance(10s);
    EXPECT_EQ(marks, (std::vector{3, 1, 2, 4}));
}

TEST_F(RunLoopTest, ATimerInvalidatedByAnotherOfTheSameMomentDoesNotRun)
{
    Timer second;
    const Timer first = loop.scheduleOnce(start + 1s, [&] { second.invalidate(); });
    second = loop.scheduleOnce(start + 1s, note(2));
    loop.advance(5s);
    EXPECT_TRUE(marks.empty());
}

TEST_F(RunLoopTest, LettingGoOfTheHandleInvalidatesTheTimer)
{
    Timer moved;
    {
        Timer timer = loop.scheduleOnce(start + 1s, note(1));
        moved = std::move(timer);
        const Timer dropped = loop.scheduleOnce(start + 1s, note(2));
    }
    loop.advance(5s);
    EXPECT_EQ(marks, std::vector{1});
}

} // namespace
} // namespace quillon
