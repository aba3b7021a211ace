#pragma once
// The memory view's steppers: volts and time per division through 1-2-5
// series, and the texts their boxes show.

#include "stored/memorywaveslot.h"

#include <QString>

// Volts per division one step down (direction -1) or up (+1) through 2 mV to 10 V.
// Down takes the largest step below the value, up the smallest above; with none
// the value stays.
float StepVoltDiv(float voltsPerDiv, int direction);
// Seconds per division through the 1-2-5 series up to 50 s; the bottom is 5 ns
// for bandwidth code 2, 2 ns for 3, 1 ns otherwise.
double StepTimeDiv(double secondsPerDiv, int direction, int bandwidthCode);

// One step of channel n's (0 to 3) volts per division; the offset follows so
// the trace keeps its place on the screen.
void StepChannelVoltDiv(MemoryWaveSlot& slot, int channel, int direction);

// Which stepper: 0 to 3 volts of CH1 to CH4, 4 the single time base, 5 and 6 time bases A and B.
inline constexpr int StepTimeSingle = 4;
inline constexpr int StepTimeA = 5;
inline constexpr int StepTimeB = 6;
// One step of the target's value. False for an unknown target.
bool StepMemoryValue(MemoryWaveSlot& slot, int target, int direction, int bandwidthCode);

QString MemoryVoltText(double volts);
QString MemoryTimeText(double seconds);
