// frmRecordPlay: the handlers of the bar, the slider, the time buttons and the
// output buttons, and the picture.
#include "stored/frmRecordPlay.h"

#include "document/sheetstate.h"
#include "stored/rcdfile.h"
#include "stored/recordplaydraw.h"
#include "stored/recordslot.h"
#include "text/formatmask.h"
#include "text/language.h"
#include "text/valuetext.h"
#include "wave/frmWavePicture.h"
#include "wave/pictureexport.h"
#include "wave/wavelayout.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QTimer>
#include <QToolButton>

void frmRecordPlay::connectControls()
{
    connect(Timer1, &QTimer::timeout, this, &frmRecordPlay::Timer1_Timer);
    connect(TimerInterval, &QTimer::timeout, this, &frmRecordPlay::TimerInterval_Timer);
    connect(TimerSpeed, &QTimer::timeout, this, &frmRecordPlay::TimerSpeed_Timer);
    for (int index = 0; index < RecordButtonCount; ++index)
        connect(playButtons[size_t(index)], &QToolButton::clicked, this,
                [this, index] { AresBtnPlay_Click(index); });
    connect(AresBtnAdd, &QToolButton::pressed, this, &frmRecordPlay::AresBtnAdd_Press);
    connect(AresBtnSub, &QToolButton::pressed, this, &frmRecordPlay::AresBtnSub_Press);
    connect(AresBtnAdd, &QToolButton::released, this, &frmRecordPlay::AresBtn_Release);
    connect(AresBtnSub, &QToolButton::released, this, &frmRecordPlay::AresBtn_Release);
    connect(AresBtnDefaultTime, &QToolButton::clicked, this, &frmRecordPlay::AresBtnDefaultTime_Click);
    connect(SliderFrame, &QSlider::sliderMoved, this, &frmRecordPlay::SliderFrame_Scroll);
    connect(SliderFrame, &QSlider::valueChanged, this, &frmRecordPlay::SliderFrame_Change);
    connect(cmdOpen, &QPushButton::clicked, this, &frmRecordPlay::LoadRecord);
    connect(FlatBttn1, &QPushButton::clicked, this, &frmRecordPlay::FlatBttn1_Click);
    connect(FlatBttn2, &QPushButton::clicked, this, &frmRecordPlay::FlatBttn2_Click);
    connect(FlatBttn3, &QPushButton::clicked, this, &frmRecordPlay::FlatBttn3_Click);
    connect(FlatBttn4, &QPushButton::clicked, this, [this] { SetBackground(false); });
    connect(FlatBttn5, &QPushButton::clicked, this, [this] { SetBackground(true); });
    connect(cmdRun, &QPushButton::clicked, this, [this] {
        if (parentWidget())
            parentWidget()->close();
        else
            close();
    });
}

void frmRecordPlay::LoadRecord()
{
    const RecordLoad outcome = ::LoadRecord(slot());
    if (outcome == RecordLoad::Loaded || outcome == RecordLoad::InvalidChannel) TimerInterval->stop();
    if (outcome == RecordLoad::Loaded) setWindowTitle(RecordCaption(record()));
    ShowSlot();
}

void frmRecordPlay::ShowSlot()
{
    RecordSlot& r = record();
    SetRecordReplayStatus(r.PlayState);
    showSlider();
    showTime();
    drawPicture();
}

void frmRecordPlay::apply(ClockChange change)
{
    if (change == ClockChange::Start) TimerInterval->start(FrameClockInterval(record()));
    if (change == ClockChange::Stop) TimerInterval->stop();
}

void frmRecordPlay::SetRecordReplayStatus(int state)
{
    ::SetRecordReplayStatus(record(), state);
    showBar();
}

void frmRecordPlay::showBar()
{
    const RecordBar enabled = RecordBarEnabled(record());
    for (int index = 0; index < RecordButtonCount; ++index)
        playButtons[size_t(index)]->setEnabled(enabled[size_t(index)]);
    playButtons[RecordBtnCircular]->setChecked(record().Circular);
    PicMsg->setText(record().StatusText);
}

void frmRecordPlay::showSlider()
{
    const RecordSlot& r = record();
    const QSignalBlocker quiet(SliderFrame);
    if (r.HasFile) {
        SliderFrame->setRange(r.FirstFrame, std::max<int>(r.FirstFrame, r.LastFrame));
        SliderFrame->setValue(r.CurrentFrame);
    } else {
        SliderFrame->setRange(0, 0);
    }
    SliderFrame->setEnabled(r.HasFile);
}

void frmRecordPlay::showFrame()
{
    showBar();
    showSlider();
    drawPicture();
}

void frmRecordPlay::showTime()
{
    lblTimeInterval->setText(TimeText4(GeneralFormat(record().FrameInterval)));
}

void frmRecordPlay::AresBtnPlay_Click(int index)
{
    RecordSlot& r = record();
    switch (index) {
    case RecordBtnReplay: apply(RecordReplayStart(r)); break;
    case RecordBtnPause: apply(RecordReplayPause(r)); break;
    case RecordBtnStop: apply(RecordReplayStop(r)); break;
    case RecordBtnStart: apply(RecordGoToStart(r)); break;
    case RecordBtnEnd: apply(RecordGoToEnd(r)); break;
    case RecordBtnNext: apply(RecordStepFrame(r, +1)); break;
    case RecordBtnPrevious: apply(RecordStepFrame(r, -1)); break;
    case RecordBtnCircular: RecordToggleCircular(r); break;
    default: return;
    }
    if (r.HasFile) DataSheetDirty = true;
    showFrame();
}

void frmRecordPlay::TimerInterval_Timer()
{
    apply(RecordReplayTick(record()));
    showFrame();
}

// The slider's drag: the frame follows at once, and is drawn while replaying.
void frmRecordPlay::SliderFrame_Scroll(int value)
{
    RecordSetFrame(record(), value);
    showBar();
    if (record().PlayState == RecordReplaying) drawPicture();
}

void frmRecordPlay::SliderFrame_Change(int value)
{
    RecordSetFrame(record(), value);
    showFrame();
}

void frmRecordPlay::stepTime(int steps)
{
    if (steps <= 0 || speedDirection_ == 0) return;
    record().FrameInterval = StepFrameInterval(record().FrameInterval, speedDirection_, steps);
    DataSheetDirty = true;
    showTime();
}

void frmRecordPlay::AresBtnAdd_Press()
{
    speedDirection_ = +1;
    speedTicks_ = 0;
    stepTime(1);
    TimerSpeed->start();
}

void frmRecordPlay::AresBtnSub_Press()
{
    speedDirection_ = -1;
    speedTicks_ = 0;
    stepTime(1);
    TimerSpeed->start();
}

void frmRecordPlay::AresBtn_Release()
{
    TimerSpeed->stop();
    speedDirection_ = 0;
}

void frmRecordPlay::TimerSpeed_Timer()
{
    stepTime(HeldButtonSteps(++speedTicks_));
}

void frmRecordPlay::AresBtnDefaultTime_Click()
{
    record().FrameInterval = DefaultFrameInterval;
    DataSheetDirty = true;
    showTime();
}

void frmRecordPlay::SetBackground(bool white)
{
    if (record().WhiteBackground != white) DataSheetDirty = true;
    record().WhiteBackground = white;
    drawPicture();
}

void frmRecordPlay::FlatBttn1_Click()
{
    ExportPicture(picture());
}

void frmRecordPlay::FlatBttn2_Click()
{
    PrintPictureWindow(*this, PageOutput::Print, this);
}

void frmRecordPlay::FlatBttn3_Click()
{
    PrintPictureWindow(*this, PageOutput::Preview, this);
}

QImage frmRecordPlay::picture() const
{
    return RecordWavePic->image();
}

bool frmRecordPlay::clockRunning() const
{
    return TimerInterval->isActive();
}

void frmRecordPlay::placePicture()
{
    zoom_ = BestFitZoom(RecordBackPic->contentsRect().size());
    const QSize size = RecordPictureSize(zoom_);
    const QRect inner = RecordBackPic->contentsRect();
    RecordWavePic->setGeometry(inner.x() + (inner.width() - size.width()) / 2,
                               inner.y() + (inner.height() - size.height()) / 2, size.width(), size.height());
    drawPicture();
}

void frmRecordPlay::drawPicture()
{
    RecordWavePic->setImage(RecordFrameImage(record(), zoom_));
}

void frmRecordPlay::drawForPrint(double zoom, QSize)
{
    RecordWavePic->setImage(RecordFrameImage(record(), zoom));
}

QString frmRecordPlay::printLegend() const
{
    return record().StatusText;
}

void frmRecordPlay::restoreAfterPrint(double zoom)
{
    zoom_ = zoom;
    drawPicture();
}
