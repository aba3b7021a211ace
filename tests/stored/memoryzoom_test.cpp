#include "stored/memorysteps.h"
#include "stored/memoryzoom.h"

#include <gtest/gtest.h>
#include <numeric>

namespace {

// 3000 samples at 250 kS/s from -6 ms: at 1 ms/div exactly the 300 columns, ten samples a column.
MemoryWaveWindow fullScreen(double delay = 0, double timeDiv = 1e-3)
{
    MemoryWaveWindow w;
    devGetStopScrWave64(0, 250e3f, 3000, delay, -6e-3, timeDiv, 0, w);
    return w;
}

TEST(MemoryZoom, WindowOfSamplesOnTheColumns)
{
    const MemoryWaveWindow all = fullScreen();
    EXPECT_EQ(all.StartPos, 0);
    EXPECT_EQ(all.EndPos, 299);
    EXPECT_EQ(all.StartPt, 0);
    EXPECT_EQ(all.EndPt, 2990);
    // Twice as slow: the data covers the middle half of the screen.
    const MemoryWaveWindow half = fullScreen(0, 2e-3);
    EXPECT_EQ(half.StartPos, 75);
    EXPECT_EQ(half.EndPos, 224);
    // Delayed by 3 divisions: the data ends 75 columns early.
    const MemoryWaveWindow late = fullScreen(3e-3);
    EXPECT_EQ(late.StartPt, 750);
    EXPECT_EQ(late.EndPos, 224);
    // Entirely off the screen, or no rate: nothing to draw.
    EXPECT_EQ(fullScreen(1).ScrStartPos, 300);
    MemoryWaveWindow none;
    devGetStopScrWave64(0, 0, 3000, 0, 0, 1e-3, 0, none);
    EXPECT_EQ(none.ScrEndPos, 300);
}

TEST(MemoryZoom, NearestSampleForTwoPointsAColumnAndMinMaxForPeaks)
{
    std::vector<int16_t> source(3000);
    std::iota(source.begin(), source.end(), int16_t(0));
    const MemoryWaveWindow w = fullScreen();
    std::vector<int16_t> out;
    ASSERT_EQ(WaveZoom(source, out, w, 600), 1);
    ASSERT_EQ(out.size(), 600u);
    EXPECT_EQ(out[0], 0);
    EXPECT_EQ(out[1], 5);
    EXPECT_EQ(out[2], 10);
    EXPECT_EQ(out[598], 2990);
    EXPECT_EQ(out[599], 2990); // held at EndPt
    EXPECT_EQ(WaveZoom({}, out, w, 600), 0);

    // Pairs (min, max) = (2j, 2j + 1); each point gathers the pairs that fall on it.
    MemoryWaveWindow steps = w;
    steps.StartPt = 0;
    steps.EndPt = 2 * 1499;
    std::vector<int16_t> low, high;
    ASSERT_EQ(PeakWaveZoom(source, low, high, steps, 600), 1);
    EXPECT_EQ(low[0], 0);
    EXPECT_LE(high[0], 9);
    EXPECT_GE(high[0], 3);
    EXPECT_EQ(high[599], 2999);
}

TEST(MemoryZoom, CodesMoveFromTheDatasScaleToTheViews)
{
    std::vector<int16_t> codes = {25, 125, 225};
    WaveZoomV(codes, 1, 0, 1, 0);
    EXPECT_EQ(codes, (std::vector<int16_t>{25, 125, 225}));
    // Twice the volts per division: half the distance from the zero row.
    WaveZoomV(codes, 2, 0, 1, 0);
    EXPECT_EQ(codes, (std::vector<int16_t>{75, 125, 175}));
    // An offset of one division on the view lifts the trace 25 rows.
    WaveZoomV(codes, 2, 2, 2, 0);
    EXPECT_EQ(codes, (std::vector<int16_t>{50, 100, 150}));
}

TEST(MemoryZoom, RefreshClampsToTheScreenAndSkipsChannelsOffIt)
{
    MemoryWaveSlot slot;
    slot.ChanEnabled = {true, true, false, false};
    slot.Samples[0] = std::vector<int16_t>(3001, 300);
    slot.Samples[1] = std::vector<int16_t>(3001, 0);
    slot.ChanVoltDiv = slot.ChanVoltDivMeasured = {1, 1, 1, 1};
    slot.SampleCount = 3000;
    slot.SampleRate = 250e3f;
    slot.StartTime = -6e-3;
    slot.TimeDiv = 1e-3;
    ComputeMemoryWindows(slot);
    MemoryWaveScreen screen;
    RefreshMemoryChannels(slot, screen);
    EXPECT_EQ(screen.rows[0], std::vector<int16_t>(600, 199));
    EXPECT_EQ(screen.rows[1], std::vector<int16_t>(600, 0));
    EXPECT_TRUE(screen.rows[2].empty());
    slot.Delay = 1;
    ComputeMemoryWindows(slot);
    screen.rows[0].assign(1, 7);
    RefreshMemoryChannels(slot, screen, 0);
    EXPECT_EQ(screen.rows[0], std::vector<int16_t>(1, 7));
}

TEST(MemorySteps, VoltsAndTimeThroughTheirSeries)
{
    const struct {
        float from;
        int direction;
        float to;
    } volts[] = {{0.005f, -1, 0.002f}, {0.002f, -1, 0.002f}, {0.002f, +1, 0.005f},
                 {0.003f, +1, 0.005f}, {0.003f, -1, 0.002f}, {10.f, +1, 10.f},
                 {20.f, +1, 20.f},     {20.f, -1, 10.f},     {0.5f, +1, 1.f}};
    for (const auto& v : volts)
        EXPECT_FLOAT_EQ(StepVoltDiv(v.from, v.direction), v.to) << v.from << " " << v.direction;

    const struct {
        double from;
        int direction, code;
        double to;
    } times[] = {{5e-9, -1, 2, 5e-9}, {5e-9, -1, 3, 2e-9}, {2e-9, -1, 3, 2e-9},
                 {2e-9, -1, 0, 1e-9}, {1e-9, -1, 4, 1e-9}, {20, +1, 0, 50},
                 {50, +1, 0, 50},     {1e-3, +1, 0, 2e-3}, {3e-6, -1, 0, 2e-6}};
    for (const auto& t : times)
        EXPECT_DOUBLE_EQ(StepTimeDiv(t.from, t.direction, t.code), t.to) << t.from << " " << t.code;
}

TEST(MemorySteps, AVoltsStepKeepsTheTraceInPlace)
{
    MemoryWaveSlot slot;
    slot.ChanVoltDiv[1] = 0.5f;
    slot.ChanOffset[1] = -1.5f;
    StepChannelVoltDiv(slot, 1, +1);
    EXPECT_FLOAT_EQ(slot.ChanVoltDiv[1], 1.f);
    EXPECT_FLOAT_EQ(slot.ChanOffset[1], -3.f);
    EXPECT_FALSE(StepMemoryValue(slot, 7, +1, 0));
}

TEST(MemoryZoom, RollTurnsTheRingSoTheOldestStepComesFirst)
{
    MemoryWaveSlot slot;
    slot.ChanEnabled[0] = true;
    slot.ChanVoltDiv = slot.ChanVoltDivMeasured = {1, 1, 1, 1};
    slot.ModeRoll = true;
    slot.RollPosition = 1000;
    slot.SampleCount = 3000;
    slot.SampleRate = 250e3f;
    slot.StartTime = -6e-3;
    slot.TimeDiv = 1e-3;
    // Chronological step j lies at (1000 + j) mod 3000 and holds row 25 + j / 20.
    slot.Samples[0].assign(3001, 0);
    for (int j = 0; j < 3000; ++j)
        slot.Samples[0][size_t((1000 + j) % 3000)] = int16_t(50 + j / 20);
    ComputeMemoryWindows(slot);
    MemoryWaveScreen screen;
    RefreshMemoryChannels(slot, screen);
    ASSERT_EQ(screen.rows[0].size(), 600u);
    EXPECT_EQ(screen.rows[0].front(), 25);
    EXPECT_EQ(screen.rows[0][598], 25 + 2990 / 20);
}

} // namespace
