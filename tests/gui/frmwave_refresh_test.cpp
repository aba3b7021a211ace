// Refresh of a wave window against the simulator: one reading, readings at an
// interval that stop on the next press and never overlap, and the refusals.
#include "frmwave_fixture.h"

#include "acquire/operation.h"
#include "acquire/readwavewindow.h"
#include "acquire/waverecord.h"
#include "document/sheetstate.h"
#include "link/linkcommands.h"
#include "link/linkstate.h"
#include "settings/softwaresettings.h"
#include "wave/waverefresh.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>

namespace {

int countColor(const QImage& image, QRgb color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) == color ? 1 : 0;
    return count;
}

// Counts the readings of operation 10 and the most that ran at once.
struct ReadingCounter {
    int started = 0;
    int running = 0;
    int mostAtOnce = 0;

    ReadingCounter()
    {
        SetOperationRoutine(OperationWaveWindow, [this](const Operation& reading) {
            ++started;
            mostAtOnce = std::max(mostAtOnce, ++running);
            const bool done = ReadWaveWindow(reading.slot);
            --running;
            return done;
        });
    }
    ~ReadingCounter() { SetOperationRoutine(OperationWaveWindow, {}); }
};

} // namespace

TEST_F(SimWaveWindowTest, SingleRefreshReadsThePictureAndMarksTheSheet)
{
    frmWave& wave = open();
    WaveRecords[0].ColorMode = true;
    WaveRecords[0].ShowCH1 = true;
    const QImage before = wave.picture();

    control<QPushButton>("cmdRefresh")->click();

    EXPECT_TRUE(WaveRecords[0].HasData);
    EXPECT_TRUE(DataSheetDirty);
    EXPECT_FALSE(OperationRunning);
    EXPECT_TRUE(control<QPushButton>("cmdRefresh")->isEnabled());
    EXPECT_EQ(countColor(before, qRgb(255, 255, 0)), 0);
    EXPECT_GT(countColor(wave.picture(), qRgb(255, 255, 0)), 100) << "CH1's trace and marker are drawn";
    EXPECT_FALSE(control<QWidget>("picRefreshProgress")->isVisible());
    EXPECT_TRUE(platform->boxes.isEmpty()) << boxTexts().join("; ").toStdString();
}

TEST_F(SimWaveWindowTest, IntervalRefreshReadsUntilTheNextPressWithoutOverlap)
{
    frmWave& wave = open();
    WaveRecords[0].ShowCH2 = true;
    RefreshType = RefreshAuto;
    RefreshInterval = 30;
    ReadingCounter readings;
    auto* refresh = control<QPushButton>("cmdRefresh");
    int startedAtStop = 0;
    platform->onDoEvents = [&] {
        if (readings.started >= 3 && startedAtStop == 0) {
            startedAtStop = readings.started;
            refresh->click();
        }
    };

    refresh->click();

    EXPECT_EQ(startedAtStop, 3);
    EXPECT_EQ(readings.started, startedAtStop) << "no reading starts after the stop";
    EXPECT_EQ(readings.mostAtOnce, 1);
    EXPECT_FALSE(AutoRefreshRunning);
    EXPECT_FALSE(WaveRecords[0].AutoRefreshing);
    EXPECT_TRUE(refresh->isEnabled());
    EXPECT_TRUE(WaveRecords[0].HasData);
    EXPECT_FALSE(wave.picture().isNull());
}

TEST_F(SimWaveWindowTest, AWindowWithNoWantedChannelReadsNothing)
{
    open();
    ReadingCounter readings;
    control<QPushButton>("cmdRefresh")->click();
    EXPECT_EQ(readings.started, 0);
    EXPECT_FALSE(WaveRecords[0].HasData);
    EXPECT_FALSE(DataSheetDirty);
}

// Without a link a refresh asks for one; while connecting or while a record
// replays it does nothing; F5 refreshes only without Ctrl or Shift.
struct RefusalCase {
    const char* name;
    bool* held; // the flag set during the press, or none
    int key;    // 0: the button
    Qt::KeyboardModifiers modifiers;
    int boxes;
    int refreshingSlot;
};

class RefusedRefresh : public WaveWindowTest, public ::testing::WithParamInterface<RefusalCase> {};

TEST_P(RefusedRefresh, AsksForALinkOrDoesNothing)
{
    frmWave& wave = open();
    WaveRecords[0].ShowCH1 = true;
    if (GetParam().held) *GetParam().held = true;
    if (GetParam().key) {
        QKeyEvent press(QEvent::KeyPress, GetParam().key, GetParam().modifiers);
        QCoreApplication::sendEvent(&wave, &press);
    } else {
        control<QPushButton>("cmdRefresh")->click();
    }
    if (GetParam().held) *GetParam().held = false;
    ASSERT_EQ(platform->boxes.size(), GetParam().boxes);
    if (GetParam().boxes) {
        EXPECT_EQ(platform->boxes[0].text, "Please Connect Oscilloscope First!");
        EXPECT_EQ(platform->boxes[0].style, vbExclamation);
    }
    EXPECT_FALSE(WaveRecords[0].HasData);
    if (GetParam().refreshingSlot != -2) {
        EXPECT_EQ(RefreshingWaveSlot, GetParam().refreshingSlot);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Presses, RefusedRefresh,
    ::testing::Values(RefusalCase{"NoLink", nullptr, 0, Qt::NoModifier, 1, -2},
                      RefusalCase{"Connecting", &Connecting, 0, Qt::NoModifier, 0, 0},
                      RefusalCase{"RecordReplays", &RecordRunBusy, 0, Qt::NoModifier, 0, -1},
                      RefusalCase{"F5", nullptr, Qt::Key_F5, Qt::NoModifier, 1, -2},
                      RefusalCase{"CtrlF5", nullptr, Qt::Key_F5, Qt::ControlModifier, 0, -2},
                      RefusalCase{"ShiftF5", nullptr, Qt::Key_F5, Qt::ShiftModifier, 0, -2},
                      RefusalCase{"CtrlShiftF5", nullptr, Qt::Key_F5, Qt::ControlModifier | Qt::ShiftModifier,
                                  0, -2}),
    [](const auto& info) { return std::string(info.param.name); });

namespace {

// Its own simulator: the trigger mode set here stays out of the other tests.
class AltTriggerWindowTest : public SimWaveWindowTest {
  protected:
    // Writes the command line's picture of the same reading; empty on failure.
    QImage commandLinePicture(const QStringList& arguments)
    {
        const QString out = dir.filePath(QStringLiteral("wave.png"));
        QStringList all = arguments;
        // The socket is opened; the HiSLIP instrument is what the find lists.
        all << "--out" << out << "--resource" << ResourceName << "--resource"
            << QStringLiteral("TCPIP0::127.0.0.1::hislip0,%1::INSTR").arg(sim->port("hislip"));
        QProcess cli;
        cli.start(QStringLiteral(SELVANE_CLI_PATH), QStringList{"wave"} + all);
        if (!cli.waitForFinished(20000) || cli.exitCode() != 0) {
            ADD_FAILURE() << cli.readAllStandardError().toStdString();
            return {};
        }
        return QImage(out).convertToFormat(QImage::Format_RGB32);
    }
    QTemporaryDir dir;
};

} // namespace

// The pair CH1CH2 is in order: CH2 follows source B in the lower half, CH3
// source A in the upper. The window and selvane-cli ask alike and draw alike.
TEST_F(AltTriggerWindowTest, ThePictureIsTheCommandLines)
{
    for (const char* command : {":CHANNEL2:DISPLAY ON", ":CHANNEL3:DISPLAY ON", ":TRIGGER:MODE ALTERNATION",
                                ":TRIGGER:ALTERNATION:SOURCE CH1CH2", ":STOP"})
        WriteCmd(QString::fromLatin1(command));
    frmWave& wave = open();
    WaveRecords[0].ColorMode = true;
    WaveRecords[0].ShowCH2 = WaveRecords[0].ShowCH3 = true;
    control<QPushButton>("cmdRefresh")->click();
    ASSERT_TRUE(WaveRecords[0].SplitScreen);

    const QImage shown = wave.picture().convertToFormat(QImage::Format_RGB32);
    const QImage written = commandLinePicture({"--channels", "2,3", "--zoom", "1"});
    ASSERT_EQ(written.size(), shown.size());
    EXPECT_TRUE(written == shown);
    EXPECT_GT(countColor(shown, qRgb(0, 255, 255)), 100) << "CH2 is drawn";
}
