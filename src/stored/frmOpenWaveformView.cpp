// frmOpenWaveform: the picture, its zoom and scroll bars, the steppers and the cursors.
#include "stored/frmOpenWaveform.h"

#include "document/sheetstate.h"
#include "platform/platform.h"
#include "stored/memorysteps.h"
#include "stored/memoryviewdraw.h"
#include "text/language.h"
#include "text/messages.h"
#include "wave/cursordrawing.h"
#include "wave/cursormouse.h"
#include "wave/frmWavePicture.h"
#include "wave/qimagesurface.h"
#include "wave/wavecolors.h"
#include "wave/wavelayout.h"
#include "wave/wavezoom.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QTimer>

namespace {

constexpr int StepRepeatMs = 200;
constexpr int PaneGap = 4;

bool isTimeTarget(int target)
{
    return target >= StepTimeSingle && target <= StepTimeB;
}

} // namespace

CursorGeometry frmOpenWaveform::geometry() const
{
    return {PictureZoom, record().IsAlternation};
}

void frmOpenWaveform::ShowLoaded()
{
    MemoryWaveSlot& s = record();
    // The Y cursors follow the screen into and out of its two halves.
    if (s.IsAlternation != wasAlternation_) {
        const QSizeF full = MemoryWavePic->size();
        const QSizeF half(full.width(), full.height() / 2);
        RescaleCursors(cursors_, s.IsAlternation ? full : half, s.IsAlternation ? half : full);
        wasAlternation_ = s.IsAlternation;
    }
    ComputeMemoryWindows(s);
    screen_ = MemoryWaveScreen{};
    ArrangeZoomPanel();
    RefreshAll();
    Form_Resize();
}

void frmOpenWaveform::ArrangeZoomPanel()
{
    const MemoryWaveSlot& s = record();
    framTimeDiv->setVisible(!s.IsAlternation);
    framAltTimeDiv->setVisible(s.IsAlternation);
    // Hidden rows take no room in the frame's layout, so the rows stack without gaps.
    for (int n = 0; n < 4; ++n)
        voltRows[size_t(n)]->setVisible(s.ChanEnabled[size_t(n)]);
    FillZoomPanelValues();
}

void frmOpenWaveform::FillZoomPanelValues()
{
    const MemoryWaveSlot& s = record();
    for (int n = 0; n < 4; ++n)
        txtCHDiv[size_t(n)]->setText(MemoryVoltText(s.ChanVoltDiv[size_t(n)]));
    txtTimeDiv->setText(MemoryTimeText(s.TimeDiv));
    txtCH1TimeDiv->setText(MemoryTimeText(s.TimeDivA));
    txtCH2TimeDiv->setText(MemoryTimeText(s.TimeDivB));
}

void frmOpenWaveform::RefreshAll()
{
    RefreshMemoryChannels(record(), screen_);
}

void frmOpenWaveform::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (!printing_) Form_Resize();
}

void frmOpenWaveform::Form_Resize()
{
    side_->setGeometry(0, 0, side_->width(), std::max(height(), side_->sizeHint().height()));
    const int left = side_->width() + PaneGap;
    const QRect pane(left, PaneGap, std::max(40, width() - left - PaneGap - HScroll->sizeHint().height()),
                     std::max(40, height() - 2 * PaneGap - HScroll->sizeHint().height()));
    BackPic->setGeometry(pane);
    const QSize picture = PictureSizeAt(PictureZoom);
    MemoryWavePic->resize(picture);
    RescaleCursors(cursors_, oldPicSize_, picture);
    oldPicSize_ = picture;
    const int frame = BackPic->frameWidth();
    const int overW = picture.width() - (pane.width() - 2 * frame);
    const int overH = picture.height() - (pane.height() - 2 * frame);
    HScrollUnit = overW > 0 ? overW / 100.0 : 0;
    VScrollUnit = overH > 0 ? overH / 100.0 : 0;
    HScroll->setGeometry(pane.left(), pane.bottom() + 1, pane.width(), HScroll->sizeHint().height());
    VScroll->setGeometry(pane.right() + 1, pane.top(), VScroll->sizeHint().width(), pane.height());
    HScroll->setVisible(overW > 0);
    VScroll->setVisible(overH > 0);
    MemoryWavePic->move(ScrolledPicturePlace(overW > 0 ? HScroll->value() : 0,
                                             overH > 0 ? VScroll->value() : 0, HScrollUnit, VScrollUnit) +
                        QPoint(frame, frame));
    framRefresh->move(ProgressStripPlace(MemoryWavePic->pos(), PictureZoom, framRefresh->size()));
    if (!firstLayout_) DrawPicture();
}

void frmOpenWaveform::DrawPicture()
{
    const MemoryWaveSlot& s = record();
    QPalette pane = BackPic->palette();
    pane.setColor(QPalette::Window, PaletteFor(s.ColorOn).background);
    BackPic->setPalette(pane);
    QImageSurface surface(MemoryWavePic->size());
    DrawMemoryWave(surface, PictureZoom, s, screen_);
    cleanPicture_ = surface.image().copy();
    showCursors();
}

void frmOpenWaveform::showCursors()
{
    MemoryWavePic->setImage(
        DrawCursors(cleanPicture_, cursors_, MemoryReadoutInput(record(), PictureZoom, Language)));
}

QImage frmOpenWaveform::picture() const
{
    return MemoryWavePic->image();
}

void frmOpenWaveform::StepperPress(int target, int direction)
{
    DataSheetDirty = true;
    StepTarget = uint8_t(target);
    StepDirection = int16_t(direction < 0 ? -1 : 1);
    stepOnce();
    Timer2->start(StepRepeatMs);
}

void frmOpenWaveform::Timer2_Timer()
{
    stepOnce();
}

void frmOpenWaveform::stepOnce()
{
    StepMemoryValue(record(), StepTarget, StepDirection, ModelBandwidthCode);
    FillZoomPanelValues();
}

void frmOpenWaveform::StepperRelease()
{
    Timer2->stop();
    if (isTimeTarget(StepTarget)) ComputeMemoryWindows(record());
    RefreshAll();
    if (!busy_) DrawPicture();
}

void frmOpenWaveform::Reset_Click()
{
    RestoreLoadedSettings(record());
    DataSheetDirty = true;
    ComputeMemoryWindows(record());
    ArrangeZoomPanel();
    RefreshAll();
    DrawPicture();
}

void frmOpenWaveform::keyPressEvent(QKeyEvent* event)
{
    const bool keypad = event->modifiers() & Qt::KeypadModifier;
    const bool ctrl = event->modifiers() & Qt::ControlModifier;
    if (ctrl && keypad && (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Minus)) {
        StepperPress(StepTimeSingle, event->key() == Qt::Key_Plus ? +1 : -1);
        StepperRelease();
        return;
    }
    QWidget::keyPressEvent(event);
}

void frmOpenWaveform::ZoomCombo_Validate()
{
    // "150" and "150%" alike.
    QString text = ZoomCombo->currentText().trimmed();
    if (text.endsWith(QLatin1Char('%'))) text.chop(1);
    const std::optional<double> typed = ParseZoomText(text + QLatin1Char('%'));
    if (typed)
        PictureZoom = LimitZoom(*typed);
    else
        MsgBox(MsgZoomFactor, vbExclamation);
    ZoomCombo->setEditText(ZoomText(PictureZoom));
    Form_Resize();
}

void frmOpenWaveform::GridCheck_Click()
{
    record().GridOn = GridCheck->isChecked();
    DataSheetDirty = true;
    DrawPicture();
}

void frmOpenWaveform::OptionColor_Click(int index)
{
    record().ColorOn = index == 0;
    DataSheetDirty = true;
    DrawPicture();
}

void frmOpenWaveform::ChkCursorX_Click()
{
    cursors_.CursorXShown = ChkCursorX->isChecked();
    showCursors();
}

void frmOpenWaveform::ChkCursorY_Click()
{
    cursors_.CursorYShown = ChkCursorY->isChecked();
    showCursors();
}

void frmOpenWaveform::HScroll_Change()
{
    const int frame = BackPic->frameWidth();
    MemoryWavePic->move(ScrolledPicturePlace(HScroll->value(), 0, HScrollUnit, 0).x() + frame,
                        MemoryWavePic->y());
}

void frmOpenWaveform::VScroll_Change()
{
    const int frame = BackPic->frameWidth();
    MemoryWavePic->move(MemoryWavePic->x(),
                        ScrolledPicturePlace(0, VScroll->value(), 0, VScrollUnit).y() + frame);
}

void frmOpenWaveform::MemoryWavePic_MouseDown(QPointF at)
{
    PressCursors(cursors_, at, geometry());
}

void frmOpenWaveform::MemoryWavePic_MouseMove(QPointF at)
{
    const bool shown = cursors_.CursorXShown || cursors_.CursorYShown;
    if (shown && DragCursors(cursors_, at) && !firstLayout_) showCursors();
    MemoryWavePic->setCursor(PointerCursor(PointerShapeAt(cursors_, at, geometry())));
}

void frmOpenWaveform::MemoryWavePic_MouseUp()
{
    ReleaseCursors(cursors_);
}
