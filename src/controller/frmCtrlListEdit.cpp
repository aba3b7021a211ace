// The controller pane's value editor: a node opened while connected goes to
// the editor's plan, then to the dialog of its shape; the tree follows.

#include "acquire/frmPrgress.h"
#include "acquire/operation.h"
#include "controller/ctrlcommands.h"
#include "controller/ctrlstate.h"
#include "controller/ctrltree.h"
#include "controller/download.h"
#include "controller/editor.h"
#include "controller/frmCtrlDialog.h"
#include "controller/frmCtrlDialogAdjust.h"
#include "controller/frmCtrlList.h"
#include "controller/frmPatternDlg.h"
#include "panel/panelwindows.h"

#include <QApplication>
#include <QTreeWidget>
#include <utility>

namespace {

// True when the item and the node have the same children all the way down.
bool sameShape(const QTreeWidgetItem* item, const CtrlNode& node)
{
    if (item->childCount() != int(node.children.size())) return false;
    for (int i = 0; i < item->childCount(); ++i)
        if (!sameShape(item->child(i), node.children[size_t(i)])) return false;
    return true;
}

void copyTexts(QTreeWidgetItem* item, const CtrlNode& node)
{
    item->setText(0, node.text);
    for (int i = 0; i < item->childCount(); ++i)
        copyTexts(item->child(i), node.children[size_t(i)]);
}

} // namespace

void frmCtrlList::SyncNodeTexts()
{
    const CtrlNode root = BuildCtrlTree();
    QTreeWidgetItem* top = CtrlTreeView->topLevelItem(0);
    if (top && sameShape(top, root)) {
        copyTexts(top, root);
        return;
    }
    RefreshNodeTexts();
}

void frmCtrlList::PraseCtrlList(const QString& fullPath)
{
    const EditTarget target = ParseEditPath(fullPath);
    // Auto Set and Default end in a download, shown in the progress window.
    const auto previous = std::exchange(EditorDownload, [this] { runDownload(); });
    if (target.item == QLatin1String("Default")) QApplication::setOverrideCursor(Qt::WaitCursor);
    const EditPlan plan = PlanEdit(target);
    if (target.item == QLatin1String("Default")) QApplication::restoreOverrideCursor();
    EditorDownload = previous;
    EditResult result;
    switch (plan.shape) {
    case EditShape::List:
    case EditShape::Number: {
        CtrlDialog dialog(this);
        dialog.Load(target, plan);
        dialog.exec();
        result = dialog.result();
        break;
    }
    case EditShape::Adjust: {
        CtrlDialogAdjust dialog(this);
        dialog.Load(target.channel - 1, plan.caption);
        dialog.exec();
        break;
    }
    case EditShape::Pattern: {
        PatternDlg dialog(this);
        PatternCodes codes{};
        std::copy(std::begin(CtrlData.PatternEdge), std::end(CtrlData.PatternEdge), codes.begin());
        dialog.PresetPattern(codes, CtrlData.PatternExtIsDiv5);
        if (dialog.exec() == QDialog::Accepted) {
            FillPatternCodes();
            CtrlDirty = true;
        }
        break;
    }
    case EditShape::Virtual: OpenVirtualNode(target.group); return;
    case EditShape::None: break;
    }
    if (result.relayout) {
        RefreshNodeTexts();
        if (result.selectAcquire) CtrlTreeView->setCurrentItem(node(0, GroupAcquire));
    } else {
        SyncNodeTexts();
    }
}

// The two nodes of the virtual front panel open (or bring to the front) its windows.
void frmCtrlList::OpenVirtualNode(const QString& group)
{
    if (group == QLatin1String("Virtual Keyboard"))
        ShowVirtualKeyboard(window());
    else
        ShowVirtualPanel(window());
}

void frmCtrlList::runDownload()
{
    InstallDownloadOperation();
    frmPrgress::RunReading({OperationDownload}, CtrlText(u"Data Downloading...", u"数据下载中..."), this);
    AfterDownload();
}
