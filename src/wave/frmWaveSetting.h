#pragma once
// The FFT dialog: the user picks a wave window and the spectrum's options; OK
// marks that window's record with a placeholder spectrum and opens the window.

#include <QDialog>
#include <array>

class QComboBox;
class QLabel;
class QMdiArea;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QTreeWidget;

class frmWaveSetting : public QDialog {
    Q_OBJECT
  public:
    // area: where the target window opens when it isn't open yet.
    explicit frmWaveSetting(QMdiArea* area, QWidget* parent = nullptr);

    // Sets every caption for the language.
    void SetCaptions(int language);
    void TargetCombo_Click();
    void cmdOK_Click();
    void cmdCancel_Click();
    // The slot OK will mark; -1 for none.
    int target() const { return target_; }

  private:
    QWidget* buildPage();
    void Form_Load();

    QTabWidget* TabWave;
    QTreeWidget* TreeView;
    QComboBox* TargetCombo;
    QComboBox* SourceCombo;
    QComboBox* WindowCombo;
    QComboBox* ScaleCombo;
    std::array<QRadioButton*, 2> OptScreen{};
    QLabel* picFFT;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;
    QMdiArea* area_;
    int target_ = -1;
};
