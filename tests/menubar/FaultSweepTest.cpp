#include "ControllerFixture.h"

#include <functional>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Fault = TmutilScript::Fault;

/// The whole program in front of a Time Machine one of whose calls goes wrong.
struct Scenario {
    const char* name;
    QList<SimulatedTimeMachine::Phase> phases;      ///< empty: a run that completes
    std::function<void(PlayedSaturday&)> meanwhile; ///< happens thirty seconds into the run
};

void checkEnd(const PlayedSaturday& world)
{
    EXPECT_EQ(world.machine.liveChildren(), 0) << "a process is left";
    EXPECT_TRUE(world.manager->startBackupTimer().isValid()) << "the next start is not armed";
    EXPECT_EQ(world.controller->tmState(), TMState::NotRunning) << "the state shown is not true";
    EXPECT_NE(world.controller->uiState(), TMState::Running);
    EXPECT_NE(world.item.title, u""_s) << "nothing is shown";
    EXPECT_TRUE(world.menu().backupNowMenuItem->isEnabled());
    // Every start stands for a date of its own: the scheduled one, or a retry minutes later.
    const auto& starts = world.machine.startUptimes();
    for (qsizetype i = 1; i < starts.size(); ++i)
        EXPECT_GT(starts[i] - starts[i - 1], 4min) << "started twice";
}

} // namespace

class FaultSweep : public testing::TestWithParam<Scenario> {};

TEST_P(FaultSweep, AnyOneCallThatFailsLeavesNoProcessNoSecondStartAndATrueState)
{
    for (const auto fault :
         {Fault::None, Fault::Hang, Fault::Crash, Fault::Half, Fault::Endless, Fault::NotUtf8, Fault::Refused}) {
        int calls = 1;
        for (int k = 1; k <= calls; ++k) {
            SCOPED_TRACE("fault " + std::to_string(int(fault)) + " at call " + std::to_string(k));
            PlayedSaturday world(11, 59);
            world.machine.injection = {k, fault, fault == Fault::None ? 2 : 0, {}};
            if (!GetParam().phases.isEmpty())
                world.machine.phases = GetParam().phases;
            world.launch();
            world.wait(90);
            GetParam().meanwhile(world);
            world.wait(130);
            calls = int(world.machine.launched().size());
            world.wait(560); // by then whatever retry there was has been made
            checkEnd(world);
            ASSERT_FALSE(HasFailure());
        }
        EXPECT_GT(calls, 20);
    }
}

// A run that fails takes longer than a tool may hang, so that it cannot pass unseen.
INSTANTIATE_TEST_SUITE_P(
    WholeRuns, FaultSweep,
    testing::Values(Scenario{"CompletedRun", {}, [](auto&) {}},
                    Scenario{"FailingRun", {{u"FindingChanges"_s, 5}, {u"Copying"_s, 90, true}}, [](auto&) {}},
                    Scenario{"StoppedRun", {}, [](auto& world) { world.machine.stop(); }},
                    Scenario{"SleepInARun", {}, [](auto& world) { world.sleepUntil(world.runLoop.now() + 20min); }},
                    Scenario{"ClockSetBackInARun", {}, [](auto& world) { world.runLoop.stepWallClock(-20min); }}),
    [](const auto& scenario) { return scenario.param.name; });

} // namespace quillon
