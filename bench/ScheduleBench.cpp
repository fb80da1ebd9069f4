#include "NextBackup.h"

#include <benchmark/benchmark.h>
#include <chrono>

namespace quillon {

namespace {

using namespace std::chrono_literals;

// With the look at the host's time zone that the program takes every time.
void nextBackupDateOfFiveRulesAfterAPauseOfFourWeeks(benchmark::State& state)
{
    const QList<CalendarIntervalRule> rules{{0, 43200}, {8, 32400}, {1, 3600}, {7, 82800}, {3, 21600}};
    const Date now = Calendar().date({2026, 11, 21, 10, 0, 0});
    for (auto _ : state) {
        const Date reference = nextbackup::referenceDate(now, now + 28 * 24h, std::nullopt);
        benchmark::DoNotOptimize(nextbackup::nextBackupDate(rules, reference, Calendar()));
    }
}
BENCHMARK(nextBackupDateOfFiveRulesAfterAPauseOfFourWeeks)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace quillon
