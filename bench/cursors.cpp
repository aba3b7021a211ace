// Cost of one cursor drag step: a copy of the clean picture with the cursors and
// their readouts drawn on it. The traces are not redrawn while a cursor moves.
#include "benchsupport.h"

#include "wave/cursordrawing.h"
#include "wave/cursormouse.h"
#include "wave/qimagesurface.h"
#include "wave/wavecanvas.h"
#include "wave/wavepicture.h"

#include <benchmark/benchmark.h>

namespace {

void BM_CursorDragStep(benchmark::State& state)
{
    const double zoom = state.range(0) / 100.0;
    const WaveRecord record = SineReading(2, QStringLiteral("500mV"));
    QImageSurface picture(WavePictureSize(zoom));
    DrawWavePicture(picture, record, zoom);
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

int main(int argc, char** argv)
{
    return GuiBenchmarkMain(argc, argv);
}
