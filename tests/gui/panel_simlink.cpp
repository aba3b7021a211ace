#include "panel_simlink.h"

#include "link/connection.h"
#include "link/linkstate.h"
#include "panel/frmV_Panel.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QMouseEvent>
#include <QThread>

namespace {

void sendMouse(QAbstractButton* button, QEvent::Type type)
{
    const QPointF centre = QRectF(button->rect()).center();
    const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent event(type, centre, button->mapToGlobal(centre), Qt::LeftButton, held, Qt::NoModifier);
    QCoreApplication::sendEvent(button, &event);
}

} // namespace

void PressButton(QAbstractButton* button)
{
    sendMouse(button, QEvent::MouseButtonPress);
}

void ReleaseButton(QAbstractButton* button)
{
    sendMouse(button, QEvent::MouseButtonRelease);
}

void ClickButton(QAbstractButton* button)
{
    PressButton(button);
    ReleaseButton(button);
}

void WaitEvents(int ms)
{
    const QDeadlineTimer deadline(ms);
    do {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QThread::msleep(2);
    } while (!deadline.hasExpired());
}

void PanelSimTest::connectSim(const QStringList& options)
{
    link = std::make_unique<SimLink>(options + QStringList{"--pty", "off"});
    ASSERT_TRUE(link->started()) << link->errorString().toStdString();
    link->aim(LinkTransport::Hislip);
    ConnectDevice();
    ASSERT_TRUE(Connected);
    before = int(link->loggedCommands().size());
}

QStringList PanelSimTest::sentSinceConnect(int count) const
{
    const QDeadlineTimer deadline(5000);
    while (link->loggedCommands().size() < before + count && !deadline.hasExpired())
        WaitEvents(20);
    return link->loggedCommands().mid(before);
}

int PanelSimTest::loggedCount(const QString& command) const
{
    return int(link->loggedCommands().count(command));
}

QString PanelSimTest::hislipResource() const
{
    return "TCPIP0::127.0.0.1::hislip0," + QString::number(link->sim().port("hislip")) + "::INSTR";
}

bool PanelSimTest::runPanel(const std::function<void(frmV_Panel&)>& step, int timeoutMs)
{
    QPointer<frmV_Panel> panel = new frmV_Panel;
    panel->show();
    const QDeadlineTimer deadline(timeoutMs);
    bool timedOut = false;
    platform->onDoEvents = [&] {
        if (!panel || !panel->isVisible()) return;
        if (!deadline.hasExpired()) return step(*panel);
        timedOut = true;
        panel->close();
    };
    while (panel && !timedOut)
        WaitEvents(10);
    platform->onDoEvents = nullptr;
    WaitEvents(10);
    return !timedOut && !panel;
}
