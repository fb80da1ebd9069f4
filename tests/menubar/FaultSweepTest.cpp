#include "ControllerFixture.h"

#include <functional>
#include <initializer_list>

namespace quillon {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using enum TmutilScript::Fault;
using Faults = std::initializer_list<TmutilScript::Fault>;

constexpr Faults every = {None, Hang, Crash, Half, Endless, NotUtf8, Refused};
constexpr Faults byTheirTime = {None, Hang, Crash}; ///< an exit status, no end, an end at once

/// The whole program in front of a Time Machine one of whose calls goes wrong.
void sweep(Faults faults, const std::function<void(PlayedSaturday& world)>& meanwhile)
{
    for (const auto fault : faults) {
        int calls = 1;
        for (int k = 1; k <= calls; ++k) {
            SCOPED_TRACE("fault " + std::to_string(int(fault)) + " at call " + std::to_string(k));
            PlayedSaturday world(11, 59);
            world.machine.injection = {k, fault, fault == None ? 2 : 0, {}};
            world.launch();
            world.wait(90);
            meanwhile(world); // half a minute into the run
            world.wait(130);
            calls = int(world.machine.launched().size());
            world.wait(560); // by then whatever retry there was has been made
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
            ASSERT_FALSE(testing::Test::HasFailure());
        }
        EXPECT_GT(calls, 20);
    }
}

} // namespace

TEST(FaultSweep, AnyOneCallThatFailsLeavesNoProcessNoSecondStartAndATrueState)
{
    sweep(every, [](PlayedSaturday&) {});
    // What a call has said makes no difference any more to what these do, only when it ends. The first takes longer
    // than a tool may hang, so that it cannot pass unseen.
    sweep(byTheirTime, [](auto& world) {
        world.machine.phases = {{u"FindingChanges"_s, 5}, {u"Copying"_s, 90, true}};
    });
    sweep(byTheirTime, [](auto& world) { world.machine.stop(); });
    sweep(byTheirTime, [](auto& world) { world.sleepUntil(world.runLoop.now() + 20min); });
    sweep(byTheirTime, [](auto& world) { world.runLoop.stepWallClock(-20min); });
}

} // namespace quillon
