#pragma once
// Operation 10: a wave window's snapshot of the instrument, read into
// one slot of WaveRecords: the settings as texts, the parameter block and
// the sample arrays of the shown channels, math or FFT, or the X-Y picture.

// Reads the record of slot. false when an index left its bound (the reading's
// error path, a slot outside WaveRecords among them); what was read before
// stays in the record.
bool ReadWaveWindow(int slot);
