#pragma once
// One section of the data sheet file per child window: each kind's values in
// their fixed order, the arrays only when the record has data. The stored
// files' windows have theirs in sheetstoredsections.h.

#include "sheet/sheetstoredsections.h"

#include <QString>

class SheetWriter;
class SheetReader;
struct WaveRecord;
struct MeasureRecord;
struct DataRecord;

void WriteWaveSection(SheetWriter& out, const WaveRecord& wave);
void ReadWaveSection(SheetReader& in, WaveRecord& wave);
void WriteMeasureSection(SheetWriter& out, const MeasureRecord& measure);
void ReadMeasureSection(SheetReader& in, MeasureRecord& measure);
// A data record keeps no title of its own: the window's name stands for it.
void WriteDataSection(SheetWriter& out, const DataRecord& data, const QString& title);
void ReadDataSection(SheetReader& in, DataRecord& data, QString& title);
