#pragma once
// The data sheet pane: the tree of the open sheet with the sheet as root and one
// node per child window. It creates, activates, renames and removes those windows.

#include "document/sheetkinds.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QWidget>
#include <array>
#include <functional>
#include <vector>

class QMenu;
class QAction;
class QTreeWidget;
class QTreeWidgetItem;

class frmDataSheetTree : public QWidget {
    Q_OBJECT
  public:
    explicit frmDataSheetTree(QWidget* parent = nullptr);
    ~frmDataSheetTree() override;

    // Where the child windows live.
    void setWindowArea(QMdiArea* area) { windowArea = area; }

    // The window's caption routine.
    void SetCaptions(int language);
    void RefreshNodeTexts();

    void mnuNewDataSheet_Click();
    void mnuOpenDataSheet_Click();
    void mnuSaveDataSheet_Click();
    void mnuSaveDataSheetAs_Click();
    void OpenDataSheet(const QString& path);
    void mnuAddNewWaveform();
    void mnuAddNewMeasure();
    void mnuAddNewData();
    void mnuAddNewPlayBack();
    void mnuAddNewMemoryWave();
    void mnuRemove();
    void mnuRename();
    void mnuSorted();

    void AddWindow(SheetKind kind);
    // Shows the selected node's window in front.
    void SetActiveForm();
    // Closes the sheet after the save question; false when the user cancelled.
    bool CloseSheet();

    QTreeWidget* tree() const { return DataSheetTree; }
    // The open child window of a kind's slot, or null (never opened, or closed).
    QMdiSubWindow* childWindow(SheetKind kind, int slot) const;

  Q_SIGNALS:
    // The main window's title, which shows the sheet's name.
    void mainTitleChanged(const QString& title);
    // A sheet file was saved or opened: the recent list takes its path.
    void sheetFileUsed(const QString& path);

  private:
    void askForStoredFile(SheetKind kind, int slot);
    // Makes the window and node of a slot that holds a record already.
    void addChild(SheetKind kind, int slot);
    // After a sheet file was read: every window of the sheet, kind by kind in the file's order.
    void rebuildFromRecords();
    bool saveTo(const QString& path);

    struct Child {
        QTreeWidgetItem* node = nullptr;
        QPointer<QMdiSubWindow> window;
    };
    struct Place {
        SheetKind kind = SheetKind::Wave;
        int slot = -1;
    };

    void createMenu();
    void preparePopup(QTreeWidgetItem* node);
    void showMenu(const QPoint& at);
    void setMenuCaptions(int language);
    void showRoot();
    void removeChild(SheetKind kind, int slot);
    void takeOpenWindows(SheetKind kind);
    void closeAllChildren();
    void ChangeFormName(QTreeWidgetItem* node);
    void sortIfFlagged();
    bool placeOf(const QTreeWidgetItem* node, Place& place) const;
    bool findPlace(const std::function<bool(const Child&)>& match, Place& place) const;
    std::vector<Child>& childrenOf(SheetKind kind);
    const std::vector<Child>& childrenOf(SheetKind kind) const;
    QTreeWidgetItem* root() const;
    QTreeWidgetItem* currentNode() const;

    QTreeWidget* DataSheetTree = nullptr;
    QMenu* mnuPopup = nullptr;
    QMenu* mnuAddNew = nullptr;
    QAction* mnuSortedEntry = nullptr;
    QAction* mnuRemoveEntry = nullptr;
    QAction* mnuRenameEntry = nullptr;
    QPointer<QMdiArea> windowArea;
    std::array<std::vector<Child>, SheetKindCount> children;
};
