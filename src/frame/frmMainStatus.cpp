// frmMain: the status bar with its two lamps, the four timers and the serial events.

#include "frame/frmMain.h"

#include "frame/commstatus.h"
#include "link/serialtransport.h"
#include "link/timeouttimer.h"

#include <QSerialPort>

#include <QLabel>
#include <QPainter>
#include <QStatusBar>
#include <QTimer>

namespace {

QPixmap lampPicture(const QColor& colour)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colour.darker(180));
    painter.setBrush(colour);
    painter.drawEllipse(QRectF(2, 2, 12, 12));
    return pixmap;
}

QLabel* makeLamp(QWidget* parent, const char* name, const QColor& colour)
{
    auto* lamp = new QLabel(parent);
    lamp->setObjectName(QString::fromLatin1(name));
    lamp->setPixmap(lampPicture(colour));
    lamp->setFixedSize(16, 16);
    return lamp;
}

QTimer* makeTimer(QObject* parent, const char* name, int interval)
{
    auto* timer = new QTimer(parent);
    timer->setObjectName(QString::fromLatin1(name));
    timer->setInterval(interval);
    return timer;
}

constexpr int LampRightMargin = 24; // keeps the lamps clear of the size grip

} // namespace

void frmMain::createStatusBar()
{
    sbrStatus = statusBar();
    sbrStatus->setObjectName("sbrStatus");
    StatusPanel = new QLabel(StatusPanelPrefix, sbrStatus);
    StatusPanel->setObjectName("Status");
    sbrStatus->addWidget(StatusPanel, 1);
    // The lamps sit on the bar itself, both at one spot, one shown at a time.
    picLED_ON = makeLamp(sbrStatus, "picLED_ON", QColor(0, 220, 0));
    picLED_OFF = makeLamp(sbrStatus, "picLED_OFF", QColor(150, 0, 0));
    ShowLamp(false);
    connect(&MSComm1(), &QSerialPort::errorOccurred, this, [this](QSerialPort::SerialPortError error) {
        if (const int code = CommCodeOfSerialError(error)) MSComm1_OnComm(code);
    });
}

void frmMain::createTimers()
{
    CommTimer = makeTimer(this, "CommTimer", 2000);
    TimerInit = makeTimer(this, "TimerInit", 1);
    TimeOutTimer = makeTimer(this, "TimeOutTimer", 100);
    CommBusyTimer = makeTimer(this, "CommBusyTimer", 200);
    connect(CommTimer, &QTimer::timeout, this, &frmMain::CommTimer_Timer);
    connect(TimerInit, &QTimer::timeout, this, &frmMain::TimerInit_Timer);
    connect(TimeOutTimer, &QTimer::timeout, this, &frmMain::TimeOutTimer_Timer);
    connect(CommBusyTimer, &QTimer::timeout, this, &frmMain::CommBusyTimer_Timer);
}

void frmMain::ShowLamp(bool connected)
{
    picLED_ON->setVisible(connected);
    picLED_OFF->setVisible(!connected);
}

// Both lamps move to the same left edge at the right end of the bar.
void frmMain::placeLamps()
{
    const int left = sbrStatus->width() - picLED_ON->width() - LampRightMargin;
    const int top = (sbrStatus->height() - picLED_ON->height()) / 2;
    picLED_ON->move(left, top);
    picLED_OFF->move(left, top);
    picLED_ON->raise();
    picLED_OFF->raise();
}

void frmMain::MSComm1_OnComm(int code)
{
    const QString text = CommStatusText(code);
    if (text.isNull()) return;
    StatusPanel->setText(text);
    CommTimer->start();
}

void frmMain::CommTimer_Timer()
{
    StatusPanel->setText(StatusPanelPrefix);
    CommTimer->stop();
}

void frmMain::TimeOutTimer_Timer()
{
    TimeOutTimerTick();
}

// Kept running from load as it always was; it has nothing to do.
void frmMain::CommBusyTimer_Timer() {}
