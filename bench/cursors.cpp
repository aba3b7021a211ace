// Cost of one cursor drag step: a copy of the clean picture with the cursors and
// their readouts drawn on it. The traces are not redrawn while a cursor moves.
#include "wave/cursordrawing.h"
#include "wave/cursormouse.h"
#include "wave/qimagesurface.h"
#include "wave/wavedrawing.h"

#include <QGuiApplication>
#include <benchmark/benchmark.h>
#include <cmath>

namespace {

// Two channels of a Y-T reading over the whole screen, with both cursor kinds shown.
WaveRecord twoChannelRecord()
{
    WaveRecord r;
    r.HasData = r.YTMode = r.ColorMode = r.GridOn = true;
    r.Points = 600;
    r.TriggerMode = QStringLiteral("EDGE");
    r.FFTDisplayText = QStringLiteral("OFF");
    r.Parameter.s16ScrEndPos = 299;
    r.TimeScaleText = QStringLiteral("1.000ms");
    r.TimeOffsetText = QStringLiteral("0.000s");
    for (int n = 1; n <= 2; ++n) {
        r.setShowChannel(n, true);
        r.PrevShow[n] = true;
        r.ScaleText[n] = QStringLiteral("500mV");
        r.OffsetText[n] = QStringLiteral("0.00V");
        WaveArray& wave = r.channelWave(n);
        wave.assign(2049, 0);
        for (int i = 213; i <= 812; ++i)
            wave[i] = int(60.0 * n + 30 * std::sin(i * 0.04 * n));
    }
    return r;
}

void BM_CursorDragStep(benchmark::State& state)
{
    const double zoom = state.range(0) / 100.0;
    const WaveRecord record = twoChannelRecord();
    QImageSurface picture(QSize(int(350 * zoom), int(250 * zoom)));
    const WaveCanvas canvas(picture, zoom);
    DrawScrGrid(canvas, record);
    DrawOSC(canvas, record);
    const QImage clean = picture.image();
    const ReadoutInput input = ReadoutInputOf(record, zoom, 1);
    CursorState cursors;
    cursors.CursorXShown = cursors.CursorYShown = true;
    const CursorGeometry geometry{zoom, false};
    PressCursors(cursors, {cursors.CursorX1, cursors.CursorY1}, geometry);
    int step = 0;
    for (auto _ : state) {
        DragCursors(cursors, {60 + (step % 100) * zoom, 70 + (step % 50) * zoom});
        ++step;
        const QImage shown = DrawCursors(clean, cursors, input);
        benchmark::DoNotOptimize(shown.constBits());
    }
}
BENCHMARK(BM_CursorDragStep)->Arg(100)->Arg(200)->Arg(400)->Unit(benchmark::kMicrosecond);

} // namespace

// Text needs fonts, and fonts need a GUI application; offscreen, so no display is required.
int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
