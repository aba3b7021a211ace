#include "model/acquisition.h"

#include "model/triggerfinder.h"

#include <algorithm>

namespace {
constexpr double RefreshGap = 0.02137; // the instrument's own pause between sweeps
constexpr int RollStep = 100;
} // namespace

Acquisition::Acquisition(const SimState& state)
{
    reset(state);
}

void Acquisition::reset(const SimState& state)
{
    clock_ = 0.0;
    frame_ = Frame();
    lastFormat_ = state.timebase.format;
    waiting_ = false;
    SimState copy = state;
    copy.running = true;
    takeFrame(copy, false);
}

void Acquisition::startReading(SimState& state)
{
    delivered_ = 0;
    if (state.running) takeFrame(state, false);
}

void Acquisition::deliver(SimState& state, Delivery what)
{
    const unsigned bit = 1u << unsigned(what);
    if (delivered_ & bit)
        startReading(state);
    else
        catchUp(state);
    delivered_ |= bit;
}

void Acquisition::catchUp(SimState& state)
{
    for (int channel = 0; channel < Channels; ++channel) {
        if (state.running && frame_.captured[channel] != state.channels[channel].display) {
            startReading(state);
            return;
        }
    }
}

void Acquisition::force(SimState& state)
{
    delivered_ = 0;
    takeFrame(state, true);
}

double Acquisition::frameInterval(const SimState& state) const
{
    return RefreshGap + 12 * std::max(state.timebase.main.scale, state.timebase.windowB.scale);
}

void Acquisition::takeFrame(SimState& state, bool forced)
{
    clock_ += frameInterval(state);
    Frame next = frame_;
    if (state.timebase.format == TimeFormat::Roll) {
        next.rollFill =
            lastFormat_ == TimeFormat::Roll ? std::min(300, frame_.rollFill + RollStep) : RollStep;
        next.start = {clock_, clock_};
        next.triggered = false;
    } else {
        const std::optional<double> a = findTrigger(state, 0, clock_);
        const std::optional<double> b = findTrigger(state, 1, clock_);
        const Sweep sweep = activeSweep(state);
        waiting_ = !a && sweep != Sweep::Auto && !forced;
        if (waiting_) return;
        next.start = {a.value_or(clock_), b.value_or(clock_)};
        next.triggered = a.has_value();
        next.rollFill = 300;
        if (sweep == Sweep::Single) state.running = false;
    }
    lastFormat_ = state.timebase.format;
    for (int channel = 0; channel < Channels; ++channel)
        next.captured[channel] = state.channels[channel].display;
    frame_ = next;
    waiting_ = false;
}
