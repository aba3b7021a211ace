#include "model/triggerfinder.h"

#include "model/signalmodel.h"

#include <cmath>

namespace {

constexpr double LinePeriod = 0.02; // the mains: 50 Hz
constexpr int ScanSteps = 400;
constexpr int PulseTries = 64;

enum class Direction { Rising, Falling, Either };

struct Condition {
    TriggerSource source = TriggerSource::Channel1;
    double level = 0.0;
    Direction direction = Direction::Rising;
    bool pulse = false; // a pulse whose width meets `mode` and `width`
    PulseMode mode = PulseMode::PlusLess;
    double width = 0.0;
    bool freeRun = false; // the type triggers on every sweep
    bool never = false;   // no signal meets the type
};

Direction directionOf(EdgeSlope slope)
{
    return slope == EdgeSlope::Positive   ? Direction::Rising
           : slope == EdgeSlope::Negative ? Direction::Falling
                                          : Direction::Either;
}

bool isPositive(PulseMode mode)
{
    return mode == PulseMode::PlusLess || mode == PulseMode::PlusGreater || mode == PulseMode::PlusEqual;
}

TriggerSource channelSource(int channel)
{
    return TriggerSource(channel);
}

Condition alternationCondition(const SimState& state, int timeBase)
{
    const AlternationTrigger& alt = state.trigger.alternation;
    const AltSourceTrigger& source = alt.sources[timeBase];
    Condition condition;
    condition.source = channelSource(timeBase == 0 ? alt.channelA : alt.channelB);
    condition.level = source.level;
    condition.direction = directionOf(source.slope);
    condition.pulse = source.type == TriggerType::Pulse;
    condition.mode = source.pulseMode;
    condition.width = source.pulseTime;
    condition.never = source.type == TriggerType::Video;
    return condition;
}

Condition conditionOf(const SimState& state, int timeBase)
{
    const TriggerState& trigger = state.trigger;
    Condition condition;
    switch (trigger.mode) {
    case TriggerType::Edge:
        condition.source = trigger.edge.source;
        condition.level = trigger.edge.level;
        condition.direction = directionOf(trigger.edge.slope);
        break;
    case TriggerType::Pulse:
        condition.source = trigger.pulse.source;
        condition.level = trigger.pulse.level;
        condition.pulse = true;
        condition.mode = trigger.pulse.mode;
        condition.width = trigger.pulse.width;
        break;
    case TriggerType::Slope:
        condition.source = trigger.slope.source;
        condition.level = trigger.slope.levelA;
        condition.direction = isPositive(trigger.slope.mode) ? Direction::Rising : Direction::Falling;
        break;
    case TriggerType::Video:
        condition.never = true; // none of the inputs carries a video signal
        break;
    case TriggerType::Pattern:
    case TriggerType::Duration: condition.freeRun = true; break;
    case TriggerType::Alternation: return alternationCondition(state, timeBase);
    }
    return condition;
}

double triggerVolts(const SimState& state, int channel, double t)
{
    const double volts = coupledVolts(state.channels[channel], channel, t);
    return state.trigger.coupling == TriggerCoupling::AC ? volts - generatorMean(channel) : volts;
}

bool crosses(double before, double after, Direction direction)
{
    const bool rising = before < 0 && after >= 0;
    const bool falling = before >= 0 && after < 0;
    return direction == Direction::Rising    ? rising
           : direction == Direction::Falling ? falling
                                             : rising || falling;
}

// The first crossing of the level in [from, from + span], refined by bisection.
std::optional<double> nextCrossing(const SimState& state, int channel, double level, Direction direction,
                                   double from, double span)
{
    const double step = span / ScanSteps;
    double t0 = from;
    double v0 = triggerVolts(state, channel, t0) - level;
    for (int i = 1; i <= ScanSteps; ++i) {
        const double t1 = from + i * step;
        const double v1 = triggerVolts(state, channel, t1) - level;
        if (crosses(v0, v1, direction)) {
            double low = t0, high = t1;
            for (int k = 0; k < 40; ++k) {
                const double middle = (low + high) / 2;
                const double v = triggerVolts(state, channel, middle) - level;
                (crosses(v0, v, direction) ? high : low) = middle;
            }
            return high;
        }
        t0 = t1;
        v0 = v1;
    }
    return std::nullopt;
}

bool widthMatches(PulseMode mode, double measured, double wanted)
{
    switch (mode) {
    case PulseMode::PlusLess:
    case PulseMode::MinusLess: return measured < wanted;
    case PulseMode::PlusGreater:
    case PulseMode::MinusGreater: return measured > wanted;
    case PulseMode::PlusEqual:
    case PulseMode::MinusEqual: return std::fabs(measured - wanted) <= 0.05 * wanted;
    }
    return false;
}

// A pulse triggers at its end, once its width is known.
std::optional<double> nextPulse(const SimState& state, int channel, const Condition& condition, double from)
{
    const double period = signalPeriod(channel);
    const Direction start = isPositive(condition.mode) ? Direction::Rising : Direction::Falling;
    const Direction end = start == Direction::Rising ? Direction::Falling : Direction::Rising;
    double t = from;
    for (int i = 0; i < PulseTries; ++i) {
        const std::optional<double> begin =
            nextCrossing(state, channel, condition.level, start, t, 2 * period);
        if (!begin) return std::nullopt;
        const std::optional<double> finish =
            nextCrossing(state, channel, condition.level, end, *begin, 2 * period);
        if (!finish) return std::nullopt;
        if (widthMatches(condition.mode, *finish - *begin, condition.width)) return *finish;
        t = *finish;
    }
    return std::nullopt;
}

} // namespace

int timeBaseOfChannel(const SimState& state, int channel)
{
    if (state.trigger.mode != TriggerType::Alternation) return 0;
    const AlternationTrigger& alt = state.trigger.alternation;
    if (channel == alt.channelA) return 0;
    if (channel == alt.channelB) return 1;
    // Channels outside the pair follow the halves the screen gives them.
    const bool ordered = (alt.channelA == 0 && alt.channelB == 1) || (alt.channelA == 2 && alt.channelB == 3);
    switch (channel) {
    case 0: return 0;
    case 1: return ordered ? 1 : 0;
    case 2: return ordered ? 0 : 1;
    default: return 1;
    }
}

const TimeWindow& timeWindowOf(const SimState& state, int timeBase)
{
    if (state.trigger.mode != TriggerType::Alternation) return state.timebase.main;
    return timeBase == 0 ? state.timebase.windowA : state.timebase.windowB;
}

Sweep activeSweep(const SimState& state)
{
    const TriggerState& trigger = state.trigger;
    switch (trigger.mode) {
    case TriggerType::Edge: return trigger.edge.sweep;
    case TriggerType::Pulse: return trigger.pulse.sweep;
    case TriggerType::Video: return trigger.video.sweep;
    case TriggerType::Slope: return trigger.slope.sweep;
    case TriggerType::Pattern: return trigger.pattern.sweep;
    case TriggerType::Duration: return trigger.duration.sweep;
    case TriggerType::Alternation: return Sweep::Auto;
    }
    return Sweep::Auto;
}

double sourceScale(const SimState& state, TriggerSource source)
{
    switch (source) {
    case TriggerSource::Ext: return 0.2;
    case TriggerSource::Ext5: return 1.0;
    case TriggerSource::AcLine: return 0.0;
    default: return state.channels[int(source)].scale;
    }
}

std::optional<double> findTrigger(const SimState& state, int timeBase, double from)
{
    const Condition condition = conditionOf(state, timeBase);
    if (condition.freeRun) return from;
    if (condition.never || condition.source == TriggerSource::Ext || condition.source == TriggerSource::Ext5)
        return std::nullopt;
    if (condition.source == TriggerSource::AcLine) return std::ceil(from / LinePeriod) * LinePeriod;
    const int channel = int(condition.source);
    if (condition.pulse) return nextPulse(state, channel, condition, from);
    return nextCrossing(state, channel, condition.level, condition.direction, from,
                        2 * signalPeriod(channel));
}
