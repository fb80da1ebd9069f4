#include "ControllerFixture.h"
#include "DateFormatter.h"

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// A computer that is awake in the small hours, on Mondays also in the morning, and else asleep.
class WeeksOfSchedule : public testing::Test, PlayedPlace, protected PlayedProgram {
protected:
    WeeksOfSchedule()
        : PlayedProgram(local(2027, 3, 13, 9))
    {
        setRules({{CalendarIntervalRule::everyDay, 2 * 3600 + 1800}, {monday, 8 * 3600}});
        launch();
    }

    /// Days of March; what is beyond its last one is in April.
    void liveThrough(int firstDay, int lastDay)
    {
        for (int day = firstDay; day <= lastDay; ++day) {
            sleepUntil(local(2027, 3, day, 2));
            runLoop.advanceTo(local(2027, 3, day, day % 7 == mondays ? 9 : 3));
        }
    }

    std::string starts() const
    {
        QStringList lines;
        for (const Date date : machine.startDates())
            lines.append(DateFormatter::string(date, u"E MM-dd HH:mm"_s));
        return lines.join(u'\n').toStdString();
    }

    static constexpr int monday = 2;
    static constexpr int mondays = 15 % 7; // 15 March 2027 is one
};

TEST_F(WeeksOfSchedule, EveryRuleStartsOnceADayThroughFailureSleepPauseAndSummerTime)
{
    liveThrough(14, 22);

    const auto completedRun = machine.phases;
    machine.phases = {{u"Copying"_s, 20, true}};
    sleepUntil(local(2027, 3, 23, 2));
    runLoop.advanceTo(local(2027, 3, 23, 2, 32));
    machine.phases = completedRun;
    runLoop.advanceTo(local(2027, 3, 23, 4));

    liveThrough(24, 24);
    sleepUntil(local(2027, 3, 25, 3, 10));
    runLoop.advanceTo(local(2027, 3, 25, 4));

    liveThrough(26, 27);
    runLoop.advanceTo(local(2027, 3, 29, 9)); // on the 28th the clocks skip from two to three
    liveThrough(30, 32);
    controller->pauseForClicked(3 * 86400);
    liveThrough(33, 41);

    EXPECT_EQ(starts(), "Sun 03-14 02:30\n"
                        "Mon 03-15 02:30\nMon 03-15 08:00\nTue 03-16 02:30\nWed 03-17 02:30\n"
                        "Thu 03-18 02:30\nFri 03-19 02:30\nSat 03-20 02:30\nSun 03-21 02:30\n"
                        "Mon 03-22 02:30\nMon 03-22 08:00\nTue 03-23 02:30\nTue 03-23 02:36\nWed 03-24 02:30\n"
                        "Thu 03-25 03:16\nFri 03-26 02:30\nSat 03-27 02:30\nSun 03-28 03:30\n"
                        "Mon 03-29 02:30\nMon 03-29 08:00\nTue 03-30 02:30\nWed 03-31 02:30\nThu 04-01 02:30\n"
                        "Mon 04-05 02:30\nMon 04-05 08:00\nTue 04-06 02:30\nWed 04-07 02:30\n"
                        "Thu 04-08 02:30\nFri 04-09 02:30\nSat 04-10 02:30");
    EXPECT_EQ(machine.liveChildren(), 0);
}

TEST(WeeksOfScheduleInAutumn, TheNightWhoseHourComesTwiceStartsOnce)
{
    const PlayedPlace place;
    PlayedProgram program(local(2026, 10, 24, 22));
    program.setRules({{CalendarIntervalRule::everyDay, 2 * 3600 + 1800}});
    program.launch();
    program.runLoop.advance(11h);
    EXPECT_EQ(program.machine.startDates().size(), 1);
    EXPECT_LT(program.machine.startDates().constFirst() - local(2026, 10, 25, 2, 30), 1s) << "the first of the two";
}

} // namespace quillon
