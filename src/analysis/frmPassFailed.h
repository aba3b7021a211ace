#pragma once
// The pass and fail limits of one measure window's items: whether each is
// judged and between which limits. It edits a copy of the window's record and
// writes the copy back on OK.

#include "analysis/measurerecord.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTimer;

class frmPassFailed : public QDialog {
    Q_OBJECT
  public:
    frmPassFailed(int slot, const QString& windowTitle, QWidget* parent = nullptr);

    void SetCaptions(int language);
    void Timer1_Timer();
    void ShowMeasureLimits();
    void ApplyEnabled();
    void ShowEnabled();
    void SetUnderNum();
    void SetOverNum();
    void SetOverNumLimit();
    void OKButton_Click();

    const MeasureRecord& copy() const { return copy_; }

  private:
    void buildControls();
    void connectControls();
    int selectedRow() const;
    MeasureItem& selectedItem();
    MeasureFamily selectedFamily() const;
    void numberChanged(QLineEdit* field, bool over);
    void unitChanged(bool over);
    double parseLimit(QLineEdit* number, QComboBox* unit) const;

    QComboBox* MTypeCombo;
    QCheckBox* EnabledChk;
    QLineEdit* UnderNum;
    QComboBox* UnderUnit;
    QLineEdit* OverNum;
    QComboBox* OverUnit;
    QLabel* UnderPic;
    QLabel* OverPic;
    QPushButton* OKButton;
    QPushButton* CancelButton;
    QTimer* Timer1;
    QLabel* TitleLabel;
    QLabel* TypeLabel;
    QGroupBox* RangeFrame;
    QLabel* UnderLabel;
    QLabel* OverLabel;

    int slot_;
    QString windowTitle_;
    MeasureRecord copy_;
    bool Updating = false;
    bool Editing = false;
};
