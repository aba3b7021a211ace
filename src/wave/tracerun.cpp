#include "wave/tracerun.h"

#include "wave/alternation.h"

std::optional<double> TraceX0(double start, double zoom)
{
    const std::optional<int> offset = RoundToInt16(start * zoom);
    if (!offset) return std::nullopt;
    return GridMargin + *offset;
}

std::optional<TraceRun> ChannelTraceRun(const WaveCanvas& canvas, int channel, int origin,
                                        const WaveParameter& parameter, const QString& triggerMode,
                                        const QString& fftDisplayText)
{
    int start = parameter.s16ScrStartPos;
    int end = parameter.s16ScrEndPos;
    bool half = false, lower = false;
    if (IsAlternation(triggerMode)) {
        const AltPlacement place = AltPlacementOf(channel, canvas.PairOrdered, parameter);
        start = place.start;
        end = place.end;
        half = true;
        lower = place.lower;
    } else {
        half = IsDisplayOn(fftDisplayText) && parameter.s8FFTScreen == 0;
    }
    const std::optional<double> x0 = TraceX0(start, canvas.Zoom);
    if (!x0) return std::nullopt;
    const RowMap rows = half ? HalfScreenRows(canvas.Zoom, lower) : FullScreenRows(canvas.Zoom);
    return TraceRun{*x0, 2LL * start + origin, end, rows, half};
}

void DrawTraceRun(const WaveCanvas& canvas, const WaveArray& wave, int points, TraceRun run)
{
    long long index = run.index;
    if (!InsideArray(wave, index - 1) || !InsideArray(wave, index)) return;
    canvas.surface.line(QPointF(run.x0, run.rows(wave[index - 1])), QPointF(run.x0, run.rows(wave[index])));
    ForTracePixels(canvas, points, run.x0, run.last, [&](int px) {
        if (!InsideArray(wave, ++index)) return false;
        canvas.surface.lineTo(QPointF(px, run.rows(wave[index])));
        return true;
    });
}
