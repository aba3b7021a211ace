// The replay state machine without a window: the frame check, the commands and
// the clock changes they ask for, the bar, the status text and the time steps.
#include "state/programstate.h"
#include "stored/recordplay.h"
#include "stored/recordslot.h"
#include "text/language.h"

#include <gtest/gtest.h>

namespace {

RecordSlot loaded(int last, int current, bool circular = false, uint8_t state = RecordStop)
{
    RecordSlot slot;
    slot.HasFile = true;
    slot.LastFrame = int16_t(last);
    slot.CurrentFrame = int16_t(current);
    slot.Circular = circular;
    slot.PlayState = state;
    return slot;
}

class RecordPlayTest : public ::testing::Test {
  protected:
    void SetUp() override { ResetProgramState(); }
    void TearDown() override { ResetProgramState(); }
};

TEST_F(RecordPlayTest, StartAtTheEndOfASingleRunRestartsFromOne)
{
    RecordSlot slot = loaded(10, 10);
    EXPECT_EQ(RecordReplayStart(slot), ClockChange::Start);
    EXPECT_EQ(slot.CurrentFrame, 1);
    EXPECT_EQ(slot.PlayState, RecordReplaying);

    RecordSlot circular = loaded(10, 10, true);
    RecordReplayStart(circular);
    EXPECT_EQ(circular.CurrentFrame, 10) << "a circular run goes on from where it is";
}

TEST_F(RecordPlayTest, CircularTickAfterTheLastFrameShowsFrameOne)
{
    RecordSlot slot = loaded(10, 10, true, RecordReplaying);
    EXPECT_EQ(RecordReplayTick(slot), ClockChange::Keep);
    EXPECT_EQ(slot.CurrentFrame, 1);
    EXPECT_EQ(slot.PlayState, RecordReplaying);
}

TEST_F(RecordPlayTest, ASingleRunPausesOnItsLastFrame)
{
    RecordSlot slot = loaded(3, 1, false, RecordReplaying);
    EXPECT_EQ(RecordReplayTick(slot), ClockChange::Keep);
    EXPECT_EQ(slot.CurrentFrame, 2);
    EXPECT_EQ(RecordReplayTick(slot), ClockChange::Stop);
    EXPECT_EQ(slot.CurrentFrame, 3);
    EXPECT_EQ(slot.PlayState, RecordPause);
}

TEST_F(RecordPlayTest, StepsClampAndPause)
{
    RecordSlot slot = loaded(5, 5, false, RecordReplaying);
    EXPECT_EQ(RecordStepFrame(slot, +1), ClockChange::Stop);
    EXPECT_EQ(slot.CurrentFrame, 5);
    EXPECT_EQ(slot.PlayState, RecordPause);
    slot.CurrentFrame = 1;
    RecordStepFrame(slot, -1);
    EXPECT_EQ(slot.CurrentFrame, 1);
    RecordStepFrame(slot, +1);
    EXPECT_EQ(slot.CurrentFrame, 2);

    RecordSlot circular = loaded(5, 5, true);
    RecordStepFrame(circular, +1);
    EXPECT_EQ(circular.CurrentFrame, 1);
    RecordStepFrame(circular, -1);
    EXPECT_EQ(circular.CurrentFrame, 1) << "below 1 is 1 in a circular run too";
}

TEST_F(RecordPlayTest, FrameCheck)
{
    const RecordSlot single = loaded(10, 1), circular = loaded(10, 1, true);
    const int frames[] = {-3, 0, 1, 10, 11, 400};
    const int singleWants[] = {1, 1, 1, 10, 10, 10};
    const int circularWants[] = {1, 1, 1, 10, 1, 1};
    for (size_t i = 0; i < std::size(frames); ++i) {
        EXPECT_EQ(CheckFrame(single, frames[i]), singleWants[i]) << frames[i];
        EXPECT_EQ(CheckFrame(circular, frames[i]), circularWants[i]) << frames[i];
    }
}

TEST_F(RecordPlayTest, StopPauseAndJumps)
{
    RecordSlot slot = loaded(10, 4, false, RecordReplaying);
    EXPECT_EQ(RecordGoToEnd(slot), ClockChange::Keep);
    EXPECT_EQ(slot.CurrentFrame, 10);
    EXPECT_EQ(slot.PlayState, RecordReplaying);
    RecordGoToStart(slot);
    EXPECT_EQ(slot.CurrentFrame, 1);
    EXPECT_EQ(RecordReplayPause(slot), ClockChange::Stop);
    EXPECT_EQ(slot.PlayState, RecordPause);
    EXPECT_EQ(RecordReplayPause(slot), ClockChange::Keep) << "pause acts only while replaying";
    slot.CurrentFrame = 7;
    EXPECT_EQ(RecordReplayStop(slot), ClockChange::Stop);
    EXPECT_EQ(slot.CurrentFrame, 1);
    EXPECT_EQ(slot.PlayState, RecordStop);
}

TEST_F(RecordPlayTest, WithoutAFileNothingPlaysAndTheBarIsGrey)
{
    RecordSlot slot;
    EXPECT_EQ(RecordReplayStart(slot), ClockChange::Keep);
    EXPECT_EQ(RecordStepFrame(slot, 1), ClockChange::Keep);
    RecordToggleCircular(slot);
    EXPECT_FALSE(slot.Circular);
    EXPECT_EQ(slot.PlayState, RecordStop);
    EXPECT_EQ(RecordBarEnabled(slot), RecordBar{});
    EXPECT_EQ(DispMsg(slot, LanguageEnglish), "Please open the waveform record file.");
    EXPECT_EQ(DispMsg(slot, LanguageChinese), QStringLiteral("请打开波形录制文件。"));
}

TEST_F(RecordPlayTest, TheBarGreysWhatTheStateCantDo)
{
    // Replay, Pause, Stop, start, end, next, last, circular.
    const RecordBar replaying{false, true, true, true, true, true, true, true};
    const RecordBar pause{true, false, true, true, true, true, true, true};
    const RecordBar stop{true, false, false, true, true, true, true, true};
    EXPECT_EQ(RecordBarEnabled(loaded(5, 2, false, RecordReplaying)), replaying);
    EXPECT_EQ(RecordBarEnabled(loaded(5, 2, false, RecordPause)), pause);
    EXPECT_EQ(RecordBarEnabled(loaded(5, 2, false, RecordStop)), stop);
}

TEST_F(RecordPlayTest, StatusTextInBothLanguages)
{
    const struct {
        uint8_t state;
        const char16_t* english;
        const char16_t* chinese;
    } rows[] = {{RecordReplaying, u"Replaying 3/10", u"正在回放 3/10"},
                {RecordPause, u"Pause 3/10", u"暂停 3/10"},
                {RecordStop, u"Stop 3/10", u"停止 3/10"}};
    for (const auto& row : rows) {
        const RecordSlot slot = loaded(10, 3, false, row.state);
        EXPECT_EQ(DispMsg(slot, LanguageEnglish), QString::fromUtf16(row.english));
        EXPECT_EQ(DispMsg(slot, LanguageChinese), QString::fromUtf16(row.chinese));
    }
    RecordSlot slot = loaded(10, 3);
    SetRecordReplayStatus(slot, RecordPause);
    EXPECT_EQ(slot.StatusText, "Pause 3/10");
}

TEST_F(RecordPlayTest, TimeBetweenFramesSteps)
{
    const struct {
        double from;
        int direction;
        int steps;
        double want;
    } rows[] = {
        {0.05, +1, 1, 0.051},  {0.999, +1, 1, 1.0},   {1.0, +1, 1, 1.01},     {1.0, -1, 1, 0.99},
        {0.999, -1, 1, 0.998}, {0.001, -1, 1, 0.001}, {60.0, +1, 1, 60.0},    {59.995, +1, 1, 60.0},
        {0.995, +1, 10, 1.05}, {0.05, +1, 50, 0.1},   {0.002, -1, 20, 0.001},
    };
    for (const auto& row : rows)
        EXPECT_DOUBLE_EQ(StepFrameInterval(row.from, row.direction, row.steps), row.want)
            << row.from << " by " << row.direction << " x" << row.steps;
}

TEST_F(RecordPlayTest, HeldButtonStepCounts)
{
    const int ticks[] = {0, 5, 6, 10, 11, 15, 16, 20, 21, 50, 51, 500};
    const int steps[] = {0, 0, 2, 2, 5, 5, 10, 10, 20, 20, 50, 50};
    for (size_t i = 0; i < std::size(ticks); ++i)
        EXPECT_EQ(HeldButtonSteps(ticks[i]), steps[i]) << ticks[i];
}

} // namespace
