#include "stored/memoryzoom.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int16_t OffScreen = 300;

void markOffScreen(MemoryWaveWindow& out)
{
    out = MemoryWaveWindow{};
    out.ScrStartPos = out.ScrEndPos = OffScreen;
}

// The step shown by point k of a window: linear from StartPt at the first
// column to EndPt at the last, a half column per point.
double stepOfPoint(const MemoryWaveWindow& w, int k)
{
    const int span = w.EndPos - w.StartPos;
    if (span <= 0) return w.StartPt;
    return w.StartPt + double(w.EndPt - w.StartPt) * (k / 2.0) / span;
}

// A place of the source for step j, turned by the ring's start; -1 outside it.
qsizetype placeOf(long long j, qsizetype size, int32_t ringStart)
{
    if (size <= 0) return -1;
    if (ringStart != 0) j = ((j + ringStart) % size + size) % size;
    return j >= 0 && j < size ? qsizetype(j) : -1;
}

int16_t toCode(double value)
{
    return int16_t(std::clamp(std::nearbyint(value), -32768.0, 32767.0));
}

} // namespace

void devGetStopScrWave64(uint8_t /*mode*/, float sampleRate, int32_t count, double delay, double startTime,
                         double timeDiv, int32_t /*rollPosition*/, MemoryWaveWindow& out)
{
    // Roll keeps its ring in the samples; the columns map the same way and the
    // refresh turns the ring (see RefreshMemoryChannels).
    const double b = timeDiv / 25 * sampleRate;
    const double a = (delay - 150 * timeDiv / 25 - startTime) * sampleRate;
    if (count <= 0 || !(b > 0) || !std::isfinite(a) || !std::isfinite(b)) return markOffScreen(out);
    const double first = std::max(0.0, std::ceil((-0.5 - a) / b));
    const double last = std::min(double(ScreenColumns - 1), std::floor((count - 0.5 - a) / b));
    if (!(first <= last)) return markOffScreen(out);
    out.StartPos = out.ScrStartPos = int16_t(first);
    out.EndPos = out.ScrEndPos = int16_t(last);
    out.StartPt = int32_t(std::clamp(std::nearbyint(a + b * first), 0.0, double(count - 1)));
    out.EndPt = int32_t(std::clamp(std::nearbyint(a + b * last), 0.0, double(count - 1)));
}

int16_t WaveZoom(std::span<const int16_t> source, std::vector<int16_t>& destination,
                 const MemoryWaveWindow& window, int points, int32_t ringStart)
{
    if (points <= 0 || source.empty()) return 0;
    std::vector<int16_t> out(static_cast<size_t>(points));
    const long long low = std::min(window.StartPt, window.EndPt),
                    high = std::max(window.StartPt, window.EndPt);
    for (int k = 0; k < points; ++k) {
        const long long j = std::clamp(std::llround(stepOfPoint(window, k)), low, high);
        const qsizetype at = placeOf(j, qsizetype(source.size()), ringStart);
        if (at < 0) return 0;
        out[size_t(k)] = source[size_t(at)];
    }
    destination = std::move(out);
    return 1;
}

int16_t PeakWaveZoom(std::span<const int16_t> source, std::vector<int16_t>& minimum,
                     std::vector<int16_t>& maximum, const MemoryWaveWindow& window, int points,
                     int32_t ringStart)
{
    const qsizetype pairs = qsizetype(source.size()) / 2;
    if (points <= 0 || pairs <= 0) return 0;
    std::vector<int16_t> low(static_cast<size_t>(points)), high(static_cast<size_t>(points));
    // The window's ends count samples; a pair is two of them.
    MemoryWaveWindow steps = window;
    steps.StartPt /= 2;
    steps.EndPt /= 2;
    const long long first = std::min(steps.StartPt, steps.EndPt), last = std::max(steps.StartPt, steps.EndPt);
    for (int k = 0; k < points; ++k) {
        const long long from = std::clamp(std::llround(stepOfPoint(steps, k)), first, last);
        const long long to = std::clamp(std::llround(stepOfPoint(steps, k + 1)) - 1, from, last);
        int16_t a = INT16_MAX, b = INT16_MIN;
        for (long long j = from; j <= to; ++j) {
            const qsizetype at = placeOf(j, pairs, ringStart);
            if (at < 0) return 0;
            const int16_t x = source[size_t(2 * at)], y = source[size_t(2 * at + 1)];
            a = std::min({a, x, y});
            b = std::max({b, x, y});
        }
        low[size_t(k)] = a;
        high[size_t(k)] = b;
    }
    minimum = std::move(low);
    maximum = std::move(high);
    return 1;
}

void WaveZoomV(std::vector<int16_t>& codes, float voltDivNow, float offsetNow, float voltDivData,
               float offsetData)
{
    if (!(voltDivNow != 0) || !(voltDivData != 0) || !std::isfinite(voltDivNow) ||
        !std::isfinite(voltDivData))
        return;
    const double posNow = double(offsetNow) / voltDivNow * 25;
    const double posData = double(offsetData) / voltDivData * 25;
    const double ratio = double(voltDivData) / voltDivNow;
    if (!std::isfinite(posNow) || !std::isfinite(posData) || !std::isfinite(ratio)) return;
    for (int16_t& c : codes)
        c = toCode(25 + (100 - posNow) - ((100 - posData) - (c - 25)) * ratio);
}

namespace {

void computeWindow(MemoryWaveWindow& out, uint8_t mode, float rate, int32_t count, double delay, double start,
                   double timeDiv, int32_t rollPosition, bool peak)
{
    const int32_t divisor = peak ? 2 : 1;
    devGetStopScrWave64(mode, rate, count / divisor, delay, start, timeDiv, rollPosition, out);
    out.StartPt *= divisor;
    out.EndPt *= divisor;
}

} // namespace

void ComputeMemoryWindows(MemoryWaveSlot& s)
{
    if (s.IsAlternation) {
        computeWindow(s.WindowA, 0, s.SampleRateA, s.SampleCountA, s.DelayA, s.StartTimeA, s.TimeDivA, 0,
                      s.ChanPeakState[0]);
        computeWindow(s.WindowB, 0, s.SampleRateB, s.SampleCountA, s.DelayB, s.StartTimeB, s.TimeDivB, 0,
                      s.ChanPeakState[3]);
    } else {
        const uint8_t mode = s.ModeRoll ? 2 : 0;
        computeWindow(s.Single, mode, s.SampleRate, s.SampleCount, s.Delay, s.StartTime, s.TimeDiv,
                      s.ModeRoll ? s.RollPosition : 0, s.ChanPeakState[0]);
    }
}

namespace {

void refreshChannel(const MemoryWaveSlot& s, MemoryWaveScreen& screen, int n)
{
    if (!s.ChanEnabled[size_t(n)]) return;
    MemoryWaveWindow w = s.windowOf(s.timeBaseOf(n));
    if (w.ScrEndPos > ScreenColumns - 1 || w.ScrStartPos > ScreenColumns - 1) return;
    const int count = s.sampleCount(n);
    w.EndPt = std::min(w.EndPt, count);
    const int points = (w.EndPos - w.StartPos + 1) * 2;
    const std::span<const int16_t> source(s.Samples[size_t(n)].data(), size_t(count));
    const int32_t ring = s.ModeRoll && !s.IsAlternation ? s.RollPosition : 0;
    const bool peak = s.ChanPeakState[size_t(n)];
    std::vector<int16_t> low, high;
    const int16_t mapped =
        peak ? PeakWaveZoom(source, low, high, w, points, ring) : WaveZoom(source, low, w, points, ring);
    if (mapped == 0) return;
    const float voltDivData = s.ChanVoltDivMeasured[size_t(n)];
    const float offsetData = float(s.ChanShiftMeasured[size_t(n)] / 25.0 * voltDivData);
    const auto toRows = [&](std::vector<int16_t>& codes) {
        WaveZoomV(codes, s.ChanVoltDiv[size_t(n)], s.ChanOffset[size_t(n)], voltDivData, offsetData);
        for (int16_t& c : codes)
            c = int16_t(std::clamp<int>(c, 25, 224) - 25);
    };
    toRows(low);
    screen.rows[size_t(n)] = std::move(low);
    if (peak) toRows(high);
    screen.peakRows[size_t(n)] = std::move(high);
}

} // namespace

void RefreshMemoryChannels(const MemoryWaveSlot& slot, MemoryWaveScreen& screen, int channel)
{
    for (int n = 0; n < 4; ++n)
        if (channel < 0 || channel == n) refreshChannel(slot, screen, n);
}
