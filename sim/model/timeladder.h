#pragma once
// The 1-2-5 ladders the instrument's knobs walk.

#include <optional>

// Seconds a division: 1 ns to 50 s.
double timeScaleStep(double scale, int steps);
// The ladder value a requested time scale means (within 2 %), if any.
std::optional<double> snapTimeScale(double requested);
// Volts a division at the input: 2 mV to 10 V, coarse and fine.
double coarseVoltStep(double scale, int steps);
double fineVoltStep(double scale, int steps);

constexpr double ShortestTimeScale = 1e-9;
constexpr double LongestTimeScale = 50.0;
constexpr double LongestYtTimeScale = 20.0;
