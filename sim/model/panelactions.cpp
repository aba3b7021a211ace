#include "model/panelactions.h"

#include "model/signalmodel.h"
#include "model/timeladder.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int SwingSamples = 200;
constexpr double SlotUse = 0.8; // share of its slot a signal may fill after auto set

std::pair<double, double> swing(const ChannelState& channel, int index)
{
    double low = 1e300, high = -1e300;
    const double period = signalPeriod(index);
    for (int i = 0; i < SwingSamples; ++i) {
        const double volts = coupledVolts(channel, index, period * i / SwingSamples);
        low = std::min(low, volts);
        high = std::max(high, volts);
    }
    return {low, high};
}

double middleOf(const SimState& state, TriggerSource source)
{
    const int index = int(source);
    if (index >= Channels) return 0.0;
    const auto [low, high] = swing(state.channels[index], index);
    return (low + high) / 2;
}

void spreadChannels(SimState& state)
{
    const double slot = 8.0 / Channels;
    for (int index = 0; index < Channels; ++index) {
        ChannelState& channel = state.channels[index];
        channel.display = true;
        channel.coupling = ChannelCoupling::DC;
        const auto [low, high] = swing(channel, index);
        channel.scale = coarseVoltStep((high - low) / (slot * SlotUse) * 0.999, 1);
        channel.position = 4 - slot * (index + 0.5) - (high + low) / 2 / channel.scale;
    }
}

void edgeOnChannel1(SimState& state)
{
    TriggerState& trigger = state.trigger;
    trigger.mode = TriggerType::Edge;
    trigger.coupling = TriggerCoupling::DC;
    trigger.edge.source = TriggerSource::Channel1;
    trigger.edge.slope = EdgeSlope::Positive;
    trigger.edge.sweep = Sweep::Auto;
    trigger.edge.level = middleOf(state, TriggerSource::Channel1);
}

} // namespace

void autoset(SimContext& context)
{
    SimState& state = context.state;
    spreadChannels(state);
    edgeOnChannel1(state);
    state.timebase.format = TimeFormat::YT;
    state.timebase.main.scale = timeScaleStep(signalPeriod(0) / 4 * 0.999, 1);
    state.timebase.main.offset = 0.0;
    state.acquire.type = AcquireType::Normal;
    state.running = true;
    context.acquisition.force(state);
}

double* activeLevel(SimState& state, TriggerSource& source)
{
    TriggerState& trigger = state.trigger;
    switch (trigger.mode) {
    case TriggerType::Edge: source = trigger.edge.source; return &trigger.edge.level;
    case TriggerType::Pulse: source = trigger.pulse.source; return &trigger.pulse.level;
    case TriggerType::Video: source = trigger.video.source; return &trigger.video.level;
    case TriggerType::Slope: source = trigger.slope.source; return &trigger.slope.levelA;
    case TriggerType::Alternation: {
        AlternationTrigger& alt = trigger.alternation;
        source = TriggerSource(alt.currentIsB ? alt.channelB : alt.channelA);
        return &alt.sources[alt.currentIsB ? 1 : 0].level;
    }
    default: return nullptr;
    }
}

Sweep* activeSweepSetting(SimState& state)
{
    TriggerState& trigger = state.trigger;
    switch (trigger.mode) {
    case TriggerType::Edge: return &trigger.edge.sweep;
    case TriggerType::Pulse: return &trigger.pulse.sweep;
    case TriggerType::Video: return &trigger.video.sweep;
    case TriggerType::Slope: return &trigger.slope.sweep;
    case TriggerType::Pattern: return &trigger.pattern.sweep;
    case TriggerType::Duration: return &trigger.duration.sweep;
    default: return nullptr;
    }
}

void triggerLevelToMiddle(SimState& state)
{
    TriggerSource source = TriggerSource::Channel1;
    if (double* level = activeLevel(state, source)) *level = middleOf(state, source);
}

void singleSweep(SimState& state)
{
    if (Sweep* sweep = activeSweepSetting(state)) *sweep = Sweep::Single;
    state.running = true;
}

void forceTrigger(SimContext& context)
{
    if (context.state.running) context.acquisition.force(context.state);
}
