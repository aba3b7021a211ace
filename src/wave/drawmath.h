#pragma once
// The math and FFT traces with their marker and legends. Everything draws from a record's
// values onto a WaveCanvas and needs no window.

#include "acquire/waverecord.h"
#include "wave/wavecanvas.h"

// Marker and legends of math or FFT, in the fore colour in force.
void DrawMathLegend(const WaveCanvas& canvas, const WaveParameter& parameter, const QString& triggerMode,
                    const QString& fftDisplayText);
void DrawMathTrace(const WaveCanvas& canvas, const WaveArray& math, int points,
                   const WaveParameter& parameter, const QString& triggerMode);
void DrawFftTrace(const WaveCanvas& canvas, const WaveArray& fft, int points, const WaveParameter& parameter,
                  const QString& triggerMode);
// Spectrum width in grid pixels for s16FFTHorizScale.
int FftWidth(int s16FFTHorizScale);
