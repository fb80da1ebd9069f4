#pragma once

#include "ProgramUnderTest.h"
#include "SimulatedTimeMachine.h"
#include "VirtualRunLoop.h"

namespace quillon {

/// What a program in virtual time stands on.
struct PlayedSystem {
    VirtualRunLoop runLoop;
    SimulatedTimeMachine machine{runLoop};
};

/// The whole program but its main, in virtual time, in front of a simulated Time Machine.
struct PlayedProgram : PlayedSystem, ProgramUnderTest {
    explicit PlayedProgram(Date begin)
        : PlayedSystem{VirtualRunLoop(begin)}
        , ProgramUnderTest(runLoop, machine, QStringLiteral("tmutil"))
    {
    }

    /// Starts the program and waits for its first poll.
    void launch()
    {
        start();
        runLoop.advance(Seconds(1));
    }

    void sleepUntil(Date date)
    {
        workspace.sleep();
        runLoop.stepWallClock(date - runLoop.now()); // the uptime clock stands still
        workspace.wake();
        runLoop.settle();
    }
};

} // namespace quillon
