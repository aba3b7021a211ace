// Cost of the analysis views' work without windows: judging a measure record's
// eighteen items (the list is rebuilt this way on every refresh) and writing
// the export text of a full peak-mode data table (1200 rows).
#include "benchsupport.h"

#include "analysis/dataexport.h"
#include "analysis/measurejudge.h"
#include "text/language.h"

#include <benchmark/benchmark.h>

namespace {

void BM_JudgeMeasureRecord(benchmark::State& state)
{
    MeasureRecord record;
    for (const MeasureItemInfo& info : MeasureItems) {
        MeasureItem& item = record.Items[size_t(info.slot)];
        item = {MeasureValueText(info, QStringLiteral("1.234e-03")), true, 1.0, 0.0, {}};
    }
    for (auto _ : state) {
        const auto rows = JudgeMeasureRecord(record, LanguageEnglish);
        benchmark::DoNotOptimize(rows.data());
    }
}
BENCHMARK(BM_JudgeMeasureRecord)->Unit(benchmark::kMicrosecond);

void BM_DataExportText(benchmark::State& state)
{
    DataRecord record;
    record.HasData = record.IsPeak = true;
    record.Count = 1200;
    record.End = 599;
    record.Times = record.Voltages = record.Voltages2 = DataColumn(TableTextLast + 1);
    for (int index = 1; index <= 1200; ++index) {
        record.Times[size_t(index)] = QStringLiteral("-2.99E-03");
        record.Voltages[size_t(index)] = record.Voltages2[size_t(index)] = QStringLiteral("1.04E+00");
    }
    for (auto _ : state) {
        const QString text = DataExportText(record);
        benchmark::DoNotOptimize(text.constData());
    }
}
BENCHMARK(BM_DataExportText)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv)
{
    return GuiBenchmarkMain(argc, argv);
}
