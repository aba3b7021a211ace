#pragma once
// The acquisition as the instrument's files keep it: settings in the units
// of the file headers, peak-detect memory as pairs, and screens as rows.

#include "model/acquisition.h"
#include "model/simstate.h"

#include <QByteArray>
#include <cstdint>

// A channel's displayed volts per division in microvolts, and its position
// in 1/25 of a division.
std::int32_t microvoltsPerDivision(const ChannelState& channel);
std::int16_t positionCodes(const ChannelState& channel);

// The acquisition memory of a channel: `count` codes at the channel's sample
// rate, the screen centre in the middle. In peak detect `count` / 2 steps
// at half that rate, each a pair: the code of the lowest voltage in the
// step, then that of the highest. Empty when the channel was off.
QByteArray memoryCodes(const SimState& state, const Frame& frame, int channel, int count);

// Time steps a second in the memory of a channel, as memoryCodes lays it out.
double memoryStepRate(const SimState& state, int channel);
// The time of the memory's first step, from the frame's trigger.
double memoryStartTime(const SimState& state, const Frame& frame, int channel, int count);

// One screen as a record file keeps it: 600 rows of 0 to 199, a peak point
// drawn at the middle of its span. Empty when the channel was off.
QByteArray screenRows(const SimState& state, const Frame& frame, int channel);
