#pragma once
// The grid of the picture. Everything draws from a record's
// values onto a WaveCanvas and needs no window.

#include "acquire/waverecord.h"
#include "wave/wavecanvas.h"

// Clears the picture and draws frame, centre cross, ticks, the dotted grid when
// GridOn is set, and the maker text.
void DrawScrGrid(const WaveCanvas& canvas, const WaveRecord& record);
