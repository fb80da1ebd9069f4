#include "BrowseWindow.h"
#include "FakeServices.h"
#include "RunLoop.h"
#include "TMUtil.h"
#include "Task.h"

#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTreeView>

#include <benchmark/benchmark.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int foldersInIt = 1000;

/// The window over the tmutil that tools/bench names, which has a backup of one folder with 100,000 files in folders,
/// the last of them 99999. Nothing is kept of earlier windows.
class OpenWindow {
public:
    QTreeView& files() { return *window_.findChild<QTreeView*>(u"files"_s); }
    QLineEdit& search() { return *window_.findChild<QLineEdit*>(u"search"_s); }
    QLabel& status() { return *window_.findChild<QLabel*>(u"status"_s); }

    void show() { window_.show(); }

    /// Until it lists so many rows.
    void waitForRows(int count)
    {
        while (files().model()->rowCount() != count)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    void readAll()
    {
        waitForRows(1);
        for (const bool isEmpty : {true, false}) { // it tells while it reads
            while (status().text().isEmpty() == isEmpty)
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

private:
    QTemporaryDir cache_;
    QtRunLoop runLoop_;
    Task launcher_;
    FakeAlerts alerts_;
    FakeWorkspace workspace_;
    BrowseWindow window_{Setup::Services{launcher_, runLoop_, alerts_, tmutilPath()}, workspace_,
                         BrowseWindow::Places{.cache = cache_.path(), .wanted = {}}};
};

// Bar: 2 s, from the start of the window.
void firstFolder(benchmark::State& state)
{
    for (auto _ : state) {
        auto window = std::make_unique<OpenWindow>();
        window->show();
        window->waitForRows(1);
        state.PauseTiming();
        window.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(firstFolder)->Name("browsing/first folder")->UseRealTime();

// The folder that is backed up, which is asked for while nothing is read yet.
void openingAFolder(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto window = std::make_unique<OpenWindow>();
        window->show();
        window->waitForRows(1);
        state.ResumeTiming();
        Q_EMIT window->files().activated(window->files().model()->index(0, 0));
        window->waitForRows(foldersInIt);
        state.PauseTiming();
        window.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(openingAFolder)->Name("browsing/opening a folder")->UseRealTime();

void readingAll(benchmark::State& state)
{
    for (auto _ : state) {
        OpenWindow window;
        window.show();
        window.readAll();
    }
}
BENCHMARK(readingAll)->Name("browsing/reading all")->UseRealTime();

// Bar: 0.5 s, once all is read. One name of all is what is looked for.
void search(benchmark::State& state)
{
    OpenWindow window;
    window.show();
    window.readAll();
    for (auto _ : state) {
        state.PauseTiming();
        window.search().setText(u"<none>"_s);
        window.waitForRows(0);
        state.ResumeTiming();
        window.search().setText(u"99999"_s);
        window.waitForRows(1);
        QCoreApplication::processEvents();
    }
}
BENCHMARK(search)->Name("browsing/search")->Iterations(20)->UseRealTime(); // or all is read to find out how many

} // namespace

} // namespace quillon
