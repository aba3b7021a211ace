// frmRecordPlay: the window's controls, captions and lifecycle.
#include "stored/frmRecordPlay.h"

#include "document/childwindowwidgets.h"
#include "document/programiconwidgets.h"
#include "stored/rcdfile.h"
#include "stored/recordplaydraw.h"
#include "stored/recordslot.h"
#include "text/captionwidgets.h"
#include "text/language.h"
#include "wave/frmWavePicture.h"

#include <QCloseEvent>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QSlider>
#include <QStyle>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr const char* TagProperty = "Tag";

template <typename T> T* named(T* control, const QString& name)
{
    control->setObjectName(name);
    return control;
}

// The bar's pictures, in button order.
constexpr QStyle::StandardPixmap BarPictures[RecordButtonCount] = {
    QStyle::SP_MediaPlay,         QStyle::SP_MediaPause,       QStyle::SP_MediaStop,
    QStyle::SP_MediaSkipBackward, QStyle::SP_MediaSkipForward, QStyle::SP_MediaSeekForward,
    QStyle::SP_MediaSeekBackward, QStyle::SP_BrowserReload,
};

// Hints of the bar in the replay caption list, in button order.
constexpr int BarHintSlots[RecordButtonCount] = {6, 7, 8, 9, 10, 12, 11, 13};

QToolButton* toolButton(QWidget* parent, const QString& name)
{
    auto* button = named(new QToolButton(parent), name);
    button->setAutoRaise(true);
    button->setIconSize(QSize(20, 20));
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

} // namespace

frmRecordPlay::frmRecordPlay(int slot, QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("frmRecordPlay"));
    SetWindowPicture(this, Picture::Record);
    setProperty(TagProperty, QString::number(RecordSlotAt(slot) ? slot : 0));
    buildControls();
    connectControls();
    SetCaptions(Language);
    // A new window starts stopped with nothing to play; Timer1 does the rest once shown.
    showBar();
    Timer1->setSingleShot(true);
    Timer1->start(0);
}

frmRecordPlay::~frmRecordPlay() = default;

int frmRecordPlay::slot() const
{
    const int tag = property(TagProperty).toString().toInt();
    return RecordSlotAt(tag) ? tag : 0;
}

RecordSlot& frmRecordPlay::record() const
{
    return *RecordSlotAt(slot());
}

void frmRecordPlay::buildControls()
{
    RecordBackPic = named(new QFrame(this), "RecordBackPic");
    RecordBackPic->setFrameShape(QFrame::StyledPanel);
    // Below zoom 1 the texts over and under the grid would run into each other.
    RecordBackPic->setMinimumSize(RecordPictureSize(1.0) + QSize(4, 4));
    RecordBackPic->installEventFilter(this);
    RecordWavePic = named(new WavePicture(RecordBackPic), "RecordWavePic");
    PicMsg = named(new QLabel(this), "PicMsg");
    SliderFrame = named(new QSlider(Qt::Horizontal, this), "SliderFrame");
    SliderFrame->setTracking(false); // a drag reports moves; the value changes on release
    Timer1 = named(new QTimer(this), "Timer1");
    TimerInterval = named(new QTimer(this), "TimerInterval");
    TimerSpeed = named(new QTimer(this), "TimerSpeed");
    TimerSpeed->setInterval(100);

    OptratePic = named(new QFrame(this), "OptratePic");
    auto* controls = new QHBoxLayout(OptratePic);
    controls->setContentsMargins(0, 0, 0, 0);
    controls->addWidget(buildBar());
    controls->addStretch(1);
    controls->addWidget(buildTimePanel());

    auto* left = new QVBoxLayout;
    left->addWidget(RecordBackPic, 1);
    left->addWidget(PicMsg);
    left->addWidget(SliderFrame);
    left->addWidget(OptratePic);
    auto* whole = new QHBoxLayout(this);
    whole->setContentsMargins(4, 4, 4, 4);
    whole->addLayout(left, 1);
    whole->addWidget(buildSidePanel());
    resize(sizeHint());
}

QSize frmRecordPlay::sizeHint() const
{
    return {760, 560};
}

QWidget* frmRecordPlay::buildBar()
{
    AresBtnPlay = named(new QWidget(this), "AresBtnPlay");
    auto* row = new QHBoxLayout(AresBtnPlay);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(1);
    for (int index = 0; index < RecordButtonCount; ++index) {
        playButtons[size_t(index)] = toolButton(AresBtnPlay, QStringLiteral("AresBtnPlay_%1").arg(index));
        playButtons[size_t(index)]->setIcon(style()->standardIcon(BarPictures[index]));
        row->addWidget(playButtons[size_t(index)]);
    }
    playButtons[RecordBtnCircular]->setCheckable(true);
    return AresBtnPlay;
}

QWidget* frmRecordPlay::buildTimePanel()
{
    PicTime = named(new QFrame(this), "PicTime");
    PicTime->setFrameShape(QFrame::StyledPanel);
    auto* row = new QHBoxLayout(PicTime);
    row->setContentsMargins(2, 0, 2, 0);
    row->setSpacing(1);
    AresBtnSub = toolButton(PicTime, "AresBtnSub");
    AresBtnSub->setText(QStringLiteral("-"));
    lblTimeInterval = named(new QLabel(PicTime), "lblTimeInterval");
    lblTimeInterval->setAlignment(Qt::AlignCenter);
    lblTimeInterval->setMinimumWidth(lblTimeInterval->fontMetrics().horizontalAdvance("000.00ms") + 8);
    AresBtnAdd = toolButton(PicTime, "AresBtnAdd");
    AresBtnAdd->setText(QStringLiteral("+"));
    AresBtnDefaultTime = toolButton(PicTime, "AresBtnDefaultTime");
    AresBtnDefaultTime->setIcon(style()->standardIcon(QStyle::SP_DialogResetButton));
    for (QWidget* control : {static_cast<QWidget*>(AresBtnSub), static_cast<QWidget*>(lblTimeInterval),
                             static_cast<QWidget*>(AresBtnAdd), static_cast<QWidget*>(AresBtnDefaultTime)})
        row->addWidget(control);
    return PicTime;
}

QWidget* frmRecordPlay::buildSidePanel()
{
    auto* side = new QWidget(this);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    cmdOpen = named(new QPushButton(side), "cmdOpen");
    cmdOpen->setIcon(ProgramIcon(Picture::Open));
    FlatBttn4 = named(new QPushButton(side), "FlatBttn4");
    FlatBttn5 = named(new QPushButton(side), "FlatBttn5");
    FlatBttn1 = named(new QPushButton(side), "FlatBttn1");
    FlatBttn2 = named(new QPushButton(side), "FlatBttn2");
    FlatBttn3 = named(new QPushButton(side), "FlatBttn3");
    FlatBttn1->setIcon(ProgramIcon(Picture::Export));
    FlatBttn2->setIcon(ProgramIcon(Picture::Print));
    FlatBttn3->setIcon(ProgramIcon(Picture::Preview));
    cmdRun = named(new QPushButton(side), "cmdRun");
    cmdRun->setIcon(style()->standardIcon(QStyle::SP_DialogCloseButton));
    for (QPushButton* button : {cmdOpen, FlatBttn4, FlatBttn5, FlatBttn1, FlatBttn2, FlatBttn3})
        column->addWidget(button);
    column->addStretch(1);
    column->addWidget(cmdRun);
    return side;
}

void frmRecordPlay::SetCaptions(int language)
{
    ApplyCaptions(this, CaptionList::RecordPlay,
                  {{"cmdOpen", 0},
                   {"cmdOpen", 0, CaptionRole::ToolTip},
                   {"FlatBttn4", 1},
                   {"FlatBttn5", 2},
                   {"FlatBttn1", 3},
                   {"FlatBttn2", 4},
                   {"FlatBttn3", 5},
                   {"AresBtnDefaultTime", 14, CaptionRole::ToolTip}},
                  language);
    for (int index = 0; index < RecordButtonCount; ++index)
        SetCaption(playButtons[size_t(index)],
                   Caption(CaptionList::RecordPlay, BarHintSlots[index], language), CaptionRole::ToolTip);
    cmdRun->setText(IsChinese(language) ? QStringLiteral("关闭") : QStringLiteral("Close"));
}

// The deferred part of opening: pictures, time display, layout and the status.
void frmRecordPlay::Timer1_Timer()
{
    placePicture();
    ShowSlot();
}

bool frmRecordPlay::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == RecordBackPic && event->type() == QEvent::Resize) placePicture();
    return QWidget::eventFilter(watched, event);
}

void frmRecordPlay::closeEvent(QCloseEvent* event)
{
    TimerSpeed->stop();
    apply(RecordReplayPause(record()));
    TimerInterval->stop();
    event->accept();
}

frmRecordPlay* CreateRecordPlayWindow(QMdiArea* area, int slot)
{
    if (!RecordSlotAt(slot)) return nullptr;
    auto* window = new frmRecordPlay(slot);
    window->setWindowTitle(RecordCaption(RecordSlots[size_t(slot)]));
    ShowChildWindow(window, area, QStringLiteral("RecordPlayChild"));
    return window;
}

void LoadRecordWindowFile(QMdiSubWindow* child)
{
    if (!child) return;
    if (auto* window = qobject_cast<frmRecordPlay*>(child->widget())) window->LoadRecord();
}
