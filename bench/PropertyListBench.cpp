#include "PropertyList.h"
#include "StatusText.h"

#include <benchmark/benchmark.h>
#include <map>
#include <utility>

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

void readManyStatuses(benchmark::State& state)
{
    read(state, statusTexts(state.range(0)));
}

/// The same value made anew from its parts, which share their texts as those do that the reader makes.
QVariant madeAnew(const QVariant& value)
{
    if (value.typeId() == QMetaType::QVariantMap) {
        std::map<QString, QVariant> entries;
        const QVariantMap source = value.toMap();
        for (auto entry = source.begin(); entry != source.end(); ++entry)
            entries.try_emplace(entries.end(), entry.key(), madeAnew(entry.value()));
        return QVariantMap(std::move(entries));
    }
    if (value.typeId() != QMetaType::QVariantList)
        return value;
    QVariantList elements;
    const QVariantList source = value.toList();
    for (const QVariant& element : source)
        elements.append(madeAnew(element));
    return elements;
}

/// What reading many status texts costs at the least: most of it goes into the values.
void makeValuesOfManyStatuses(benchmark::State& state)
{
    const QByteArray text = statusTexts(state.range(0));
    const QVariant value = propertylist::parseOldStyle(text).value_or(QVariant());
    for ([[maybe_unused]] auto run : state)
        benchmark::DoNotOptimize(madeAnew(value));
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * text.size());
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

BENCHMARK(readManyStatuses)->Name("property list/status texts")->Arg(16 * megabyte);
BENCHMARK(makeValuesOfManyStatuses)->Name("property list/values of status texts")->Arg(16 * megabyte);
BENCHMARK(readOneString)->Name("property list/one string")->Arg(megabyte)->Arg(16 * megabyte);
BENCHMARK(readOneEscapedString)->Name("property list/one escaped string")->Arg(16 * megabyte);

} // namespace quillon
