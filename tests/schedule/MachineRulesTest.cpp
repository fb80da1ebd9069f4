#include "StartDecision.h"

#include <chrono>
#include <gtest/gtest.h>

namespace quillon {

using namespace std::chrono_literals;
using namespace machinerules;

TEST(MachineRules, PowerForbidsAStartOnlyWhereItIsKnownToBeTooLittle)
{
    const struct {
        PowerRule rule;
        PowerState power;
        bool isAllowed;
    } cases[] = {
        {{}, {false, 1}, true},
        {{false, 50}, {false, 1}, true},
        {{true}, {}, true},
        {{true}, {true, 1}, true},
        {{true}, {false, {}}, true},
        {{true}, {false, 100}, false},
        {{true, 50}, {false, 51}, true},
        {{true, 50}, {false, 50}, false},
        {{true, 50}, {true, 3}, true},
        {{true, 100}, {false, 100}, false},
    };
    for (int row = 0; const auto& each : cases)
        EXPECT_EQ(allows(each.rule, each.power), each.isAllowed) << "row " << ++row;
}

TEST(MachineRules, AHeldStartIsMadeAsSoonAsThatIsPossibleAndOfUse)
{
    constexpr Date due{1'800'000'000s};
    constexpr Date tomorrow = due + 24h;
    const QList<CalendarIntervalRule> rules{{}}, edited{{1}};
    const HeldStart start{due, false, rules}, retry{due, true, rules};
    const Since usual{due + 1h, {}, false, rules, due, tomorrow, tomorrow};
    const auto with = [&usual](auto change) {
        Since since = usual;
        change(since);
        return since;
    };
    using enum Fate;
    const struct {
        HeldStart held;
        Since since;
        Fate fate;
    } cases[] = {
        {start, usual, Made},
        {retry, usual, Made},
        {start, with([](Since& since) { since.moment.powerAllows = false; }), Kept},
        {start, with([](Since& since) { since.moment.isActive = true; }), Kept},
        {start, with([](Since& since) { since.moment.isAsleep = true; }), Kept},
        {start, with([](Since& since) { since.retriesWait = true; }), Made},
        {retry, with([](Since& since) { since.retriesWait = true; }), Kept},
        {start, with([](Since& since) { since.completed = true; }), Dropped},
        {start, with([](Since& since) { since.moment = {.powerAllows = false, .isScheduleEnabled = false}; }), Dropped},
        {start, with([](Since& since) { since.moment = {.isPaused = true}; }), Dropped},
        {start, with([&](Since& since) { since.now = tomorrow - 1ms; }), Made},
        {start, with([&](Since& since) { since.now = tomorrow; }), Dropped},
        {start, with([&](Since& since) { since.planned = due; }), Dropped}, // the clock was set back
        {start, with([](Since& since) { since.following = since.planned = {}; }), Made},
        {start, with([&](Since& since) { since.given = tomorrow; }), Made}, // somewhere else
        {start, with([&](Since& since) { since.rules = edited; }), Made},
        {start, with([&](Since& since) { since.rules = edited, since.given = tomorrow; }), Dropped},
        {retry, with([&](Since& since) { since.rules = edited, since.given = tomorrow; }), Made},
    };
    for (int row = 0; const auto& each : cases)
        EXPECT_EQ(fateOf(each.held, each.since), each.fate) << "row " << ++row;
}

TEST(MachineRules, ADiskStartsOnlyWhatIsToBeMadeUpForWhileNothingForbidsIt)
{
    EXPECT_TRUE(startsForDisk({}, true));
    EXPECT_FALSE(startsForDisk({}, false));
    const Moment moments[] = {{.powerAllows = false},
                              {.isScheduleEnabled = false},
                              {.isPaused = true},
                              {.isActive = true},
                              {.isAsleep = true}};
    for (int row = 0; const auto& moment : moments)
        EXPECT_FALSE(startsForDisk(moment, true)) << "row " << ++row;
}

} // namespace quillon
