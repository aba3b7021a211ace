// Calls per second of the value-text formatters that fill trees and tables.

#include "text/formatmask.h"
#include "text/valuetext.h"

#include <QStringList>
#include <benchmark/benchmark.h>

namespace {

// Replies as the instrument writes them, across the units of each ladder.
const QStringList VoltReplies = {QStringLiteral("2.000e-03"), QStringLiteral("5.000e-01"),
                                 QStringLiteral("1.000e+01"), QStringLiteral("-2.500e+02"),
                                 QStringLiteral("2.000e+06"), QStringLiteral("0")};
const double Seconds[] = {-0.5, 1.5e-10, 2.5e-08, 3.3e-05, 0.0125, 7.5};
const double Values[] = {2.675, -0.0012345, 123.456, 0.5, 98765.4321, 1e-07};

void BM_VoltText3(benchmark::State& state)
{
    qsizetype i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(VoltText3(VoltReplies[i]));
        i = (i + 1) % VoltReplies.size();
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_VoltText3);

void BM_MeasureTimeText(benchmark::State& state)
{
    size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(MeasureTimeText(Seconds[i]));
        i = (i + 1) % std::size(Seconds);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_MeasureTimeText);

void BM_FormatMask(benchmark::State& state, const char* mask)
{
    const QString m = QString::fromLatin1(mask);
    size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(FormatMask(Values[i], m));
        i = (i + 1) % std::size(Values);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK_CAPTURE(BM_FormatMask, fixed, "#0.00");
BENCHMARK_CAPTURE(BM_FormatMask, exponent, "0.00E+00");
BENCHMARK_CAPTURE(BM_FormatMask, long_fraction, "0.0########################");

} // namespace

BENCHMARK_MAIN();
