#pragma once
// The eighteen automatic measurements, made on a channel's displayed volts
// over the screen of the present frame. A measurement that cannot be made
// (channel off, a flat trace, no full period on the screen) has no value.

#include "model/acquisition.h"
#include "model/simstate.h"

#include <QByteArray>
#include <array>
#include <optional>

enum class Measure {
    Vpp,
    Vamplitude,
    Vmax,
    Vmin,
    Vtop,
    Vbase,
    Vaverage,
    Vrms,
    Overshoot, // share of the amplitude, 0.05 for 5 %
    Preshoot,  // share of the amplitude
    Frequency,
    Period,
    RiseTime,
    FallTime,
    PWidth,
    NWidth,
    PDutyCycle, // percent, 50 for half
    NDutyCycle, // percent
};
constexpr int MeasureCount = 18;

using MeasureSet = std::array<std::optional<double>, MeasureCount>;

// The query mnemonic ("VPP", "PDUTYCYCLE") of a measurement.
std::optional<Measure> measureByMnemonic(const QByteArray& upperMnemonic);

MeasureSet measureChannel(const SimState& state, const Frame& frame, int channel);
