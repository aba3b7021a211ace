#pragma once
// The value editor's small dialog: a list of values (list shape) or a number
// box with a keypad and unit keys (number shape). OK hands the value to the
// editor's routine, which stores, sends and reads back.

#include "controller/editor.h"

#include <QDialog>
#include <array>

class QComboBox;
class QGroupBox;
class QLineEdit;
class QPushButton;

class CtrlDialog : public QDialog {
    Q_OBJECT
  public:
    explicit CtrlDialog(QWidget* parent = nullptr);

    // Fills the dialog for one node in the shape its plan asks for.
    void Load(const EditTarget& target, const EditPlan& plan);
    void SetCaptions(int language);

    void cmdOK_Click();
    void cmdKey_Click(int index);
    void cmdEnter_Click(int index);

    // What OK did; Stored with nothing else when the dialog was cancelled.
    EditResult result() const { return result_; }
    bool stored() const { return stored_; }
    QComboBox* combo() const { return Combo; }
    QLineEdit* input() const { return inputTxt; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void setNumberShape(bool number);

    QGroupBox* Frame = nullptr;
    QComboBox* Combo = nullptr;
    QLineEdit* inputTxt = nullptr;
    QGroupBox* Frame1 = nullptr;
    std::array<QPushButton*, 14> cmdKey{};
    std::array<QPushButton*, 5> cmdEnter{};
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;
    EditTarget target_;
    EditResult result_;
    bool stored_ = false;
};
