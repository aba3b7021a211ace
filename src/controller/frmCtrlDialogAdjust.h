#pragma once
// The fine adjust dialog of a channel's Volt/Div: coarse steps along the 1-2-5
// ladder or fine steps between its points, repeating while a step button is held.
// AdjustChannel 4 to 7 moves the offset of channel 1 to 4 instead.

#include <QDialog>

class QGroupBox;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTimer;

class CtrlDialogAdjust : public QDialog {
    Q_OBJECT
  public:
    explicit CtrlDialogAdjust(QWidget* parent = nullptr);

    // Set before showing: the channel 0 to 3 (or 4 to 7 for its offset).
    void Load(int adjustChannel, const QString& caption);
    void SetCaptions(int language);

    // One step in the direction given, in the mode chosen.
    void Step(bool up);
    void StepPressed(bool up);
    void StepReleased();
    void Timer1_Timer();
    void OptVoltDiv_Click(int index);
    void cmdAdjustOK_Click();

    QString value() const;
    int stepCount() const { return StepCount; }
    QTimer* timer() const { return Timer1; }

  private:
    QGroupBox* FrameAdjust = nullptr;
    QRadioButton* OptVoltDiv[2] = {};
    QLineEdit* txtDispValue = nullptr;
    QPushButton* DotAddRainBtn = nullptr;
    QPushButton* DotSubRainBtn = nullptr;
    QTimer* Timer1 = nullptr;
    QPushButton* cmdAdjustOK = nullptr;
    QPushButton* cmdCancelAdjust = nullptr;
    int AdjustChannel = 0;
    int StepCount = 0;
};
