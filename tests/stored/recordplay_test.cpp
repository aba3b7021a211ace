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

// One command on a loaded record: the clock change it asks for, the frame and the state it leaves.
TEST_F(RecordPlayTest, CommandsMoveTheFrameAndTheState)
{
    using Command = ClockChange (*)(RecordSlot&);
    const Command start = RecordReplayStart, tick = RecordReplayTick, pause = RecordReplayPause,
                  stop = RecordReplayStop, toStart = RecordGoToStart, toEnd = RecordGoToEnd;
    const Command next = [](RecordSlot& s) { return RecordStepFrame(s, +1); };
    const Command back = [](RecordSlot& s) { return RecordStepFrame(s, -1); };
    constexpr auto Keep = ClockChange::Keep, Start = ClockChange::Start, Stop = ClockChange::Stop;
    const struct {
        const char* what;
        int last, current;
        bool circular;
        uint8_t state;
        Command command;
        ClockChange clock;
        int frame;
        uint8_t after;
    } rows[] = {
        {"start at the end of a single run restarts from one", 10, 10, false, RecordStop, start, Start, 1,
         RecordReplaying},
        {"a circular run starts from where it is", 10, 10, true, RecordStop, start, Start, 10,
         RecordReplaying},
        {"a circular tick after the last frame shows frame one", 10, 10, true, RecordReplaying, tick, Keep, 1,
         RecordReplaying},
        {"a single run ticks on", 3, 1, false, RecordReplaying, tick, Keep, 2, RecordReplaying},
        {"a single run pauses on its last frame", 3, 2, false, RecordReplaying, tick, Stop, 3, RecordPause},
        {"every step pauses; past the end it clamps", 5, 5, false, RecordReplaying, next, Stop, 5,
         RecordPause},
        {"a step below one clamps", 5, 1, false, RecordPause, back, Stop, 1, RecordPause},
        {"a step", 5, 1, false, RecordPause, next, Stop, 2, RecordPause},
        {"a circular step past the end is frame one", 5, 5, true, RecordStop, next, Stop, 1, RecordPause},
        {"below one is one in a circular run too", 5, 1, true, RecordStop, back, Stop, 1, RecordPause},
        {"to the end while replaying", 10, 4, false, RecordReplaying, toEnd, Keep, 10, RecordReplaying},
        {"to the start", 10, 4, false, RecordReplaying, toStart, Keep, 1, RecordReplaying},
        {"pause", 10, 4, false, RecordReplaying, pause, Stop, 4, RecordPause},
        {"pause acts only while replaying", 10, 4, false, RecordPause, pause, Keep, 4, RecordPause},
        {"stop goes back to one", 10, 7, false, RecordPause, stop, Stop, 1, RecordStop},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        RecordSlot slot = loaded(row.last, row.current, row.circular, row.state);
        EXPECT_EQ(row.command(slot), row.clock);
        EXPECT_EQ(slot.CurrentFrame, row.frame);
        EXPECT_EQ(slot.PlayState, row.after);
    }
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
