#pragma once
// The program-wide records behind the sheet's windows, seen by kind and slot:
// a new window's slot is cleared, a removed window's later slots move down.

#include "document/sheetkinds.h"

#include <QString>

// Clears what a new window of the kind must start without.
void ClearSlotRecord(SheetKind kind, int slot);
// Moves the records behind slot down by one; the table's last element ends empty.
void ShiftSlotRecords(SheetKind kind, int slot);
// Gives the record the window's name where the record keeps one.
// Each kind's tables are one row of the table behind these three.
void NameSlotRecord(SheetKind kind, int slot, const QString& name);
