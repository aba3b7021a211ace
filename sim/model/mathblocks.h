#pragma once
// The math trace (CH1 and CH2 combined by the math operation) and the
// spectrum of the FFT source, in display codes.

#include "model/acquisition.h"
#include "model/simstate.h"

#include <QByteArray>
#include <QVector>

constexpr int FftLength = 2048;
constexpr int FftBins = FftLength / 2;

// Displayed volts a division of the math trace (volts squared for a product):
// the larger of the two channel scales for a sum or difference, their
// product for a product.
double mathScale(const SimState& state);
// Index of a scale in the 1-2-5 ladder from 1 mV: the code the parameter block carries.
int scaleLadderIndex(double scale);

// 600 codes of CH1 op CH2 in displayed volts, centred on code 100.
QByteArray mathScreenCodes(const SimState& state, const Frame& frame);

// Hz between two spectrum lines, and Hz a division of the FFT display.
double fftBinWidth(const SimState& state);
double fftHorizontalScale(const SimState& state);
// Vrms of each of the FftBins lines of the FFT source over the frame.
QVector<double> fftSpectrum(const SimState& state, const Frame& frame);
// FftBins codes: 0..199 on a full screen, 0..99 in the lower half of a split one.
QByteArray fftScreenCodes(const SimState& state, const Frame& frame);
