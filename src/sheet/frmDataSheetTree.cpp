// frmDataSheetTree: the tree, its nodes and the child windows behind them.

#include "sheet/frmDataSheetTree.h"

#include "document/programiconwidgets.h"
#include "document/sheetstate.h"
#include "sheet/frmSheetWindows.h"
#include "sheet/sheetslots.h"
#include "stored/frmOpenWaveform.h"
#include "stored/frmRecordPlay.h"
#include "stored/storedfiledialogs.h"
#include "text/captionwidgets.h"
#include "text/language.h"
#include "text/productinfo.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {
constexpr int WindowCaptionSlot = 0; // "Data Sheet"

QIcon KindIcon(SheetKind kind)
{
    switch (kind) {
    case SheetKind::Measure: return ProgramIcon(Picture::Measure);
    case SheetKind::Data: return ProgramIcon(Picture::Data);
    case SheetKind::Wave: return ProgramIcon(Picture::Wave);
    case SheetKind::MemoryWave: return ProgramIcon(Picture::MemoryWave);
    case SheetKind::Record: return ProgramIcon(Picture::Record);
    }
    return {};
}
} // namespace

frmDataSheetTree::frmDataSheetTree(QWidget* parent) : QWidget(parent)
{
    setObjectName("frmDataSheetTree");
    SetWindowPicture(this, Picture::DataBrowser);
    DataSheetTree = new QTreeWidget(this);
    DataSheetTree->setObjectName("DataSheetTree");
    DataSheetTree->setHeaderHidden(true);
    DataSheetTree->setContextMenuPolicy(Qt::CustomContextMenu);
    DataSheetTree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(DataSheetTree);
    createMenu();
    connect(DataSheetTree, &QTreeWidget::currentItemChanged, this, [this] { SetActiveForm(); });
    connect(DataSheetTree, &QTreeWidget::itemClicked, this, [this] { SetActiveForm(); });
    connect(DataSheetTree, &QTreeWidget::itemChanged, this, &frmDataSheetTree::ChangeFormName);
    connect(DataSheetTree, &QTreeWidget::customContextMenuRequested, this, &frmDataSheetTree::showMenu);
}

frmDataSheetTree::~frmDataSheetTree() = default;

void frmDataSheetTree::SetCaptions(int language)
{
    ApplyCaptions(this, CaptionList::SheetNames, {{"", WindowCaptionSlot, CaptionRole::WindowTitle}},
                  language);
    setMenuCaptions(language);
}

void frmDataSheetTree::RefreshNodeTexts()
{
    const QSignalBlocker quiet(DataSheetTree);
    if (root()) root()->setText(0, DataSheetName);
    for (SheetKind kind : AllSheetKinds)
        for (int slot = 0; slot < static_cast<int>(childrenOf(kind).size()); ++slot)
            childrenOf(kind)[static_cast<size_t>(slot)].node->setText(0, SlotName(kind, slot));
}

void frmDataSheetTree::AddWindow(SheetKind kind)
{
    if (!MayAddWindow(kind)) return;
    const int slot = ClaimSlot(kind);
    addChild(kind, slot);
    askForStoredFile(kind, slot);
}

void frmDataSheetTree::addChild(SheetKind kind, int slot)
{
    Child child;
    child.window = CreateSheetWindow(windowArea, kind, slot, SlotName(kind, slot));
    {
        const QSignalBlocker quiet(DataSheetTree);
        child.node = new QTreeWidgetItem(root(), {SlotName(kind, slot)});
        child.node->setIcon(0, KindIcon(kind));
        child.node->setFlags(child.node->flags() | Qt::ItemIsEditable);
    }
    childrenOf(kind).push_back(child);
    root()->setExpanded(true);
    sortIfFlagged();
    DataSheetTree->setCurrentItem(child.node);
}

// A new memory wave or record window goes straight on to its file dialog; a
// cancel leaves the empty window.
void frmDataSheetTree::askForStoredFile(SheetKind kind, int slot)
{
    if (kind == SheetKind::MemoryWave)
        LoadMemoryWave(slot, true);
    else if (kind == SheetKind::Record)
        LoadRecordWindowFile(childrenOf(kind).back().window);
}

// A window closed by its own frame went through its unload; its node opens it anew.
void frmDataSheetTree::SetActiveForm()
{
    Place place;
    if (!placeOf(currentNode(), place)) return;
    takeOpenWindows(place.kind);
    Child& child = childrenOf(place.kind)[static_cast<size_t>(place.slot)];
    if (!child.window)
        child.window =
            CreateSheetWindow(windowArea, place.kind, place.slot, SlotName(place.kind, place.slot));
    QMdiSubWindow* window = child.window;
    if (!window) return;
    window->show();
    window->raise();
    if (windowArea) windowArea->setActiveSubWindow(window);
}

void frmDataSheetTree::ChangeFormName(QTreeWidgetItem* node)
{
    Place place;
    if (!placeOf(node, place) || node->text(0) == SlotName(place.kind, place.slot)) return;
    if (node->text(0).isEmpty()) {
        const QSignalBlocker quiet(DataSheetTree);
        node->setText(0, SlotName(place.kind, place.slot));
        return;
    }
    RenameSlot(place.kind, place.slot, node->text(0));
    SetWindowName(childWindow(place.kind, place.slot), node->text(0));
    sortIfFlagged();
}

// A window that refuses to close (a reading under way) keeps its node and slot.
void frmDataSheetTree::removeChild(SheetKind kind, int slot)
{
    std::vector<Child>& list = childrenOf(kind);
    if (slot < 0 || slot >= static_cast<int>(list.size())) return;
    takeOpenWindows(kind);
    QMdiSubWindow* window = list[static_cast<size_t>(slot)].window;
    if (window && !window->close()) return;
    delete list[static_cast<size_t>(slot)].node;
    list.erase(list.begin() + slot);
    ReleaseSlot(kind, slot);
    for (size_t later = static_cast<size_t>(slot); later < list.size(); ++later)
        SetWindowTag(list[later].window, static_cast<int>(later));
}

// Windows of the kind's slots opened elsewhere (the FFT dialog opens its target)
// belong to their nodes like the others.
void frmDataSheetTree::takeOpenWindows(SheetKind kind)
{
    std::vector<Child>& list = childrenOf(kind);
    for (size_t slot = 0; slot < list.size(); ++slot)
        if (!list[slot].window) list[slot].window = OpenSheetWindow(kind, static_cast<int>(slot));
}

bool frmDataSheetTree::CloseSheet()
{
    if (!QuerySheetClose([this] { mnuSaveDataSheet_Click(); })) return false;
    closeAllChildren();
    DataSheetTree->clear();
    ClearSheet();
    Q_EMIT mainTitleChanged(ProgramTitle);
    return true;
}

void frmDataSheetTree::closeAllChildren()
{
    for (SheetKind kind : AllSheetKinds) {
        takeOpenWindows(kind);
        std::vector<Child> closing;
        closing.swap(childrenOf(kind));
        for (Child& child : closing)
            if (child.window) child.window->close();
    }
}

void frmDataSheetTree::showRoot()
{
    const QSignalBlocker quiet(DataSheetTree);
    DataSheetTree->clear();
    auto* node = new QTreeWidgetItem(DataSheetTree, {DataSheetName});
    node->setIcon(0, ProgramIcon(Picture::Sheet));
    node->setExpanded(true);
    DataSheetTree->setCurrentItem(node);
    Q_EMIT mainTitleChanged(ProgramTitle + QStringLiteral(" - ") + DataSheetName);
}

void frmDataSheetTree::sortIfFlagged()
{
    if (SheetSorted && root()) root()->sortChildren(0, Qt::AscendingOrder);
}

QMdiSubWindow* frmDataSheetTree::childWindow(SheetKind kind, int slot) const
{
    const std::vector<Child>& list = childrenOf(kind);
    if (slot < 0 || slot >= static_cast<int>(list.size())) return nullptr;
    QMdiSubWindow* window = list[static_cast<size_t>(slot)].window;
    return window ? window : OpenSheetWindow(kind, slot);
}

bool frmDataSheetTree::findPlace(const std::function<bool(const Child&)>& match, Place& place) const
{
    for (SheetKind kind : AllSheetKinds) {
        const std::vector<Child>& list = childrenOf(kind);
        for (size_t slot = 0; slot < list.size(); ++slot)
            if (match(list[slot])) {
                place = {kind, static_cast<int>(slot)};
                return true;
            }
    }
    return false;
}

bool frmDataSheetTree::placeOf(const QTreeWidgetItem* node, Place& place) const
{
    return node && findPlace([node](const Child& child) { return child.node == node; }, place);
}

std::vector<frmDataSheetTree::Child>& frmDataSheetTree::childrenOf(SheetKind kind)
{
    return children[static_cast<size_t>(KindIndex(kind))];
}

const std::vector<frmDataSheetTree::Child>& frmDataSheetTree::childrenOf(SheetKind kind) const
{
    return children[static_cast<size_t>(KindIndex(kind))];
}

QTreeWidgetItem* frmDataSheetTree::root() const
{
    return DataSheetTree->topLevelItem(0);
}

QTreeWidgetItem* frmDataSheetTree::currentNode() const
{
    return DataSheetTree->currentItem();
}
