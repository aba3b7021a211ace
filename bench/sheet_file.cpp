// Writing and reading the largest data sheet the limits allow, in memory:
// 16 waves with data, 16 measures, 16 data tables of 1200 rows, 3 records of
// about 1 MB and 4 memory waves of 4 x 524,288 samples. Reports MB/s and the size.
#include "benchsupport.h"

#include "analysis/datarecord.h"
#include "analysis/measurerecord.h"
#include "document/sheetstate.h"
#include "sheet/sheetfile.h"
#include "stored/memorywaveslot.h"
#include "stored/recordslot.h"

#include <benchmark/benchmark.h>

namespace {

void fillLargestSheet()
{
    SheetOpen = true;
    DataSheetName = QStringLiteral("Largest");
    for (QStringList& names : SheetSlotNames)
        names.clear();
    const auto name = [](SheetKind kind, int slot) {
        SheetSlotNames[std::size_t(KindIndex(kind))] << QStringLiteral("W%1").arg(slot);
    };
    for (int i = 0; i < 16; ++i) {
        WaveRecords[std::size_t(i)] = SineReading(2, QStringLiteral("1.00V"));
        name(SheetKind::Wave, i);
        MeasureRecord& measure = MeasureRecords[std::size_t(i)];
        measure.HasData = true;
        for (MeasureItem& item : measure.Items)
            item = {QStringLiteral("1.25V"), true, 1.5, 0.5, QString()};
        name(SheetKind::Measure, i);
        DataRecord& data = DataRecords[std::size_t(i)];
        data.HasData = true;
        data.Count = 1200;
        data.Voltages.assign(1201, QStringLiteral("-12.34mV"));
        data.Times.assign(1201, QStringLiteral("1.234ms"));
        name(SheetKind::Data, i);
    }
    for (int i = 0; i < 3; ++i) {
        RecordSlot& record = RecordSlots[std::size_t(i)];
        record.HasFile = true;
        record.LastFrame = 1000;
        record.Samples.assign(1000 * 1024, 123);
        name(SheetKind::Record, i);
    }
    // Four windows as the task asks, though a sheet opened by hand holds three.
    for (int i = 0; i < 4; ++i) {
        MemoryWaveSlot& memory = MemoryWaveSlots[std::size_t(i)];
        memory.HasData = true;
        memory.ChanEnabled = {true, true, false, false};
        memory.SheetValues.FifthOn = true;
        memory.SampleCount = 524288;
        for (auto* samples : {&memory.Samples[0], &memory.Samples[1], &memory.SheetValues.FifthSamples})
            samples->assign(524289, 150);
        name(SheetKind::MemoryWave, i);
    }
}

void BM_SaveSheet(benchmark::State& state)
{
    fillLargestSheet();
    qint64 bytes = 0;
    for (auto _ : state) {
        const QByteArray content = SheetFileContent();
        bytes += content.size();
        state.counters["file MB"] = double(content.size()) / 1e6;
    }
    state.SetBytesProcessed(bytes);
}
BENCHMARK(BM_SaveSheet)->Unit(benchmark::kMillisecond);

void BM_LoadSheet(benchmark::State& state)
{
    fillLargestSheet();
    const QByteArray content = SheetFileContent();
    for (auto _ : state)
        benchmark::DoNotOptimize(ReadSheetContent(content));
    state.SetBytesProcessed(qint64(state.iterations()) * content.size());
}
BENCHMARK(BM_LoadSheet)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    return GuiBenchmarkMain(argc, argv);
}
