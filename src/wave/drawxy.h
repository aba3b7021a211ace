#pragma once
// The X-Y picture and its legend. Everything draws from a record's
// values onto a WaveCanvas and needs no window.

#include "acquire/waverecord.h"
#include "wave/wavecanvas.h"

// The X-Y picture: CH1 across (mirrored), CH2 down, one dot per point.
void DrawXyTrace(const WaveCanvas& canvas, const WaveArray& ch1, const WaveArray& ch2, int points);
void DrawXyLegend(const WaveCanvas& canvas, const QString& ch1ScaleText, const QString& ch2ScaleText,
                  bool colorMode);
