// The reading frame without a window: the bar's clock, the dispatch on the
// operation code and the closing steps, which run after an error path too.
#include "reading_fixture.h"

#include "acquire/operation.h"
#include "acquire/readdatatable.h"
#include "acquire/tabletext.h"
#include "acquire/wavebytes.h"
#include "acquire/waverecord.h"
#include "link/linkstate.h"

namespace {

struct TickCase {
    int code;
    bool running;
    int step;
    int percent;
    double base;
    int percentAfter;
};

class ProgressTick : public ReadingTest, public ::testing::WithParamInterface<TickCase> {};

TEST_P(ProgressTick, GrowsThePercentUpToTheBaseAndHundred)
{
    const TickCase& c = GetParam();
    OperationRunning = c.running;
    ProgressStep = int16_t(c.step);
    ProgressPercent = int16_t(c.percent);
    ProgressBase = c.base;
    Progress().setBarValue(98);
    int told = 0;
    QObject listener;
    QObject::connect(&ReadingNotifier(), &ReadingEvents::progressPercentChanged, &listener,
                     [&told](int slot) { told += slot == 2 ? 1 : 100; });

    ProgressTimerTick({c.code, 2});

    EXPECT_EQ(ProgressPercent, c.percentAfter);
    EXPECT_EQ(Progress().barValue(), std::min(98.0 + c.step, 100.0)) << "the bar stops at its maximum";
    EXPECT_EQ(told, c.code == OperationWaveWindow && c.running ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(Cases, ProgressTick,
                         ::testing::Values(TickCase{10, true, 3, 10, 50, 13},
                                           TickCase{10, true, 3, 49, 50, 50},
                                           TickCase{10, true, 3, 99, 200, 100},
                                           TickCase{10, false, 3, 10, 50, 10},
                                           TickCase{5, true, 3, 10, 50, 10}, TickCase{10, true, 1, 0, 0, 0}));

using ReadingFrame = ReadingTest;

TEST_F(ReadingFrame, RunsTheInstalledRoutineAndClosesEvenOnItsErrorPath)
{
    for (const bool finished : {true, false}) {
        platform->clearRecords();
        bool busyInside = false;
        int slotGiven = -1;
        SetOperationRoutine(OperationWaveWindow, [&](const Operation& reading) {
            busyInside = LinkBusy && OperationRunning;
            slotGiven = reading.slot;
            return finished;
        });
        int endedSlot = -1;
        QObject listener;
        QObject::connect(&ReadingNotifier(), &ReadingEvents::waveReadingEnded, &listener,
                         [&endedSlot](int slot) { endedSlot = slot; });
        RunReadingFrame({OperationWaveWindow, 7});
        SetOperationRoutine(OperationWaveWindow, nullptr);

        EXPECT_TRUE(busyInside);
        EXPECT_EQ(slotGiven, 7);
        EXPECT_EQ(CurrentWaveIndex, 7) << "kept as the record of what ran";
        EXPECT_TRUE(OperationDone);
        EXPECT_FALSE(OperationRunning);
        EXPECT_FALSE(LinkBusy);
        EXPECT_EQ(platform->sleeps, QList<int>{ReadingEndPauseMs});
        EXPECT_EQ(endedSlot, finished ? 7 : -1) << "the window's end only after a finished reading";
        EXPECT_EQ(visa->commands().front(), ":TRIGGER:STATUS?");
    }
}

TEST_F(ReadingFrame, UnknownCodeDoesNothingButClose)
{
    EXPECT_FALSE(RunOperation({42}));
    RunReadingFrame({42});
    EXPECT_TRUE(OperationDone);
    EXPECT_EQ(visa->commands(), std::vector<std::string>{":TRIGGER:STATUS?"});
}

TEST_F(ReadingFrame, TableBeyondItsColumnsEndsByTheErrorPath)
{
    WaveParameter p;
    p.s16ScrStartPos = 5000;
    p.s16ScrEndPos = 5200; // times from index 10000 to 10402: past the columns
    p.s8CH1Enabled_Stop = 1;
    answerParameter(p);
    answer(":WAVEFORM:SCREENDATA? CHANNEL1", Block(std::string(402, char(100))));

    EXPECT_FALSE(ReadDataTable("CH1"));

    // 10 us a point from point 300: index 10240 lies 99.4 ms on.
    EXPECT_EQ(DataTimeText[TableTextLast], FormatCode(0.0994f)) << "what lay within the bound is kept";
    EXPECT_EQ(DataValueText[1], QString()) << "values come after the times";
}

TEST_F(ReadingFrame, WaveWindowClipsChannelsNotXy)
{
    WaveParameter p;
    p.s8CH1Enabled_Stop = 1;
    answerParameter(p);
    answer(":WAVEFORM:SCREENDATA? CHANNEL1", Block(std::string("\x05\xFA\x64", 3)));
    WaveRecords[0].ShowCH1 = true;

    RunReadingFrame({OperationWaveWindow});

    const WaveArray& wave = WaveRecords[0].WaveCH1;
    ASSERT_EQ(wave.size(), 2049u);
    EXPECT_EQ(wave[213], 5);
    EXPECT_EQ(wave[214], 199) << "250 is clipped to the bottom row";
    EXPECT_EQ(wave[215], 100);
    EXPECT_EQ(WaveRecords[0].ScaleText[1], "1.00V");
    EXPECT_EQ(WaveRecords[0].TimeScaleText, "500.0us");

    visa->writes.clear();
    answer(":TIMEBASE:FORMAT?", "X-Y\n");
    answer(":WAVEFORM:DATA? XY", Block(std::string("\xFA\x05", 2)));
    RunReadingFrame({OperationWaveWindow});
    EXPECT_EQ(WaveRecords[0].WaveCH1[1], 250) << "X-Y codes are not clipped";
    EXPECT_EQ(WaveRecords[0].WaveCH2[1], 5);
    const std::vector<std::string> sent = visa->commands();
    EXPECT_EQ(std::count(sent.begin(), sent.end(), ":WAVEFORM:SCREENDATA? CHANNEL1"), 0);
}

TEST_F(ReadingFrame, WindowWithNoChannelReadsNoBlock)
{
    RunReadingFrame({OperationWaveWindow});

    EXPECT_TRUE(OperationDone);
    for (const std::string& write : visa->writes)
        EXPECT_EQ(write.find(":WAVEFORM:SCREENDATA"), std::string::npos) << write;
}

} // namespace
