#pragma once
// The open data sheet as the rest of the program sees it: its name and file,
// whether it has changes that are not saved, and the names of its windows by
// kind and slot. A window's slot is its place in its kind's list.

#include "document/sheetkinds.h"

#include <QString>
#include <QStringList>
#include <array>

extern QString DataSheetName;
extern QString SheetFileName;
extern bool DataSheetDirty;
// True from a new or opened sheet until it is closed.
extern bool SheetOpen;
// The root node's sort flag.
extern bool SheetSorted;
// Names of each kind's windows in slot order; a list's size is the kind's count.
extern std::array<QStringList, SheetKindCount> SheetSlotNames;

// Work a refresh must not cut into: a data sheet being read, a record replaying.
extern bool SheetLoadBusy;
extern bool RecordRunBusy;

// The option taken in the new or open document dialog, and whether OK took it.
extern int DocChoice;
extern bool DocChosen;

void ResetSheetState();
