#pragma once
// Operations 5 to 9: one channel's screen samples as the text columns of a
// data table (DataTimeText, DataValueText, DataValueText2), with the table's
// first line in DataHeaderText and its size in WaveCount.

#include "acquire/waveparameter.h"

#include <QString>
#include <optional>

// What the last table reading decided beside its columns.
struct TableReading {
    WaveParameter parameter; // the block at the reading
    int16_t start = 0;       // the screen positions the table covers
    int16_t end = 0;
    bool peak = false; // the channel was in peak-detect mode: two value columns
};
extern TableReading LastTableReading;

// Reads source "CH1" to "CH4" or "LA". false when an index left its bound or a
// number could not be worked (the reading's error path); what was written
// before stays.
bool ReadDataTable(const QString& source);

// The channel's position in codes: offset * 25 / scale, moved half a code away
// from zero (down for 0), then to the nearest integer, ties to even. Empty when
// it is no number or leaves the 16-bit range.
std::optional<int16_t> PositionCodes(float offset, float scale);
// The sample rate's text in a table's first line: the frequency text with "Sa"
// in place of the "H" and what follows it ("100.0MHz" gives "100.0MSa").
QString SampleRateText(const QString& reply);
