#include "files/wfmcontent.h"

#include "files/filesampler.h"
#include "model/triggerfinder.h"

#include <algorithm>
#include <cmath>

namespace {

bool isAlternation(const SimState& state)
{
    return state.trigger.mode == TriggerType::Alternation;
}
bool isPeak(const SimState& state)
{
    return state.acquire.type == AcquireType::PeakDetect;
}
bool isRoll(const SimState& state)
{
    return state.timebase.format == TimeFormat::Roll;
}

std::int64_t picoseconds(double seconds)
{
    return std::llround(seconds * 1e12);
}

// Even, so peak pairs never split.
int sampleCountOf(const SimState& state, bool longMemory)
{
    if (longMemory) return WfmLongMemorySamples;
    return std::clamp(state.timebase.memorySize, 2, WfmBlockSize) & ~1;
}

int stepsOf(const SimState& state, int count)
{
    return isPeak(state) ? count / 2 : count;
}

// A channel that runs on the time base, to ask for the time base's rates.
int channelOn(const SimState& state, int timeBase)
{
    for (int n = 0; n < Channels; ++n)
        if (timeBaseOfChannel(state, n) == timeBase) return n;
    return 0;
}

WfmTimeBase timeBaseOf(const SimState& state, const Frame& frame, int timeBase, int count)
{
    const TimeWindow& window = timeWindowOf(state, timeBase);
    const int channel = channelOn(state, timeBase);
    return {count, picoseconds(window.scale), picoseconds(window.offset),
            float(memoryStepRate(state, channel)),
            picoseconds(memoryStartTime(state, frame, channel, count))};
}

int rollPositionOf(const SimState& state, int count)
{
    return stepsOf(state, count) * 3 / 8;
}

// The chronological step j lands at (position + j) mod the steps, a peak
// pair moving as one.
QByteArray intoRing(const QByteArray& chronological, int position, int bytesPerStep)
{
    const qsizetype size = chronological.size();
    if (size == 0) return {};
    const qsizetype start = (qsizetype(position) * bytesPerStep) % size;
    return chronological.right(start) + chronological.left(size - start);
}

WfmChannel channelOf(const SimState& state, const Frame& frame, int channel, int count)
{
    const ChannelState& input = state.channels[channel];
    WfmChannel out;
    out.enabled = input.display;
    out.scaleDisplay = out.scaleMeasured = microvoltsPerDivision(input);
    out.shiftDisplay = out.shiftMeasured = positionCodes(input);
    out.samples = memoryCodes(state, frame, channel, count);
    if (isRoll(state))
        out.samples = intoRing(out.samples, rollPositionOf(state, count), isPeak(state) ? 2 : 1);
    return out;
}

WfmTimeMode timeModeOf(const SimState& state)
{
    switch (state.timebase.format) {
    case TimeFormat::XY: return WfmTimeMode::XY;
    case TimeFormat::Roll: return WfmTimeMode::Roll;
    case TimeFormat::YT: break;
    }
    return WfmTimeMode::YT;
}

std::int32_t acquireModeOf(const SimState& state)
{
    switch (state.acquire.type) {
    case AcquireType::Average: return 1;
    case AcquireType::PeakDetect: return kWfmAcquirePeak;
    case AcquireType::Normal: break;
    }
    return 0;
}

void fillSettings(WfmContent& content, const SimState& state, const WfmRequest& request)
{
    content.model = request.model;
    content.longMemory = request.longMemory && !isAlternation(state);
    content.triggerKind = isAlternation(state) ? kWfmTriggerAlternation : kWfmTriggerEdge;
    content.triggerSourceA = std::uint8_t(state.trigger.alternation.channelA);
    content.triggerSourceB = std::uint8_t(state.trigger.alternation.channelB);
    content.timeMode = timeModeOf(state);
    content.peakFlags = isPeak(state) ? (isAlternation(state) ? 0x6 : 0x1) : 0;
    content.acquireMode = acquireModeOf(state);
}

} // namespace

WfmContent wfmContentOf(const SimState& state, const Frame& frame, const WfmRequest& request)
{
    WfmContent content;
    fillSettings(content, state, request);
    const int count = sampleCountOf(state, content.longMemory);
    content.timeBaseA = timeBaseOf(state, frame, 0, count);
    if (isAlternation(state)) content.timeBaseB = timeBaseOf(state, frame, 1, count);
    if (isRoll(state)) content.rollPosition = rollPositionOf(state, count);
    for (int n = 0; n < Channels; ++n)
        content.channels[n] = channelOf(state, frame, n, count);
    return content;
}
