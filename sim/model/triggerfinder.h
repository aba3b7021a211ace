#pragma once
// Where the next trigger falls: the time at or after a moment when the
// trigger conditions of one time base are met by the signals.

#include "model/simstate.h"

#include <optional>

// The time base a channel is drawn on: 0 (the main one, or source A in
// alternate trigger) or 1 (source B).
int timeBaseOfChannel(const SimState& state, int channel);
const TimeWindow& timeWindowOf(const SimState& state, int timeBase);

// The sweep that rules acquisition in the present trigger type.
Sweep activeSweep(const SimState& state);

// Volts at the input where the level of a source lies, and the input
// scale of that source (the external inputs count as channels of 0.2 V
// and 1 V a division, the mains as none).
double sourceScale(const SimState& state, TriggerSource source);

// The next trigger of a time base at or after `from`, within a few
// periods of the source; nothing when the conditions are never met.
std::optional<double> findTrigger(const SimState& state, int timeBase, double from);
