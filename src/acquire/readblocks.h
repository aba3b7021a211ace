#pragma once
// The pieces every reading is made of: the run state, the parameter block and
// one block of codes placed into a record's arrays.

#include "acquire/blockplacement.h"
#include "acquire/waveparameter.h"
#include "acquire/waverecord.h"

#include <QString>

// The last block of ":WAVEFORM:PARAMETER?"; a failed read leaves it as it was.
extern WaveParameter WaveParameterBlock;
// The run state of the last reading: "STOP" or "RUN".
extern QString TriggerStatusText;

// A query's reply as the readings use it: up to its line feed, blanks trimmed.
QString AskNormalised(const QString& query);
// Asks ":TRIGGER:STATUS?" into TriggerStatusText: "STOP" when the instrument
// says so, "RUN" for anything else (a silent link too).
QString AskRunState();
// The clock's text as the readings stamp it.
QString ReadingDateText();

// Sends ":WAVEFORM:PARAMETER?" and reads the block into WaveParameterBlock, with
// the bar's clock running at step 1 for the read.
void GetWaveParameter();

// Which placement a block takes, by the source name and the X-Y flag.
TraceSource TraceSourceOf(const QString& source, bool xy);

// One block into trace: reads it into WaveBytes, sets the bar to progress,
// places the codes by the source's rule. count gets the block's sample count.
// false when an index left its bound: the reading's error path.
bool ReadTraceBlock(WaveArray& trace, double progress, int& count, bool xy, const QString& source);
// One peak-detect block into its two halves; count gets the whole count.
bool ReadPeakBlock(WaveArray& first, WaveArray& second, double progress, int& count);
