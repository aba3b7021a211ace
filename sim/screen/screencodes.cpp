#include "screen/screencodes.h"

#include "model/signalmodel.h"
#include "model/triggerfinder.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr int PeakSubsamples = 8;
constexpr double RealTimeRate = 1e9;
constexpr double EquivalentTimeRate = 25e9;
} // namespace

double pointTime(const SimState& state, const Frame& frame, int channel, double point)
{
    const int timeBase = timeBaseOfChannel(state, channel);
    const TimeWindow& window = timeWindowOf(state, timeBase);
    const double step = window.scale / 50;
    if (state.timebase.format == TimeFormat::Roll)
        return frame.start[0] + (point - (ScreenPointCount - 1)) * step;
    return frame.start[timeBase] + window.offset + (point - ScreenPointCount / 2) * step;
}

double sampleRate(const SimState& state, int channel)
{
    const double screenTime = 12 * timeWindowOf(state, timeBaseOfChannel(state, channel)).scale;
    const double limit = state.acquire.equivalentTime ? EquivalentTimeRate : RealTimeRate;
    return std::min(limit, state.timebase.memorySize / screenTime);
}

int channelCode(const ChannelState& channel, double inputVolts)
{
    const double code = 100 - channel.position * 25 - inputVolts * 25 / channel.scale;
    return int(std::lround(std::clamp(code, 0.0, 255.0)));
}

namespace {

// The lowest and highest voltage within one screen point.
std::pair<double, double> pointRange(const SimState& state, const Frame& frame, int channel, int point)
{
    double low = 1e300, high = -1e300;
    for (int k = 0; k < PeakSubsamples; ++k) {
        const double t = pointTime(state, frame, channel, point - 0.5 + (k + 0.5) / PeakSubsamples);
        const double volts = sampledVolts(state, channel, t);
        low = std::min(low, volts);
        high = std::max(high, volts);
    }
    return {low, high};
}

QByteArray peakCodes(const SimState& state, const Frame& frame, int channel)
{
    const ChannelState& settings = state.channels[channel];
    QByteArray codes(2 * ScreenPointCount, '\0');
    for (int i = 0; i < ScreenPointCount; ++i) {
        const auto [low, high] = pointRange(state, frame, channel, i);
        codes[i] = char(channelCode(settings, low));
        codes[i + ScreenPointCount] = char(channelCode(settings, high));
    }
    return codes;
}

QByteArray plainCodes(const SimState& state, const Frame& frame, int channel)
{
    const ChannelState& settings = state.channels[channel];
    QByteArray codes(ScreenPointCount, '\0');
    for (int i = 0; i < ScreenPointCount; ++i)
        codes[i] =
            char(channelCode(settings, sampledVolts(state, channel, pointTime(state, frame, channel, i))));
    return codes;
}

bool validChannel(int channel)
{
    return channel >= 0 && channel < Channels;
}

} // namespace

QByteArray channelScreenCodes(const SimState& state, const Frame& frame, int channel)
{
    if (!validChannel(channel) || !frame.captured[channel]) return {};
    if (state.acquire.type == AcquireType::PeakDetect) return peakCodes(state, frame, channel);
    return plainCodes(state, frame, channel);
}

QByteArray xyCodes(const SimState& state, const Frame& frame)
{
    return plainCodes(state, frame, 0) + plainCodes(state, frame, 1);
}

QByteArray channelRecordCodes(const SimState& state, const Frame& frame, int channel, int count)
{
    if (!validChannel(channel) || !frame.captured[channel] || count <= 0) return {};
    const ChannelState& settings = state.channels[channel];
    const double centre = pointTime(state, frame, channel, ScreenPointCount / 2);
    const double step = 1.0 / sampleRate(state, channel);
    QByteArray codes(count, '\0');
    for (int k = 0; k < count; ++k)
        codes[k] = char(channelCode(settings, sampledVolts(state, channel, centre + (k - count / 2) * step)));
    return codes;
}

QByteArray definiteBlock(const QByteArray& data)
{
    const QByteArray length = QByteArray::number(data.size());
    return '#' + QByteArray::number(length.size()) + length + data + '\n';
}
