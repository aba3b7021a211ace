#pragma once
// The memory wave window: one MemoryWaveSlot (a stored .wfm file) as a picture
// with offline zoom. Volts and time per division are stepped by hand and the
// samples re-mapped; the picture scales by a zoom factor; cursors, CSV, bitmap
// export, print and preview work as in the wave view. No command is ever sent.

#include "stored/memoryzoom.h"
#include "wave/cursorstate.h"
#include "wave/frmWavePrint.h"

#include <QWidget>
#include <array>

class QCheckBox;
class QComboBox;
class QFrame;
class QGroupBox;
class QLabel;
class QLineEdit;
class QMdiArea;
class QPushButton;
class QRadioButton;
class QScrollBar;
class QTimer;
class WavePicture;

class frmOpenWaveform : public QWidget, public PrintablePicture {
    Q_OBJECT
  public:
    explicit frmOpenWaveform(int slot, QWidget* parent = nullptr);
    ~frmOpenWaveform() override;

    QString tag() const { return QString::number(slot_); }
    int slot() const { return slot_; }
    void setSlot(int slot);
    void SetCaptions(int language);

    void Timer1_Timer();
    void Timer2_Timer();
    // A stepper held down (target 0 to 6, direction -1 or +1) and let go.
    void StepperPress(int target, int direction);
    void StepperRelease();
    void Reset_Click();
    void ZoomCombo_Validate();
    void GridCheck_Click();
    void OptionColor_Click(int index);
    void ChkCursorX_Click();
    void ChkCursorY_Click();
    void HScroll_Change();
    void VScroll_Change();
    void FlatBttn1_Click();
    void FlatBttn3_Click();
    void FlatBttn4_Click();
    void cmdPrint_Click();
    void cmdPreview_Click();
    void MemoryWavePic_MouseDown(QPointF at);
    void MemoryWavePic_MouseMove(QPointF at);
    void MemoryWavePic_MouseUp();

    // After a load: panel, window computation, refresh of all channels, layout.
    void ShowLoaded();
    void ArrangeZoomPanel();
    void FillZoomPanelValues();
    void RefreshAll();
    void DrawPicture();
    void Form_Resize();

    double pictureZoomValue() const { return PictureZoom; }
    QImage picture() const;
    const CursorState& cursors() const { return cursors_; }
    bool busy() const { return busy_; }

    double pictureZoom() const override { return PictureZoom; }
    void drawForPrint(double zoom, QSize size) override;
    QImage printImage() const override { return picture(); }
    QString printTitle() const override { return windowTitle(); }
    QString printLegend() const override;
    void restoreAfterPrint(double zoom) override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    MemoryWaveSlot& record() const;
    void buildControls();
    QWidget* buildSidePanel();
    QGroupBox* buildVoltFrame(QWidget* side);
    QGroupBox* buildTimeFrames(QWidget* side);
    void connectControls();
    QPushButton* stepper(QWidget* parent, const QString& name, const QString& text, int target,
                         int direction);
    void stepOnce();
    void showCursors();
    void showProgress(bool shown, int percent = 0);
    CursorGeometry geometry() const;

    QFrame* BackPic;
    WavePicture* MemoryWavePic;
    QScrollBar* HScroll;
    QScrollBar* VScroll;
    QComboBox* ZoomCombo;
    QLabel* LblZoom;
    QGroupBox* framVoltDiv;
    std::array<QLabel*, 4> lblCH{};
    std::array<QLineEdit*, 4> txtCHDiv{};
    std::array<QWidget*, 4> voltRows{};
    QGroupBox* framTimeDiv;
    QLineEdit* txtTimeDiv;
    QGroupBox* framAltTimeDiv;
    QLineEdit* txtCH1TimeDiv;
    QLineEdit* txtCH2TimeDiv;
    QPushButton* Reset;
    QGroupBox* framDisplay;
    QCheckBox* GridCheck;
    std::array<QRadioButton*, 2> OptionColor{};
    QGroupBox* framCursor;
    QCheckBox* ChkCursorX;
    QCheckBox* ChkCursorY;
    QGroupBox* framOutput;
    QPushButton* FlatBttn1;
    QPushButton* FlatBttn3;
    QPushButton* FlatBttn4;
    QPushButton* cmdPrint;
    QPushButton* cmdPreview;
    QFrame* framRefresh;
    QFrame* picRefreshProgress;
    QLabel* LblRefreshText;
    QLabel* LblRefreshValue;
    QTimer* Timer1;
    QTimer* Timer2;
    QWidget* side_ = nullptr;

    int slot_;
    double PictureZoom = 1.0;
    int16_t StepDirection = 0;
    uint8_t StepTarget = 0;
    bool firstLayout_ = true;
    bool busy_ = false;
    bool printing_ = false;
    bool wasAlternation_ = false;
    MemoryWaveScreen screen_;
    CursorState cursors_;
    QImage cleanPicture_;
    QSize oldPicSize_;
    double HScrollUnit = 0;
    double VScrollUnit = 0;
};

// Creates the window of a slot (0 to 3) inside area and shows it.
frmOpenWaveform* CreateMemoryWaveWindow(QMdiArea* area, int slot);
frmOpenWaveform* MemoryWaveWindowOf(int slot);

// Asks for a .wfm file (fromFile) and loads it into the window's slot, or only
// finishes a slot a data sheet filled. A refused file is told in a box.
void LoadMemoryWave(int window, bool fromFile);
