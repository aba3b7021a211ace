#pragma once
// The data sheet file's sections of the record and memory wave windows: the
// stored files' slots, in their fixed order, the arrays only when there is data.

class SheetWriter;
class SheetReader;
struct RecordSlot;
struct MemoryWaveSlot;

// A replaying record with data is paused first, so the state filed is the paused one.
void WriteRecordSection(SheetWriter& out, RecordSlot& record);
void ReadRecordSection(SheetReader& in, RecordSlot& record);
void WriteMemoryWaveSection(SheetWriter& out, const MemoryWaveSlot& memory);
void ReadMemoryWaveSection(SheetReader& in, MemoryWaveSlot& memory);
