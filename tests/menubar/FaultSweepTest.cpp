#include "ControllerFixture.h"

#include <functional>
#include <string>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Fault = TmutilScript::Fault;

/// The whole program in front of a Time Machine one of whose calls goes wrong.
struct World : PlayedProgram {
    World(const SimulatedTimeMachine::Injection& injection, const QList<SimulatedTimeMachine::Phase>& phases)
        : PlayedProgram(local(2026, 11, 21, 11, 59))
    {
        machine.injection = injection;
        if (!phases.isEmpty())
            machine.phases = phases;
        machine.destinations = {{u"A"_s, u"First"_s}, {u"B"_s, u"Second"_s}};
        launch();
    }
};

struct Scenario {
    const char* name;
    QList<SimulatedTimeMachine::Phase> phases; ///< empty: a run that completes
    std::function<void(World&)> meanwhile;     ///< happens thirty seconds into the run
};

void checkEnd(World& world, const std::string& what)
{
    EXPECT_EQ(world.machine.liveChildren(), 0) << what << ": a process is left";
    EXPECT_TRUE(world.manager->nextScheduledBackupDate()) << what << ": no next date";
    EXPECT_TRUE(world.manager->startBackupTimer().isValid()) << what << ": the next start is not armed";
    EXPECT_EQ(world.controller->tmState(), TMState::NotRunning) << what << ": the state shown is not true";
    EXPECT_NE(world.controller->uiState(), TMState::Running) << what;
    EXPECT_NE(world.item.title, u""_s) << what << ": nothing is shown";
    EXPECT_TRUE(world.controller->statusMenu().backupNowMenuItem->isEnabled()) << what;
    // Every start stands for a date of its own: the scheduled one, or a retry minutes later.
    const auto& starts = world.machine.startUptimes();
    for (qsizetype i = 1; i < starts.size(); ++i)
        EXPECT_GT(starts[i] - starts[i - 1], 4min) << what << ": started twice";
}

} // namespace

class FaultSweep : public testing::TestWithParam<Scenario> {};

TEST_P(FaultSweep, AnyOneCallThatFailsLeavesNoProcessNoSecondStartAndATrueState)
{
    const ScopedEnvironment zone("TZ", "Europe/Berlin");
    for (const auto fault :
         {Fault::None, Fault::Hang, Fault::Crash, Fault::Half, Fault::Endless, Fault::NotUtf8, Fault::Refused}) {
        int calls = 1;
        for (int k = 1; k <= calls; ++k) {
            World world({k, fault, fault == Fault::None ? 2 : 0, {}}, GetParam().phases);
            world.runLoop.advance(Seconds(90));
            GetParam().meanwhile(world);
            world.runLoop.advance(Seconds(130));
            calls = static_cast<int>(world.machine.launched().size());
            world.runLoop.advance(Seconds(560)); // by then whatever retry there was has been made
            checkEnd(world, "fault " + std::to_string(int(fault)) + " at call " + std::to_string(k));
            ASSERT_FALSE(HasFailure());
        }
        EXPECT_GT(calls, 20);
    }
}

// A run that fails takes longer than a tool may hang, so that it cannot pass unseen.
INSTANTIATE_TEST_SUITE_P(
    WholeRuns, FaultSweep,
    testing::Values(Scenario{"CompletedRun", {}, [](World&) {}},
                    Scenario{"FailingRun", {{u"FindingChanges"_s, 5}, {u"Copying"_s, 90, true}}, [](World&) {}},
                    Scenario{"StoppedRun", {}, [](World& world) { world.machine.stop(); }},
                    Scenario{"SleepInARun",
                             {},
                             [](World& world) {
                                 world.workspace.sleep();
                                 world.runLoop.stepWallClock(20min);
                                 world.workspace.wake();
                             }},
                    Scenario{"ClockSetBackInARun", {}, [](World& world) { world.runLoop.stepWallClock(-20min); }}),
    [](const auto& scenario) { return scenario.param.name; });

} // namespace quillon
