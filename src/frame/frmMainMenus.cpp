// frmMain: the menu bar, its captions in both languages and the recent-file entries.

#include "frame/frmMain.h"

#include "frame/recentfiles.h"
#include "frame/tilelayout.h"
#include "panel/panelwindows.h"
#include "text/captionwidgets.h"

#include <QMenuBar>

namespace {

using Handler = void (frmMain::*)();

QMenu* namedMenu(QWidget* parent, const char* name)
{
    auto* menu = new QMenu(parent);
    menu->setObjectName(QString::fromLatin1(name));
    return menu;
}

QAction* namedBar(QMenu* menu, const char* name)
{
    QAction* bar = menu->addSeparator();
    bar->setObjectName(QString::fromLatin1(name));
    return bar;
}

// Language names are the same in either language.
const QString ChineseName = QStringLiteral("Chinese");
const QString EnglishName = QStringLiteral("English");

// One menu entry wired to its handler.
QAction* entry(frmMain* window, QMenu* menu, const char* name, Handler handler)
{
    QAction* action = menu->addAction(QString());
    action->setObjectName(QString::fromLatin1(name));
    QObject::connect(action, &QAction::triggered, window, [window, handler] { (window->*handler)(); });
    return action;
}

QAction* checkEntry(frmMain* window, QMenu* menu, const char* name, Handler handler)
{
    QAction* action = entry(window, menu, name, handler);
    action->setCheckable(true);
    return action;
}

} // namespace

void frmMain::createMenus()
{
    createFileMenu();
    createViewMenu();
    createToolsMenu();
    createWindowMenu();
    createHelpMenu();
}

void frmMain::createFileMenu()
{
    mnuFile = menuBar()->addMenu(namedMenu(this, "mnuFile"))->menu();
    entry(this, mnuFile, "mnuFileNew", &frmMain::mnuFileNew_Click)->setShortcut(Qt::CTRL | Qt::Key_N);
    entry(this, mnuFile, "mnuFileOpen", &frmMain::mnuFileOpen_Click)->setShortcut(Qt::CTRL | Qt::Key_O);
    namedBar(mnuFile, "mnuFileBar0");
    entry(this, mnuFile, "mnuFileSaveDataSheet", &frmMain::mnuFileSaveDataSheet_Click);
    entry(this, mnuFile, "mnuFileSaveCtrlFile", &frmMain::mnuFileSaveCtrlFile_Click);
    entry(this, mnuFile, "mnuFileSaveAll", &frmMain::mnuFileSaveAll_Click)->setShortcut(Qt::CTRL | Qt::Key_S);
    namedBar(mnuFile, "mnuFileBar1");
    entry(this, mnuFile, "mnuFilePageSetup", &frmMain::mnuFilePageSetup_Click);
    mnuFileBar3 = namedBar(mnuFile, "mnuFileBar3");
    mnuRecentCtrlRoot = mnuFile->addMenu(namedMenu(mnuFile, "mnuRecentCtrlRoot"))->menu();
    mnuRecentSheetRoot = mnuFile->addMenu(namedMenu(mnuFile, "mnuRecentSheetRoot"))->menu();
    for (int i = 0; i < RecentFileCount; ++i) {
        mnuFileRecentCtrl[i] = mnuRecentCtrlRoot->addAction(QString());
        mnuFileRecentCtrl[i]->setObjectName(QStringLiteral("mnuFileRecentCtrl_%1").arg(i));
        connect(mnuFileRecentCtrl[i], &QAction::triggered, this,
                [this, i] { openRecent(RecentCtrlSection, i); });
        mnuFileRecentSheet[i] = mnuRecentSheetRoot->addAction(QString());
        mnuFileRecentSheet[i]->setObjectName(QStringLiteral("mnuFileRecentSheet_%1").arg(i));
        connect(mnuFileRecentSheet[i], &QAction::triggered, this,
                [this, i] { openRecent(RecentSheetSection, i); });
    }
    namedBar(mnuFile, "mnuFileBar5");
    entry(this, mnuFile, "mnuFileExit", &frmMain::mnuFileExit_Click);
}

void frmMain::createViewMenu()
{
    mnuView = menuBar()->addMenu(namedMenu(this, "mnuView"))->menu();
    mnuViewToolbar = checkEntry(this, mnuView, "mnuViewToolbar", &frmMain::mnuViewToolbar_Click);
    mnuViewStatusBar = checkEntry(this, mnuView, "mnuViewStatusBar", &frmMain::mnuViewStatusBar_Click);
    namedBar(mnuView, "mnuViewBar0");
    mnuViewController = checkEntry(this, mnuView, "mnuViewController", &frmMain::mnuViewController_Click);
    mnuViewDataBrowser = checkEntry(this, mnuView, "mnuViewDataBrowser", &frmMain::mnuViewDataBrowser_Click);
    mnuViewToolbar->setChecked(true);
    mnuViewStatusBar->setChecked(true);
}

void frmMain::createToolsMenu()
{
    mnuTools = menuBar()->addMenu(namedMenu(this, "mnuTools"))->menu();
    entry(this, mnuTools, "mnuToolsConnect", &frmMain::mnuToolsConnect_Click);
    namedBar(mnuTools, "mnuToolsBar0");
    entry(this, mnuTools, "mnuToolsDisconnect", &frmMain::mnuToolsDisconnect_Click);
    namedBar(mnuTools, "mnuToolsBar1");
    entry(this, mnuTools, "mnuToolsOptions", &frmMain::mnuToolsOptions_Click);
    namedBar(mnuTools, "mnuToolsBar2");
    connect(mnuTools->addAction(QString()), &QAction::triggered, this, [this] { ShowVirtualKeyboard(this); });
    mnuTools->actions().last()->setObjectName("mnuToolsVirtualKeyboard");
    connect(mnuTools->addAction(QString()), &QAction::triggered, this, [this] { ShowVirtualPanel(this); });
    mnuTools->actions().last()->setObjectName("mnuToolsVirtualPanel");
}

void frmMain::createWindowMenu()
{
    mnuWindow = menuBar()->addMenu(namedMenu(this, "mnuWindow"))->menu();
    const std::pair<const char*, int> modes[] = {{"mnuWindowCascade", ArrangeCascade},
                                                 {"mnuWindowTileHorizontal", ArrangeTileHorizontal},
                                                 {"mnuWindowTileVertical", ArrangeTileVertical},
                                                 {"mnuWindowArrangeIcons", ArrangeIcons}};
    for (const auto& [name, mode] : modes) {
        QAction* action = mnuWindow->addAction(QString());
        action->setObjectName(QString::fromLatin1(name));
        connect(action, &QAction::triggered, this, [this, mode = mode] { mnuWindowArrange(mode); });
    }
}

void frmMain::createHelpMenu()
{
    mnuHelp = menuBar()->addMenu(namedMenu(this, "mnuHelp"))->menu();
    entry(this, mnuHelp, "mnuHelpContents", &frmMain::mnuHelpContents_Click)->setShortcut(Qt::Key_F1);
    namedBar(mnuHelp, "mnuHelpBar0");
    entry(this, mnuHelp, "mnuHelpAbout", &frmMain::mnuHelpAbout_Click);
    namedBar(mnuHelp, "mnuHelpBar1");
    mnuHelpLanguage = mnuHelp->addMenu(namedMenu(mnuHelp, "mnuHelpLanguage"))->menu();
    mnuLanguageChinese =
        checkEntry(this, mnuHelpLanguage, "mnuLanguageChinese", &frmMain::mnuLanguageChinese_Click);
    mnuLanguageEnglish =
        checkEntry(this, mnuHelpLanguage, "mnuLanguageEnglish", &frmMain::mnuLanguageEnglish_Click);
    mnuLanguageChinese->setText(ChineseName);
    mnuLanguageEnglish->setText(EnglishName);
}

void frmMain::setMenuCaptions(int language)
{
    ApplyCaptions(this, CaptionList::MainMenus,
                  {{"mnuFile", 0},
                   {"mnuFileNew", 1},
                   {"mnuFileOpen", 2},
                   {"mnuFileSaveDataSheet", 3},
                   {"mnuFileSaveCtrlFile", 4},
                   {"mnuFileSaveAll", 5},
                   {"mnuFilePageSetup", 6},
                   {"mnuRecentCtrlRoot", 7},
                   {"mnuRecentSheetRoot", 8},
                   {"mnuFileExit", 9},
                   {"mnuView", 10},
                   {"mnuViewToolbar", 11},
                   {"mnuViewStatusBar", 12},
                   {"mnuViewController", 13},
                   {"mnuViewDataBrowser", 14},
                   {"mnuTools", 15},
                   {"mnuToolsConnect", 16},
                   {"mnuToolsDisconnect", 17},
                   {"mnuToolsOptions", 18},
                   {"mnuWindow", 19},
                   {"mnuWindowCascade", 20},
                   {"mnuWindowTileHorizontal", 21},
                   {"mnuWindowTileVertical", 22},
                   {"mnuWindowArrangeIcons", 23},
                   {"mnuHelp", 24},
                   {"mnuHelpContents", 25},
                   {"mnuHelpAbout", 26},
                   {"mnuHelpLanguage", 27}},
                  language);
    // The two windows' own titles name their entries.
    ApplyCaptions(this, CaptionList::VirtualKeyboard, {{"mnuToolsVirtualKeyboard", 0}}, language);
    ApplyCaptions(this, CaptionList::VirtualPanel, {{"mnuToolsVirtualPanel", 0}}, language);
}

std::array<QAction*, 3>& frmMain::recentEntries(const QString& section)
{
    return section == RecentCtrlSection ? mnuFileRecentCtrl : mnuFileRecentSheet;
}

// The entry keeps its path as data; the shown text doubles "&" so no mnemonic eats it.
void frmMain::LoadRecentList(const QString& section)
{
    const QStringList paths = ::LoadRecentList(section);
    QMenu* root = section == RecentCtrlSection ? mnuRecentCtrlRoot : mnuRecentSheetRoot;
    root->menuAction()->setVisible(!paths.isEmpty());
    std::array<QAction*, 3>& entries = recentEntries(section);
    for (int i = 0; i < RecentFileCount; ++i) {
        const QString path = paths.value(i);
        entries[i]->setData(path);
        entries[i]->setText(QString(path).replace(QLatin1Char('&'), QStringLiteral("&&")));
        entries[i]->setVisible(!path.isEmpty());
    }
    mnuFileBar3->setVisible(mnuRecentCtrlRoot->menuAction()->isVisible() ||
                            mnuRecentSheetRoot->menuAction()->isVisible());
}

void frmMain::AddRecentFile(const QString& section, const QString& path)
{
    if (AddRecent(section, path)) LoadRecentList(section);
}
