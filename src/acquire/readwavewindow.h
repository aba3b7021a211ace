#pragma once
// Operation 10: a wave window's snapshot of the instrument, read into
// WaveRecords[CurrentWaveIndex]: the settings as texts, the parameter block and
// the sample arrays of the shown channels, math or FFT, or the X-Y picture.

// Reads the record of CurrentWaveIndex. false when an index left its bound
// (the reading's error path); what was read before stays in the record.
bool ReadWaveWindow();
