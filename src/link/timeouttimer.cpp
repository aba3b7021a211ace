#include "link/timeouttimer.h"

#include "link/linkstate.h"

namespace {
constexpr int TickMs = 100;
}

void TimeOutTimerTick()
{
    ++ReplyTicks;
    ++LinkTicks;
}

TimeOutTimer::TimeOutTimer(QObject* parent) : QObject(parent)
{
    timer_.setInterval(TickMs);
    connect(&timer_, &QTimer::timeout, this, &TimeOutTimerTick);
    timer_.start();
}

void TimeOutTimer::setEnabled(bool enabled)
{
    if (enabled)
        timer_.start();
    else
        timer_.stop();
}
