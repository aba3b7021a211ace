// The wave window's picture: the resize routine (its only redraw), zoom, view
// options, scroll bars and the cursors over the picture.
#include "wave/frmWave.h"

#include "acquire/waverecord.h"
#include "document/sheetstate.h"
#include "link/devicefacts.h"
#include "platform/platform.h"
#include "text/language.h"
#include "text/messages.h"
#include "wave/cursordrawing.h"
#include "wave/cursormouse.h"
#include "wave/frmWavePicture.h"
#include "wave/qimagesurface.h"
#include "wave/wavecanvas.h"
#include "wave/wavecolors.h"
#include "wave/wavelayout.h"
#include "wave/wavepicture.h"
#include "wave/wavezoom.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QScrollBar>

void frmWave::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    SidePanel->setGeometry(0, 0, paneLeft(), height());
    if (!printing_) Form_Resize();
}

void frmWave::Form_Resize()
{
    HScroll->hide();
    VScroll->hide();
    const WaveRecord& r = record();
    const WaveViewLayout layout = LayoutWaveView(
        {size(), BackPic->geometry(), BackPic->frameWidth(), Zoom, r.BestFit, firstRun_, paneLeft()});
    BackPic->setGeometry(layout.pane);
    if (r.BestFit) {
        Zoom = layout.zoom;
        ZoomCombo->setEnabled(false);
        ZoomCombo->setEditText(ZoomText(Zoom));
    }
    if (layout.picture) WavePic->resize(*layout.picture);
    placeScrollBars(layout);
    placeProgressStrip();
    RescaleCursors(cursors_, oldPicSize_, WavePic->size());
    oldPicSize_ = WavePic->size();
    if (!firstRun_) drawPicture();
}

void frmWave::placeScrollBars(const WaveViewLayout& layout)
{
    HScrollUnit = layout.hScrollShown ? layout.hScrollUnit : 0;
    VScrollUnit = layout.vScrollShown ? layout.vScrollUnit : 0;
    HScroll->setGeometry(layout.hScroll);
    VScroll->setGeometry(layout.vScroll);
    HScroll->setVisible(layout.hScrollShown);
    VScroll->setVisible(layout.vScrollShown);
    const QPoint scrolled =
        ScrolledPicturePlace(layout.hScrollShown ? HScroll->value() : 0,
                             layout.vScrollShown ? VScroll->value() : 0, HScrollUnit, VScrollUnit);
    const int frame = BackPic->frameWidth();
    WavePic->move(scrolled + QPoint(frame, frame));
}

void frmWave::placeProgressStrip()
{
    picRefreshProgress->move(ProgressStripPlace(WavePic->pos(), Zoom, picRefreshProgress->size()));
    picRefreshProgress->raise();
}

void frmWave::drawPicture()
{
    QPalette pane = BackPic->palette();
    pane.setColor(QPalette::Window, PaletteFor(record().ColorMode).background);
    BackPic->setPalette(pane);
    QImageSurface surface(WavePic->size());
    DrawWavePicture(surface, record(), Zoom);
    cleanPicture_ = surface.image().copy();
    showCursors();
}

void frmWave::showCursors()
{
    WavePic->setImage(DrawCursors(cleanPicture_, cursors_, ReadoutInputOf(record(), Zoom, Language)));
}

QImage frmWave::picture() const
{
    return WavePic->image();
}

void frmWave::ZoomCombo_Validate()
{
    if (!ZoomCombo->isEnabled()) return;
    const std::optional<double> typed = ParseZoomText(ZoomCombo->currentText());
    if (typed)
        Zoom = LimitZoom(*typed);
    else
        MsgBox(MsgZoomFactor, vbExclamation);
    ZoomCombo->setEditText(ZoomText(Zoom));
    Form_Resize();
}

void frmWave::BestFitChk_Click()
{
    record().BestFit = BestFitChk->isChecked();
    DataSheetDirty = true;
    ZoomCombo->setEnabled(!record().BestFit);
    if (record().BestFit) Form_Resize();
}

void frmWave::GridCheck_Click()
{
    record().GridOn = GridCheck->isChecked();
    DataSheetDirty = true;
    Form_Resize();
}

void frmWave::OptionColor_Click(int index)
{
    const bool colorMode = index == 0;
    const bool changed = record().ColorMode != colorMode;
    record().ColorMode = colorMode;
    if (changed) paintProgressStrip();
    Form_Resize();
}

// The strip takes the picture's colours: light texts on black, or black on white.
void frmWave::paintProgressStrip()
{
    const bool colorMode = record().ColorMode;
    QPalette strip = picRefreshProgress->palette();
    strip.setColor(QPalette::Window, colorMode ? Qt::black : Qt::white);
    picRefreshProgress->setPalette(strip);
    const QColor text = colorMode ? QColor(255, 255, 192) : QColor(Qt::black);
    const QColor value = colorMode ? QColor(0, 255, 255) : QColor(Qt::black);
    QPalette textPalette = LblRefreshText->palette();
    textPalette.setColor(QPalette::WindowText, text);
    LblRefreshText->setPalette(textPalette);
    QPalette valuePalette = LblRefreshValue->palette();
    valuePalette.setColor(QPalette::WindowText, value);
    LblRefreshValue->setPalette(valuePalette);
    picRefreshProgress->update();
}

void frmWave::ChkCursorX_Click()
{
    cursors_.CursorXShown = ChkCursorX->isChecked();
    Form_Resize();
}

void frmWave::ChkCursorY_Click()
{
    cursors_.CursorYShown = ChkCursorY->isChecked();
    Form_Resize();
}

void frmWave::HScroll_Change()
{
    const int frame = BackPic->frameWidth();
    WavePic->move(ScrolledPicturePlace(HScroll->value(), 0, HScrollUnit, 0).x() + frame, WavePic->y());
    placeProgressStrip();
}

void frmWave::VScroll_Change()
{
    const int frame = BackPic->frameWidth();
    WavePic->move(WavePic->x(), ScrolledPicturePlace(0, VScroll->value(), 0, VScrollUnit).y() + frame);
    placeProgressStrip();
}

void frmWave::WavePic_MouseDown(QPointF at)
{
    PressCursors(cursors_, at, {Zoom, record().SplitScreen});
}

void frmWave::WavePic_MouseMove(QPointF at)
{
    const CursorGeometry geometry{Zoom, record().SplitScreen};
    const bool shown = cursors_.CursorXShown || cursors_.CursorYShown;
    if (shown && DragCursors(cursors_, at) && !firstRun_) showCursors();
    WavePic->setCursor(PointerCursor(PointerShapeAt(cursors_, at, geometry)));
}

void frmWave::WavePic_MouseUp()
{
    ReleaseCursors(cursors_);
}
