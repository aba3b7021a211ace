// The instrument goes away under an open sheet and comes back: a refresh ends
// in one lost-link box and the lamp out, Tools > Connect to Oscilloscope finds
// the restarted instrument at the same address, the windows keep what they
// hold through the loss and the connect, and a refresh reads again.
#include "reading_simlink.h"

#include "acquire/waverecord.h"
#include "analysis/datarecord.h"
#include "frame/frmMain.h"
#include "link/linklamp.h"
#include "link/linkstate.h"
#include "sheet/frmSheetWindows.h"
#include "wave/frmWave.h"

#include <QAction>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QThread>

namespace {

class ReconnectWindows : public SimReadingTest {
  protected:
    ~ReconnectWindows() override
    {
        window.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void load()
    {
        window = std::make_unique<frmMain>();
        window->Form_Load();
        window->show();
        const QDeadlineTimer deadline(5000);
        while (!deadline.hasExpired() && !window->findChild<QWidget*>("DataSheet")->isVisible()) {
            QCoreApplication::processEvents();
            QThread::msleep(1);
        }
    }
    void trigger(const char* action) { window->findChild<QAction*>(action)->trigger(); }
    static void refresh(SheetKind kind)
    {
        OpenSheetWindow(kind, 0)->widget()->findChild<QPushButton*>("cmdRefresh")->click();
        QCoreApplication::processEvents();
    }
    bool lampShown() const { return window->findChild<QWidget*>("picLED_ON")->isVisible(); }

    std::unique_ptr<frmMain> window;
};

TEST_F(ReconnectWindows, AfterALostLinkConnectFindsTheInstrumentAgainAndTheWindowsKeepTheirData)
{
    ASSERT_TRUE(startSim({"--pty", "off"}));
    link->aim(LinkTransport::Socket);
    load();
    trigger("mnuToolsConnect");
    ASSERT_TRUE(Connected) << boxTexts().join("; ").toStdString();
    ASSERT_TRUE(lampShown());
    trigger("mnuNewDataSheet");
    trigger("AddNewWaveform");
    trigger("AddNewData");
    send(":STOP");
    WaveRecords[0].ShowCH1 = true;
    refresh(SheetKind::Wave);
    refresh(SheetKind::Data);
    ASSERT_TRUE(WaveRecords[0].HasData && DataRecords[0].HasData) << boxTexts().join("; ").toStdString();
    auto* wave = qobject_cast<frmWave*>(OpenSheetWindow(SheetKind::Wave, 0)->widget());
    const DataColumn table = DataRecords[0].Voltages;
    const auto tableKept = [&] {
        EXPECT_TRUE(DataRecords[0].HasData);
        EXPECT_EQ(DataRecords[0].Voltages, table);
    };

    const quint16 port = sim->port("socket");
    sim->process().kill();
    sim->process().waitForFinished(5000);
    for (int i = 0; i < 2 && Connected; ++i)
        refresh(SheetKind::Wave);
    EXPECT_FALSE(Connected);
    EXPECT_FALSE(LinkLampOn);
    EXPECT_FALSE(lampShown());
    EXPECT_EQ(platform->boxes.size(), 1) << boxTexts().join("; ").toStdString();
    // The refresh that met the gone link took what a reading finds there, empty
    // replies; the data window, not refreshed, keeps its table.
    EXPECT_TRUE(WaveRecords[0].HasData);
    tableKept();
    const QImage shown = wave->picture();

    ASSERT_TRUE(startSim({"--pty", "off", "--socket-port", QString::number(port)}));
    trigger("mnuToolsConnect");
    ASSERT_TRUE(Connected) << boxTexts().join("; ").toStdString();
    EXPECT_TRUE(lampShown());
    tableKept();
    EXPECT_EQ(wave->picture(), shown) << "connecting again changes no window";

    platform->clearRecords();
    WaveRecords[0].HasData = false;
    DataRecords[0].HasData = false;
    DataRecords[0].Count = 0;
    refresh(SheetKind::Data);
    refresh(SheetKind::Wave);
    EXPECT_TRUE(WaveRecords[0].HasData);
    EXPECT_TRUE(DataRecords[0].HasData);
    EXPECT_GT(DataRecords[0].Count, 0);
    EXPECT_TRUE(platform->boxes.isEmpty()) << boxTexts().join("; ").toStdString();
}

} // namespace
