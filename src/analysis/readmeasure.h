#pragma once
// Operations 1 to 4: the eighteen measurements of CH1 to CH4 into
// CurrentMeasures, with the legend of the reading in CurrentMeasureLegend.

#include "analysis/measurerecord.h"

// The reading of channel (1 to 4); true when it ran to its end.
bool ReadMeasures(int channel);
// Installs operations 1 to 4 in the reading frame.
void InstallMeasureOperations();
// Takes the last reading into record: values, legend, channel, HasData.
void TakeMeasureReading(MeasureRecord& record, int channel);

// The pause before the reading and after each reply: the instrument needs them
// to settle its measuring pass.
inline constexpr int MeasureStartPauseMs = 200;
inline constexpr int MeasureReplyPauseMs = 100;
