#pragma once
// The four signals that reach the simulated instrument's inputs, and what
// each channel makes of its signal (coupling, bandwidth limit, inversion).
// Volts are at the channel input; the probe ratio only scales the display.

#include "model/simstate.h"

enum class WaveShape { Sine, Square, Triangle, Pulse };

struct SignalSource {
    WaveShape shape;
    double frequency; // Hz
    double low;       // volts
    double high;      // volts
    double duty;      // share of a period spent high (square and pulse)
    double edge;      // seconds from low to high (square and pulse)
};

// CH1 a sine, CH2 a square, CH3 a triangle, CH4 a pulse train.
const SignalSource& signalSource(int channel);
double signalPeriod(int channel);

// The generator's own voltage, without noise.
double generatorVolts(int channel, double t);
// Its mean over a period: what AC coupling takes away.
double generatorMean(int channel);

// The channel's voltage after coupling and bandwidth limit, without noise
// and before inversion: what the trigger sees.
double coupledVolts(const ChannelState& channel, int index, double t);
// What the channel samples: coupled voltage, front-end noise (reduced by
// averaging) and inversion.
double sampledVolts(const SimState& state, int index, double t);
