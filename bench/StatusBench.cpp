#include "ProgramUnderTest.h"
#include "StatusText.h"
#include "VirtualRunLoop.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>
#include <utility>

namespace quillon {

namespace {

void readingOneStatusText(benchmark::State& state)
{
    const QByteArray text = "Backup session status:\n" + statusText();
    for (auto _ : state)
        benchmark::DoNotOptimize(TMStatus::fromOutput(text));
}
BENCHMARK(readingOneStatusText)->Unit(benchmark::kMicrosecond);

/// A tool that takes no time: it has answered as soon as it is asked.
class InstantLauncher final : public TaskLauncher {
public:
    InstantLauncher(RunLoop& runLoop, QByteArray answer)
        : runLoop_(runLoop)
        , answer_(std::move(answer))
    {
    }

    [[nodiscard]] std::unique_ptr<RunningTask> launch(const TaskRequest&, Completion completion) override
    {
        class Ended final : public RunningTask {
            void kill() override {}
            void terminate() override {}
        };
        runLoop_.enqueue([completion = std::move(completion), answer = answer_] { completion({0, answer}); });
        return std::make_unique<Ended>();
    }

private:
    RunLoop& runLoop_;
    QByteArray answer_;
};

// All that a poll makes it do, drawing included, but for starting the child process.
void onePoll(benchmark::State& state, const QByteArray& answer)
{
    VirtualRunLoop runLoop(Date(std::chrono::hours(24 * 20778)));
    InstantLauncher launcher(runLoop, answer);
    const auto item = makeStatusItem(StatusItemPlacement::Bar);
    ProgramUnderTest program(runLoop, launcher, QStringLiteral("tmutil"));
    program.startShowing(*item);
    runLoop.advance(Seconds(60));
    for (auto _ : state) {
        runLoop.stepWallClock(Seconds(1)); // so that what is shown changes
        program.controller->requestTimeMachineStatus();
        runLoop.settle();
        QCoreApplication::processEvents();
    }
}
BENCHMARK_CAPTURE(onePoll, whileIdle, "{ Running = 0; }")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(onePoll, whileABackupRuns, statusText())->Unit(benchmark::kMillisecond);

} // namespace

} // namespace quillon
