#include "sheet/sheetslots.h"

#include "document/sheetstate.h"
#include "platform/platform.h"
#include "sheet/slotrecords.h"
#include "text/captions.h"
#include "text/messages.h"

namespace {

constexpr int TreeCaptionSlot = 0;
constexpr int DefaultNameSlot = 1;

QStringList& namesOf(SheetKind kind)
{
    return SheetSlotNames[static_cast<size_t>(KindIndex(kind))];
}

bool validSlot(SheetKind kind, int slot)
{
    return slot >= 0 && slot < namesOf(kind).size();
}

} // namespace

bool HasSheet()
{
    return SheetOpen;
}

int SheetCount(SheetKind kind)
{
    return static_cast<int>(namesOf(kind).size());
}

bool MayAddWindow(SheetKind kind)
{
    if (!HasSheet()) {
        MsgBox(MsgSheetFirst, vbExclamation);
        return false;
    }
    if (SheetCount(kind) >= KindWindowLimit(kind)) {
        MsgBox(MsgFileLimit, vbExclamation);
        return false;
    }
    return true;
}

int ClaimSlot(SheetKind kind, int language)
{
    const int slot = SheetCount(kind);
    DataSheetDirty = true;
    ClearSlotRecord(kind, slot);
    const QString name = KindLabel(kind, language) + QString::number(slot);
    namesOf(kind).append(name);
    NameSlotRecord(kind, slot, name);
    return slot;
}

void ReleaseSlot(SheetKind kind, int slot)
{
    if (!validSlot(kind, slot)) return;
    namesOf(kind).removeAt(slot);
    ShiftSlotRecords(kind, slot);
    DataSheetDirty = true;
}

QString SlotName(SheetKind kind, int slot)
{
    return validSlot(kind, slot) ? namesOf(kind).at(slot) : QString();
}

void RenameSlot(SheetKind kind, int slot, const QString& name)
{
    if (!validSlot(kind, slot)) return;
    namesOf(kind)[slot] = name;
    NameSlotRecord(kind, slot, name);
    DataSheetDirty = true;
}

QString DefaultSheetName(int language)
{
    return Caption(CaptionList::SheetNames, DefaultNameSlot, language);
}

QString SheetTreeCaption(int language)
{
    return Caption(CaptionList::SheetNames, TreeCaptionSlot, language);
}

void OpenNewSheet(int language)
{
    ClearSheet();
    DataSheetName = DefaultSheetName(language);
    SheetFileName.clear();
    SheetOpen = true;
}

bool QuerySheetClose(const std::function<void()>& save)
{
    if (!DataSheetDirty) return true;
    const int answer = MsgBox(MsgSaveSheet + SheetFileName, vbYesNoCancel);
    if (answer == vbYes && save) save();
    return answer != vbCancel;
}

void ClearSheet()
{
    for (QStringList& names : SheetSlotNames)
        names.clear();
    DataSheetDirty = false;
    SheetSorted = false;
    SheetOpen = false;
}
