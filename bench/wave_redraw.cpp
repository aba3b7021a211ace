// Cost of a full wave-picture redraw and of placing a received block into a record.
#include "benchsupport.h"

#include "acquire/blockplacement.h"
#include "acquire/waveparameter.h"
#include "wave/qimagesurface.h"
#include "wave/wavecanvas.h"
#include "wave/wavepicture.h"

#include <benchmark/benchmark.h>
#include <cmath>
#include <vector>

namespace {

void BM_FullRedraw(benchmark::State& state)
{
    const double zoom = state.range(0) / 100.0;
    const WaveRecord record = SineReading(4, QStringLiteral("1.00V"));
    QImageSurface surface(WavePictureSize(zoom));
    for (auto _ : state) {
        DrawWavePicture(surface, record, zoom);
        benchmark::DoNotOptimize(surface.image().constBits());
    }
}
BENCHMARK(BM_FullRedraw)->Arg(100)->Arg(400)->Unit(benchmark::kMicrosecond);

std::vector<int32_t> blockOf(int count)
{
    std::vector<int32_t> codes(6201);
    for (int i = 1; i < 6201; ++i)
        codes[i] = (i * 37) % 256;
    codes.resize(std::min(count, 6200) + 1);
    return codes;
}

void BM_PlaceTraceBlock(benchmark::State& state)
{
    const std::vector<int32_t> codes = blockOf(int(state.range(0)));
    WaveArray trace;
    for (auto _ : state) {
        benchmark::DoNotOptimize(PlaceTraceBlock(codes, int(state.range(0)), TraceSource::Channel, 0, trace));
        benchmark::DoNotOptimize(trace.data());
    }
}
// A screen of 600 samples, and a block of the largest size a read may bring (it ends at the array's bound).
BENCHMARK(BM_PlaceTraceBlock)->Arg(600)->Arg(6400);

void BM_PlacePeakBlock(benchmark::State& state)
{
    const std::vector<int32_t> codes = blockOf(1200);
    WaveArray first, second;
    for (auto _ : state) {
        benchmark::DoNotOptimize(PlacePeakBlock(codes, 1200, 0, first, second));
        benchmark::DoNotOptimize(second.data());
    }
}
BENCHMARK(BM_PlacePeakBlock);

void BM_Lindquay(benchmark::State& state)
{
    unsigned char block[WaveParameterSize];
    for (std::size_t i = 0; i < sizeof block; ++i)
        block[i] = static_cast<unsigned char>(i * 7);
    WaveParameter parameter;
    for (auto _ : state) {
        Lindquay(block, &parameter);
        benchmark::DoNotOptimize(parameter);
    }
}
BENCHMARK(BM_Lindquay);

} // namespace

int main(int argc, char** argv)
{
    return GuiBenchmarkMain(argc, argv);
}
