// Ordinary and peak-detect channel traces.

#include "wave/drawtrace.h"

#include "wave/tracerun.h"

namespace {

// Sample n of a read lies at 212 + n in a channel array and at 211 + n in the
// peak halves; the first line joins the samples at start index - 1 and start index.
constexpr int ChannelStartIndex = 214;
constexpr int PeakStartIndex = 213;

struct EnvelopePoint {
    double x;
    double a;
    double b;
};

} // namespace

void DrawChannelTrace(const WaveCanvas& canvas, const WaveArray& wave, int points, int channel,
                      const WaveParameter& parameter, const QString& triggerMode,
                      const QString& fftDisplayText)
{
    const std::optional<TraceRun> run =
        ChannelTraceRun(canvas, channel, ChannelStartIndex, parameter, triggerMode, fftDisplayText);
    if (run) DrawTraceRun(canvas, wave, points, *run);
}

void DrawPeakTrace(const WaveCanvas& canvas, const WaveArray& first, const WaveArray& second, int points,
                   int channel, const WaveParameter& parameter, const QString& triggerMode,
                   const QString& fftDisplayText)
{
    const std::optional<TraceRun> run =
        ChannelTraceRun(canvas, channel, PeakStartIndex, parameter, triggerMode, fftDisplayText);
    if (!run) return;
    DrawPeakEnvelope(canvas, first, second, run->index, run->x0, run->rows.y0, run->last, points, run->half);
}

void DrawPeakEnvelope(const WaveCanvas& canvas, const WaveArray& first, const WaveArray& second,
                      long long startIndex, double x0, double y0, int last, int points, bool half)
{
    const RowMap rows{y0, half ? canvas.Zoom / 2 : canvas.Zoom};
    const auto inside = [&](long long i) { return InsideArray(first, i) && InsideArray(second, i); };
    long long i = startIndex;
    if (!inside(i - 1) || !inside(i)) return;
    Surface& s = canvas.surface;
    const double a0 = rows(first[i - 1]), b0 = rows(second[i - 1]);
    EnvelopePoint prev{x0, rows(first[i]), rows(second[i])};
    s.line(QPointF(x0, a0), QPointF(x0, prev.a));
    s.line(QPointF(x0, b0), QPointF(x0, prev.b));
    s.line(QPointF(x0, b0), QPointF(x0, a0));
    const bool whole = ForTracePixels(canvas, points, x0, last, [&](int px) {
        if (!inside(++i)) return false;
        const EnvelopePoint next{double(px), rows(first[i]), rows(second[i])};
        s.line(QPointF(prev.x, prev.a), QPointF(next.x, next.a));
        s.line(QPointF(prev.x, prev.b), QPointF(next.x, next.b));
        s.line(QPointF(prev.x, prev.b), QPointF(prev.x, prev.a));
        prev = next;
        return true;
    });
    if (whole) s.line(QPointF(prev.x, prev.a), QPointF(prev.x, prev.b));
}
