#pragma once
// From a stored snapshot to the picture of the instrument's screen: the grid,
// the channel and trigger markers, the traces in every mode and the legends
// under the grid. Everything draws from a WaveRecord and needs no window, so the
// wave view, the memory view and the print image share it. Only the alternate
// trigger's source pair is asked of the instrument, once per DrawOSC (see
// alternation.h).

#include "acquire/waverecord.h"
#include "wave/wavecanvas.h"

// Clears the picture and draws frame, centre cross, ticks, the dotted grid when
// GridOn is set, and the maker text.
void DrawScrGrid(const WaveCanvas& canvas, const WaveRecord& record);
// Markers, traces and legends of a record that holds a finished reading.
void DrawOSC(const WaveCanvas& canvas, const WaveRecord& record);

// Marker arrow and legend of channel 1 to 4, in the fore colour in force. The
// memory view writes legends of its own and leaves this one out.
void DrawChannelMarker(const WaveCanvas& canvas, int channel, const QString& offsetText,
                       const QString& scaleText, const QString& triggerMode, const QString& fftDisplayText,
                       int8_t s8FFTScreen, bool withLegend = true);

// The marker arrow of channel 1 to 4 alone, on a full screen of one time base.
void DrawChannelMark(const WaveCanvas& canvas, int channel, const QString& offsetText,
                     const QString& scaleText);

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

// Marker and legends of math or FFT, in the fore colour in force.
void DrawMathLegend(const WaveCanvas& canvas, const WaveParameter& parameter, const QString& triggerMode,
                    const QString& fftDisplayText);
void DrawMathTrace(const WaveCanvas& canvas, const WaveArray& math, int points,
                   const WaveParameter& parameter, const QString& triggerMode);
void DrawFftTrace(const WaveCanvas& canvas, const WaveArray& fft, int points, const WaveParameter& parameter,
                  const QString& triggerMode);
// Spectrum width in grid pixels for s16FFTHorizScale.
int FftWidth(int s16FFTHorizScale);

// The T marker of one time base alone, on the upper (or only) or the lower half, in the maker colour.
void DrawTriggerMarker(const WaveCanvas& canvas, const QString& timeScaleText, const QString& timeOffsetText,
                       bool lowerHalf, bool colorMode);
// The T marker alone, in the fore colour in force, on the upper (or only) or the
// lower half; a zero scale draws none.
void DrawTriggerMark(const WaveCanvas& canvas, const QString& timeScaleText, const QString& timeOffsetText,
                     bool lowerHalf = false);
// The T marker and time legends of a single time base, and of the two of alternate trigger.
void DrawTimeMarker(const WaveCanvas& canvas, const QString& timeScaleText, const QString& timeOffsetText,
                    bool colorMode);
void DrawAltTimeMarkers(const WaveCanvas& canvas, const QString& scaleAText, const QString& scaleBText,
                        const QString& offsetAText, const QString& offsetBText, bool colorMode);

// The X-Y picture: CH1 across (mirrored), CH2 down, one dot per point.
void DrawXyTrace(const WaveCanvas& canvas, const WaveArray& ch1, const WaveArray& ch2, int points);
void DrawXyLegend(const WaveCanvas& canvas, const QString& ch1ScaleText, const QString& ch2ScaleText,
                  bool colorMode);
