#include "files/filesampler.h"

#include "model/signalmodel.h"
#include "model/triggerfinder.h"
#include "screen/screencodes.h"

#include <algorithm>
#include <cmath>

namespace {

// Instants looked at within one peak-detect step.
constexpr int PeakLooks = 8;

bool isPeak(const SimState& state)
{
    return state.acquire.type == AcquireType::PeakDetect;
}

double centreTime(const SimState& state, const Frame& frame, int channel)
{
    return pointTime(state, frame, channel, ScreenPointCount / 2);
}

QByteArray peakPairs(const SimState& state, const Frame& frame, int channel, int steps)
{
    const ChannelState& settings = state.channels[channel];
    const double step = 1.0 / memoryStepRate(state, channel);
    const double first = centreTime(state, frame, channel) - (steps / 2) * step;
    QByteArray codes(2 * steps, '\0');
    for (int k = 0; k < steps; ++k) {
        double low = HUGE_VAL, high = -HUGE_VAL;
        for (int look = 0; look < PeakLooks; ++look) {
            const double volts = sampledVolts(state, channel, first + (k + double(look) / PeakLooks) * step);
            low = std::min(low, volts);
            high = std::max(high, volts);
        }
        codes[2 * k] = char(channelCode(settings, low));
        codes[2 * k + 1] = char(channelCode(settings, high));
    }
    return codes;
}

char screenRow(int code)
{
    return char(std::clamp(code, 0, 199));
}

} // namespace

std::int32_t microvoltsPerDivision(const ChannelState& channel)
{
    const double microvolts = channel.scale * channel.probe * 1e6;
    return std::int32_t(std::llround(std::clamp(microvolts, 0.0, 2e9)));
}

std::int16_t positionCodes(const ChannelState& channel)
{
    return std::int16_t(std::lround(std::clamp(channel.position * 25, -32768.0, 32767.0)));
}

double memoryStepRate(const SimState& state, int channel)
{
    return sampleRate(state, channel) / (isPeak(state) ? 2 : 1);
}

double memoryStartTime(const SimState& state, const Frame& frame, int channel, int count)
{
    const int steps = isPeak(state) ? count / 2 : count;
    const double centre = centreTime(state, frame, channel) - frame.start[timeBaseOfChannel(state, channel)];
    return centre - (steps / 2) / memoryStepRate(state, channel);
}

QByteArray memoryCodes(const SimState& state, const Frame& frame, int channel, int count)
{
    if (!isPeak(state)) return channelRecordCodes(state, frame, channel, count);
    if (channel < 0 || channel >= Channels || !frame.captured[channel] || count <= 1) return {};
    return peakPairs(state, frame, channel, count / 2);
}

QByteArray screenRows(const SimState& state, const Frame& frame, int channel)
{
    const QByteArray codes = channelScreenCodes(state, frame, channel);
    if (codes.size() < 2 * ScreenPointCount) {
        QByteArray rows(codes.size(), '\0');
        std::transform(codes.begin(), codes.end(), rows.begin(), [](char c) { return screenRow(quint8(c)); });
        return rows;
    }
    QByteArray rows(ScreenPointCount, '\0');
    for (int i = 0; i < ScreenPointCount; ++i)
        rows[i] = screenRow((quint8(codes[i]) + quint8(codes[i + ScreenPointCount])) / 2);
    return rows;
}
