#pragma once
// The wave window: one WaveRecord as a picture, with refresh (single or at an
// interval), zoom, view options, cursors, and export, preview and print of the
// picture. The window holds its slot number as its tag; every handler finds its
// record through it. The data sheet tree creates, names, renumbers and closes it.

#include "wave/cursorstate.h"
#include "wave/frmWavePrint.h"
#include "wave/wavechannels.h"

#include <QWidget>
#include <array>

class QCheckBox;
class QComboBox;
class QFrame;
class QGroupBox;
class QLabel;
class QMdiArea;
class QPushButton;
class QRadioButton;
class QScrollBar;
class QTimer;
class WavePicture;
struct WaveRecord;

class frmWave : public QWidget, public PrintablePicture {
    Q_OBJECT
  public:
    explicit frmWave(int slot, QWidget* parent = nullptr);
    ~frmWave() override;

    // The tag text is the slot number (0 to 17); the sheet renumbers it when an
    // earlier window goes.
    QString tag() const { return QString::number(slot_); }
    int slot() const { return slot_; }
    void setSlot(int slot);

    // Sets every caption for the language.
    void SetCaptions(int language);

    void Timer1_Timer();
    void cmdRefresh_Click();
    void LoadData();
    // The resize routine: the window's only redraw.
    void Form_Resize();
    void ZoomCombo_Validate();
    void BestFitChk_Click();
    void GridCheck_Click();
    void OptionColor_Click(int index);
    void ChkCH_Click(int index);
    void ChkCursorX_Click();
    void ChkCursorY_Click();
    void HScroll_Change();
    void VScroll_Change();
    void cmdExport_Click();
    void cmdPreview_Click();
    void cmdPrint_Click();
    void Command1_Click();
    void WavePic_MouseDown(QPointF at);
    void WavePic_MouseMove(QPointF at);
    void WavePic_MouseUp();

    // The progress strip during a reading: shown, hidden, and its percent.
    void ShowRefreshProgress(bool visible);
    void ShowRefreshPercent(int percent);

    // Room for the controls and the picture at 100 %.
    QSize sizeHint() const override;

    double zoom() const { return Zoom; }
    // The picture as shown (traces, cursors and readouts).
    QImage picture() const;
    bool firstRun() const { return firstRun_; }
    const CursorState& cursors() const { return cursors_; }

    // PrintablePicture: the print sequence draws at its own zoom and size.
    double pictureZoom() const override { return Zoom; }
    void drawForPrint(double zoom, QSize size) override;
    QImage printImage() const override { return picture(); }
    QString printTitle() const override;
    QString printLegend() const override;
    void restoreAfterPrint(double zoom) override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    WaveRecord& record() const;
    void buildControls();
    QWidget* buildSidePanel();
    void arrangeSidePanel(QWidget* side);
    void connectControls();
    void Form_Load();
    void restoreFromRecord();
    void followInstrumentDisplays();
    void makeRefreshLoop();
    void setRefreshImages(bool stopPair);
    // The picture's pane starts where the controls' column ends.
    int paneLeft() const;
    void placeScrollBars(const struct WaveViewLayout& layout);
    void placeProgressStrip();
    void paintProgressStrip();
    void drawPicture();
    void showCursors();
    ChannelBoxes channelBoxes() const;
    void setChannelBoxes(const ChannelBoxes& boxes);

    QWidget* SidePanel;
    QFrame* BackPic;
    WavePicture* WavePic;
    QScrollBar* HScroll;
    QScrollBar* VScroll;
    QPushButton* cmdRefresh;
    QPushButton* cmdExport;
    QPushButton* cmdPreview;
    QPushButton* cmdPrint;
    QPushButton* Command1;
    QComboBox* ZoomCombo;
    QCheckBox* BestFitChk;
    QCheckBox* GridCheck;
    std::array<QRadioButton*, 2> OptionColor{};
    std::array<QCheckBox*, 4> ChkCH{};
    QCheckBox* ChkCursorX;
    QCheckBox* ChkCursorY;
    QGroupBox* FrameRefresh;
    QGroupBox* FrameDisplay;
    QGroupBox* FrameCursor;
    QGroupBox* FrameOutput;
    QLabel* LblZoom;
    QLabel* picRefDown;
    QLabel* picRefOver;
    QLabel* picStopDown;
    QLabel* picStopOver;
    QFrame* picRefreshProgress;
    QLabel* LblRefreshText;
    QLabel* LblRefreshValue;
    QTimer* Timer1;
    QTimer* Timer2;

    int slot_;
    double Zoom = 1.0;
    bool firstRun_ = true;
    class RefreshLoop* refreshLoop_ = nullptr;
    bool printing_ = false;
    CursorState cursors_;
    QImage cleanPicture_; // grid and traces, without the cursor layer
    QSize oldPicSize_;
    double HScrollUnit = 0;
    double VScrollUnit = 0;
};

// Creates the window of a slot inside area (in an MDI child window, titled with
// the record's WaveTitle) and shows it. slot must be 0 to 17.
frmWave* CreateWaveWindow(QMdiArea* area, int slot);
// The open window of a slot, or null.
frmWave* WaveWindowOf(int slot);
