#include "stored/recordslot.h"

std::array<RecordSlot, RecordSlotCount> RecordSlots;

RecordSlot* RecordSlotAt(int slot)
{
    if (slot < 0 || slot >= RecordSlotCount) return nullptr;
    return &RecordSlots[size_t(slot)];
}

void ClearRecordSlot(int slot)
{
    if (RecordSlot* record = RecordSlotAt(slot)) {
        const QString name = record->Name;
        *record = RecordSlot{};
        record->Name = name;
    }
}

void ResetRecordSlots()
{
    RecordSlots.fill(RecordSlot{});
}
