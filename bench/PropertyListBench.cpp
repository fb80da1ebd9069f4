#include "PropertyList.h"
#include "StatusText.h"

#include <benchmark/benchmark.h>

namespace quillon {

namespace {

void read(benchmark::State& state, const QByteArray& text)
{
    for ([[maybe_unused]] auto run : state) {
        auto value = propertylist::parseOldStyle(text);
        if (!value)
            state.SkipWithError("the text was refused");
        benchmark::DoNotOptimize(value);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * text.size());
}

void readOneStatus(benchmark::State& state)
{
    read(state, statusText());
}

void readManyStatuses(benchmark::State& state)
{
    read(state, statusTexts(state.range(0)));
}

/// One text without escapes, such as a log.
void readOneString(benchmark::State& state)
{
    read(state, '"' + QByteArray("all work and no play\n").repeated(state.range(0) / 21) + '"');
}

/// One text in which every eighth character is an escape.
void readOneEscapedString(benchmark::State& state)
{
    read(state, '"' + QByteArray(R"(letters\n \U00e9t\303 \"quoted\" )").repeated(state.range(0) / 33) + '"');
}

constexpr int64_t megabyte = 1 << 20;

} // namespace

BENCHMARK(readOneStatus)->Name("property list/one status text");
BENCHMARK(readManyStatuses)->Name("property list/status texts")->Arg(megabyte)->Arg(16 * megabyte);
BENCHMARK(readOneString)->Name("property list/one string")->Arg(megabyte)->Arg(16 * megabyte);
BENCHMARK(readOneEscapedString)->Name("property list/one escaped string")->Arg(megabyte)->Arg(16 * megabyte);

} // namespace quillon
