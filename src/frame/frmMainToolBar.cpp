// frmMain: the toolbar. Each button is told apart by its key (its objectName) and
// does what the menu entry it stands for does.

#include "frame/frmMain.h"

#include "document/programiconwidgets.h"
#include "sheet/frmDataSheetTree.h"
#include "text/captionwidgets.h"

#include <QAction>
#include <QStatusBar>
#include <QToolBar>

namespace {

QAction* addButton(QToolBar* bar, const char* key, Picture picture)
{
    QAction* button = bar->addAction(ProgramIcon(picture), QString::fromLatin1(key));
    button->setObjectName(QString::fromLatin1(key));
    return button;
}

} // namespace

void frmMain::createToolBar()
{
    tbToolBar = addToolBar(QString());
    tbToolBar->setObjectName("tbToolBar");
    tbToolBar->setMovable(false);
    auto pass = [this](const char* key, Picture picture, const char* menuEntry) {
        QAction* target = findChild<QAction*>(QString::fromLatin1(menuEntry));
        connect(addButton(tbToolBar, key, picture), &QAction::triggered, target, &QAction::trigger);
    };
    auto call = [this](const char* key, Picture picture, auto handler) {
        connect(addButton(tbToolBar, key, picture), &QAction::triggered, this, handler);
    };
    pass("New", Picture::New, "mnuFileNew");
    pass("Open", Picture::Open, "mnuFileOpen");
    pass("Save", Picture::Save, "mnuFileSaveAll");
    tbToolBar->addSeparator();
    pass("Connect", Picture::Connect, "mnuToolsConnect");
    pass("Disconnect", Picture::Disconnect, "mnuToolsDisconnect");
    pass("Options", Picture::Options, "mnuToolsOptions");
    tbToolBar->addSeparator();
    pass("Controller", Picture::Controller, "mnuViewController");
    pass("DataBrowser", Picture::DataBrowser, "mnuViewDataBrowser");
    tbToolBar->addSeparator();
    call("AddNewWaveform", Picture::Wave, [this] { dataSheetTree()->mnuAddNewWaveform(); });
    call("AddNewMeasure", Picture::Measure, [this] { dataSheetTree()->mnuAddNewMeasure(); });
    call("AddNewData", Picture::Data, [this] { dataSheetTree()->mnuAddNewData(); });
    call("FFT", Picture::Fft, [this] { ShowWaveSetting(); });
    call("AddNewRecord", Picture::Record, [this] { dataSheetTree()->mnuAddNewPlayBack(); });
    call("AddNewMemoryWaveform", Picture::MemoryWave, [this] { dataSheetTree()->mnuAddNewMemoryWave(); });
}

void frmMain::setToolbarCaptions(int language)
{
    constexpr CaptionRole tip = CaptionRole::ToolTip;
    ApplyCaptions(tbToolBar, CaptionList::MainToolbar,
                  {{"New", 0, tip},
                   {"Open", 1, tip},
                   {"Save", 2, tip},
                   {"Connect", 3, tip},
                   {"Disconnect", 4, tip},
                   {"Controller", 5, tip},
                   {"DataBrowser", 6, tip},
                   {"AddNewWaveform", 7, tip},
                   {"AddNewMeasure", 8, tip},
                   {"AddNewData", 9, tip},
                   {"AddNewRecord", 10, tip},
                   {"AddNewMemoryWaveform", 11, tip},
                   {"Options", 12, tip}},
                  language);
    ApplyCaptions(sbrStatus, CaptionList::MainToolbar, {{"picLED_OFF", 13, tip}, {"picLED_ON", 14, tip}},
                  language);
}
