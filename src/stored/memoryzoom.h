#pragma once
// The memory view's offline zoom: which samples fall into the 300 screen
// columns at the present time per division, and how their codes move when
// the volts per division or the offset change. Each screen column holds two
// points; a channel's screen array holds rows 0 to 199.

#include "stored/memorywaveslot.h"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

inline constexpr int ScreenColumns = 300;
inline constexpr int ScreenRows = 200;

// Mode 0 normal, 2 Roll. Sample step j (of `count`) lies at start + j / rate;
// column x shows delay + (x - 150) timeDiv / 25. The outs get the columns that
// show a step by nearest sample and the steps at their ends. When no column
// does, ScrStartPos and ScrEndPos are 300.
void devGetStopScrWave64(uint8_t mode, float sampleRate, int32_t count, double delay, double startTime,
                         double timeDiv, int32_t rollPosition, MemoryWaveWindow& out);

// Nearest sample for each of `points` points (two a column) from StartPt to
// EndPt. In Roll the oldest step sits at `ringStart`, and the steps wrap around.
// Returns 0 when nothing could be mapped.
int16_t WaveZoom(std::span<const int16_t> source, std::vector<int16_t>& destination,
                 const MemoryWaveWindow& window, int points, int32_t ringStart = 0);
// The same over peak pairs: minimum and maximum of the pairs that fall on each point.
int16_t PeakWaveZoom(std::span<const int16_t> source, std::vector<int16_t>& minimum,
                     std::vector<int16_t>& maximum, const MemoryWaveWindow& window, int points,
                     int32_t ringStart = 0);
// Moves codes from the data's volts per division and offset to the view's.
void WaveZoomV(std::vector<int16_t>& codes, float voltDivNow, float offsetNow, float voltDivData,
               float offsetData);

// The window computation: fills Single, or WindowA and WindowB in ALTERNATION.
void ComputeMemoryWindows(MemoryWaveSlot& slot);

// Screen rows of the four channels (peak channels also have their maxima).
struct MemoryWaveScreen {
    std::array<std::vector<int16_t>, 4> rows;
    std::array<std::vector<int16_t>, 4> peakRows;
};

// Channel refresh of one channel (0 to 3), or of all with -1. A channel whose
// window lies off the screen, or whose zoom maps nothing, keeps its rows.
void RefreshMemoryChannels(const MemoryWaveSlot& slot, MemoryWaveScreen& screen, int channel = -1);
