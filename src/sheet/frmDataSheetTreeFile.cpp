// The sheet file commands of the tree: open, save and save as, and the
// rebuilding of the sheet's windows from a file just read.

#include "sheet/frmDataSheetTree.h"

#include "document/sheetstate.h"
#include "platform/platform.h"
#include "sheet/sheetfile.h"
#include "sheet/sheetslots.h"
#include "stored/frmOpenWaveform.h"
#include "text/productinfo.h"

#include <QTreeWidget>

namespace {

constexpr SheetKind FileOrder[] = {SheetKind::Wave, SheetKind::Measure, SheetKind::Data, SheetKind::Record,
                                   SheetKind::MemoryWave};

} // namespace

void frmDataSheetTree::mnuOpenDataSheet_Click()
{
    const QString path = OpenFileDialog({SheetOpenTitle(), SheetFileFilter(), QString(), QString()});
    if (!path.isEmpty()) OpenDataSheet(path);
}

void frmDataSheetTree::OpenDataSheet(const QString& path)
{
    if (!QuerySheetClose([this] { mnuSaveDataSheet_Click(); })) return;
    QByteArray content;
    // A refused or unreadable file leaves the present sheet as it was.
    if (ReadSheetFile(path, content) != SheetLoadResult::Loaded) return;
    closeAllChildren();
    DataSheetTree->clear();
    ClearSheet();
    SheetLoadBusy = true;
    const SheetLoadResult result = ReadSheetContent(content);
    if (result == SheetLoadResult::Loaded) {
        SheetFileName = path;
        rebuildFromRecords();
        Q_EMIT sheetFileUsed(path);
    }
    SheetLoadBusy = false;
}

void frmDataSheetTree::rebuildFromRecords()
{
    showRoot();
    for (SheetKind kind : FileOrder)
        for (int slot = 0; slot < SheetCount(kind); ++slot) {
            addChild(kind, slot);
            if (kind == SheetKind::MemoryWave) LoadMemoryWave(slot, false);
        }
    DataSheetDirty = false;
    DataSheetTree->setCurrentItem(root());
}

bool frmDataSheetTree::saveTo(const QString& path)
{
    if (!SaveSheet(path)) return false;
    Q_EMIT sheetFileUsed(path);
    return true;
}

// Without a file of its own the sheet is saved as a new one.
void frmDataSheetTree::mnuSaveDataSheet_Click()
{
    if (!HasSheet()) return;
    if (SheetFileName.isEmpty())
        mnuSaveDataSheetAs_Click();
    else
        saveTo(SheetFileName);
}

void frmDataSheetTree::mnuSaveDataSheetAs_Click()
{
    if (!HasSheet()) return;
    const QString path = SaveFileDialog(
        {SheetSaveTitle(true), SheetFileFilter(), QString(), DataSheetName + QStringLiteral(".kvs")});
    if (!path.isEmpty()) saveTo(path);
}
