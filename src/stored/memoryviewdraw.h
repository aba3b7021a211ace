#pragma once
// The memory view's picture: the wave view's grid, markers and traces over the
// screen rows of a memory wave slot, with the memory view's own readouts
// (positions and delays) under the grid.

#include "acquire/waverecord.h"
#include "stored/memoryzoom.h"
#include "wave/readout.h"

#include <QImage>

class Surface;

// A wave record that draws the slot: its screen rows placed where the wave
// view's drawing takes samples, the pictures options, and the value texts.
WaveRecord MemoryDrawRecord(const MemoryWaveSlot& slot, const MemoryWaveScreen& screen);

// Grid, channels (marks, traces), trigger marks and readouts on the surface.
void DrawMemoryWave(Surface& surface, double zoom, const MemoryWaveSlot& slot,
                    const MemoryWaveScreen& screen);
// The same on a new picture of the zoom's size.
QImage MemoryWavePicture(double zoom, const MemoryWaveSlot& slot, const MemoryWaveScreen& screen);

// What the cursor readouts need of the slot.
ReadoutInput MemoryReadoutInput(const MemoryWaveSlot& slot, double zoom, int language);

// The readout line under the grid: "Pos1:  " .. "Pos4:  " and the delays.
struct MemoryLegend {
    QString text;
    QPointF at;
};
std::vector<MemoryLegend> MemoryLegends(const MemoryWaveSlot& slot, double zoom);
