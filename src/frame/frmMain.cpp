// frmMain: construction, the load steps, the panes and the two steps of closing.

#include "frame/frmMain.h"

#include "acquire/operation.h"
#include "acquire/waverecord.h"
#include "controller/ctrlstate.h"
#include "controller/frmCtrlList.h"
#include "document/programiconwidgets.h"
#include "document/sheetstate.h"
#include "frame/recentfiles.h"
#include "frame/shutdown.h"
#include "link/connection.h"
#include "link/devicefacts.h"
#include "link/linklamp.h"
#include "link/linkstate.h"
#include "link/visaopen.h"
#include "panel/panelwindows.h"
#include "platform/platform.h"
#include "settings/softwaresettings.h"
#include "sheet/frmDataSheetTree.h"
#include "text/language.h"
#include "text/messages.h"
#include "text/productinfo.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QMdiArea>
#include <QStatusBar>
#include <QTimer>
#include <algorithm>

namespace {

QDockWidget* makePane(QMainWindow* window, const char* key, QWidget* content)
{
    auto* pane = new QDockWidget(content->windowTitle(), window);
    pane->setObjectName(QString::fromLatin1(key));
    pane->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
    pane->setWidget(content);
    pane->hide();
    // The pane's title follows its content's caption routine.
    QObject::connect(content, &QWidget::windowTitleChanged, pane, &QDockWidget::setWindowTitle);
    return pane;
}

} // namespace

frmMain::frmMain(QWidget* parent) : QMainWindow(parent)
{
    setObjectName("frmMain");
    SetWindowPicture(this, Picture::Program);
    setWindowTitle(ProgramTitle);
    MdiArea = new QMdiArea(this);
    MdiArea->setObjectName("MdiArea");
    MdiArea->setBackground(QColor(128, 128, 128));
    // Child windows open at their whole size; in a small main window the area scrolls to them.
    MdiArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    MdiArea->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setCentralWidget(MdiArea);
    createMenus();
    createToolBar();
    createStatusBar();
    createTimers();
}

frmMain::~frmMain() = default;

void frmMain::Form_Load()
{
    CommTimer->stop();
    OperationRunning = false;
    Connected = false;
    connect(&LinkNotifier(), &LinkEvents::lampChanged, this, &frmMain::ShowLamp, Qt::UniqueConnection);
    LinkBusy = false;
    CommBusyTimer->start();
    TimeOutTimer->start();
    LoadSoftwareSetting();
    placeFromSettings();
    LoadRecentList(RecentCtrlSection);
    LoadRecentList(RecentSheetSection);
    OpenVisaRM();
    ApplyLanguage();
    SampleBase = 0;
    if (StartupCheckHardware) ConnectDevice();
    TimerInit->start();
    ResetWaveRecords();
    Connecting = false;
    InstallTreeDisplaySwitches();
    createPanes();
}

void frmMain::createPanes()
{
    DataSheetTree = new frmDataSheetTree;
    DataSheetTree->SetCaptions(Language);
    DataSheetTree->setWindowArea(MdiArea);
    connect(DataSheetTree, &frmDataSheetTree::mainTitleChanged, this, &QWidget::setWindowTitle);
    connect(DataSheetTree, &frmDataSheetTree::sheetFileUsed, this,
            [this](const QString& path) { AddRecentFile(RecentSheetSection, path); });
    CtrlList = new frmCtrlList;
    CtrlList->SetCaptions(Language);
    connect(CtrlList, &frmCtrlList::ctrlFileNamed, this,
            [this](const QString& path) { AddRecentFile(RecentCtrlSection, path); });
    connect(CtrlList, &frmCtrlList::connectRequested, this, &frmMain::mnuToolsConnect_Click);
    connect(CtrlList, &frmCtrlList::disconnectRequested, this, &frmMain::mnuToolsDisconnect_Click);
    DataSheetPane = makePane(this, "DataSheet", DataSheetTree);
    ControllerPane = makePane(this, "Controller", CtrlList);
    addDockWidget(Qt::LeftDockWidgetArea, DataSheetPane);
    addDockWidget(Qt::LeftDockWidgetArea, ControllerPane);
    resizeDocks({DataSheetPane}, {220}, Qt::Horizontal);
}

void frmMain::TimerInit_Timer()
{
    TimerInit->stop();
    ShowDataSheet();
    ShowController();
    const int half = std::max(1, height() / 2);
    resizeDocks({DataSheetPane, ControllerPane}, {half, half}, Qt::Vertical);
    mnuViewController->setChecked(true);
    mnuViewDataBrowser->setChecked(true);
    const QString ctrlPath = mnuFileRecentCtrl[0]->data().toString();
    if (StartupLoadCtrl && !ctrlPath.isEmpty()) CtrlList->OpenCtrl(ctrlPath);
    const QString sheetPath = mnuFileRecentSheet[0]->data().toString();
    if (StartupLoadSheet && !sheetPath.isEmpty()) DataSheetTree->OpenDataSheet(sheetPath);
}

void frmMain::ShowController()
{
    setPaneVisible(ControllerPane, mnuViewController, true);
}

void frmMain::HideController()
{
    setPaneVisible(ControllerPane, mnuViewController, false);
}

void frmMain::ShowDataSheet()
{
    setPaneVisible(DataSheetPane, mnuViewDataBrowser, true);
}

void frmMain::HideDataSheet()
{
    setPaneVisible(DataSheetPane, mnuViewDataBrowser, false);
}

void frmMain::setPaneVisible(QDockWidget* pane, QAction* mark, bool visible)
{
    if (pane) pane->setVisible(visible);
    mark->setChecked(visible);
}

// Settings keep the window in twips.
void frmMain::placeFromSettings()
{
    setGeometry(MainPlacement.left / TwipsPerPixel, MainPlacement.top / TwipsPerPixel,
                MainPlacement.width / TwipsPerPixel, MainPlacement.height / TwipsPerPixel);
}

void frmMain::keepPlacement()
{
    const QRect area = geometry();
    MainPlacement = {area.left() * TwipsPerPixel, area.top() * TwipsPerPixel, area.width() * TwipsPerPixel,
                     area.height() * TwipsPerPixel};
}

void frmMain::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    placeLamps();
}

void frmMain::closeEvent(QCloseEvent* event)
{
    if (!unloaded && !QueryUnload()) {
        event->ignore();
        return;
    }
    Form_Unload();
    event->accept();
}

bool frmMain::QueryUnload()
{
    return askSave(DataSheetDirty, MsgSaveSheet, DataSheetName, &frmMain::mnuFileSaveDataSheet_Click) &&
           askSave(CtrlDirty, MsgSaveCtrl, CtrlFileName, &frmMain::mnuFileSaveCtrlFile_Click);
}

// One dirty question: Yes saves, No goes on, Cancel keeps the program running.
bool frmMain::askSave(bool dirty, const QString& question, const QString& name, void (frmMain::*save)())
{
    if (!dirty) return true;
    const int answer = MsgBox(question + name, vbYesNoCancel);
    if (answer == vbYes) (this->*save)();
    return answer != vbCancel;
}

void frmMain::Form_Unload()
{
    if (unloaded) return;
    unloaded = true;
    for (QTimer* timer : {CommTimer, TimerInit, TimeOutTimer, CommBusyTimer})
        timer->stop();
    keepPlacement();
    SaveSoftwareSetting();
    CloseVirtualPanelWindows();
    ReleaseInstrumentAndVisa();
}
