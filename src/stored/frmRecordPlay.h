#pragma once
// The record window: plays the frames of one RecordSlot like a film, with a
// frame slider, a bar of eight play buttons, the time between frames, and
// export, preview and print of the frame shown. Its tag text is its slot
// number; the data sheet tree creates, renumbers and closes it.

#include "stored/recordplay.h"
#include "wave/frmWavePrint.h"

#include <QWidget>
#include <array>

class QFrame;
class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QPushButton;
class QSlider;
class QTimer;
class QToolButton;
class WavePicture;
struct RecordSlot;

class frmRecordPlay : public QWidget, public PrintablePicture {
    Q_OBJECT
  public:
    explicit frmRecordPlay(int slot, QWidget* parent = nullptr);
    ~frmRecordPlay() override;

    // The slot number, kept as the tag text.
    int slot() const;
    QSize sizeHint() const override;
    void SetCaptions(int language);

    // Asks for a file and loads it into the slot.
    void LoadRecord();
    // Puts the controls and the picture in line with the slot.
    void ShowSlot();

    void AresBtnPlay_Click(int index);
    void AresBtnAdd_Press();
    void AresBtnSub_Press();
    void AresBtn_Release();
    void AresBtnDefaultTime_Click();
    void SliderFrame_Scroll(int value);
    void SliderFrame_Change(int value);
    void TimerInterval_Timer();
    void TimerSpeed_Timer();
    void FlatBttn1_Click();
    void FlatBttn2_Click();
    void FlatBttn3_Click();
    void SetBackground(bool white);

    QImage picture() const;
    bool clockRunning() const;

    // PrintablePicture: the print sequence draws at its own zoom and size.
    double pictureZoom() const override { return zoom_; }
    void drawForPrint(double zoom, QSize size) override;
    QImage printImage() const override { return picture(); }
    QString printTitle() const override { return windowTitle(); }
    QString printLegend() const override;
    void restoreAfterPrint(double zoom) override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    RecordSlot& record() const;
    void buildControls();
    QWidget* buildBar();
    QWidget* buildTimePanel();
    QWidget* buildSidePanel();
    void connectControls();
    void Timer1_Timer();
    void apply(ClockChange change);
    void SetRecordReplayStatus(int state);
    void showBar();
    void showFrame();
    void showSlider();
    void showTime();
    void stepTime(int steps);
    void placePicture();
    void drawPicture();

    QFrame* RecordBackPic;
    WavePicture* RecordWavePic;
    QLabel* PicMsg;
    QFrame* PicTime;
    QLabel* lblTimeInterval;
    QFrame* OptratePic;
    QSlider* SliderFrame;
    QWidget* AresBtnPlay;
    std::array<QToolButton*, RecordButtonCount> playButtons{};
    QToolButton* AresBtnAdd;
    QToolButton* AresBtnSub;
    QToolButton* AresBtnDefaultTime;
    QTimer* Timer1;
    QTimer* TimerInterval;
    QTimer* TimerSpeed;
    QPushButton* cmdOpen;
    QPushButton* FlatBttn1;
    QPushButton* FlatBttn2;
    QPushButton* FlatBttn3;
    QPushButton* FlatBttn4;
    QPushButton* FlatBttn5;
    QPushButton* cmdRun;

    double zoom_ = 1.0;
    int speedTicks_ = 0;
    int speedDirection_ = 0;
};

// Creates the window of a slot (0 to 4) inside area and shows it.
frmRecordPlay* CreateRecordPlayWindow(QMdiArea* area, int slot);
// The record window inside a sheet's child window asks for its file; other windows are left alone.
void LoadRecordWindowFile(QMdiSubWindow* child);
