// The memory wave view: loading a 2 MB waveform file, one stepper press to a new
// picture, and Save to CSV in rows per second. The CSV benchmark leaves its
// input and output in the temporary folder, for memorywave_csv.py to compare:
//   build/bench/bench_memorywave && /usr/bin/python3 bench/memorywave_csv.py
#include "benchsupport.h"

#include "stored/memorysteps.h"
#include "stored/memoryviewdraw.h"
#include "stored/memorywavecsv.h"
#include "stored/wfmfile.h"
#include "wave/qimagesurface.h"
#include "wave/wavelayout.h"

#include <QDir>
#include <QFile>
#include <QtEndian>
#include <cmath>

namespace {

template <typename T> void put(QByteArray& b, qsizetype at, T value)
{
    qToLittleEndian(value, b.data() + at);
}

void putFloat(QByteArray& b, qsizetype at, float value)
{
    put<float>(b, at, value);
}

// An ALTERNATION file of four channels on; peak data on both time bases when asked.
QByteArray alternationFile(int32_t count, bool peak)
{
    QByteArray b(504 + 4 * qsizetype(count), '\0');
    put<uint16_t>(b, 0, 0xA5A5);
    std::memcpy(b.data() + 4, "KV7204B", 7);
    put<int32_t>(b, 60, count);
    put<int32_t>(b, 268, count);
    for (int n = 0; n < 4; ++n) {
        const qsizetype at = 68 + 24 * n;
        put<int32_t>(b, at, 500'000 * (n + 1));
        put<int16_t>(b, at + 4, int16_t(40 - 25 * n));
        put<uint8_t>(b, at + 14, 1);
        put<int32_t>(b, at + 16, 500'000 * (n + 1));
        put<int16_t>(b, at + 20, int16_t(40 - 25 * n));
        for (int32_t i = 0; i < count; ++i)
            b[504 + n * qsizetype(count) + i] = char(100 + 60 * std::sin(i * 0.0007 * (n + 1)) + (i % 7));
    }
    // The whole record on the screen: count samples over 12 divisions.
    const double rate = 1e8, timeDiv = count / rate / 12;
    for (qsizetype base : {164, 272}) {
        put<int64_t>(b, base, std::llround(timeDiv * 1e12));
        putFloat(b, base + 16, float(rate));
        put<int64_t>(b, base + 28, -std::llround(count / rate / 2 * 1e12));
    }
    put<uint8_t>(b, 200, 4);
    put<uint8_t>(b, 232, 1);
    put<uint8_t>(b, 402, peak ? 6 : 0);
    put<int32_t>(b, 404, peak ? 2 : 0);
    return b;
}

MemoryWaveSlot loaded(const QByteArray& file)
{
    MemoryWaveSlot slot;
    int code = 0;
    LoadMemoryWaveBytes(file, slot, code);
    return slot;
}

void BM_LoadAlternation2MB(benchmark::State& state)
{
    const QByteArray file = alternationFile(524'288, false);
    MemoryWaveSlot slot;
    int code = 0;
    for (auto _ : state) {
        LoadMemoryWaveBytes(file, slot, code);
        benchmark::DoNotOptimize(slot.Samples[3].data());
    }
    state.SetBytesProcessed(int64_t(state.iterations()) * file.size());
}
BENCHMARK(BM_LoadAlternation2MB)->Unit(benchmark::kMillisecond);

// Press and release of a stepper: the step, the window computation (time steps),
// the refresh of four channels of 524,288 samples and the whole picture.
void BM_StepToPicture(benchmark::State& state)
{
    const bool peak = state.range(0) != 0;
    const int target = int(state.range(1));
    MemoryWaveSlot slot = loaded(alternationFile(524'288, peak));
    MemoryWaveScreen screen;
    QImageSurface surface(PictureSizeAt(1.0));
    int direction = +1;
    for (auto _ : state) {
        StepMemoryValue(slot, target, direction, 0);
        direction = -direction; // back and forth, so every press draws the whole record
        if (target >= StepTimeSingle) ComputeMemoryWindows(slot);
        RefreshMemoryChannels(slot, screen);
        DrawMemoryWave(surface, 1.0, slot, screen);
        benchmark::DoNotOptimize(surface.image().constBits());
    }
}
BENCHMARK(BM_StepToPicture)
    ->ArgNames({"peak", "target"})
    ->Args({0, 0})
    ->Args({0, StepTimeA})
    ->Args({1, StepTimeA})
    ->Unit(benchmark::kMillisecond);

void BM_CsvRows(benchmark::State& state)
{
    const QByteArray file = alternationFile(65'536, state.range(0) != 0);
    const MemoryWaveSlot slot = loaded(file);
    QByteArray csv;
    for (auto _ : state) {
        csv = MemoryWaveCsv(slot);
        benchmark::DoNotOptimize(csv.constData());
    }
    state.counters["rows_per_s"] =
        benchmark::Counter(double(state.iterations()) * slot.SampleCountA, benchmark::Counter::kIsRate);
    const QString stem = QDir::temp().filePath(state.range(0) ? "memorywave_peak" : "memorywave");
    QFile in(stem + ".wfm"), out(stem + ".csv");
    if (in.open(QIODevice::WriteOnly)) in.write(file);
    if (out.open(QIODevice::WriteOnly)) out.write(csv);
}
BENCHMARK(BM_CsvRows)->ArgName("peak")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    return GuiBenchmarkMain(argc, argv);
}
