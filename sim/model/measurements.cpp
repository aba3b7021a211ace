#include "model/measurements.h"

#include "model/signalmodel.h"
#include "screen/screencodes.h"

#include <QVector>
#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr int SamplesPerPoint = 5;
constexpr int HistogramBins = 200;
constexpr double PlateauShare = 0.05; // a level held this long is a top or a base

struct Trace {
    QVector<double> t;
    QVector<double> v;
};

Trace displayedTrace(const SimState& state, const Frame& frame, int channel)
{
    Trace trace;
    const int count = ScreenPointCount * SamplesPerPoint;
    const double probe = state.channels[channel].probe;
    trace.t.resize(count);
    trace.v.resize(count);
    for (int i = 0; i < count; ++i) {
        trace.t[i] = pointTime(state, frame, channel, double(i) / SamplesPerPoint);
        trace.v[i] = sampledVolts(state, channel, trace.t[i]) * probe;
    }
    return trace;
}

// The most common level in one half of the range when it is held long
// enough; the extreme otherwise.
double plateau(const QVector<double>& values, double low, double high, bool upper)
{
    const double width = (high - low) / HistogramBins;
    QVector<int> counts(HistogramBins, 0);
    for (double v : values)
        ++counts[std::clamp(int((v - low) / width), 0, HistogramBins - 1)];
    const int first = upper ? HistogramBins / 2 : 0;
    const auto best = std::max_element(counts.begin() + first, counts.begin() + first + HistogramBins / 2);
    if (*best < PlateauShare * values.size()) return upper ? high : low;
    const double binLow = low + (best - counts.begin()) * width;
    double sum = 0;
    int n = 0;
    for (double v : values) {
        if (v >= binLow && v < binLow + width) {
            sum += v;
            ++n;
        }
    }
    return n ? sum / n : binLow;
}

struct Crossing {
    double time;
    bool rising;
};

double interpolate(const Trace& trace, int i, double level)
{
    const double v0 = trace.v[i - 1], v1 = trace.v[i];
    const double share = v1 == v0 ? 0.0 : (level - v0) / (v1 - v0);
    return trace.t[i - 1] + share * (trace.t[i] - trace.t[i - 1]);
}

// Crossings of `level`, each confirmed by leaving a band around it, so
// that noise on a slow edge counts once.
QVector<Crossing> crossings(const Trace& trace, double level, double band)
{
    QVector<Crossing> found;
    int side = 0; // -1 below the band, 1 above, 0 not yet known
    double lastCross = 0;
    for (int i = 1; i < trace.v.size(); ++i) {
        if ((trace.v[i - 1] < level) != (trace.v[i] < level)) lastCross = interpolate(trace, i, level);
        const int now = trace.v[i] > level + band ? 1 : trace.v[i] < level - band ? -1 : side;
        if (side != 0 && now != side) found.append({lastCross, now > 0});
        side = now;
    }
    return found;
}

// The first edge in the given direction that passes both levels, from the
// last pass of the first level to the pass of the second.
std::optional<double> edgeTime(const Trace& trace, double from, double to)
{
    double start = 0.0;
    bool started = false;
    const bool rising = to > from;
    for (int i = 1; i < trace.v.size(); ++i) {
        const double a = trace.v[i - 1], b = trace.v[i];
        const bool leaveFrom = rising ? (a < from && b >= from) : (a > from && b <= from);
        const bool backFrom = rising ? (a >= from && b < from) : (a <= from && b > from);
        const bool reachTo = rising ? (a < to && b >= to) : (a > to && b <= to);
        if (leaveFrom) {
            start = interpolate(trace, i, from);
            started = true;
        }
        if (backFrom) started = false;
        if (reachTo && started) return interpolate(trace, i, to) - start;
    }
    return std::nullopt;
}

std::optional<double> averageGap(const QVector<Crossing>& all, bool rising)
{
    QVector<double> times;
    for (const Crossing& c : all) {
        if (c.rising == rising) times.append(c.time);
    }
    if (times.size() < 2) return std::nullopt;
    return (times.back() - times.front()) / (times.size() - 1);
}

std::optional<double> firstWidth(const QVector<Crossing>& all, bool high)
{
    for (int i = 1; i < all.size(); ++i) {
        if (all[i - 1].rising == high && all[i].rising != high) return all[i].time - all[i - 1].time;
    }
    return std::nullopt;
}

std::optional<double> ratio(std::optional<double> part, std::optional<double> whole, double factor)
{
    if (!part || !whole || *whole == 0) return std::nullopt;
    return *part / *whole * factor;
}

void measureLevels(MeasureSet& m, const QVector<double>& v, double top, double base)
{
    const auto [low, high] = std::minmax_element(v.begin(), v.end());
    const double sum = std::accumulate(v.begin(), v.end(), 0.0);
    const double squares = std::inner_product(v.begin(), v.end(), v.begin(), 0.0);
    m[int(Measure::Vmax)] = *high;
    m[int(Measure::Vmin)] = *low;
    m[int(Measure::Vpp)] = *high - *low;
    m[int(Measure::Vtop)] = top;
    m[int(Measure::Vbase)] = base;
    m[int(Measure::Vamplitude)] = top - base;
    m[int(Measure::Vaverage)] = sum / v.size();
    m[int(Measure::Vrms)] = std::sqrt(squares / v.size());
}

void measureTimes(MeasureSet& m, const Trace& trace, double top, double base)
{
    const double amplitude = top - base;
    const QVector<Crossing> all = crossings(trace, base + amplitude / 2, amplitude / 10);
    std::optional<double> period = averageGap(all, true);
    if (!period) period = averageGap(all, false);
    const std::optional<double> positive = firstWidth(all, true);
    const std::optional<double> negative = firstWidth(all, false);
    m[int(Measure::Overshoot)] = (*m[int(Measure::Vmax)] - top) / amplitude;
    m[int(Measure::Preshoot)] = (base - *m[int(Measure::Vmin)]) / amplitude;
    m[int(Measure::Period)] = period;
    m[int(Measure::Frequency)] = ratio(1.0, period, 1.0);
    m[int(Measure::RiseTime)] = edgeTime(trace, base + 0.1 * amplitude, base + 0.9 * amplitude);
    m[int(Measure::FallTime)] = edgeTime(trace, base + 0.9 * amplitude, base + 0.1 * amplitude);
    m[int(Measure::PWidth)] = positive;
    m[int(Measure::NWidth)] = negative;
    m[int(Measure::PDutyCycle)] = ratio(positive, period, 100.0);
    m[int(Measure::NDutyCycle)] = ratio(negative, period, 100.0);
}

} // namespace

std::optional<Measure> measureByMnemonic(const QByteArray& upperMnemonic)
{
    static const char* const names[MeasureCount] = {
        "VPP",      "VAMPLITUDE", "VMAX",      "VMIN",     "VTOP",       "VBASE",
        "VAVERAGE", "VRMS",       "OVERSHOOT", "PRESHOOT", "FREQUENCY",  "PERIOD",
        "RISETIME", "FALLTIME",   "PWIDTH",    "NWIDTH",   "PDUTYCYCLE", "NDUTYCYCLE"};
    for (int i = 0; i < MeasureCount; ++i) {
        if (upperMnemonic == names[i]) return Measure(i);
    }
    return std::nullopt;
}

MeasureSet measureChannel(const SimState& state, const Frame& frame, int channel)
{
    MeasureSet m;
    if (channel < 0 || channel >= Channels || !frame.captured[channel]) return m;
    const Trace trace = displayedTrace(state, frame, channel);
    const auto [low, high] = std::minmax_element(trace.v.begin(), trace.v.end());
    // A trace within a few codes of flat has levels but no edges.
    const double flat = 0.1 * state.channels[channel].scale * state.channels[channel].probe;
    if (*high - *low < flat) {
        measureLevels(m, trace.v, *high, *low);
        return m;
    }
    const double top = plateau(trace.v, *low, *high, true);
    const double base = plateau(trace.v, *low, *high, false);
    measureLevels(m, trace.v, top, base);
    measureTimes(m, trace, top, base);
    return m;
}
