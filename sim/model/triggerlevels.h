#pragma once
// Trigger settings shared by the plain and the alternate trigger commands.

#include "model/commandparser.h"
#include "model/simstate.h"

#include <QByteArray>

constexpr double ShortestTime = 20e-9; // pulse widths, slope and duration times
constexpr double LongestTime = 10.0;

// A level in displayed volts on the wire, kept in volts at the source's input.
QByteArray levelSetting(const ScpiCommand& command, const SimState& state, TriggerSource source,
                        double& level);
// A time of a trigger condition (pulse width, slope or duration time).
QByteArray conditionTimeSetting(const ScpiCommand& command, double& time);
QByteArray holdoffSetting(const ScpiCommand& command, double& holdoff);
QByteArray sensitivitySetting(const ScpiCommand& command, double& sensitivity);
// The video line; the standard bounds it.
QByteArray videoLineSetting(const ScpiCommand& command, VideoStandard standard, int& line);
QByteArray videoStandardSetting(const ScpiCommand& command, VideoStandard& standard, int& line);
