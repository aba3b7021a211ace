// frmDataSheetTree: the pop-up menu and the sheet commands it offers.

#include "sheet/frmDataSheetTree.h"

#include "document/sheetstate.h"
#include "platform/platform.h"
#include "sheet/sheetslots.h"
#include "text/captionwidgets.h"
#include "text/language.h"
#include "text/messages.h"

#include <QMenu>
#include <QTreeWidget>

namespace {

QAction* entry(QMenu* menu, const char* name, frmDataSheetTree* tree, void (frmDataSheetTree::*handler)())
{
    QAction* action = menu->addAction(QString());
    action->setObjectName(QString::fromLatin1(name));
    QObject::connect(action, &QAction::triggered, tree, handler);
    return action;
}

} // namespace

void frmDataSheetTree::createMenu()
{
    mnuPopup = new QMenu(this);
    mnuPopup->setObjectName("mnuDataSheet");
    entry(mnuPopup, "mnuNewDataSheet", this, &frmDataSheetTree::mnuNewDataSheet_Click);
    entry(mnuPopup, "mnuOpenDataSheet", this, &frmDataSheetTree::mnuOpenDataSheet_Click);
    entry(mnuPopup, "mnuSaveDataSheet", this, &frmDataSheetTree::mnuSaveDataSheet_Click);
    entry(mnuPopup, "mnuSaveDataSheetAs", this, &frmDataSheetTree::mnuSaveDataSheetAs_Click);
    mnuPopup->addSeparator();
    mnuAddNew = mnuPopup->addMenu(QString());
    mnuAddNew->setObjectName("mnuAddNew");
    entry(mnuAddNew, "mnuAddNewWaveform", this, &frmDataSheetTree::mnuAddNewWaveform);
    entry(mnuAddNew, "mnuAddNewMeasure", this, &frmDataSheetTree::mnuAddNewMeasure);
    entry(mnuAddNew, "mnuAddNewData", this, &frmDataSheetTree::mnuAddNewData);
    entry(mnuAddNew, "mnuAddNewPlayBack", this, &frmDataSheetTree::mnuAddNewPlayBack);
    entry(mnuAddNew, "mnuAddNewMemoryWave", this, &frmDataSheetTree::mnuAddNewMemoryWave);
    mnuSortedEntry = entry(mnuPopup, "mnuSorted", this, &frmDataSheetTree::mnuSorted);
    mnuSortedEntry->setCheckable(true);
    mnuPopup->addSeparator();
    mnuRemoveEntry = entry(mnuPopup, "mnuRemove", this, &frmDataSheetTree::mnuRemove);
    mnuRenameEntry = entry(mnuPopup, "mnuRename", this, &frmDataSheetTree::mnuRename);
}

void frmDataSheetTree::setMenuCaptions(int language)
{
    ApplyCaptions(this, CaptionList::PanePopups,
                  {{"mnuNewDataSheet", 0},
                   {"mnuOpenDataSheet", 1},
                   {"mnuSaveDataSheet", 2},
                   {"mnuSaveDataSheetAs", 3},
                   {"mnuAddNew", 4},
                   {"mnuSorted", 5},
                   {"mnuAddNewWaveform", 6},
                   {"mnuAddNewMeasure", 7},
                   {"mnuAddNewData", 8},
                   {"mnuAddNewPlayBack", 9},
                   {"mnuAddNewMemoryWave", 10}},
                  language);
}

// The node under the mouse becomes the current one; Remove and Rename name it.
void frmDataSheetTree::preparePopup(QTreeWidgetItem* node)
{
    if (node) DataSheetTree->setCurrentItem(node);
    const QString name = node ? node->text(0) : QString();
    const bool chinese = IsChinese(Language);
    mnuRemoveEntry->setText((chinese ? QStringLiteral("移除(") : QStringLiteral("&Remove(")) + name + ")");
    mnuRenameEntry->setText((chinese ? QStringLiteral("重命名(") : QStringLiteral("Re&name(")) + name + ")");
    mnuRemoveEntry->setVisible(node != nullptr);
    mnuRenameEntry->setVisible(node != nullptr);
    mnuSortedEntry->setChecked(SheetSorted);
}

void frmDataSheetTree::showMenu(const QPoint& at)
{
    preparePopup(DataSheetTree->itemAt(at));
    mnuPopup->popup(DataSheetTree->viewport()->mapToGlobal(at));
}

void frmDataSheetTree::mnuNewDataSheet_Click()
{
    if (!CloseSheet()) return;
    OpenNewSheet();
    showRoot();
}

void frmDataSheetTree::mnuAddNewWaveform()
{
    AddWindow(SheetKind::Wave);
}

void frmDataSheetTree::mnuAddNewMeasure()
{
    AddWindow(SheetKind::Measure);
}

void frmDataSheetTree::mnuAddNewData()
{
    AddWindow(SheetKind::Data);
}

void frmDataSheetTree::mnuAddNewPlayBack()
{
    AddWindow(SheetKind::Record);
}

void frmDataSheetTree::mnuAddNewMemoryWave()
{
    AddWindow(SheetKind::MemoryWave);
}

void frmDataSheetTree::mnuRemove()
{
    QTreeWidgetItem* node = currentNode();
    Place place;
    if (node && node == root())
        CloseSheet();
    else if (placeOf(node, place))
        removeChild(place.kind, place.slot);
}

void frmDataSheetTree::mnuRename()
{
    QTreeWidgetItem* node = currentNode();
    if (node && node == root())
        MsgBox(MsgRootName, vbExclamation);
    else if (node)
        DataSheetTree->editItem(node);
}

void frmDataSheetTree::mnuSorted()
{
    SheetSorted = !SheetSorted;
    mnuSortedEntry->setChecked(SheetSorted);
    sortIfFlagged();
}
