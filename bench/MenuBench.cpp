#include "ProgramUnderTest.h"
#include "VirtualRunLoop.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <benchmark/benchmark.h>

namespace quillon {

namespace {

/// A tool that never answers.
class SilentLauncher final : public TaskLauncher {
public:
    [[nodiscard]] std::unique_ptr<RunningTask> launch(const TaskRequest&, Completion) override
    {
        class Silent final : public RunningTask {
            void kill() override {}
            void terminate() override {}
        };
        return std::make_unique<Silent>();
    }
};

/// Tells when a widget has been painted.
class PaintWatch final : public QObject {
public:
    bool painted = false;

    bool eventFilter(QObject*, QEvent* event) override
    {
        painted = painted || event->type() == QEvent::Paint;
        return false;
    }
};

// Bar: 50 ms. From the click to the menu's first picture, while the tool hangs.
void openingTheMenu(benchmark::State& state)
{
    VirtualRunLoop runLoop(Date(std::chrono::hours(24 * 20778)));
    SilentLauncher launcher;
    const auto item = makeStatusItem(StatusItemPlacement::Bar);
    ProgramUnderTest program(runLoop, launcher, QStringLiteral("tmutil"));
    program.startShowing(*item);
    runLoop.advance(Seconds(1));
    StatusMenu& menu = program.controller->statusMenu();
    PaintWatch watch;
    menu.installEventFilter(&watch);
    for (auto _ : state) {
        watch.painted = false;
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
        QCoreApplication::sendEvent(item->anchor().view, &press);
        while (!watch.painted)
            QCoreApplication::processEvents();
        state.PauseTiming();
        menu.close();
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}
BENCHMARK(openingTheMenu)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace quillon
