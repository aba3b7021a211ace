#include "mainwindowfixture.h"

#include "frame/commstatus.h"
#include "link/linkstate.h"
#include "link/serialtransport.h"

#include <QDockWidget>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QSerialPort>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>

namespace {

class StatusTest : public MainWindowTest {
  protected:
    void SetUp() override
    {
        MainWindowTest::SetUp();
        load();
    }
    QString panel() const { return find<QLabel>("Status")->text(); }
};

// The timers' intervals and states after loading, and what the port's events
// leave in the panel: an error shows for the comm timer's span.
TEST_F(StatusTest, TimersAndPortEventsDriveThePanel)
{
    struct TimerState {
        const char* name;
        int interval;
        bool active;
    };
    for (const TimerState& t :
         {TimerState{"CommTimer", 2000, false}, TimerState{"TimerInit", 1, false},
          TimerState{"TimeOutTimer", 100, true}, TimerState{"CommBusyTimer", 200, true}}) {
        EXPECT_EQ(find<QTimer>(t.name)->interval(), t.interval) << t.name;
        EXPECT_EQ(find<QTimer>(t.name)->isActive(), t.active) << t.name;
    }
    ReplyTicks = LinkTicks = 0;
    window->TimeOutTimer_Timer();
    window->TimeOutTimer_Timer();
    EXPECT_EQ(ReplyTicks, 2);
    EXPECT_EQ(LinkTicks, 2);

    auto* timer = find<QTimer>("CommTimer");
    EXPECT_EQ(panel(), "Status: ");
    window->MSComm1_OnComm(comEvReceive);
    window->MSComm1_OnComm(comEvSend);
    Q_EMIT MSComm1().errorOccurred(QSerialPort::NoError);
    EXPECT_EQ(panel(), "Status: ");
    EXPECT_FALSE(timer->isActive());
    window->MSComm1_OnComm(comEventFrame);
    EXPECT_EQ(panel(), "Status: Framing Error");
    EXPECT_TRUE(timer->isActive());
    window->CommTimer_Timer();
    EXPECT_EQ(panel(), "Status: ");
    EXPECT_FALSE(timer->isActive());
    Q_EMIT MSComm1().errorOccurred(QSerialPort::ReadError);
    EXPECT_EQ(panel(), "Status: Overrun Error");
}

TEST_F(StatusTest, OneLampAtATimeFollowsTheLinkAtTheEndOfTheBar)
{
    auto* on = find<QLabel>("picLED_ON");
    auto* off = find<QLabel>("picLED_OFF");
    EXPECT_TRUE(off->isVisible());
    EXPECT_FALSE(on->isVisible());
    instrument->resources = {"USB0::0x1::0x2::SN::INSTR"};
    find("mnuToolsConnect")->trigger();
    ASSERT_TRUE(Connected);
    EXPECT_TRUE(on->isVisible());
    EXPECT_FALSE(off->isVisible());
    find("mnuToolsDisconnect")->trigger();
    EXPECT_FALSE(Connected);
    EXPECT_FALSE(on->isVisible());
    EXPECT_TRUE(off->isVisible());
    // Both stand together at the end of the bar.
    for (int width : {500, 900}) {
        window->resize(width, 500);
        QCoreApplication::processEvents();
        const int barWidth = find<QStatusBar>("sbrStatus")->width();
        EXPECT_EQ(on->x(), off->x());
        EXPECT_EQ(on->y(), off->y());
        EXPECT_GT(on->x(), barWidth - 60) << width;
        EXPECT_LE(on->geometry().right(), barWidth) << width;
    }
}

TEST_F(StatusTest, ViewEntriesToggleTheirBarsAndPanesAndTheWindowMenuTiles)
{
    EXPECT_TRUE(pane("DataSheet")->isVisible());
    EXPECT_TRUE(pane("Controller")->isVisible());
    EXPECT_TRUE(find("mnuViewController")->isChecked());
    EXPECT_TRUE(find("mnuViewDataBrowser")->isChecked());
    find("mnuViewController")->trigger();
    EXPECT_FALSE(pane("Controller")->isVisible());
    EXPECT_FALSE(find("mnuViewController")->isChecked());
    window->findChild<QToolBar*>("tbToolBar")->findChild<QAction*>("Controller")->trigger();
    EXPECT_TRUE(pane("Controller")->isVisible());
    EXPECT_TRUE(find("mnuViewController")->isChecked());
    window->HideDataSheet();
    EXPECT_FALSE(pane("DataSheet")->isVisible());
    EXPECT_FALSE(find("mnuViewDataBrowser")->isChecked());
    find("mnuViewStatusBar")->trigger();
    EXPECT_FALSE(find<QStatusBar>("sbrStatus")->isVisible());
    find("mnuViewToolbar")->trigger();
    EXPECT_FALSE(find<QToolBar>("tbToolBar")->isVisible());

    // The window menu tiles the child windows.
    QMdiArea* area = window->mdiArea();
    QMdiSubWindow* first = area->addSubWindow(new QWidget);
    QMdiSubWindow* second = area->addSubWindow(new QWidget);
    first->show();
    second->show();
    find("mnuWindowTileVertical")->trigger();
    EXPECT_EQ(first->y(), second->y());
    EXPECT_EQ(first->geometry().right() + 1, second->x());
    find("mnuWindowTileHorizontal")->trigger();
    EXPECT_EQ(first->x(), second->x());
    EXPECT_EQ(first->geometry().bottom() + 1, second->y());
    EXPECT_EQ(first->width(), area->viewport()->width());
}

} // namespace
