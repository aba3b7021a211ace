#pragma once
// The traces of channels 1 to 4, ordinary and peak detect. Everything draws from a record's
// values onto a WaveCanvas and needs no window.

#include "acquire/waverecord.h"
#include "wave/wavecanvas.h"

// One ordinary trace of channel 1 to 4 (samples at index i + 212).
void DrawChannelTrace(const WaveCanvas& canvas, const WaveArray& wave, int points, int channel,
                      const WaveParameter& parameter, const QString& triggerMode,
                      const QString& fftDisplayText);
// One peak-detect trace: placed like an ordinary one, one index lower, drawn as an envelope.
void DrawPeakTrace(const WaveCanvas& canvas, const WaveArray& first, const WaveArray& second, int points,
                   int channel, const WaveParameter& parameter, const QString& triggerMode,
                   const QString& fftDisplayText);
// The band between two peak halves from startIndex at x0, on rows y0 + s z (or
// y0 + s z / 2 with half) up to screen position last.
void DrawPeakEnvelope(const WaveCanvas& canvas, const WaveArray& first, const WaveArray& second,
                      long long startIndex, double x0, double y0, int last, int points, bool half);
