#pragma once
// The controller pane: the tree of the instrument's settings with the control
// file commands, Upload and Download.

#include <QIcon>
#include <QWidget>
#include <array>

class QMenu;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
struct CtrlNode;

class frmCtrlList : public QWidget {
    Q_OBJECT
  public:
    explicit frmCtrlList(QWidget* parent = nullptr);

    // The window's caption routine.
    void SetCaptions(int language);
    void RefreshNodeTexts();

    void RebuildTree();
    void SaveTreeExpansion();
    void RestoreTreeExpansion();
    void SetNodeText(int row, int group, const QString& caption, const QString& value);
    // Every node's text from CtrlData; a rebuild keeping the expansion when the layout changed.
    void SyncNodeTexts();
    // The value editor on a node's full path: its dialog, its action or its message.
    void PraseCtrlList(const QString& fullPath);
    // The "Virtual ..." nodes' windows.
    void OpenVirtualNode(const QString& group);
    QTreeWidgetItem* node(int row, int group) const { return NodeTable[size_t(row)][size_t(group)]; }
    QTreeWidget* tree() const { return CtrlTreeView; }

    bool FormatIsYT() const;
    bool FormatIsNotXY() const;
    bool Ch3Allowed() const { return FormatIsNotXY(); }
    bool Ch4Allowed() const { return FormatIsNotXY(); }
    // The rule a node must pass before it opens: -1 when it may, else the message code.
    int NodeRule(const QTreeWidgetItem* item) const;
    QString SelectedPath() const { return selectedPath; }

    void mnuNewCtrl_Click();
    void mnuOpenCtrl_Click();
    void mnuSaveCtrl_Click();
    void mnuSaveAsCtrl_Click();
    void mnuExpand_Click();
    void OpenCtrl(const QString& path);
    void cmdDownload_Click();
    void cmdUpload_Click();
    // Sends the whole record through the progress window and waits for its end.
    void UploadToDSO();

  Q_SIGNALS:
    void ctrlFileNamed(const QString& path); // for the recent list
    void connectRequested();
    void disconnectRequested();
    // A node was opened while connected; the value editor takes it from here.
    void nodeOpened(const QString& path);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void addItems(QTreeWidgetItem* parent, const CtrlNode& node);
    void createMenu();
    void openSelectedNode();
    void runDownload();
    bool openPathChecked(const QString& path);

    QPushButton* cmdUpload = nullptr;
    QPushButton* cmdDownload = nullptr;
    QTreeWidget* CtrlTreeView = nullptr;
    QMenu* popmenu1 = nullptr;
    QIcon rootIcon, groupIcon, leafIcon;
    std::array<std::array<QTreeWidgetItem*, 32>, 32> NodeTable{};
    std::array<bool, 12> expansion{};
    QString selectedPath;
};
