#include "sheet/slotrecords.h"

#include "acquire/waverecord.h"
#include "analysis/datarecord.h"
#include "analysis/measurerecord.h"
#include "stored/recordslot.h"

#include <algorithm>

namespace {

template <typename T, size_t N> void shiftDown(std::array<T, N>& table, int slot)
{
    if (slot < 0 || static_cast<size_t>(slot) >= N) return;
    std::move(table.begin() + slot + 1, table.end(), table.begin() + slot);
    table.back() = T{};
}

} // namespace

// The memory wave and record tables join these as their windows land.
void ClearSlotRecord(SheetKind kind, int slot)
{
    switch (kind) {
    case SheetKind::Measure: ClearMeasureSlot(slot); break;
    case SheetKind::Data: ClearDataSlot(slot); break;
    case SheetKind::Record: ClearRecordSlot(slot); break;
    default: break;
    }
}

void ShiftSlotRecords(SheetKind kind, int slot)
{
    switch (kind) {
    case SheetKind::Wave: shiftDown(WaveRecords, slot); break;
    case SheetKind::Data: shiftDown(DataRecords, slot); break;
    case SheetKind::Measure: shiftDown(MeasureRecords, slot); break;
    case SheetKind::Record: shiftDown(RecordSlots, slot); break;
    default: break;
    }
}

void NameSlotRecord(SheetKind kind, int slot, const QString& name)
{
    if (kind == SheetKind::Wave && slot >= 0 && slot < WaveRecordCount) WaveRecords[slot].WaveTitle = name;
    if (kind == SheetKind::Measure && slot >= 0 && slot < MeasureRecordCount)
        MeasureRecords[size_t(slot)].Title = name;
    if (kind == SheetKind::Record)
        if (RecordSlot* record = RecordSlotAt(slot)) record->Name = name;
}
