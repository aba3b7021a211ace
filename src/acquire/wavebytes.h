#pragma once
// The codes of the last block read from the instrument, before they are placed
// into a record's arrays.

#include <array>
#include <cstdint>

inline constexpr int WaveBytesLast = 6200;
// Sample i of the last block at index i, from 1; index 0 is unused. A short or
// failed read leaves the former codes in place.
extern std::array<int32_t, WaveBytesLast + 1> WaveBytes;
// Size of the last table read.
extern int32_t WaveCount;

void ResetWaveBytes();
