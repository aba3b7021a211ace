// frmOpenWaveform: its controls, captions, first layout and close.
#include "stored/frmOpenWaveform.h"

#include "document/childwindowwidgets.h"
#include "document/programiconwidgets.h"
#include "document/sheetstate.h"
#include "text/captionwidgets.h"
#include "text/language.h"
#include "wave/frmWavePicture.h"
#include "wave/wavelayout.h"
#include "wave/wavezoom.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
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

std::array<QPointer<frmOpenWaveform>, MemoryWaveSlotCount> MemoryWaveForms;

bool validSlot(int slot)
{
    return slot >= 0 && slot < MemoryWaveSlotCount;
}

template <typename T> T* named(T* control, const QString& name)
{
    control->setObjectName(name);
    return control;
}

QGroupBox* framed(QWidget* parent, const char* name, std::initializer_list<QWidget*> controls)
{
    auto* frame = named(new QGroupBox(parent), QString::fromLatin1(name));
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(3, 3, 3, 3);
    layout->setSpacing(2);
    for (QWidget* control : controls)
        layout->addWidget(control);
    return frame;
}

QLineEdit* valueBox(QWidget* parent, const QString& name)
{
    auto* box = named(new QLineEdit(parent), name);
    box->setReadOnly(true);
    box->setAlignment(Qt::AlignCenter);
    box->setMinimumWidth(64);
    return box;
}

// Two controls side by side, to keep the panel short.
QWidget* pair(QWidget* parent, QWidget* left, QWidget* right)
{
    auto* row = new QWidget(parent);
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(3);
    line->addWidget(left);
    line->addWidget(right);
    return row;
}

// Captions of the window that the file menu's list doesn't hold.
QString voltFrameCaption(int language)
{
    return IsChinese(language) ? QStringLiteral("档位") : QStringLiteral("Volt/Div");
}
QString closeCaption(int language)
{
    return IsChinese(language) ? QStringLiteral("关闭") : QStringLiteral("Close");
}

} // namespace

frmOpenWaveform::frmOpenWaveform(int slot, QWidget* parent)
    : QWidget(parent), slot_(validSlot(slot) ? slot : 0)
{
    setObjectName(QStringLiteral("frmOpenWaveform"));
    SetWindowPicture(this, Picture::MemoryWave);
    setFocusPolicy(Qt::StrongFocus);
    buildControls();
    connectControls();
    MemoryWaveForms[size_t(slot_)] = this;
    SetCaptions(Language);
    // Form_Load: the zoom list, the zoom, and the first layout on Timer1.
    ZoomCombo->addItems(ZoomChoices());
    ZoomCombo->setInsertPolicy(QComboBox::NoInsert);
    ZoomCombo->setEditText(ZoomText(PictureZoom));
    CursorInit(cursors_);
    oldPicSize_ = MemoryWavePic->size();
    record().Shown = true;
    Timer1->setSingleShot(true);
    Timer1->start(0);
}

frmOpenWaveform::~frmOpenWaveform()
{
    if (MemoryWaveForms[size_t(slot_)] == this) MemoryWaveForms[size_t(slot_)] = nullptr;
}

void frmOpenWaveform::setSlot(int slot)
{
    if (!validSlot(slot) || slot == slot_) return;
    if (MemoryWaveForms[size_t(slot_)] == this) MemoryWaveForms[size_t(slot_)] = nullptr;
    slot_ = slot;
    MemoryWaveForms[size_t(slot_)] = this;
}

MemoryWaveSlot& frmOpenWaveform::record() const
{
    return MemoryWaveSlots[size_t(slot_)];
}

void frmOpenWaveform::buildControls()
{
    side_ = buildSidePanel();
    const PictureArea area = BuildPictureArea(this, QStringLiteral("MemoryWavePic"));
    BackPic = area.BackPic;
    MemoryWavePic = area.picture;
    HScroll = area.HScroll;
    VScroll = area.VScroll;
    framRefresh = named(new QFrame(BackPic), "framRefresh");
    framRefresh->setAutoFillBackground(true);
    framRefresh->resize(200, 16);
    picRefreshProgress = named(new QFrame(framRefresh), "picRefreshProgress");
    auto* strip = new QHBoxLayout(framRefresh);
    strip->setContentsMargins(2, 0, 2, 0);
    LblRefreshText = named(new QLabel(framRefresh), "LblRefreshText");
    LblRefreshValue = named(new QLabel(framRefresh), "LblRefreshValue");
    strip->addWidget(LblRefreshText, 1);
    strip->addWidget(LblRefreshValue);
    strip->addWidget(picRefreshProgress);
    framRefresh->hide();
    Timer1 = named(new QTimer(this), "Timer1");
    Timer2 = named(new QTimer(this), "Timer2");
}

QPushButton* frmOpenWaveform::stepper(QWidget* parent, const QString& name, const QString& text, int target,
                                      int direction)
{
    auto* button = named(new QPushButton(text, parent), name);
    button->setFixedWidth(24);
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QPushButton::pressed, this,
            [this, target, direction] { StepperPress(target, direction); });
    connect(button, &QPushButton::released, this, &frmOpenWaveform::StepperRelease);
    return button;
}

QGroupBox* frmOpenWaveform::buildVoltFrame(QWidget* side)
{
    framVoltDiv = framed(side, "framVoltDiv", {});
    for (int n = 0; n < 4; ++n) {
        const QString ch = QStringLiteral("CH%1").arg(n + 1);
        auto* row = new QWidget(framVoltDiv);
        auto* line = new QHBoxLayout(row);
        line->setContentsMargins(0, 0, 0, 0);
        line->setSpacing(2);
        lblCH[size_t(n)] = named(new QLabel(ch, row), "lbl" + ch);
        txtCHDiv[size_t(n)] = valueBox(row, "txt" + ch + "Div");
        line->addWidget(lblCH[size_t(n)]);
        line->addWidget(stepper(row, "abtn" + ch + "DivDec", QStringLiteral("-"), n, -1));
        line->addWidget(txtCHDiv[size_t(n)], 1);
        line->addWidget(stepper(row, "abtn" + ch + "DivInc", QStringLiteral("+"), n, +1));
        framVoltDiv->layout()->addWidget(row);
        voltRows[size_t(n)] = row;
    }
    return framVoltDiv;
}

QGroupBox* frmOpenWaveform::buildTimeFrames(QWidget* side)
{
    framTimeDiv = framed(side, "framTimeDiv", {});
    auto* single = new QWidget(framTimeDiv);
    auto* line = new QHBoxLayout(single);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(2);
    txtTimeDiv = valueBox(single, "txtTimeDiv");
    line->addWidget(stepper(single, "abtnTimeDivDec", QStringLiteral("-"), 4, -1));
    line->addWidget(txtTimeDiv, 1);
    line->addWidget(stepper(single, "abtnTimeDivInc", QStringLiteral("+"), 4, +1));
    framTimeDiv->layout()->addWidget(single);

    framAltTimeDiv = framed(side, "framAltTimeDiv", {});
    auto* grid = new QWidget(framAltTimeDiv);
    auto* rows = new QGridLayout(grid);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(2);
    txtCH1TimeDiv = valueBox(grid, "txtCH1TimeDiv");
    txtCH2TimeDiv = valueBox(grid, "txtCH2TimeDiv");
    const std::array<QLineEdit*, 2> boxes{txtCH1TimeDiv, txtCH2TimeDiv};
    for (int k = 0; k < 2; ++k) {
        const QString ch = QStringLiteral("CH%1").arg(k + 1);
        rows->addWidget(new QLabel(k == 0 ? QStringLiteral("A") : QStringLiteral("B"), grid), k, 0);
        rows->addWidget(stepper(grid, "abtn" + ch + "TimeDivDec", QStringLiteral("-"), 5 + k, -1), k, 1);
        rows->addWidget(boxes[size_t(k)], k, 2);
        rows->addWidget(stepper(grid, "abtn" + ch + "TimeDivInc", QStringLiteral("+"), 5 + k, +1), k, 3);
    }
    rows->setColumnStretch(2, 1);
    framAltTimeDiv->layout()->addWidget(grid);
    return framTimeDiv;
}

QWidget* frmOpenWaveform::buildSidePanel()
{
    auto* side = new QWidget(this);
    buildVoltFrame(side);
    buildTimeFrames(side);
    Reset = named(new QPushButton(side), "Reset");
    LblZoom = named(new QLabel(side), "LblZoom");
    ZoomCombo = named(new QComboBox(side), "ZoomCombo");
    ZoomCombo->setEditable(true);
    OptionColor[0] = named(new QRadioButton(side), "OptionColor_0");
    OptionColor[1] = named(new QRadioButton(side), "OptionColor_1");
    GridCheck = named(new QCheckBox(side), "GridCheck");
    ChkCursorX = named(new QCheckBox(side), "ChkCursorX");
    ChkCursorY = named(new QCheckBox(side), "ChkCursorY");
    FlatBttn1 = named(new QPushButton(side), "FlatBttn1");
    FlatBttn3 = named(new QPushButton(side), "FlatBttn3");
    FlatBttn4 = named(new QPushButton(side), "FlatBttn4");
    cmdPrint = named(new QPushButton(side), "cmdPrint");
    cmdPreview = named(new QPushButton(side), "cmdPreview");
    FlatBttn4->setIcon(ProgramIcon(Picture::Export));
    cmdPrint->setIcon(ProgramIcon(Picture::Print));
    cmdPreview->setIcon(ProgramIcon(Picture::Preview));
    framDisplay = framed(side, "framDisplay",
                         {LblZoom, ZoomCombo, pair(side, OptionColor[0], OptionColor[1]), GridCheck});
    framCursor = framed(side, "framCursor", {pair(side, ChkCursorX, ChkCursorY)});
    framOutput = framed(side, "framOutput",
                        {pair(side, FlatBttn3, FlatBttn4), pair(side, cmdPrint, cmdPreview), FlatBttn1});
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(3, 3, 3, 3);
    column->setSpacing(3);
    for (QWidget* part : std::initializer_list<QWidget*>{framVoltDiv, framTimeDiv, framAltTimeDiv, Reset,
                                                         framDisplay, framCursor, framOutput})
        column->addWidget(part);
    column->addStretch(1);
    side->setFixedWidth(180);
    return side;
}

void frmOpenWaveform::connectControls()
{
    connect(Timer1, &QTimer::timeout, this, &frmOpenWaveform::Timer1_Timer);
    connect(Timer2, &QTimer::timeout, this, &frmOpenWaveform::Timer2_Timer);
    connect(Reset, &QPushButton::clicked, this, &frmOpenWaveform::Reset_Click);
    connect(ZoomCombo, &QComboBox::activated, this, &frmOpenWaveform::ZoomCombo_Validate);
    connect(ZoomCombo->lineEdit(), &QLineEdit::editingFinished, this, &frmOpenWaveform::ZoomCombo_Validate);
    connect(GridCheck, &QCheckBox::clicked, this, &frmOpenWaveform::GridCheck_Click);
    for (int index = 0; index < 2; ++index)
        connect(OptionColor[size_t(index)], &QRadioButton::clicked, this,
                [this, index] { OptionColor_Click(index); });
    connect(ChkCursorX, &QCheckBox::clicked, this, &frmOpenWaveform::ChkCursorX_Click);
    connect(ChkCursorY, &QCheckBox::clicked, this, &frmOpenWaveform::ChkCursorY_Click);
    connect(HScroll, &QScrollBar::valueChanged, this, &frmOpenWaveform::HScroll_Change);
    connect(VScroll, &QScrollBar::valueChanged, this, &frmOpenWaveform::VScroll_Change);
    connect(FlatBttn1, &QPushButton::clicked, this, &frmOpenWaveform::FlatBttn1_Click);
    connect(FlatBttn3, &QPushButton::clicked, this, &frmOpenWaveform::FlatBttn3_Click);
    connect(FlatBttn4, &QPushButton::clicked, this, &frmOpenWaveform::FlatBttn4_Click);
    connect(cmdPrint, &QPushButton::clicked, this, &frmOpenWaveform::cmdPrint_Click);
    connect(cmdPreview, &QPushButton::clicked, this, &frmOpenWaveform::cmdPreview_Click);
    connect(MemoryWavePic, &WavePicture::pressed, this, [this](QPointF at) { MemoryWavePic_MouseDown(at); });
    connect(MemoryWavePic, &WavePicture::moved, this, [this](QPointF at) { MemoryWavePic_MouseMove(at); });
    connect(MemoryWavePic, &WavePicture::released, this, [this] { MemoryWavePic_MouseUp(); });
}

void frmOpenWaveform::SetCaptions(int language)
{
    ApplyCaptions(this, CaptionList::MemoryWaveFileMenu,
                  {{"framDisplay", 2},
                   {"LblZoom", 3},
                   {"OptionColor_0", 4},
                   {"OptionColor_1", 5},
                   {"GridCheck", 6},
                   {"framCursor", 7},
                   {"ChkCursorX", 8},
                   {"ChkCursorY", 9},
                   {"framOutput", 10},
                   {"FlatBttn3", 17},
                   {"FlatBttn4", 11},
                   {"cmdPrint", 12},
                   {"cmdPreview", 13},
                   {"Reset", 14},
                   {"framTimeDiv", 15},
                   {"framAltTimeDiv", 15},
                   {"FlatBttn3", 17, CaptionRole::ToolTip},
                   {"FlatBttn4", 18, CaptionRole::ToolTip},
                   {"cmdPrint", 19, CaptionRole::ToolTip},
                   {"cmdPreview", 20, CaptionRole::ToolTip}},
                  language);
    framVoltDiv->setTitle(voltFrameCaption(language));
    FlatBttn1->setText(closeCaption(language));
    for (QPushButton* button : {FlatBttn4, cmdPrint, cmdPreview})
        button->setText(button->text().trimmed());
    // The controls never get cut: the window is at least as tall as its panel.
    const QSize panel = side_->sizeHint();
    setMinimumSize(panel.width() + 120, panel.height());
    resize(std::max(width(), panel.width() + PictureSizeAt(1.0).width() + 30),
           std::max(height(), panel.height()));
}

void frmOpenWaveform::Timer1_Timer()
{
    if (!firstLayout_) return;
    firstLayout_ = false;
    const bool dirty = DataSheetDirty;
    GridCheck->setChecked(record().GridOn);
    OptionColor[record().ColorOn ? 0 : 1]->setChecked(true);
    ShowLoaded();
    DataSheetDirty = dirty;
}

void frmOpenWaveform::closeEvent(QCloseEvent* event)
{
    if (busy_) {
        event->ignore();
        return;
    }
    Timer2->stop();
    record().Shown = false;
    if (MemoryWaveForms[size_t(slot_)] == this) MemoryWaveForms[size_t(slot_)] = nullptr;
    event->accept();
}

frmOpenWaveform* CreateMemoryWaveWindow(QMdiArea* area, int slot)
{
    if (!validSlot(slot)) return nullptr;
    auto* window = new frmOpenWaveform(slot);
    window->setWindowTitle(MemoryWaveSlots[size_t(slot)].Name);
    ShowChildWindow(window, area, QStringLiteral("MemoryWaveChild"));
    return window;
}

frmOpenWaveform* MemoryWaveWindowOf(int slot)
{
    return validSlot(slot) ? MemoryWaveForms[size_t(slot)].data() : nullptr;
}
