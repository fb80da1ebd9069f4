#include "NextBackup.h"

#include <benchmark/benchmark.h>
#include <chrono>

namespace quillon {

namespace {

using namespace std::chrono_literals;

// Bar: 50 µs for five rules and a pause of four weeks.
void nextBackupDateOfFiveRulesAfterAPauseOfFourWeeks(benchmark::State& state)
{
    const QList<CalendarIntervalRule> rules{{0, 43200}, {8, 32400}, {1, 3600}, {7, 82800}, {3, 21600}};
    const Date now = Calendar().date({2026, 11, 21, 10, 0, 0});
    for (auto _ : state) {
        const Calendar calendar(QStringLiteral("Europe/Berlin"));
        const Date reference = nextbackup::referenceDate(now, now + 28 * 24h, std::nullopt);
        benchmark::DoNotOptimize(nextbackup::nextBackupDate(rules, reference, calendar));
    }
}
BENCHMARK(nextBackupDateOfFiveRulesAfterAPauseOfFourWeeks)->Unit(benchmark::kMicrosecond);

// The same with the look at the host's time zone that the program takes every time.
void theSameInTheHostsZone(benchmark::State& state)
{
    const QList<CalendarIntervalRule> rules{{0, 43200}, {8, 32400}, {1, 3600}, {7, 82800}, {3, 21600}};
    const Date now = Calendar().date({2026, 11, 21, 10, 0, 0});
    for (auto _ : state)
        benchmark::DoNotOptimize(nextbackup::nextBackupDate(rules, now + 28 * 24h, Calendar()));
}
BENCHMARK(theSameInTheHostsZone)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace quillon
