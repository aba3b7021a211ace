#include "sheet/slotrecords.h"

#include "acquire/waverecord.h"
#include "analysis/datarecord.h"
#include "analysis/measurerecord.h"
#include "stored/memorywaveslot.h"
#include "stored/recordslot.h"
#include "wave/fftsetting.h"

#include <algorithm>

namespace {

template <auto& Table> bool inTable(int slot)
{
    return slot >= 0 && static_cast<size_t>(slot) < Table.size();
}

template <auto& Table> void clearSlot(int slot)
{
    using Record = typename std::remove_reference_t<decltype(Table)>::value_type;
    if (inTable<Table>(slot)) Table[static_cast<size_t>(slot)] = Record{};
}

// The records after slot move down by one; the table's last element ends empty.
template <auto& Table> void shiftDown(int slot)
{
    using Record = typename std::remove_reference_t<decltype(Table)>::value_type;
    if (!inTable<Table>(slot)) return;
    std::move(Table.begin() + slot + 1, Table.end(), Table.begin() + slot);
    Table.back() = Record{};
}

void nameWave(int slot, const QString& name)
{
    if (inTable<WaveRecords>(slot)) WaveRecords[static_cast<size_t>(slot)].WaveTitle = name;
}

void nameMeasure(int slot, const QString& name)
{
    if (inTable<MeasureRecords>(slot)) MeasureRecords[static_cast<size_t>(slot)].Title = name;
}

void nameMemoryWave(int slot, const QString& name)
{
    if (inTable<MemoryWaveSlots>(slot)) MemoryWaveSlots[static_cast<size_t>(slot)].Name = name;
}

void nameRecord(int slot, const QString& name)
{
    if (RecordSlot* record = RecordSlotAt(slot)) record->Name = name;
}

// A wave window's slot is its record and the FFT dialog's placeholder beside it.
void clearWave(int slot)
{
    clearSlot<WaveRecords>(slot);
    clearSlot<FftPlaceholders>(slot);
}

void shiftWaves(int slot)
{
    shiftDown<WaveRecords>(slot);
    shiftDown<FftPlaceholders>(slot);
}

struct SlotTable {
    void (*clear)(int slot) = nullptr;
    void (*shift)(int slot) = nullptr;
    void (*name)(int slot, const QString& name) = nullptr;
};

// One row per kind, in SheetKind order.
const std::array<SlotTable, SheetKindCount> SlotTables{{
    {clearSlot<MeasureRecords>, shiftDown<MeasureRecords>, nameMeasure},      // Measure
    {clearSlot<DataRecords>, shiftDown<DataRecords>, nullptr},                // Data
    {clearWave, shiftWaves, nameWave},                                        // Wave
    {clearSlot<MemoryWaveSlots>, shiftDown<MemoryWaveSlots>, nameMemoryWave}, // Memory Wave
    {ClearRecordSlot, shiftDown<RecordSlots>, nameRecord},                    // Record
}};

const SlotTable& tableOf(SheetKind kind)
{
    return SlotTables[static_cast<size_t>(KindIndex(kind))];
}

} // namespace

void ClearSlotRecord(SheetKind kind, int slot)
{
    if (tableOf(kind).clear) tableOf(kind).clear(slot);
}

void ShiftSlotRecords(SheetKind kind, int slot)
{
    if (tableOf(kind).shift) tableOf(kind).shift(slot);
}

void NameSlotRecord(SheetKind kind, int slot, const QString& name)
{
    if (tableOf(kind).name) tableOf(kind).name(slot, name);
}
