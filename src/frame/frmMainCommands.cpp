// frmMain: what the menu entries do, and the language switch.

#include "frame/frmMain.h"

#include "controller/frmCtrlList.h"
#include "document/sheetstate.h"
#include "frame/frmAbout.h"
#include "frame/frmHelp.h"
#include "frame/frmOptions.h"
#include "frame/recentfiles.h"
#include "frame/tilelayout.h"
#include "link/connection.h"
#include "sheet/frmDataSheetTree.h"
#include "sheet/frmNewDoc.h"
#include "text/language.h"
#include "text/messages.h"
#include "wave/frmWaveSetting.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPageSetupDialog>
#include <QPrinter>
#include <QStatusBar>
#include <QToolBar>

namespace {

QList<QMdiSubWindow*> shownWindows(QMdiArea* area, bool minimized)
{
    QList<QMdiSubWindow*> found;
    for (QMdiSubWindow* child : area->subWindowList())
        if (child->isVisible() && child->isMinimized() == minimized) found.append(child);
    return found;
}

void placeWindows(const QList<QMdiSubWindow*>& windows, const QList<QRect>& places)
{
    for (int i = 0; i < windows.size() && i < places.size(); ++i)
        windows[i]->setGeometry(places[i]);
}

} // namespace

void frmMain::mnuFileNew_Click()
{
    if (!AskNewDocument(this)) return;
    if (DocChoice == NewDocController)
        CtrlList->mnuNewCtrl_Click();
    else
        RunNewDocumentChoice(DataSheetTree, DocChoice);
}

void frmMain::mnuFileOpen_Click()
{
    if (!AskOpenDocument(this)) return;
    if (DocChoice == NewDocDataSheet)
        DataSheetTree->mnuOpenDataSheet_Click();
    else if (DocChoice == NewDocController)
        CtrlList->mnuOpenCtrl_Click();
}

void frmMain::mnuFileSaveDataSheet_Click()
{
    DataSheetTree->mnuSaveDataSheet_Click();
}

void frmMain::mnuFileSaveCtrlFile_Click()
{
    CtrlList->mnuSaveCtrl_Click();
}

void frmMain::mnuFileSaveAll_Click()
{
    mnuFileSaveCtrlFile_Click();
    mnuFileSaveDataSheet_Click();
}

void frmMain::mnuFilePageSetup_Click()
{
    QPrinter printer;
    QPageSetupDialog dialog(&printer, this);
    dialog.setWindowTitle(QStringLiteral("Page Setup"));
    dialog.exec();
}

void frmMain::mnuFileExit_Click()
{
    close();
}

void frmMain::openRecent(const QString& section, int index)
{
    const QString path = recentEntries(section)[index]->data().toString();
    if (section == RecentCtrlSection)
        CtrlList->OpenCtrl(path);
    else
        DataSheetTree->OpenDataSheet(path);
}

void frmMain::mnuViewToolbar_Click()
{
    tbToolBar->setVisible(mnuViewToolbar->isChecked());
}

void frmMain::mnuViewStatusBar_Click()
{
    sbrStatus->setVisible(mnuViewStatusBar->isChecked());
}

// The check mark was toggled by the click; the pane follows it.
void frmMain::mnuViewController_Click()
{
    mnuViewController->isChecked() ? ShowController() : HideController();
}

void frmMain::mnuViewDataBrowser_Click()
{
    mnuViewDataBrowser->isChecked() ? ShowDataSheet() : HideDataSheet();
}

void frmMain::mnuToolsConnect_Click()
{
    ConnectDevice();
}

void frmMain::mnuToolsDisconnect_Click()
{
    DisconnectDevice();
}

void frmMain::mnuToolsOptions_Click()
{
    frmOptions dialog(this);
    dialog.exec();
}

void frmMain::mnuWindowArrange(int mode)
{
    const QRect area = MdiArea->viewport()->rect();
    switch (mode) {
    case ArrangeCascade: MdiArea->cascadeSubWindows(); break;
    case ArrangeTileHorizontal:
    case ArrangeTileVertical: {
        const QList<QMdiSubWindow*> windows = shownWindows(MdiArea, false);
        placeWindows(windows, TileRects(area, windows.size(), mode == ArrangeTileHorizontal));
        break;
    }
    case ArrangeIcons: {
        const QList<QMdiSubWindow*> icons = shownWindows(MdiArea, true);
        if (!icons.isEmpty()) placeWindows(icons, IconRects(area, icons.size(), icons.first()->size()));
        break;
    }
    default: break;
    }
}

void frmMain::mnuHelpContents_Click()
{
    OpenHelpFile(Language, this);
}

void frmMain::mnuHelpAbout_Click()
{
    frmAbout dialog(this);
    dialog.exec();
}

void frmMain::ShowWaveSetting()
{
    frmWaveSetting dialog(MdiArea, this);
    dialog.exec();
}

void frmMain::ApplyLanguage()
{
    LoadMessages();
    mnuLanguageChinese->setChecked(IsChinese(Language));
    mnuLanguageEnglish->setChecked(!IsChinese(Language));
    setMenuCaptions(Language);
    setToolbarCaptions(Language);
    if (DataSheetTree) DataSheetTree->SetCaptions(Language);
    if (CtrlList) CtrlList->SetCaptions(Language);
    // An open viewer keeps its page; the other manual comes with the next F1.
    if (frmHelp* viewer = HelpWindow()) viewer->SetCaptions(Language);
}

void frmMain::mnuLanguageChinese_Click()
{
    switchLanguage(LanguageChinese);
}

void frmMain::mnuLanguageEnglish_Click()
{
    switchLanguage(LanguageEnglish);
}

void frmMain::switchLanguage(int language)
{
    Language = language;
    ApplyLanguage();
    SaveLanguageSetting();
    if (DataSheetTree) DataSheetTree->RefreshNodeTexts();
    if (CtrlList) CtrlList->RefreshNodeTexts();
}
