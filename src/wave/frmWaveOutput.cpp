// The wave window's picture output: export to a bitmap, preview and print.
#include "wave/frmWave.h"

#include "acquire/readblocks.h"
#include "acquire/waverecord.h"
#include "link/linkstate.h"
#include "wave/frmWavePicture.h"
#include "wave/pictureexport.h"

#include <QComboBox>

void frmWave::cmdExport_Click()
{
    ExportPicture(picture());
}

void frmWave::cmdPreview_Click()
{
    PrintPictureWindow(*this, PageOutput::Preview, this);
}

void frmWave::cmdPrint_Click()
{
    PrintPictureWindow(*this, PageOutput::Print, this);
}

// The test button: one parameter block from the instrument.
void frmWave::Command1_Click()
{
    if (LinkGateOpen()) GetWaveParameter();
}

void frmWave::drawForPrint(double zoom, QSize size)
{
    printing_ = true;
    Zoom = zoom;
    WavePic->resize(size);
    RescaleCursors(cursors_, oldPicSize_, size);
    oldPicSize_ = size;
    if (!firstRun_) drawPicture();
}

QString frmWave::printTitle() const
{
    return windowTitle();
}

QString frmWave::printLegend() const
{
    return record().DateText;
}

void frmWave::restoreAfterPrint(double zoom)
{
    printing_ = false;
    Zoom = zoom;
    Form_Resize();
}
