#include "QtRunLoop.h"

#include <QEventLoop>
#include <QTimer>

#include <gtest/gtest.h>
#include <vector>

namespace quillon {

using namespace std::chrono;

namespace {

TEST(QtRunLoopTest, TimersRunInOrderPastTheirDateAndFarOnesWait)
{
    QtRunLoop loop;
    QEventLoop events;
    std::vector<int> marks;
    const Date date = loop.now() + 30ms;
    const Timer far = loop.scheduleOnce(loop.now() + days(35), [&] { marks.push_back(9); });
    const Timer second = loop.scheduleOnce(date, [&] {
        EXPECT_GT(loop.now(), date);
        marks.push_back(2);
        events.quit();
    });
    const Timer first = loop.scheduleOnce(date - 20ms, [&] { marks.push_back(1); });
    events.exec();
    EXPECT_EQ(marks, (std::vector{1, 2}));
    EXPECT_TRUE(far.isValid());
}

TEST(QtRunLoopTest, RepeatingTimersGoOnAndBlocksRunWhileANestedLoopIsOpen)
{
    QtRunLoop loop;
    QEventLoop events;
    int ticks = 0;
    bool nestedBlockRan = false;
    const Timer timer = loop.scheduleRepeating(2ms, [&] {
        if (++ticks == 3)
            events.quit();
    });
    QEventLoop menu;
    QTimer::singleShot(1min, &menu, &QEventLoop::quit); // long after the block behind has done it
    loop.enqueue([&] { menu.exec(); });
    loop.enqueue([&] {
        nestedBlockRan = menu.isRunning();
        menu.quit();
    });
    EXPECT_EQ(ticks, 0);
    events.exec();
    EXPECT_GE(ticks, 3);
    EXPECT_TRUE(nestedBlockRan);
}

} // namespace
} // namespace quillon
