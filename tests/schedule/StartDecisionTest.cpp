#include "StartDecision.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace std::chrono_literals;
using namespace startdecision;

TEST(StartDecision, IsOneForEachOccasionAndSituation)
{
    constexpr Date next{1'800'000'000s};
    constexpr Date before = next - 1h;
    using enum Occasion;
    const struct {
        Occasion occasion;
        Situation situation;
        Decision decision;
    } cases[] = {
        {TimerRan, {next + 1ms, next}, Decision::Start},
        {TimerRan, {next + 60s - 1ms, next, {}, before}, Decision::Start},
        {TimerRan, {next + 60s, next, {}, before}, Decision::Missed},
        {TimerRan, {next + 60s, next}, Decision::PlanAnew}, // nothing is missed ahead of a first backup
        {TimerRan, {next + 1h, next, next, before}, Decision::Start},
        {TimerRan, {next + 1h, next, before, before}, Decision::Missed},

        {ClockChanged, {next + 1ms, next, {}, before}, Decision::Start},
        {ClockChanged, {next + 60s, next, {}, before}, Decision::Missed},
        {ClockChanged, {next, next, {}, before}, Decision::PlanAnew},
        {ClockChanged, {next - 2h, next, next, before}, Decision::KeepRetry},
        {ClockChanged, {next + 1h, next, next, before}, Decision::KeepRetry},
        {ClockChanged, {next + 1s, next, next}, Decision::Start},
        {ClockChanged, {next - 2h, next, before}, Decision::PlanAnew}, // one that is not armed is none to keep
        {ClockChanged, {next - 2h, next, {}, before, true}, Decision::PlanAnew},
        {ClockChanged, {next, {}, {}, before}, Decision::PlanAnew},

        {Woke, {next + 1ms, next, {}, before}, Decision::Missed},
        {Woke, {next + 1ms, next}, Decision::PlanAnew},
        {Woke, {next, next, {}, before}, Decision::PlanAnew},
        {Woke, {next + 1h, next, {}, next}, Decision::PlanAnew}, // the backup came after all
        {Woke, {next - 1h, next, next, before}, Decision::PlanAnew},
        {Woke, {next + 1h, next, next, before}, Decision::Missed},
        {Woke, {next - 1h, next, {}, before, true}, Decision::Missed},
        {Woke, {next, {}, {}, {}, true}, Decision::Missed},
        {Woke, {next, {}, {}, before}, Decision::PlanAnew},
    };
    for (int row = 0; const auto& each : cases)
        EXPECT_EQ(decide(each.occasion, each.situation), each.decision) << "row " << ++row;
}

TEST(StartDecision, ARetryWaitsForFiveMinutesAndForWhatAWakeUpCallsFor)
{
    constexpr Date now{1'800'000'000s}; // a whole minute
    const struct {
        Seconds wait;
        std::optional<Date> pending;
        std::chrono::milliseconds ahead;
    } cases[] = {
        {0s, {}, 6min},           {0s, now + 9min, 6min},     {0s, now + 2min, 2min},
        {0s, now - 1h, -1h},      {301s, {}, 6min},           {10min, {}, 11min},
        {10min, now + 1h, 11min}, {10min, now + 2min, 10min}, {10min, now - 1h, 10min},
    };
    for (int row = 0; const auto& each : cases)
        EXPECT_EQ(retryDate(now, each.wait, each.pending), now + each.ahead) << "row " << ++row;
    EXPECT_EQ(retryDate(now + 59s, 0s), now + 6min);
}

} // namespace quillon
