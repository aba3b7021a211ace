// Frames of a record file drawn per second offscreen, as the record window draws
// them at each tick of its frame clock, at 100 % and at the window's start size.
#include "benchsupport.h"

#include "stored/recordplaydraw.h"
#include "stored/recordslot.h"

#include <benchmark/benchmark.h>
#include <cmath>

namespace {

// 100 frames of a sine moving along, with a second trace.
RecordSlot movingSine()
{
    RecordSlot slot;
    slot.HasFile = slot.HasSecond = true;
    slot.SourceName = QStringLiteral("CH1");
    slot.VoltText = QStringLiteral("1.00V");
    slot.OffsetText = QStringLiteral("0.00uV");
    slot.TimeText = QStringLiteral("1.000ms");
    slot.DelayText = QStringLiteral("0.000s");
    slot.LastFrame = 100;
    slot.Samples.assign(100 * 600 + 1, 0);
    slot.SecondSamples.assign(100 * 600 + 1, 0);
    for (int i = 0; i < 100 * 600; ++i) {
        slot.Samples[size_t(i)] = int16_t(100 + 60 * std::sin((i % 600 + i / 600 * 6) * 0.0314));
        slot.SecondSamples[size_t(i)] = int16_t(100 + 30 * std::cos((i % 600) * 0.05));
    }
    return slot;
}

void BM_RecordFrame(benchmark::State& state)
{
    RecordSlot slot = movingSine();
    const double zoom = state.range(0) / 100.0;
    for (auto _ : state) {
        slot.CurrentFrame = int16_t(slot.CurrentFrame % slot.LastFrame + 1);
        const QImage frame = RecordFrameImage(slot, zoom);
        benchmark::DoNotOptimize(frame.constBits());
    }
    state.counters["frames/s"] = benchmark::Counter(double(state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_RecordFrame)->Arg(100)->Arg(150)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv)
{
    return GuiBenchmarkMain(argc, argv);
}
