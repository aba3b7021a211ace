// The fine adjust dialog's arithmetic: the ladder's ends, the fine step table's
// range boundaries going up and down, the probe ratio and the offset steps.

#include "controller/ctrlstate.h"
#include "controller/fineadjust.h"

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

} // namespace
