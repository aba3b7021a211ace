// The record window offscreen: the prompt and grey bar without a file, opening,
// a single run played to its end, the bar in each state, a refused file, the
// time buttons, and the data sheet's Record windows.
#include "guitest.h"
#include "mainwindowfixture.h"
#include "stored/rcdbuilder.h"

#include "document/sheetstate.h"
#include "sheet/frmDataSheetTree.h"
#include "stored/frmRecordPlay.h"
#include "stored/recordslot.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QSlider>
#include <QTemporaryDir>
#include <QThread>
#include <QToolButton>

namespace {

class RecordPlayWindowTest : public ::testing::Test {
  protected:
    void SetUp() override
    {
        ResetProgramState();
        RecordSlots[0].Name = "Record0";
        window = std::make_unique<frmRecordPlay>(0);
        window->show();
        QCoreApplication::processEvents();
    }
    void TearDown() override
    {
        window.reset();
        ResetProgramState();
    }

    QString writeFile(const RcdBuilder& file)
    {
        const QString path = dir.filePath("play.rcd");
        EXPECT_TRUE(file.save(path));
        return path;
    }
    void open(const RcdBuilder& file)
    {
        test->openPaths << writeFile(file);
        click("cmdOpen");
    }
    template <typename T> T* find(const QString& name) const { return Named<T>(window.get(), name); }
    void click(const QString& name) { find<QAbstractButton>(name)->click(); }
    void clickBar(int index) { click(QStringLiteral("AresBtnPlay_%1").arg(index)); }
    QString bar() const
    {
        QString states;
        for (int index = 0; index < RecordButtonCount; ++index)
            states += find<QToolButton>(QStringLiteral("AresBtnPlay_%1").arg(index))->isEnabled() ? '1' : '0';
        return states;
    }
    static void mouse(QWidget* target, QEvent::Type type)
    {
        const QPointF at(4, 4);
        QMouseEvent event(type, at, target->mapToGlobal(at), Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &event);
    }
    QString status() const { return find<QLabel>("PicMsg")->text(); }

    ScopedTestPlatform test;
    QTemporaryDir dir;
    std::unique_ptr<frmRecordPlay> window;
};

TEST_F(RecordPlayWindowTest, WithoutAFileItPromptsAndGreysThePlayControls)
{
    EXPECT_EQ(status(), "Please open the waveform record file.");
    EXPECT_EQ(bar(), "00000000");
    EXPECT_FALSE(find<QSlider>("SliderFrame")->isEnabled());
    EXPECT_EQ(find<QLabel>("lblTimeInterval")->text(), "50.00ms");
    EXPECT_EQ(find<QToolButton>("AresBtnPlay_7")->toolTip(), "Circulation and single replay");
    EXPECT_EQ(find<QToolButton>("AresBtnDefaultTime")->toolTip(), "Default Time Interval Setting");
    clickBar(RecordBtnReplay);
    EXPECT_FALSE(window->clockRunning());
}

TEST_F(RecordPlayWindowTest, ASingleRunPlaysToItsEndAndPauses)
{
    open(RcdBuilder(5));
    EXPECT_EQ(window->windowTitle(), "Record0  (" + dir.filePath("play.rcd") + ")");
    EXPECT_EQ(status(), "Stop 1/5");
    EXPECT_EQ(bar(), "10011111");
    EXPECT_EQ(find<QSlider>("SliderFrame")->maximum(), 5);
    const QImage first = window->picture();

    RecordSlots[0].FrameInterval = 0.001;
    clickBar(RecordBtnReplay);
    EXPECT_TRUE(window->clockRunning());
    EXPECT_EQ(bar(), "01111111");
    QElapsedTimer waited;
    waited.start();
    while (window->clockRunning() && waited.elapsed() < 5000) {
        QCoreApplication::processEvents();
        QThread::msleep(1);
    }
    EXPECT_FALSE(window->clockRunning());
    EXPECT_EQ(RecordSlots[0].CurrentFrame, 5);
    EXPECT_EQ(status(), "Pause 5/5");
    EXPECT_EQ(bar(), "10111111");
    EXPECT_EQ(find<QSlider>("SliderFrame")->value(), 5);
    EXPECT_NE(window->picture(), first) << "the last frame's trace lies lower";

    clickBar(RecordBtnPrevious);
    EXPECT_EQ(status(), "Pause 4/5");
    clickBar(RecordBtnStop);
    EXPECT_EQ(status(), "Stop 1/5");
    EXPECT_EQ(bar(), "10011111");
    find<QSlider>("SliderFrame")->setValue(3);
    EXPECT_EQ(RecordSlots[0].CurrentFrame, 3) << "the slider sets the frame";
    EXPECT_EQ(status(), "Stop 3/5");
}

TEST_F(RecordPlayWindowTest, ARefusedChannelEmptiesTheSlotAndClearsTheControls)
{
    open(RcdBuilder(5));
    RcdBuilder off(5);
    off.channel(0, 0, 1000000, 0);
    open(off);
    ASSERT_EQ(test->boxes.size(), 1);
    EXPECT_EQ(test->boxes[0].text, "The channel's data is invalid!");
    EXPECT_FALSE(RecordSlots[0].HasFile);
    EXPECT_EQ(bar(), "00000000");
    EXPECT_FALSE(find<QSlider>("SliderFrame")->isEnabled());
    EXPECT_EQ(status(), "Please open the waveform record file.");
}

TEST_F(RecordPlayWindowTest, TimeButtonsStepOnPressAndFasterWhileHeld)
{
    auto* add = find<QToolButton>("AresBtnAdd");
    mouse(add, QEvent::MouseButtonPress);
    EXPECT_DOUBLE_EQ(RecordSlots[0].FrameInterval, 0.051);
    EXPECT_EQ(find<QLabel>("lblTimeInterval")->text(), "51.00ms");
    for (int tick = 0; tick < 6; ++tick)
        window->TimerSpeed_Timer(); // the sixth tick makes two steps
    mouse(add, QEvent::MouseButtonRelease);
    EXPECT_DOUBLE_EQ(RecordSlots[0].FrameInterval, 0.053);
    window->TimerSpeed_Timer();
    EXPECT_DOUBLE_EQ(RecordSlots[0].FrameInterval, 0.053) << "a released button steps no more";
    click("AresBtnDefaultTime");
    EXPECT_DOUBLE_EQ(RecordSlots[0].FrameInterval, 0.05);
}

class RecordSheetTest : public MainWindowTest {};

TEST_F(RecordSheetTest, AddingARecordOpensTheChosenFileInARealWindow)
{
    load();
    QTemporaryDir dir;
    const QString path = dir.filePath("sheet.rcd");
    ASSERT_TRUE(RcdBuilder(4).save(path));
    find("mnuNewDataSheet")->trigger();
    test->openPaths << path;
    find("AddNewRecord")->trigger();
    ASSERT_EQ(window->mdiArea()->subWindowList().size(), 1);
    auto* record = qobject_cast<frmRecordPlay*>(window->mdiArea()->subWindowList().first()->widget());
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(record->windowTitle(), "Record0  (" + path + ")");
    EXPECT_EQ(RecordSlots[0].LastFrame, 4);
    EXPECT_TRUE(DataSheetDirty);
}

} // namespace
