// frmOpenWaveform: loading a file, Save to CSV, bitmap export, print and preview.
#include "stored/frmOpenWaveform.h"

#include "platform/platform.h"
#include "document/sheetstate.h"
#include "stored/memorywavecsv.h"
#include "stored/storedfiledialogs.h"
#include "stored/wfmfile.h"
#include "text/language.h"
#include "text/messages.h"
#include "wave/frmWavePicture.h"
#include "wave/pictureexport.h"

#include <QFrame>
#include <QLabel>

namespace {

// Rows between two turns of the event loop: often enough for a live window,
// rare enough that a file of millions of rows isn't slowed by it.
constexpr qint64 RowsPerTurn = 4096;

FileDialogRequest csvDialogRequest(int language)
{
    if (IsChinese(language))
        return {
            QStringLiteral("保存到CSV文件"), QtFileFilter(QStringLiteral("CSV文件 (*.csv)|*.csv")), {}, {}};
    return {
        QStringLiteral("Save To CSV file"), QtFileFilter(QStringLiteral("CSV Files (*.csv)|*.csv")), {}, {}};
}

} // namespace

void LoadMemoryWave(int window, bool fromFile)
{
    if (window < 0 || window >= MemoryWaveSlotCount) return;
    MemoryWaveSlot& slot = MemoryWaveSlots[size_t(window)];
    QString path;
    if (fromFile) {
        path = OpenFileDialog(MemoryWaveDialogRequest(Language));
        if (path.isEmpty()) return;
        slot.HasData = false;
        QString error;
        const QByteArray bytes = ReadWfmFile(path, &error);
        if (!error.isEmpty()) {
            MsgBox(error, vbCritical);
            return;
        }
        const WfmLoadResult result = LoadMemoryWaveBytes(bytes, slot, ModelBandwidthCode);
        if (!result.accepted) {
            MsgBox(result.message, vbExclamation);
            return;
        }
    } else {
        SettleMemoryWave(slot);
    }
    frmOpenWaveform* form = MemoryWaveWindowOf(window);
    if (slot.HasData) {
        if (fromFile) slot.FileName = path;
        if (form)
            form->setWindowTitle(slot.Name + QStringLiteral("  (") + slot.FileName + QStringLiteral(")"));
    }
    DataSheetDirty = true;
    if (form) form->ShowLoaded();
}

void frmOpenWaveform::FlatBttn1_Click()
{
    close();
}

void frmOpenWaveform::FlatBttn3_Click()
{
    const MemoryWaveSlot& s = record();
    if (!MemoryWaveCsvAllowed(s)) {
        MsgBox(MsgWaveData, vbExclamation);
        return;
    }
    const QString path = SaveFileDialog(csvDialogRequest(Language));
    if (path.isEmpty()) return;
    busy_ = true;
    showProgress(true, 0);
    const QString error = WriteMemoryWaveCsv(s, path, [this](qint64 row, qint64 rows) {
        if (row % RowsPerTurn != 0) return;
        showProgress(true, int(row * 100 / std::max<qint64>(rows, 1)));
        DoEvents();
    });
    busy_ = false;
    showProgress(false);
    if (!error.isEmpty()) MsgBox(error, vbCritical);
}

void frmOpenWaveform::showProgress(bool shown, int percent)
{
    LblRefreshText->setText(QStringLiteral("CSV"));
    LblRefreshValue->setText(QString::number(percent) + QLatin1Char('%'));
    framRefresh->setVisible(shown);
    if (shown) framRefresh->raise();
}

void frmOpenWaveform::FlatBttn4_Click()
{
    ExportPicture(picture());
}

void frmOpenWaveform::cmdPrint_Click()
{
    PrintPictureWindow(*this, PageOutput::Print, this);
}

void frmOpenWaveform::cmdPreview_Click()
{
    PrintPictureWindow(*this, PageOutput::Preview, this);
}

void frmOpenWaveform::drawForPrint(double zoom, QSize size)
{
    printing_ = true;
    PictureZoom = zoom;
    MemoryWavePic->resize(size);
    RescaleCursors(cursors_, oldPicSize_, size);
    oldPicSize_ = size;
    DrawPicture();
}

QString frmOpenWaveform::printLegend() const
{
    return record().FileName;
}

void frmOpenWaveform::restoreAfterPrint(double zoom)
{
    printing_ = false;
    PictureZoom = zoom;
    Form_Resize();
}
