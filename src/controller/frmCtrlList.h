#pragma once
// The controller pane: the tree of the instrument's settings. For now the pane
// itself with its caption and the commands the frame calls.

#include <QWidget>

class frmCtrlList : public QWidget {
    Q_OBJECT
  public:
    explicit frmCtrlList(QWidget* parent = nullptr);

    // The window's caption routine.
    void SetCaptions(int language);
    void RefreshNodeTexts();

    void mnuSaveCtrl_Click();
    void OpenCtrl(const QString& path);
};
