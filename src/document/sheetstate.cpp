#include "document/sheetstate.h"

QString DataSheetName;
QString SheetFileName;
bool DataSheetDirty = false;
bool SheetOpen = false;
bool SheetSorted = false;
std::array<QStringList, SheetKindCount> SheetSlotNames;
int DocChoice = 0;
bool DocChosen = false;

bool SheetLoadBusy = false;
bool RecordRunBusy = false;

void ResetSheetState()
{
    DataSheetName.clear();
    SheetFileName.clear();
    DataSheetDirty = false;
    SheetOpen = false;
    SheetSorted = false;
    for (QStringList& names : SheetSlotNames)
        names.clear();
    DocChoice = 0;
    DocChosen = false;
    SheetLoadBusy = false;
    RecordRunBusy = false;
}
