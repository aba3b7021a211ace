#pragma once
// The stepping that every trace shares: a first vertical at x0, then one step of
// (300 / Points) z per sample up to the trace's last screen position.

#include "acquire/waverecord.h"
#include "wave/wavecanvas.h"

#include <optional>

struct TraceRun {
    double x0 = 0;
    long long index = 0; // array index of the sample at x0
    int last = 0;        // last screen position
    RowMap rows;
    bool half = false; // on half of a split screen
};

inline bool InsideArray(const WaveArray& wave, long long index)
{
    return index >= 0 && static_cast<unsigned long long>(index) < wave.size();
}

// x0 = 25 + (start z rounded); empty when start z leaves the 16-bit range.
std::optional<double> TraceX0(double start, double zoom);

// Where a channel's trace lies, for the first sample index origin + 2 start: in
// alternate trigger by the canvas's source pair, otherwise on the full screen,
// or the upper half when the spectrum shares the screen.
std::optional<TraceRun> ChannelTraceRun(const WaveCanvas& canvas, int channel, int origin,
                                        const WaveParameter& parameter, const QString& triggerMode,
                                        const QString& fftDisplayText);

// Calls step(px) for each x from x0 + z to (last + 1) z + 25 - 1, px being x - 0.1
// in single precision rounded to a whole pixel. Returns false when step returned
// false or a pixel did not fit, true when the run reached its end.
template <typename Step>
bool ForTracePixels(const WaveCanvas& canvas, int points, double x0, int last, Step&& step)
{
    if (points <= 0) return true;
    const double z = canvas.Zoom;
    bool whole = true;
    ForSteps(x0 + z, (last + 1) * z + GridMargin - 1, (GridWidth / points) * z, [&](double x) {
        const std::optional<int> px = RoundToInt32(static_cast<float>(x - 0.1));
        whole = px && step(*px);
        return whole;
    });
    return whole;
}

// The ordinary trace: a line from sample index - 1 to index at x0, then one line
// from the current point per step; ends where the index leaves the array.
void DrawTraceRun(const WaveCanvas& canvas, const WaveArray& wave, int points, TraceRun run);
