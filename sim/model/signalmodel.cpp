#include "model/signalmodel.h"

#include <cmath>
#include <cstdint>
#include <numbers>

namespace {

const SignalSource Sources[Channels] = {
    {WaveShape::Sine, 1000.0, -1.5, 1.5, 0.5, 0.0},
    {WaveShape::Square, 2000.0, -1.0, 1.0, 0.5, 4e-6},
    {WaveShape::Triangle, 500.0, -1.0, 1.0, 0.5, 0.0},
    {WaveShape::Pulse, 5000.0, 0.0, 2.5, 0.2, 1e-6},
};

constexpr double NoisePeak = 0.002;            // volts at the input
constexpr double BandwidthLimitRise = 17.5e-9; // 0.35 / 20 MHz

int clampChannel(int channel)
{
    return channel < 0 ? 0 : channel >= Channels ? Channels - 1 : channel;
}

double phaseOf(double t, double frequency)
{
    const double cycles = t * frequency;
    return cycles - std::floor(cycles);
}

// A rectangle with straight edges of the given length.
double rectangleVolts(const SignalSource& source, double phase, double edge)
{
    const double period = 1.0 / source.frequency;
    const double x = phase * period;
    const double highEnd = source.duty * period;
    const double swing = source.high - source.low;
    if (x < edge) return source.low + swing * x / edge;
    if (x < highEnd) return source.high;
    if (x < highEnd + edge) return source.high - swing * (x - highEnd) / edge;
    return source.low;
}

double shapeVolts(const SignalSource& source, double t, double edge)
{
    const double phase = phaseOf(t, source.frequency);
    const double middle = (source.high + source.low) / 2;
    const double half = (source.high - source.low) / 2;
    switch (source.shape) {
    case WaveShape::Sine: return middle + half * std::sin(2 * std::numbers::pi * phase);
    case WaveShape::Triangle:
        return phase < 0.5 ? source.low + 4 * half * phase : source.high - 4 * half * (phase - 0.5);
    case WaveShape::Square:
    case WaveShape::Pulse: return rectangleVolts(source, phase, edge);
    }
    return 0.0;
}

// Deterministic noise in [-1, 1): the same instant always gives the same value.
double noiseAt(int channel, double t)
{
    std::uint64_t x =
        std::uint64_t(std::llround(t * 1e10)) + 0x9E3779B97F4A7C15ull * std::uint64_t(channel + 1);
    x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9ull;
    x = (x ^ (x >> 27)) * 0x94D049BB133111EBull;
    x ^= x >> 31;
    return double(x >> 11) / double(1ull << 52) - 1.0;
}

} // namespace

const SignalSource& signalSource(int channel)
{
    return Sources[clampChannel(channel)];
}

double signalPeriod(int channel)
{
    return 1.0 / signalSource(channel).frequency;
}

double generatorVolts(int channel, double t)
{
    const SignalSource& source = signalSource(channel);
    return shapeVolts(source, t, source.edge);
}

double generatorMean(int channel)
{
    const SignalSource& source = signalSource(channel);
    if (source.shape == WaveShape::Sine || source.shape == WaveShape::Triangle)
        return (source.high + source.low) / 2;
    return source.low + (source.high - source.low) * source.duty;
}

double coupledVolts(const ChannelState& channel, int index, double t)
{
    if (channel.coupling == ChannelCoupling::GND) return 0.0;
    const SignalSource& source = signalSource(index);
    const double edge = channel.bwLimit ? std::hypot(source.edge, BandwidthLimitRise) : source.edge;
    const double volts = shapeVolts(source, t, edge);
    return channel.coupling == ChannelCoupling::AC ? volts - generatorMean(index) : volts;
}

double sampledVolts(const SimState& state, int index, double t)
{
    const ChannelState& channel = state.channels[clampChannel(index)];
    double noise = NoisePeak * noiseAt(index, t);
    if (state.acquire.type == AcquireType::Average) noise /= std::sqrt(double(state.acquire.averages));
    const double volts = coupledVolts(channel, index, t) + noise;
    return channel.invert ? -volts : volts;
}
