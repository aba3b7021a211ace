// The virtual panel's screen loop against kv7200b-sim: live pictures that
// follow the keys, stop and run, short pictures asked for again until stopped,
// a link that drops, and selvane-cli screen.
#include "panel_simlink.h"

#include "link/linkcommands.h"
#include "link/linkstate.h"
#include "link/visalibrary.h"
#include "panel/frmV_Panel.h"
#include "panel/panelstate.h"
#include "panel/screenpicturewidgets.h"
#include "text/captions.h"
#include "text/language.h"
#include "wave/frmWavePrint.h"
#include "wave/waveprint.h"

#include <QAbstractButton>
#include <QFile>
#include <QFileInfo>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QThread>

namespace {

using PanelScreenTest = PanelSimTest;

const QString DisplayData = QStringLiteral(":DISPLAY:DATA?");

TEST_F(PanelScreenTest, ScreenRunsLiveFollowsTheKeysAndIdlesWhileStopped)
{
    connectSim();
    const QTemporaryDir dir;
    platform->savePaths = {dir.filePath("screen.bmp")};
    const QString pdf = dir.filePath("page.pdf");
    const PrinterChooser previous = SetPrinterChooser([&pdf](QPrinter& printer) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pdf);
        return true;
    });
    enum { FirstScreen, Pressed, Stopped, Running } phase = FirstScreen;
    QImage first;
    QString scale;
    int screensAtStop = 0;
    int idlePasses = 0;
    const bool closed = runPanel([&](frmV_Panel& panel) {
        const QImage shown = panel.AddPic->image();
        switch (phase) {
        case FirstScreen:
            if (shown.isNull()) return;
            first = shown;
            EXPECT_FALSE(panel.cmdRun->isEnabled());
            ClickButton(panel.findChild<QAbstractButton*>("VK_V_Inc_0"));
            ClickButton(panel.findChild<QAbstractButton*>("VK_V_Inc_0"));
            scale = AskCmd(":CHANNEL1:SCALE?");
            phase = Pressed;
            return;
        case Pressed:
            if (shown == first) return;
            ClickButton(panel.cmdStop);
            screensAtStop = loggedCount(DisplayData);
            phase = Stopped;
            return;
        case Stopped:
            if (++idlePasses == 1) {
                ClickButton(panel.cmdExport);
                ClickButton(panel.cmdPrint);
            }
            if (idlePasses < 20) return;
            EXPECT_EQ(loggedCount(DisplayData), screensAtStop) << "a stopped panel asks for nothing";
            EXPECT_TRUE(panel.cmdRun->isEnabled());
            ClickButton(panel.cmdRun);
            phase = Running;
            return;
        case Running:
            if (loggedCount(DisplayData) > screensAtStop) panel.close();
            return;
        }
    });
    SetPrinterChooser(previous);
    EXPECT_TRUE(closed);
    EXPECT_EQ(first.size(), QSize(320, 240));
    EXPECT_EQ(QImage(dir.filePath("screen.bmp")).size(), QSize(320, 240)) << "the export";
    EXPECT_GT(QFileInfo(pdf).size(), 0) << "the printed page";
    EXPECT_EQ(QImage(PrintImagePath()).size(), QSize(320, 240)) << "the print image beside the program";
    EXPECT_EQ(scale, "5.000e+00\n") << "two presses of the volts key: 1 V, 2 V, 5 V";
    EXPECT_FALSE(PanelFlags.PanelOpen);
    EXPECT_TRUE(platform->boxes.isEmpty());
}

TEST_F(PanelScreenTest, ShortPicturesAreAskedForAgainUntilStopped)
{
    connectSim({"--short-blocks"});
    // A cut block never ends by itself: each read waits out the session's time-out.
    Visa().setAttribute(VisaSession, VI_ATTR_TMO_VALUE, 200);
    int asked = 0;
    const bool closed = runPanel([&](frmV_Panel& panel) {
        if (PanelFlags.PanelRunning) {
            if (loggedCount(DisplayData) < 3) return;
            ClickButton(panel.cmdStop); // inside ReadDisplayData's retry
            QThread::msleep(200);       // the request just sent reaches the log
            asked = loggedCount(DisplayData);
        } else if (panel.screenLoopRunning()) {
            EXPECT_TRUE(panel.AddPic->image().isNull());
            panel.close();
        }
    });
    EXPECT_TRUE(closed);
    EXPECT_GE(asked, 3);
    EXPECT_EQ(loggedCount(DisplayData), asked) << "the retry ended with the stop";
    EXPECT_TRUE(Connected);
}

TEST_F(PanelScreenTest, LostLinkClosesThePanel)
{
    connectSim({"--drop-after", "6"});
    EXPECT_TRUE(runPanel([](frmV_Panel&) {}));
    EXPECT_FALSE(Connected);
    EXPECT_FALSE(PanelFlags.PanelOpen);
    EXPECT_FALSE(platform->boxes.isEmpty());
}

TEST_F(PanelScreenTest, WithoutALinkThePanelStaysOpenAndIdle)
{
    int passes = 0;
    EXPECT_TRUE(runPanel([&](frmV_Panel& panel) {
        if (++passes == 20) panel.close();
    }));
    EXPECT_EQ(passes, 20);
    EXPECT_TRUE(platform->boxes.isEmpty());
}

TEST_F(PanelScreenTest, CaptionsFollowTheLanguage)
{
    Language = LanguageChinese;
    frmV_Panel panel;
    panel.tDrawBmp->stop();
    EXPECT_EQ(panel.windowTitle(), "虚拟面板");
    EXPECT_EQ(panel.cmdRun->text(), "运行  ");
    EXPECT_EQ(panel.cmdRun->toolTip(), "运行");
    EXPECT_EQ(panel.cmdPreview->toolTip(), "预览");
    Language = LanguageEnglish;
    panel.SetCaptions(Language);
    EXPECT_EQ(panel.cmdPreview->text(), "      Preview");
    EXPECT_EQ(panel.cmdPreview->toolTip(), "Print Preview");
    panel.close();
}

TEST_F(PanelScreenTest, CliWritesTheBitmapAsReceivedOrAsPng)
{
    connectSim();
    const QTemporaryDir dir;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("SELVANE_VISA", "builtin");
    for (const QString name : {"screen.bmp", "screen.png"}) {
        QProcess cli;
        cli.setProcessEnvironment(environment);
        cli.start(SELVANE_CLI_PATH, {"screen", "--resource", hislipResource(), "--out", dir.filePath(name)});
        ASSERT_TRUE(cli.waitForFinished(30000));
        EXPECT_EQ(cli.exitCode(), 0) << cli.readAllStandardError().toStdString();
        EXPECT_EQ(QImage(dir.filePath(name)).size(), QSize(320, 240)) << name.toStdString();
    }
    QFile bitmap(dir.filePath("screen.bmp"));
    ASSERT_TRUE(bitmap.open(QIODevice::ReadOnly));
    const QByteArray bytes = bitmap.readAll();
    EXPECT_EQ(bytes.size(), 77878);
    EXPECT_TRUE(bytes.startsWith("BM"));
}

} // namespace
