#pragma once
// What a command and a front-panel key may both do.

#include "model/simcontext.h"

// Every channel on and spread over the screen, time base for a few periods
// of CH1, edge trigger on CH1 at the middle of its swing; then a frame.
void autoset(SimContext& context);
// The level of the present trigger type to the middle of its source's swing.
void triggerLevelToMiddle(SimState& state);
// Arm one sweep: the next trigger takes a frame and stops.
void singleSweep(SimState& state);
// A frame now, trigger or not, when running.
void forceTrigger(SimContext& context);

// The level the level knob moves and its source; nothing for the pattern
// and duration types, whose levels are per input.
double* activeLevel(SimState& state, TriggerSource& source);
Sweep* activeSweepSetting(SimState& state);
