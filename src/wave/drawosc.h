#pragma once
// Markers, traces and legends of a record that holds a finished reading. Only
// the alternate trigger's source pair is asked of the instrument, once per
// DrawOSC (see alternation.h). Everything draws from a record's
// values onto a WaveCanvas and needs no window.

#include "acquire/waverecord.h"
#include "wave/wavecanvas.h"

// Markers, traces and legends of a record that holds a finished reading.
void DrawOSC(const WaveCanvas& canvas, const WaveRecord& record);
