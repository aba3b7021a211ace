#pragma once
// The main window: menus, toolbar, status bar with the connection lamps, the
// child-window area, the two docked panes, the timers, and the order of start
// and shut-down.

#include <QMainWindow>
#include <array>

class QDockWidget;
class QLabel;
class QMdiArea;
class QMenu;
class QStatusBar;
class QTimer;
class QToolBar;
class frmCtrlList;
class frmDataSheetTree;

class frmMain : public QMainWindow {
    Q_OBJECT
  public:
    explicit frmMain(QWidget* parent = nullptr);
    ~frmMain() override;

    // The load steps; Main runs them before the window is shown.
    void Form_Load();

    void ShowController();
    void HideController();
    void ShowDataSheet();
    void HideDataSheet();

    // Help file and language marks, then every caption of the frame and its panes.
    void ApplyLanguage();
    // Rebuilds the menu entries of a recent list from the store.
    void LoadRecentList(const QString& section);
    // Puts a path at the head of a recent list and rebuilds its menu.
    void AddRecentFile(const QString& section, const QString& path);

    // A serial event or error by its classic code.
    void MSComm1_OnComm(int code);
    // Shows the lamp of the link state.
    void ShowLamp(bool connected);

    QMdiArea* mdiArea() const { return MdiArea; }
    frmDataSheetTree* dataSheetTree() const { return DataSheetTree; }
    frmCtrlList* ctrlList() const { return CtrlList; }

    // The menu handlers, each what its entry names.
    void mnuFileNew_Click();
    void mnuFileOpen_Click();
    void mnuFileSaveDataSheet_Click();
    void mnuFileSaveCtrlFile_Click();
    void mnuFileSaveAll_Click();
    void mnuFilePageSetup_Click();
    void mnuFileExit_Click();
    void mnuViewToolbar_Click();
    void mnuViewStatusBar_Click();
    void mnuViewController_Click();
    void mnuViewDataBrowser_Click();
    void mnuToolsConnect_Click();
    void mnuToolsDisconnect_Click();
    void mnuToolsOptions_Click();
    void mnuWindowArrange(int mode);
    void mnuHelpContents_Click();
    void mnuHelpAbout_Click();
    void mnuLanguageChinese_Click();
    void mnuLanguageEnglish_Click();
    void ShowWaveSetting();

    void CommTimer_Timer();
    void TimerInit_Timer();
    void TimeOutTimer_Timer();
    void CommBusyTimer_Timer();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    // Construction, one group of controls each.
    void createMenus();
    void createFileMenu();
    void createViewMenu();
    void createToolsMenu();
    void createWindowMenu();
    void createHelpMenu();
    void createToolBar();
    void createStatusBar();
    void createTimers();
    void createPanes();

    void setMenuCaptions(int language);
    void setToolbarCaptions(int language);
    void switchLanguage(int language);
    void openRecent(const QString& section, int index);
    std::array<QAction*, 3>& recentEntries(const QString& section);

    // Close steps: the dirty questions, then the unload.
    bool QueryUnload();
    bool askSave(bool dirty, const QString& question, const QString& name, void (frmMain::*save)());
    void Form_Unload();

    void placeFromSettings();
    void keepPlacement();
    void placeLamps();
    void setPaneVisible(QDockWidget* pane, QAction* mark, bool visible);

    QMdiArea* MdiArea = nullptr;
    QDockWidget* DataSheetPane = nullptr;
    QDockWidget* ControllerPane = nullptr;
    frmDataSheetTree* DataSheetTree = nullptr;
    frmCtrlList* CtrlList = nullptr;

    QMenu* mnuFile = nullptr;
    QMenu* mnuRecentCtrlRoot = nullptr;
    QMenu* mnuRecentSheetRoot = nullptr;
    QMenu* mnuView = nullptr;
    QMenu* mnuTools = nullptr;
    QMenu* mnuWindow = nullptr;
    QMenu* mnuHelp = nullptr;
    QMenu* mnuHelpLanguage = nullptr;
    QAction* mnuFileBar3 = nullptr;
    std::array<QAction*, 3> mnuFileRecentCtrl{};
    std::array<QAction*, 3> mnuFileRecentSheet{};
    QAction* mnuViewToolbar = nullptr;
    QAction* mnuViewStatusBar = nullptr;
    QAction* mnuViewController = nullptr;
    QAction* mnuViewDataBrowser = nullptr;
    QAction* mnuLanguageChinese = nullptr;
    QAction* mnuLanguageEnglish = nullptr;

    QToolBar* tbToolBar = nullptr;
    QStatusBar* sbrStatus = nullptr;
    QLabel* StatusPanel = nullptr;
    QLabel* picLED_ON = nullptr;
    QLabel* picLED_OFF = nullptr;

    QTimer* CommTimer = nullptr;
    QTimer* TimerInit = nullptr;
    QTimer* TimeOutTimer = nullptr;
    QTimer* CommBusyTimer = nullptr;

    bool unloaded = false;
};
