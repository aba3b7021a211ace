// The fine adjust dialog's arithmetic: the ladder's ends, the fine step table's
// range boundaries going up and down, the probe ratio and the offset steps.

#include "controller/ctrlstate.h"
#include "controller/fineadjust.h"
#include "controller/frmCtrlDialogAdjust.h"
#include "state/programstate.h"

#include <QTimer>
#include <gtest/gtest.h>

namespace {

TEST(FineAdjust, StepsAtTheDialogsEdges)
{
    struct Case {
        const char *text, *probe;
        bool fine, up;
        const char* expected;
    };
    const Case cases[] = {
        {"2.00mV", "1X", false, false, "2.00mV"}, // the ladder's bottom stays
        {"2.00mV", "1X", false, true, "5.00mV"},
        {"20.0mV", "10X", true, true, "20.5mV"}, // 2000 uV at the input
        {"10.0V", "1X", false, true, "10.0V"},   // the top stays, coarse and fine
        {"10.0V", "1X", true, true, "10.0V"},
        {"10.0V", "1X", true, false, "9.90V"},
        {"2.00mV", "1X", true, false, "2.00mV"},
        {"1.00V", "10X", false, false, "500mV"},
        {"3.00mV", "1X", false, true, "5.00mV"}, // off the ladder: the next point above
    };
    for (const Case& c : cases)
        EXPECT_EQ(StepVoltDivText(c.text, c.probe, c.fine, c.up), c.expected)
            << c.text << " " << c.probe << (c.fine ? " fine" : " coarse") << (c.up ? " up" : " down");
}

TEST(FineAdjust, FineStepFollowsItsRangeBoundaries)
{
    // Each boundary value: its step going up belongs to the range above, going down to the one below.
    struct Case {
        long long microvolts, up, down;
    };
    const Case cases[] = {
        {2000, 2050, 2000},          {5000, 5100, 4950},
        {10000, 10200, 9900},        {20000, 20500, 19800},
        {50000, 51000, 49500},       {100000, 102000, 99000},
        {200000, 205000, 198000},    {500000, 510000, 495000},
        {1000000, 1020000, 990000},  {2000000, 2050000, 1980000},
        {5000000, 5100000, 4950000}, {10000000, 10000000, 9900000},
        {1999, 1999, 1999},          {10000001, 10000001, 10000001},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(FineVoltStep(c.microvolts, true), c.up) << c.microvolts;
        EXPECT_EQ(FineVoltStep(c.microvolts, false), c.down) << c.microvolts;
    }
    EXPECT_EQ(CoarseVoltStep(4999, true), 5000);
    EXPECT_EQ(CoarseVoltStep(5001, false), 5000);
}

TEST(FineAdjust, ProbeRatiosAndOffsetSteps)
{
    float ratio = 0;
    EXPECT_TRUE(GetCHProbeNum("0.001X", ratio));
    EXPECT_FLOAT_EQ(ratio, 0.001f);
    EXPECT_TRUE(GetCHProbeNum("1000X", ratio));
    EXPECT_FLOAT_EQ(ratio, 1000);
    EXPECT_FALSE(GetCHProbeNum("3X", ratio));
    EXPECT_FLOAT_EQ(ratio, 1);
    // A step is a twenty-fifth of a division, clamped to the limit.
    EXPECT_EQ(SetCHOffset(400, 1.0, 0, 1), 40000);
    EXPECT_EQ(SetCHOffset(400, 0.002, -100, -3), -340);
    EXPECT_EQ(SetCHOffset(1, 1.0, 990000, 1), 1000000);
    EXPECT_EQ(InputScaleText("20.0mV", "10X"), "0.002");
}

class AdjustDialogTest : public ::testing::Test {
  protected:
    void SetUp() override { ResetProgramState(); }
    void TearDown() override { ResetProgramState(); }
};

TEST_F(AdjustDialogTest, HeldButtonRepeatsUntilReleaseAndTheModeIsKept)
{
    CtrlData.ChVoltDiv[2] = QStringLiteral("1.00V");
    CtrlData.ChProbe[2] = QStringLiteral("1X");
    {
        CtrlDialogAdjust dialog;
        dialog.Load(1, "Volt/Div");
        dialog.OptVoltDiv_Click(1); // fine, remembered for channel 2
        dialog.StepPressed(true);
        EXPECT_EQ(dialog.value(), "1.02V");
        EXPECT_TRUE(dialog.timer()->isActive());
        dialog.Timer1_Timer();
        dialog.Timer1_Timer();
        EXPECT_EQ(dialog.value(), "1.06V");
        dialog.StepReleased();
        EXPECT_FALSE(dialog.timer()->isActive());
        EXPECT_EQ(dialog.stepCount(), 0);
        dialog.Timer1_Timer();
        EXPECT_EQ(dialog.value(), "1.06V");
    }
    EXPECT_TRUE(ChAdjustMode[1]);
    EXPECT_FALSE(ChAdjustMode[0]);
    CtrlDialogAdjust again;
    again.Load(1, "Volt/Div");
    again.StepPressed(false);
    EXPECT_EQ(again.value(), "990mV") << "the fine mode survives the closing";

    // The offset mode moves the offset by a twenty-fifth of the channel's division.
    CtrlData.ChOffset[2] = QStringLiteral("0.00mV");
    CtrlDialogAdjust offset;
    offset.Load(5, "Offset");
    offset.StepPressed(true);
    EXPECT_EQ(offset.value(), "40.0mV");
}

} // namespace
