#include "document/sheetstate.h"
#include "frmwave_fixture.h"
#include "stored/frmOpenWaveform.h"
#include "stored/memorysteps.h"
#include "stored/memorywavecsv.h"
#include "stored/wfmbytes.h"
#include "stored/wfmfile.h"
#include "wave/frmWavePrint.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPrinter>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

WfmBytes withChannels(std::initializer_list<int> channels, bool alternation = false)
{
    WfmBytes file(alternation ? 504 + 4 * 600 : 420 + 4 * 0x2000);
    file.putFloat(180, 100e3f).put<int64_t>(164, 500'000'000).put<int64_t>(192, -3'000'000'000);
    if (alternation) file.alternation().putFloat(288, 100e3f).put<int64_t>(272, 1'000'000'000);
    for (int n : channels)
        file.channel(n, true, 500'000, int16_t(20 * n - 30))
            .ramp((alternation ? 504 : 420) + n * (alternation ? 600 : 0x2000), 600, 60 + 20 * n);
    return file;
}

// Its own window in place of the wave window; the platform and a fresh state from the fixture.
class MemoryWaveWindowTest : public WaveWindowTest {
  protected:
    MemoryWaveWindowTest() { MemoryWaveSlots[0].Name = QStringLiteral("MemoryWave1"); }
    ~MemoryWaveWindowTest() override { delete window; }

    // CH1 and CH2 on (or as given), 600 samples each, then the window and its first layout.
    frmOpenWaveform& open(WfmBytes file = withChannels({0, 1}))
    {
        int code = 0;
        EXPECT_TRUE(LoadMemoryWaveBytes(file.bytes, MemoryWaveSlots[0], code).accepted);
        window = CreateMemoryWaveWindow(nullptr, 0);
        window->Timer1_Timer();
        DataSheetDirty = false;
        return *window;
    }
    template <typename T> T* control(const char* name) const
    {
        return Named<T>(window, QString::fromLatin1(name));
    }
    MemoryWaveSlot& slot() const { return MemoryWaveSlots[0]; }

    frmOpenWaveform* window = nullptr;
};

TEST_F(MemoryWaveWindowTest, PanelShowsOneRowPerChannelOnAndTheTimeBasesOfTheMode)
{
    open(withChannels({0, 2}));
    EXPECT_FALSE(control<QLineEdit>("txtCH1Div")->parentWidget()->isHidden());
    EXPECT_TRUE(control<QLineEdit>("txtCH2Div")->parentWidget()->isHidden());
    EXPECT_FALSE(control<QLineEdit>("txtCH3Div")->parentWidget()->isHidden());
    EXPECT_EQ(control<QLineEdit>("txtCH1Div")->text(), QStringLiteral("500mV"));
    EXPECT_EQ(control<QLineEdit>("txtTimeDiv")->text(), QStringLiteral("500.0us"));
    EXPECT_FALSE(control<QGroupBox>("framTimeDiv")->isHidden());
    EXPECT_TRUE(control<QGroupBox>("framAltTimeDiv")->isHidden());

    delete window;
    window = nullptr;
    open(withChannels({0, 3}, true));
    EXPECT_TRUE(control<QGroupBox>("framTimeDiv")->isHidden());
    EXPECT_EQ(control<QLineEdit>("txtCH2TimeDiv")->text(), QStringLiteral("1.000ms"));
}

TEST_F(MemoryWaveWindowTest, AStepAtTheEndOfItsSeriesChangesNothingButStillRefreshes)
{
    open();
    slot().ChanVoltDiv[0] = 10.f;
    slot().ChanOffset[0] = 0;
    window->StepperPress(0, +1);
    window->StepperRelease();
    const QImage before = window->picture();
    // New samples reach the picture only through a refresh.
    std::fill(slot().Samples[0].begin(), slot().Samples[0].end(), int16_t(25));
    window->StepperPress(0, +1);
    window->StepperRelease();
    EXPECT_FLOAT_EQ(slot().ChanVoltDiv[0], 10.f);
    EXPECT_EQ(control<QLineEdit>("txtCH1Div")->text(), QStringLiteral("10.0V"));
    EXPECT_TRUE(DataSheetDirty);
    EXPECT_NE(window->picture(), before);
}

TEST_F(MemoryWaveWindowTest, StepsRepeatWhileHeldAndResetRestoresTheLoadedSettings)
{
    open();
    const QImage loaded = window->picture();
    window->StepperPress(1, -1);
    window->Timer2_Timer();
    window->StepperRelease();
    window->StepperPress(StepTimeSingle, +1);
    window->StepperRelease();
    EXPECT_FLOAT_EQ(slot().ChanVoltDiv[1], 0.1f);
    EXPECT_DOUBLE_EQ(slot().TimeDiv, 1e-3);
    EXPECT_NE(window->picture(), loaded);
    DataSheetDirty = false;
    window->Reset_Click();
    EXPECT_TRUE(DataSheetDirty);
    EXPECT_FLOAT_EQ(slot().ChanVoltDiv[1], 0.5f);
    EXPECT_DOUBLE_EQ(slot().TimeDiv, 5e-4);
    EXPECT_EQ(control<QLineEdit>("txtTimeDiv")->text(), QStringLiteral("500.0us"));
    EXPECT_EQ(window->picture(), loaded);
}

TEST_F(MemoryWaveWindowTest, CtrlWithKeypadPlusAndMinusStepTheTimeBase)
{
    open();
    QKeyEvent plus(QEvent::KeyPress, Qt::Key_Plus, Qt::ControlModifier | Qt::KeypadModifier);
    QApplication::sendEvent(window, &plus);
    EXPECT_DOUBLE_EQ(slot().TimeDiv, 1e-3);
    QKeyEvent minus(QEvent::KeyPress, Qt::Key_Minus, Qt::ControlModifier | Qt::KeypadModifier);
    QApplication::sendEvent(window, &minus);
    QApplication::sendEvent(window, &minus);
    EXPECT_DOUBLE_EQ(slot().TimeDiv, 2e-4);
    EXPECT_EQ(control<QLineEdit>("txtTimeDiv")->text(), QStringLiteral("200.0us"));
}

TEST_F(MemoryWaveWindowTest, ZoomTakesTheNumberWithOrWithoutPercent)
{
    open();
    auto* zoom = control<QComboBox>("ZoomCombo");
    for (const char* text : {"150", "150%"}) {
        zoom->setEditText(QString::fromLatin1(text));
        window->ZoomCombo_Validate();
        EXPECT_DOUBLE_EQ(window->pictureZoomValue(), 1.5) << text;
        EXPECT_EQ(window->picture().size(), QSize(525, 375));
    }
    zoom->setEditText(QStringLiteral("big"));
    window->ZoomCombo_Validate();
    EXPECT_DOUBLE_EQ(window->pictureZoomValue(), 1.5);
    EXPECT_EQ(boxTexts(), QStringList{QStringLiteral("Invalid Zoom Factor!")});
    EXPECT_EQ(zoom->currentText(), QStringLiteral("150%"));
}

TEST_F(MemoryWaveWindowTest, CsvIsRefusedWithoutCh1AndCh2AndOtherwiseWritesTheSlot)
{
    open(withChannels({2}));
    window->FlatBttn3_Click();
    EXPECT_EQ(boxTexts(), QStringList{QStringLiteral("Invalid waveform data!")});
    EXPECT_TRUE(platform->saveRequests.isEmpty());

    delete window;
    window = nullptr;
    open();
    QTemporaryDir dir;
    platform->savePaths << dir.filePath(QStringLiteral("wave.csv"));
    window->FlatBttn3_Click();
    ASSERT_EQ(platform->saveRequests.size(), 1);
    EXPECT_EQ(platform->saveRequests[0].title, QStringLiteral("Save To CSV file"));
    QFile file(dir.filePath(QStringLiteral("wave.csv")));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), MemoryWaveCsv(slot()));
    EXPECT_FALSE(window->busy());
}

TEST_F(MemoryWaveWindowTest, LoadingFromAFileCaptionsTheWindowAndARefusedFileIsTold)
{
    open();
    QTemporaryDir dir;
    const QString good = dir.filePath(QStringLiteral("good.wfm"));
    const QString bad = dir.filePath(QStringLiteral("bad.wfm"));
    for (const auto& [path, model] : {std::pair{good, "KV7204B"}, std::pair{bad, "KV7204"}}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(withChannels({3}).model(model).bytes);
    }
    platform->openPaths << good << bad;
    LoadMemoryWave(0, true);
    EXPECT_EQ(window->windowTitle(), QStringLiteral("MemoryWave1  (") + good + QLatin1Char(')'));
    EXPECT_TRUE(DataSheetDirty);
    EXPECT_TRUE(control<QLineEdit>("txtCH1Div")->parentWidget()->isHidden());
    LoadMemoryWave(0, true);
    EXPECT_EQ(boxTexts(), QStringList{QStringLiteral("File utility fail!")});
    EXPECT_FALSE(slot().HasData);
}

TEST_F(MemoryWaveWindowTest, ExportsAndPrintsThePicture)
{
    open();
    QTemporaryDir dir;
    platform->savePaths << dir.filePath(QStringLiteral("wave.bmp"));
    window->FlatBttn4_Click();
    EXPECT_EQ(QImage(dir.filePath(QStringLiteral("wave.bmp"))).size(), QSize(350, 250));

    const QString pdf = dir.filePath(QStringLiteral("page.pdf"));
    const PrinterChooser previous = SetPrinterChooser([&pdf](QPrinter& printer) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pdf);
        return true;
    });
    window->cmdPrint_Click();
    SetPrinterChooser(previous);
    EXPECT_GT(QFile(pdf).size(), 0);
    EXPECT_EQ(window->picture().size(), QSize(350, 250));
}

} // namespace
