// The wave window's refresh: one reading, or readings at an interval until the
// button is pressed again; never two readings at once.
#include "wave/frmWave.h"

#include "acquire/frmPrgress.h"
#include "acquire/operation.h"
#include "acquire/waverecord.h"
#include "text/language.h"
#include "text/messages.h"
#include "frame/softwaresettings.h"
#include "link/linkstate.h"
#include "platform/platform.h"
#include "sheet/sheetstate.h"
#include "wave/waverefresh.h"

#include <QEventLoop>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

namespace {

// Between the checks of the interval loop the event loop runs this long, so the
// loop neither spins nor delays a reading noticeably.
constexpr int LoopPauseMs = 5;

} // namespace

void frmWave::keyPressEvent(QKeyEvent* event)
{
    const Qt::KeyboardModifiers held =
        event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
    if (event->key() == Qt::Key_F5 && held == Qt::NoModifier) {
        cmdRefresh_Click();
        return;
    }
    QWidget::keyPressEvent(event);
}

void frmWave::cmdRefresh_Click()
{
    if (RefreshIsHeldOff()) return;
    QPointer<frmWave> alive(this);
    AutoRefreshRunning = false;
    stopRequest_ = true;
    if (!record().AutoRefreshing) {
        RefreshingWaveSlot = slot_;
        if (!Connecting) {
            if (!Connected)
                MsgBox(MsgConnectFirst, vbExclamation);
            else if (RefreshType == RefreshSingle)
                runSingleRefresh();
            else
                runIntervalRefresh();
        }
    }
    if (alive && stopRequest_) endRefresh();
}

void frmWave::runSingleRefresh()
{
    cmdRefresh->setEnabled(false);
    refreshRunning_ = true;
    LoadData();
    refreshRunning_ = false;
}

// Reads at once, then each time Timer2 has ticked once more; a press of the
// button (or the link going) ends the loop after the reading under way.
void frmWave::runIntervalRefresh()
{
    QPointer<frmWave> alive(this);
    setRefreshImages(true);
    record().AutoRefreshing = true;
    AutoRefreshRunning = true;
    LoadData();
    if (!alive) return;
    Timer2->start(RefreshInterval);
    while (AutoRefreshRunning && Connected && !Connecting) {
        if (RefreshTick == RefreshInterval) {
            RefreshTick = 0;
            Timer2->stop();
            LoadData();
            if (!alive) return;
            Timer2->start(RefreshInterval);
        }
        if (!waitBetweenReads()) return;
    }
}

// One short turn of the event loop; false when the window went meanwhile.
bool frmWave::waitBetweenReads()
{
    QPointer<frmWave> alive(this);
    DoEvents();
    if (!alive) return false;
    QEventLoop pause;
    QTimer::singleShot(LoopPauseMs, &pause, &QEventLoop::quit);
    pause.exec();
    return bool(alive);
}

void frmWave::endRefresh()
{
    setRefreshImages(false);
    record().AutoRefreshing = false;
    AutoRefreshRunning = false;
    Timer2->stop();
    cmdRefresh->setEnabled(true);
}

void frmWave::Timer2_Timer()
{
    RefreshTick = Timer2->interval();
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
    CurrentWaveIndex = slot_;
    ProgressPercent = 1;
    ShowRefreshProgress(true);
    const bool ran = frmPrgress::RunReading(OperationWaveWindow, caption, this);
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
