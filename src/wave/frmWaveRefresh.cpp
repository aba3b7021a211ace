// The wave window's refresh through the loop the reading windows share, and
// its reading.
#include "wave/frmWave.h"

#include "acquire/frmPrgress.h"
#include "acquire/operation.h"
#include "acquire/waverecord.h"
#include "document/sheetstate.h"
#include "platform/platform.h"
#include "text/language.h"
#include "wave/refreshloop.h"
#include "wave/waverefresh.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

void frmWave::keyPressEvent(QKeyEvent* event)
{
    if (IsRefreshKey(event)) {
        cmdRefresh_Click();
        return;
    }
    QWidget::keyPressEvent(event);
}

void frmWave::cmdRefresh_Click()
{
    refreshLoop_->press();
}

void frmWave::makeRefreshLoop()
{
    RefreshLoop::Hooks hooks;
    hooks.load = [this] { LoadData(); };
    hooks.autoRefreshing = [this]() -> bool& { return record().AutoRefreshing; };
    hooks.showStop = [this](bool stopPair) { setRefreshImages(stopPair); };
    hooks.enableButton = [this](bool on) { cmdRefresh->setEnabled(on); };
    hooks.started = [this] { RefreshingWaveSlot = slot_; };
    refreshLoop_ = new RefreshLoop(Timer2, std::move(hooks), this);
}

void frmWave::setRefreshImages(bool stopPair)
{
    cmdRefresh->setIcon(QIcon((stopPair ? picStopOver : picRefOver)->pixmap()));
}

void frmWave::LoadData()
{
    const QString caption = WaveLoadingCaption(Language);
    const WaveRecord& r = record();
    if (!r.ShowCH1 && !r.ShowCH2 && !r.ShowCH3 && !r.ShowCH4) return;
    QPointer<frmWave> alive(this);
    ProgressPercent = 1;
    ShowRefreshProgress(true);
    const bool ran = frmPrgress::RunReading({OperationWaveWindow, slot_}, caption, this);
    if (!alive) return;
    ShowRefreshProgress(false);
    if (!ran) return;
    WaveRecords[slot_].HasData = true;
    DataSheetDirty = true;
    LblRefreshText->setText(record().DateText);
    cmdRefresh->setEnabled(true);
    Form_Resize();
}

void frmWave::ShowRefreshProgress(bool visible)
{
    if (visible) {
        LblRefreshText->setText(Now().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")));
        ShowRefreshPercent(ProgressPercent);
        paintProgressStrip();
        placeProgressStrip();
    }
    picRefreshProgress->setVisible(visible);
}

void frmWave::ShowRefreshPercent(int percent)
{
    LblRefreshValue->setText(QString::number(percent) + QLatin1Char('%'));
    LblRefreshValue->repaint();
}
