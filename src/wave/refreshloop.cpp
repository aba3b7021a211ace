#include "wave/refreshloop.h"

#include "link/linkstate.h"
#include "platform/platform.h"
#include "settings/softwaresettings.h"
#include "text/messages.h"
#include "wave/waverefresh.h"

#include <QEventLoop>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>

namespace {

// Between the checks of the interval loop the event loop runs this long, so the
// loop neither spins nor delays a reading noticeably.
constexpr int LoopPauseMs = 5;

} // namespace

bool IsRefreshKey(const QKeyEvent* event)
{
    const Qt::KeyboardModifiers held =
        event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
    return event->key() == Qt::Key_F5 && held == Qt::NoModifier;
}

RefreshLoop::RefreshLoop(QTimer* timer, Hooks hooks, QObject* parent)
    : QObject(parent), timer_(timer), hooks_(std::move(hooks))
{
    connect(timer_, &QTimer::timeout, this, [this] { RefreshTick = timer_->interval(); });
}

void RefreshLoop::press()
{
    if (RefreshIsHeldOff()) return;
    QPointer<RefreshLoop> alive(this);
    AutoRefreshRunning = false;
    stopRequest_ = true;
    if (!hooks_.autoRefreshing()) {
        if (hooks_.started) hooks_.started();
        if (!Connecting) {
            if (!Connected)
                MsgBox(MsgConnectFirst, vbExclamation);
            else if (RefreshType == RefreshSingle)
                runSingle();
            else
                runInterval();
        }
    }
    if (alive && stopRequest_) end();
}

void RefreshLoop::stop()
{
    if (!hooks_.autoRefreshing()) return;
    AutoRefreshRunning = false;
    hooks_.autoRefreshing() = false;
    timer_->stop();
}

void RefreshLoop::runSingle()
{
    QPointer<RefreshLoop> alive(this);
    hooks_.enableButton(false);
    busy_ = true;
    hooks_.load();
    if (alive) busy_ = false;
}

// Reads at once, then each time the clock has ticked once more; a press of the
// button (or the link going) ends the loop after the reading under way.
void RefreshLoop::runInterval()
{
    QPointer<RefreshLoop> alive(this);
    hooks_.showStop(true);
    hooks_.autoRefreshing() = true;
    AutoRefreshRunning = true;
    hooks_.load();
    if (!alive) return;
    timer_->start(RefreshInterval);
    while (AutoRefreshRunning && Connected && !Connecting) {
        if (RefreshTick == RefreshInterval) {
            RefreshTick = 0;
            timer_->stop();
            hooks_.load();
            if (!alive) return;
            timer_->start(RefreshInterval);
        }
        if (!pause()) return;
    }
}

// One short turn of the event loop; false when the owner went meanwhile.
bool RefreshLoop::pause()
{
    QPointer<RefreshLoop> alive(this);
    DoEvents();
    if (!alive) return false;
    QEventLoop wait;
    QTimer::singleShot(LoopPauseMs, &wait, &QEventLoop::quit);
    wait.exec();
    return bool(alive);
}

void RefreshLoop::end()
{
    hooks_.showStop(false);
    hooks_.autoRefreshing() = false;
    AutoRefreshRunning = false;
    timer_->stop();
    hooks_.enableButton(true);
}
