#include "wave/frmWave.h"

#include "acquire/operation.h"
#include "acquire/waverecord.h"
#include "document/childwindowwidgets.h"
#include "document/programiconwidgets.h"
#include "document/sheetstate.h"
#include "link/linkstate.h"
#include "text/captionwidgets.h"
#include "text/language.h"
#include "wave/frmWavePicture.h"
#include "wave/refreshloop.h"
#include "wave/wavelayout.h"
#include "wave/waverefresh.h"
#include "wave/wavezoom.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

namespace {

std::array<QPointer<frmWave>, WaveRecordCount> WaveForms;

bool validSlot(int slot)
{
    return slot >= 0 && slot < WaveRecordCount;
}

template <typename T> T* named(T* control, const char* name)
{
    control->setObjectName(QString::fromLatin1(name));
    return control;
}

QGroupBox* framed(QWidget* side, const char* name, std::initializer_list<QWidget*> controls)
{
    auto* frame = named(new QGroupBox(side), name);
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(1);
    for (QWidget* control : controls)
        layout->addWidget(control);
    return frame;
}

QLabel* imageHolder(QWidget* parent, const char* name, bool stop, bool down)
{
    auto* label = named(new QLabel(parent), name);
    label->setPixmap(RefreshButtonImage(stop, down));
    label->hide();
    return label;
}

} // namespace

frmWave::frmWave(int slot, QWidget* parent) : QWidget(parent), slot_(validSlot(slot) ? slot : 0)
{
    setObjectName(QStringLiteral("frmWave"));
    SetWindowPicture(this, Picture::Wave);
    setFocusPolicy(Qt::StrongFocus);
    buildControls();
    connectControls();
    makeRefreshLoop();
    WaveForms[slot_] = this;
    // The reading frame tells which slot it read; only that slot's window answers.
    connect(&ReadingNotifier(), &ReadingEvents::waveReadingEnded, this, [this](int slot) {
        if (WaveWindowOf(slot) == this) ShowRefreshProgress(false);
    });
    connect(&ReadingNotifier(), &ReadingEvents::progressPercentChanged, this, [this](int slot) {
        if (WaveWindowOf(slot) == this) ShowRefreshPercent(ProgressPercent);
    });
    SetCaptions(Language);
    Form_Load();
}

frmWave::~frmWave()
{
    if (WaveForms[slot_] == this) WaveForms[slot_] = nullptr;
}

void frmWave::setSlot(int slot)
{
    if (!validSlot(slot) || slot == slot_) return;
    if (WaveForms[slot_] == this) WaveForms[slot_] = nullptr;
    slot_ = slot;
    WaveForms[slot_] = this;
}

WaveRecord& frmWave::record() const
{
    return WaveRecords[slot_];
}

void frmWave::buildControls()
{
    SidePanel = buildSidePanel();
    const PictureArea area = BuildPictureArea(this, QStringLiteral("WavePic"));
    BackPic = area.BackPic;
    WavePic = area.picture;
    HScroll = area.HScroll;
    VScroll = area.VScroll;
    picRefreshProgress = named(new QFrame(BackPic), "picRefreshProgress");
    picRefreshProgress->setAutoFillBackground(true);
    picRefreshProgress->resize(200, 14);
    auto* strip = new QHBoxLayout(picRefreshProgress);
    strip->setContentsMargins(2, 0, 2, 0);
    LblRefreshText = named(new QLabel(picRefreshProgress), "LblRefreshText");
    LblRefreshValue = named(new QLabel(picRefreshProgress), "LblRefreshValue");
    strip->addWidget(LblRefreshText, 1);
    strip->addWidget(LblRefreshValue);
    picRefreshProgress->hide();
    picRefDown = imageHolder(this, "picRefDown", false, true);
    picRefOver = imageHolder(this, "picRefOver", false, false);
    picStopDown = imageHolder(this, "picStopDown", true, true);
    picStopOver = imageHolder(this, "picStopOver", true, false);
    Timer1 = named(new QTimer(this), "Timer1");
    Timer2 = named(new QTimer(this), "Timer2");
}

int frmWave::paneLeft() const
{
    return std::max(PaneLeft, SidePanel->minimumSizeHint().width());
}

QSize frmWave::sizeHint() const
{
    const QSize picture = PictureSizeAt(1.0) + 2 * QSize(BackPic->frameWidth(), BackPic->frameWidth());
    return {paneLeft() + picture.width(),
            std::max(SidePanel->minimumSizeHint().height(), PaneTop + picture.height())};
}

QWidget* frmWave::buildSidePanel()
{
    auto* side = new QWidget(this);
    QFont small = side->font();
    small.setPointSizeF(7.5);
    side->setFont(small);
    cmdRefresh = named(new QPushButton(side), "cmdRefresh");
    cmdRefresh->setFocusPolicy(Qt::NoFocus);
    cmdRefresh->setIconSize(QSize(14, 14));
    for (int k = 0; k < 4; ++k) {
        ChkCH[k] = new QCheckBox(QStringLiteral("CH%1").arg(k + 1), side);
        ChkCH[k]->setObjectName(QStringLiteral("ChkCH_%1").arg(k));
        ChkCH[k]->setEnabled(false);
    }
    LblZoom = named(new QLabel(side), "LblZoom");
    ZoomCombo = named(new QComboBox(side), "ZoomCombo");
    ZoomCombo->setEditable(true);
    BestFitChk = named(new QCheckBox(side), "BestFitChk");
    OptionColor[0] = named(new QRadioButton(side), "OptionColor_0");
    OptionColor[1] = named(new QRadioButton(side), "OptionColor_1");
    GridCheck = named(new QCheckBox(side), "GridCheck");
    ChkCursorX = named(new QCheckBox(side), "ChkCursorX");
    ChkCursorY = named(new QCheckBox(side), "ChkCursorY");
    cmdExport = named(new QPushButton(side), "cmdExport");
    cmdPrint = named(new QPushButton(side), "cmdPrint");
    cmdPreview = named(new QPushButton(side), "cmdPreview");
    // No pictures on the output buttons: the pane is too narrow for a picture
    // beside "     Preview", whose leading blanks are kept as they are.
    Command1 = named(new QPushButton(QStringLiteral("Command1"), side), "Command1");
    Command1->hide();
    arrangeSidePanel(side);
    return side;
}

// The controls in four frames, one above the other.
void frmWave::arrangeSidePanel(QWidget* side)
{
    FrameRefresh = framed(side, "FrameRefresh", {cmdRefresh, ChkCH[0], ChkCH[1], ChkCH[2], ChkCH[3]});
    FrameDisplay = framed(side, "FrameDisplay",
                          {LblZoom, ZoomCombo, BestFitChk, OptionColor[0], OptionColor[1], GridCheck});
    FrameCursor = framed(side, "FrameCursor", {ChkCursorX, ChkCursorY});
    FrameOutput = framed(side, "FrameOutput", {cmdExport, cmdPrint, cmdPreview});
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(2, 2, 2, 2);
    column->setSpacing(2);
    for (QGroupBox* frame : {FrameRefresh, FrameDisplay, FrameCursor, FrameOutput})
        column->addWidget(frame);
    column->addStretch(1);
}

void frmWave::connectControls()
{
    connect(Timer1, &QTimer::timeout, this, &frmWave::Timer1_Timer);
    connect(cmdRefresh, &QPushButton::clicked, this, &frmWave::cmdRefresh_Click);
    connect(cmdExport, &QPushButton::clicked, this, &frmWave::cmdExport_Click);
    connect(cmdPreview, &QPushButton::clicked, this, &frmWave::cmdPreview_Click);
    connect(cmdPrint, &QPushButton::clicked, this, &frmWave::cmdPrint_Click);
    connect(Command1, &QPushButton::clicked, this, &frmWave::Command1_Click);
    connect(ZoomCombo, &QComboBox::activated, this, &frmWave::ZoomCombo_Validate);
    connect(ZoomCombo->lineEdit(), &QLineEdit::editingFinished, this, &frmWave::ZoomCombo_Validate);
    connect(BestFitChk, &QCheckBox::clicked, this, &frmWave::BestFitChk_Click);
    connect(GridCheck, &QCheckBox::clicked, this, &frmWave::GridCheck_Click);
    connect(ChkCursorX, &QCheckBox::clicked, this, &frmWave::ChkCursorX_Click);
    connect(ChkCursorY, &QCheckBox::clicked, this, &frmWave::ChkCursorY_Click);
    for (int index = 0; index < 2; ++index)
        connect(OptionColor[index], &QRadioButton::clicked, this,
                [this, index] { OptionColor_Click(index); });
    for (int index = 0; index < 4; ++index)
        connect(ChkCH[index], &QCheckBox::clicked, this, [this, index] { ChkCH_Click(index); });
    connect(HScroll, &QScrollBar::valueChanged, this, &frmWave::HScroll_Change);
    connect(VScroll, &QScrollBar::valueChanged, this, &frmWave::VScroll_Change);
    connect(WavePic, &WavePicture::pressed, this, [this](QPointF at) { WavePic_MouseDown(at); });
    connect(WavePic, &WavePicture::moved, this, [this](QPointF at) { WavePic_MouseMove(at); });
    connect(WavePic, &WavePicture::released, this, [this] { WavePic_MouseUp(); });
}

void frmWave::SetCaptions(int language)
{
    ApplyCaptions(this, CaptionList::Wave,
                  {{"cmdRefresh", 0},
                   {"FrameRefresh", 1},
                   {"FrameDisplay", 2},
                   {"LblZoom", 3},
                   {"BestFitChk", 4},
                   {"OptionColor_0", 5},
                   {"OptionColor_1", 6},
                   {"GridCheck", 7},
                   {"FrameCursor", 8},
                   {"ChkCursorX", 9},
                   {"ChkCursorY", 10},
                   {"FrameOutput", 11},
                   {"cmdExport", 12},
                   {"cmdPrint", 13},
                   {"cmdPreview", 14},
                   {"cmdRefresh", 15, CaptionRole::ToolTip},
                   {"cmdPreview", 16, CaptionRole::ToolTip}},
                  language);
    // The other language's captions may need a wider column.
    updateGeometry();
    // Tiled or dragged smaller, the window keeps its control column whole.
    setMinimumHeight(SidePanel->minimumSizeHint().height());
    SidePanel->setGeometry(0, 0, paneLeft(), height());
    if (!firstRun_) Form_Resize();
}

void frmWave::Form_Load()
{
    firstRun_ = true;
    Zoom = 1.0;
    ZoomCombo->addItems(ZoomChoices());
    ZoomCombo->setInsertPolicy(QComboBox::NoInsert);
    ZoomCombo->setEditText(ZoomText(Zoom));
    CursorInit(cursors_);
    setRefreshImages(false);
    oldPicSize_ = WavePic->size();
    Timer1->start(0);
}

void frmWave::Timer1_Timer()
{
    Timer1->setInterval(500);
    if (firstRun_) restoreFromRecord();
    followInstrumentDisplays();
}

// The first run: the window shows what its record holds. Restoring the controls
// is no change of the sheet.
void frmWave::restoreFromRecord()
{
    const bool dirty = DataSheetDirty;
    firstRun_ = false;
    WaveRecord& r = record();
    r.WindowOpen = true;
    setChannelBoxes(RestoreChannelBoxes(r, channelBoxes()));
    BestFitChk->setChecked(r.BestFit);
    ZoomCombo->setEnabled(!r.BestFit);
    GridCheck->setChecked(r.GridOn);
    OptionColor[r.ColorMode ? 0 : 1]->setChecked(true);
    ChkCursorX->setChecked(cursors_.CursorXShown);
    ChkCursorY->setChecked(cursors_.CursorYShown);
    Form_Resize();
    DataSheetDirty = dirty;
}

void frmWave::followInstrumentDisplays()
{
    setChannelBoxes(FollowDisplaySwitches(record(), channelBoxes(), CurrentDisplaySwitches()));
}

ChannelBoxes frmWave::channelBoxes() const
{
    ChannelBoxes boxes;
    for (int k = 0; k < 4; ++k)
        boxes[k] = {ChkCH[k]->isEnabled(), ChkCH[k]->isChecked()};
    return boxes;
}

void frmWave::setChannelBoxes(const ChannelBoxes& boxes)
{
    for (int k = 0; k < 4; ++k) {
        ChkCH[k]->setEnabled(boxes[k].enabled);
        ChkCH[k]->setChecked(boxes[k].checked);
    }
}

void frmWave::ChkCH_Click(int index)
{
    ChannelBox box{ChkCH[index]->isEnabled(), ChkCH[index]->isChecked()};
    ApplyChannelClick(record(), index, box, Connecting);
    ChkCH[index]->setChecked(box.checked);
    Form_Resize();
}

void frmWave::closeEvent(QCloseEvent* event)
{
    const bool reading = OperationRunning && CurrentWaveIndex == slot_;
    if (Connecting || refreshLoop_->busy() || reading) {
        event->ignore();
        return;
    }
    if (RefreshingWaveSlot == slot_) {
        AutoRefreshRunning = false;
        record().AutoRefreshing = false;
    }
    record().WindowOpen = false;
    if (WaveForms[slot_] == this) WaveForms[slot_] = nullptr;
    event->accept();
}

frmWave* CreateWaveWindow(QMdiArea* area, int slot)
{
    if (!validSlot(slot)) return nullptr;
    auto* window = new frmWave(slot);
    window->setWindowTitle(WaveRecords[slot].WaveTitle);
    // Closing runs the window's unload rules and lets the sub-window go.
    if (QMdiSubWindow* child = ShowChildWindow(window, area, QStringLiteral("WaveChild")))
        child->setAttribute(Qt::WA_DeleteOnClose);
    return window;
}

frmWave* WaveWindowOf(int slot)
{
    return validSlot(slot) ? WaveForms[slot].data() : nullptr;
}
