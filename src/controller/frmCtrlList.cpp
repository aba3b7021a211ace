#include "controller/frmCtrlList.h"

#include "acquire/frmPrgress.h"
#include "acquire/operation.h"
#include "controller/ctrlcommands.h"
#include "controller/ctrlfile.h"
#include "controller/ctrlstate.h"
#include "controller/ctrltree.h"
#include "controller/download.h"
#include "controller/editor.h"
#include "controller/upload.h"
#include "document/programiconwidgets.h"
#include "link/linkstate.h"
#include "platform/platform.h"
#include "text/captionwidgets.h"
#include "text/messages.h"
#include "text/treewords.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QPushButton>
#include <QStyle>
#include <QTreeWidget>

namespace {
constexpr int WindowCaptionSlot = 0; // "DSO Controller"
constexpr int ButtonHeight = 26;

QString formatText(bool yt, int language)
{
    return NodeText(NodeCaption("Format", language), yt ? QStringLiteral("Y-T") : QStringLiteral("X-Y"));
}

bool formatIs(const QTreeWidgetItem* format, bool yt)
{
    if (!format) return false;
    const QString text = format->text(0);
    return text == formatText(yt, LanguageEnglish) || text == formatText(yt, LanguageChinese);
}

QTreeWidgetItem* groupOf(const QTreeWidgetItem* item)
{
    while (item && item->parent() && item->parent()->parent())
        item = item->parent();
    return const_cast<QTreeWidgetItem*>(item);
}

QString pathOf(const QTreeWidgetItem* item)
{
    QStringList parts;
    for (; item; item = item->parent())
        parts.prepend(item->text(0));
    return parts.join(QLatin1Char('\\'));
}
} // namespace

frmCtrlList::frmCtrlList(QWidget* parent) : QWidget(parent)
{
    setObjectName("frmCtrlList");
    SetWindowPicture(this, Picture::Controller);
    cmdUpload = new QPushButton(this);
    cmdUpload->setObjectName("cmdUpload");
    cmdUpload->setIcon(style()->standardIcon(QStyle::SP_ArrowUp));
    cmdDownload = new QPushButton(this);
    cmdDownload->setObjectName("cmdDownload");
    cmdDownload->setIcon(style()->standardIcon(QStyle::SP_ArrowDown));
    rootIcon = ProgramIcon(Picture::Controller);
    groupIcon = ProgramIcon(Picture::CtrlGroup);
    leafIcon = ProgramIcon(Picture::CtrlSetting);
    CtrlTreeView = new QTreeWidget(this);
    CtrlTreeView->setObjectName("CtrlTreeView");
    CtrlTreeView->header()->hide();
    CtrlTreeView->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(cmdUpload, &QPushButton::clicked, this, &frmCtrlList::cmdUpload_Click);
    connect(cmdDownload, &QPushButton::clicked, this, &frmCtrlList::cmdDownload_Click);
    connect(CtrlTreeView, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item) selectedPath = pathOf(item);
    });
    connect(CtrlTreeView, &QTreeWidget::itemDoubleClicked, this, [this] { openSelectedNode(); });
    connect(CtrlTreeView, &QTreeWidget::itemActivated, this, [this] { openSelectedNode(); });
    createMenu();
    connect(this, &frmCtrlList::nodeOpened, this, &frmCtrlList::PraseCtrlList);
    connect(CtrlTreeView, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& at) { popmenu1->popup(CtrlTreeView->viewport()->mapToGlobal(at)); });
    connect(&CtrlNotifier(), &CtrlEvents::recordChanged, this, [this] {
        SaveTreeExpansion();
        RebuildTree();
        RestoreTreeExpansion();
    });
    // The pane opens on a new control file, its words in the language in force.
    ResetCtrlState();
    RebuildTree();
}

void frmCtrlList::createMenu()
{
    popmenu1 = new QMenu(this);
    popmenu1->setObjectName("popmenu1");
    const auto add = [this](const char* name, const char* caption, auto slot) {
        QAction* action = popmenu1->addAction(QString::fromLatin1(caption));
        action->setObjectName(name);
        connect(action, &QAction::triggered, this, slot);
    };
    add("mnuNewCtrl", "&New Control File", &frmCtrlList::mnuNewCtrl_Click);
    add("mnuOpenCtrl", "&Open Control File", &frmCtrlList::mnuOpenCtrl_Click);
    add("mnuSaveCtrl", "&Save Control File", &frmCtrlList::mnuSaveCtrl_Click);
    add("mnuSaveAsCtrl", "Save Control File &As", &frmCtrlList::mnuSaveAsCtrl_Click);
    popmenu1->addSeparator()->setObjectName("mnuBar0");
    add("mnuConnect", "&Connect To DSO", &frmCtrlList::connectRequested);
    add("mnuDisconnect", "D&isconnect", &frmCtrlList::disconnectRequested);
    popmenu1->addSeparator()->setObjectName("mnuBar1");
    add("mnuUpload", "&Upload", &frmCtrlList::cmdUpload_Click);
    add("mnuDownLoad", "&Download", &frmCtrlList::cmdDownload_Click);
    popmenu1->addSeparator()->setObjectName("mnuBar2");
    add("mnuExpand", "&Expand All", &frmCtrlList::mnuExpand_Click);
    popmenu1->addSeparator()->setObjectName("mnuBar3");
}

void frmCtrlList::SetCaptions(int language)
{
    ApplyCaptions(this, CaptionList::CtrlList,
                  {{"", WindowCaptionSlot, CaptionRole::WindowTitle},
                   {"cmdUpload", 1, CaptionRole::Auto},
                   {"cmdDownload", 2, CaptionRole::Auto},
                   {"cmdUpload", 3, CaptionRole::ToolTip},
                   {"cmdDownload", 4, CaptionRole::ToolTip}},
                  language);
}

void frmCtrlList::RefreshNodeTexts()
{
    SaveTreeExpansion();
    RebuildTree();
    RestoreTreeExpansion();
}

void frmCtrlList::addItems(QTreeWidgetItem* parent, const CtrlNode& node)
{
    auto* item = new QTreeWidgetItem(parent, {node.text});
    item->setData(0, Qt::UserRole, node.english);
    const bool branch = !node.children.empty() || node.row == 0;
    item->setIcon(0, branch ? groupIcon : leafIcon);
    NodeTable[size_t(node.row)][size_t(node.column)] = item;
    for (const CtrlNode& child : node.children)
        addItems(item, child);
}

void frmCtrlList::RebuildTree()
{
    CtrlTreeView->clear();
    NodeTable = {};
    const CtrlNode root = BuildCtrlTree();
    auto* top = new QTreeWidgetItem(CtrlTreeView, {root.text});
    top->setIcon(0, rootIcon);
    for (const CtrlNode& group : root.children)
        addItems(top, group);
}

void frmCtrlList::SaveTreeExpansion()
{
    expansion = {};
    if (QTreeWidgetItem* root = CtrlTreeView->topLevelItem(0)) expansion[0] = root->isExpanded();
    for (int group = 1; group < 12; ++group)
        if (QTreeWidgetItem* item = node(0, group)) expansion[size_t(group)] = item->isExpanded();
}

void frmCtrlList::RestoreTreeExpansion()
{
    if (QTreeWidgetItem* root = CtrlTreeView->topLevelItem(0)) root->setExpanded(expansion[0]);
    for (int group = 1; group < 12; ++group)
        if (QTreeWidgetItem* item = node(0, group)) item->setExpanded(expansion[size_t(group)]);
}

void frmCtrlList::SetNodeText(int row, int group, const QString& caption, const QString& value)
{
    if (row < 0 || row > 31 || group < 0 || group > 31) return;
    if (QTreeWidgetItem* item = node(row, group)) item->setText(0, NodeText(caption, value));
}

// The Format node is the third of the Time Base group; an ALTERNATIVE layout has none.
bool frmCtrlList::FormatIsYT() const
{
    return formatIs(node(4, GroupTimeBase), true);
}

bool frmCtrlList::FormatIsNotXY() const
{
    return !formatIs(node(4, GroupTimeBase), false);
}

int frmCtrlList::NodeRule(const QTreeWidgetItem* item) const
{
    const QTreeWidgetItem* group = groupOf(item);
    if (!group || group == item) return -1;
    return EditRule(ParseEditPath(pathOf(item)));
}

void frmCtrlList::openSelectedNode()
{
    openPathChecked(selectedPath);
}

bool frmCtrlList::openPathChecked(const QString& path)
{
    if (!Connected) {
        MsgBox(MsgConnectFirst, vbExclamation);
        return false;
    }
    const int rule = NodeRule(CtrlTreeView->currentItem());
    if (rule >= 0) {
        MsgBox(RuleMessage(rule), vbExclamation);
        return false;
    }
    Q_EMIT nodeOpened(path);
    return true;
}

void frmCtrlList::mnuExpand_Click()
{
    if (QTreeWidgetItem* root = CtrlTreeView->topLevelItem(0)) root->setExpanded(true);
    for (int group = 1; group < 12; ++group)
        if (QTreeWidgetItem* item = node(0, group)) item->setExpanded(true);
}

void frmCtrlList::mnuNewCtrl_Click()
{
    if (!CtrlChangesHandled([this] { mnuSaveCtrl_Click(); })) return;
    NewCtrlRecordInUse();
    RebuildTree();
    CtrlTreeView->topLevelItem(0)->setExpanded(true);
}

void frmCtrlList::OpenCtrl(const QString& path)
{
    if (!CtrlChangesHandled([this] { mnuSaveCtrl_Click(); })) return;
    CtrlFileName = path;
    ReadCtrlFile(path);
    CtrlDirty = false;
    Q_EMIT ctrlFileNamed(path);
    RebuildTree();
    CtrlTreeView->topLevelItem(0)->setExpanded(true);
    if (QTreeWidgetItem* first = node(0, GroupRunning)) {
        first->setExpanded(true);
        CtrlTreeView->setCurrentItem(first);
    }
}

void frmCtrlList::mnuOpenCtrl_Click()
{
    if (!CtrlChangesHandled([this] { mnuSaveCtrl_Click(); })) return;
    const QString path = AskOpenCtrlPath();
    if (path.isEmpty()) return;
    CtrlDirty = false; // the question was answered already
    OpenCtrl(path);
}

void frmCtrlList::mnuSaveCtrl_Click()
{
    const QString path = SaveCtrlRecord(false);
    if (!path.isEmpty()) Q_EMIT ctrlFileNamed(path);
}

void frmCtrlList::mnuSaveAsCtrl_Click()
{
    const QString path = SaveCtrlRecord(true);
    if (!path.isEmpty()) Q_EMIT ctrlFileNamed(path);
}

void frmCtrlList::cmdDownload_Click()
{
    if (!Connected) {
        MsgBox(MsgConnectFirst, vbExclamation);
        return;
    }
    if (OperationRunning) return;
    runDownload();
}

void frmCtrlList::cmdUpload_Click()
{
    if (!Connected) {
        MsgBox(MsgConnectFirst, vbExclamation);
        return;
    }
    if (OperationRunning) return;
    BeforeUpload();
    UploadToDSO();
}

void frmCtrlList::UploadToDSO()
{
    InstallUploadOperation();
    frmPrgress::RunReading({OperationUpload}, CtrlText(u"Data Uploading...", u"数据上传中..."), this);
}

void frmCtrlList::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const int half = width() / 2;
    cmdUpload->setGeometry(0, 0, half, ButtonHeight);
    cmdDownload->setGeometry(half, 0, width() - half, ButtonHeight);
    CtrlTreeView->setGeometry(0, ButtonHeight, width(), std::max(0, height() - ButtonHeight));
}
