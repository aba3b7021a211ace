#pragma once
// The channel markers at the left edge of the grid and their legends. Everything draws from a record's
// values onto a WaveCanvas and needs no window.

#include "acquire/waverecord.h"
#include "wave/wavecanvas.h"

// Marker arrow and legend of channel 1 to 4, in the fore colour in force. The
// memory view writes legends of its own and leaves this one out.
void DrawChannelMarker(const WaveCanvas& canvas, int channel, const QString& offsetText,
                       const QString& scaleText, const QString& triggerMode, const QString& fftDisplayText,
                       int8_t s8FFTScreen, bool withLegend = true);

// The marker arrow of channel 1 to 4 alone, on a full screen of one time base.
void DrawChannelMark(const WaveCanvas& canvas, int channel, const QString& offsetText,
                     const QString& scaleText);
