// The count a held key sends, by the ticks it has been held, and the cap on
// the ticks; the timer is a stand-in that only records being switched.
#include "panel/keyrepeat.h"
#include "platform/testplatform.h"
#include "state/programstate.h"

#include <gtest/gtest.h>

namespace {

struct StepCase {
    int ticks;
    int step;
};

class RepeatStepTest : public ::testing::TestWithParam<StepCase> {};

TEST_P(RepeatStepTest, GivesTheCountOfItsBand)
{
    EXPECT_EQ(RepeatStep(GetParam().ticks), GetParam().step);
}

INSTANTIATE_TEST_SUITE_P(Bands, RepeatStepTest,
                         ::testing::Values(StepCase{0, 0}, StepCase{5, 0}, StepCase{6, 2}, StepCase{10, 2},
                                           StepCase{11, 5}, StepCase{15, 5}, StepCase{16, 10},
                                           StepCase{20, 10}, StepCase{21, 20}, StepCase{50, 20},
                                           StepCase{51, 50}, StepCase{60000, 50}));

TEST(KeyRepeatTest, PressStartsTheTimerReleaseStopsItAndTicksStopAtTheCap)
{
    ResetProgramState();
    ScopedTestPlatform platform;
    QList<bool> timer;
    KeyRepeat repeat([&timer](bool on) { timer.append(on); });
    repeat.press(":KEY:TIME_POS_INC");
    EXPECT_EQ(repeat.HeldCommand, ":KEY:TIME_POS_INC");
    repeat.HeldTicks = HeldTicksLimit - 1;
    repeat.tick();
    repeat.tick();
    EXPECT_EQ(repeat.HeldTicks, HeldTicksLimit);
    EXPECT_FALSE(repeat.Sending);
    repeat.release();
    EXPECT_EQ(timer, (QList<bool>{true, false}));
    repeat.press(":KEY:TIME_POS_DEC");
    EXPECT_EQ(repeat.HeldTicks, 0) << "a new press starts counting again";
}

} // namespace
