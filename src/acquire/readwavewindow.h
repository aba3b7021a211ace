#pragma once
// Operation 10: a wave window's snapshot of the instrument, read into
// WaveRecords[CurrentWaveIndex]: the settings as texts, the parameter block and
// the sample arrays of the shown channels, math or FFT, or the X-Y picture.

#include <functional>

// Reads the record of CurrentWaveIndex. false when an index left its bound
// (the reading's error path); what was read before stays in the record.
bool ReadWaveWindow();

// Told when an X-Y reading turned channel 1 or 2 on because the instrument
// shows X-Y with both: the control tree makes its display value "on".
extern std::function<void(int channel)> XyChannelShown;
