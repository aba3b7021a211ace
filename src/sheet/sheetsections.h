#pragma once
// One section of the data sheet file per child window: each kind's values in
// their fixed order, the arrays only when the record has data.

#include <QString>

class SheetWriter;
class SheetReader;
struct WaveRecord;
struct MeasureRecord;
struct DataRecord;
struct RecordSlot;
struct MemoryWaveSlot;

void WriteWaveSection(SheetWriter& out, const WaveRecord& wave);
void ReadWaveSection(SheetReader& in, WaveRecord& wave);
void WriteMeasureSection(SheetWriter& out, const MeasureRecord& measure);
void ReadMeasureSection(SheetReader& in, MeasureRecord& measure);
// A data record keeps no title of its own: the window's name stands for it.
void WriteDataSection(SheetWriter& out, const DataRecord& data, const QString& title);
void ReadDataSection(SheetReader& in, DataRecord& data, QString& title);
// A replaying record with data is paused first, so the state filed is the paused one.
void WriteRecordSection(SheetWriter& out, RecordSlot& record);
void ReadRecordSection(SheetReader& in, RecordSlot& record);
void WriteMemoryWaveSection(SheetWriter& out, const MemoryWaveSlot& memory);
void ReadMemoryWaveSection(SheetReader& in, MemoryWaveSlot& memory);
