#pragma once
// What the data sheet tree does to the sheet, without windows: opening and
// closing a sheet, taking, naming and releasing the slots of its windows.

#include "document/sheetkinds.h"
#include "text/language.h"

#include <QString>
#include <functional>

// True while a sheet is open; every add goes through it.
bool HasSheet();
int SheetCount(SheetKind kind);
// Whether a new window of the kind may be added; if not, says why in a box.
bool MayAddWindow(SheetKind kind);
// Takes the kind's next slot: clears its record, names it after the label and
// the count ("Wave3"), counts it and marks the sheet changed. Returns the slot.
int ClaimSlot(SheetKind kind, int language = Language);
// Drops a slot: the later slots of the kind and their records move down by one.
void ReleaseSlot(SheetKind kind, int slot);
QString SlotName(SheetKind kind, int slot);
void RenameSlot(SheetKind kind, int slot, const QString& name);

// The default name of a new sheet ("Untitle") and the tree's own caption ("Data Sheet").
QString DefaultSheetName(int language = Language);
QString SheetTreeCaption(int language = Language);
// A new empty sheet under the default name.
void OpenNewSheet(int language = Language);
// Asks to save a changed sheet before it closes; save runs on Yes. False on Cancel.
bool QuerySheetClose(const std::function<void()>& save);
// Forgets the sheet's windows and counts; no sheet is open afterwards.
void ClearSheet();
