#include "acquire/blockplacement.h"

#include <algorithm>

namespace {

constexpr int XyLast = 1024;

bool inside(std::size_t size, long long index)
{
    return index >= 0 && static_cast<unsigned long long>(index) < size;
}

// Copies code i (from 1 to count) to index i + shift of out, through convert;
// stops at the first index outside either array.
template <typename Convert>
bool placeRun(std::span<const int32_t> codes, int from, int to, long long shift, WaveArray& out,
              Convert convert)
{
    for (int i = from; i <= to; ++i) {
        if (!inside(codes.size(), i) || !inside(out.size(), i + shift)) return false;
        out[i + shift] = convert(codes[i]);
    }
    return true;
}

void makeAnew(WaveArray& trace, int last)
{
    trace.assign(static_cast<std::size_t>(last) + 1, 0);
}

} // namespace

bool PlaceTraceBlock(std::span<const int32_t> codes, int count, TraceSource source, int sampleBase,
                     WaveArray& trace)
{
    if (source == TraceSource::La) {
        trace.assign(codes.begin(), codes.end());
        return true;
    }
    makeAnew(trace, TraceLast);
    const auto clipped = [sampleBase](int32_t code) {
        return std::clamp(code, sampleBase, sampleBase + ScreenRows - 1) - sampleBase;
    };
    const auto shifted = [sampleBase](int32_t code) { return code - sampleBase; };
    switch (source) {
    case TraceSource::Channel: return placeRun(codes, 1, count, ChannelOrigin, trace, clipped);
    case TraceSource::Fft: return placeRun(codes, 1, count, PeakOrigin, trace, clipped);
    default: return placeRun(codes, 1, count, PeakOrigin, trace, shifted);
    }
}

bool PlacePeakBlock(std::span<const int32_t> codes, int count, int sampleBase, WaveArray& first,
                    WaveArray& second)
{
    makeAnew(first, TraceLast);
    makeAnew(second, TraceLast);
    const int half = count / 2;
    // Only the first half is shifted by SampleBase; the second keeps the raw code.
    // The two agree for every supported model, whose SampleBase is 0.
    if (!placeRun(codes, 1, half, PeakOrigin, first, [sampleBase](int32_t c) { return c - sampleBase; }))
        return false;
    return placeRun(codes, half, count, static_cast<long long>(PeakOrigin) - half, second,
                    [](int32_t c) { return c; });
}

bool PlaceXyTraces(const WaveArray& trace, int count, WaveArray& ch1, WaveArray& ch2)
{
    makeAnew(ch1, XyLast);
    makeAnew(ch2, XyLast);
    const long long half = count / 2;
    for (int i = 1; i <= XyLast; ++i) {
        const long long x = PeakOrigin + i;
        if (!inside(trace.size(), x) || !inside(trace.size(), x + half)) return false;
        ch1[i] = trace[x];
        ch2[i] = trace[x + half];
    }
    return true;
}
