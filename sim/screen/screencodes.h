#pragma once
// From the signals of one frame to the codes the instrument sends: 600
// points across the screen's 12 divisions (50 a division), 25 codes a
// division, code 100 on the centre line less the position, so that
// volts = ((100 - position) - code) * scale / 25.

#include "model/acquisition.h"
#include "model/simstate.h"

#include <QByteArray>

constexpr int ScreenPointCount = 600;

// The time of screen point `point` (0 to 599) of a channel.
double pointTime(const SimState& state, const Frame& frame, int channel, double point);
// Samples a second on a channel's time base.
double sampleRate(const SimState& state, int channel);

// A code for input volts on a channel, kept in the byte range.
int channelCode(const ChannelState& channel, double inputVolts);

// 600 codes; in peak detect 1200: each point's minimum voltage, then each
// point's maximum voltage. Empty when the channel was off for the frame.
QByteArray channelScreenCodes(const SimState& state, const Frame& frame, int channel);
// 600 X codes (CH1) then 600 Y codes (CH2), as the channels' own codes.
QByteArray xyCodes(const SimState& state, const Frame& frame);
// `count` codes of the acquisition memory at the channel's sample rate,
// the trigger point in the middle. Empty when the channel was off.
QByteArray channelRecordCodes(const SimState& state, const Frame& frame, int channel, int count);

// "#", the digit count, the length, the data and a line feed.
QByteArray definiteBlock(const QByteArray& data);
