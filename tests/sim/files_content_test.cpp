#include "files/rcdcontent.h"
#include "files/wfmcontent.h"
#include "files_littleendian.h"
#include "screen/screencodes.h"

#include <gtest/gtest.h>

namespace {

// What a reader of the file makes of a stored byte: volts from the row,
// the channel's zero at 100 - shift, 25 rows a division.
double readerVolts(int byte, const WfmChannel& channel)
{
    return ((100 - channel.shiftDisplay) - byte) * (channel.scaleDisplay / 1e6) / 25.0;
}

std::pair<double, double> voltRange(const WfmChannel& channel)
{
    double low = 1e9, high = -1e9;
    for (char byte : channel.samples) {
        low = std::min(low, readerVolts(quint8(byte), channel));
        high = std::max(high, readerVolts(quint8(byte), channel));
    }
    return {low, high};
}

int screenCode(const SimState& state, const Frame& frame, int channel, int point)
{
    return quint8(channelScreenCodes(state, frame, channel).at(point));
}

TEST(WfmContent, PowerOnStateStoresTheChannelsThatAreOn)
{
    const SimState state = powerOnState();
    const WfmContent content = wfmContentOf(state, Acquisition(state).frame(), {});
    EXPECT_EQ(content.triggerKind, kWfmTriggerEdge);
    EXPECT_EQ(content.timeMode, WfmTimeMode::YT);
    EXPECT_EQ(content.acquireMode, 0);
    EXPECT_EQ(content.peakFlags, 0);
    EXPECT_EQ(content.timeBaseA.sampleCount, 4000);
    EXPECT_EQ(content.timeBaseA.timeDiv, 500'000'000);
    const bool on[4] = {true, true, false, false};
    const int shift[4] = {50, -50, 0, -75};
    for (int n = 0; n < 4; ++n) {
        SCOPED_TRACE(n);
        EXPECT_EQ(content.channels[n].enabled, on[n]);
        EXPECT_EQ(content.channels[n].scaleDisplay, 1'000'000);
        EXPECT_EQ(content.channels[n].shiftDisplay, shift[n]);
        EXPECT_EQ(content.channels[n].samples.size(), on[n] ? 4000 : 0);
    }
}

// CH1 carries a sine of 1.5 V and CH2 a square of 1 V: read back through
// the reader's formula, the samples span just those volts.
TEST(WfmContent, SamplesReadBackAsTheSignalsVolts)
{
    const SimState state = powerOnState();
    const WfmContent content = wfmContentOf(state, Acquisition(state).frame(), {});
    const auto [sineLow, sineHigh] = voltRange(content.channels[0]);
    EXPECT_NEAR(sineLow, -1.5, 0.1);
    EXPECT_NEAR(sineHigh, 1.5, 0.1);
    const auto [squareLow, squareHigh] = voltRange(content.channels[1]);
    EXPECT_NEAR(squareLow, -1.0, 0.1);
    EXPECT_NEAR(squareHigh, 1.0, 0.1);
}

// The header's start time and rate put the screen's centre on the sample
// that the screen shows there, and the screen's edges inside the record.
TEST(WfmContent, TimingFieldsLocateTheScreenInTheRecord)
{
    SimState state = powerOnState();
    state.timebase.main.offset = 1e-3;
    const Frame frame = Acquisition(state).frame();
    const WfmContent content = wfmContentOf(state, frame, {});
    const WfmTimeBase& base = content.timeBaseA;
    EXPECT_EQ(base.delay, 1'000'000'000);
    const auto sampleAt = [&](double seconds) {
        return int(std::lround((seconds - base.startTime * 1e-12) * base.sampleRate));
    };
    for (int point : {0, 150, 300, 450, 599}) {
        SCOPED_TRACE(point);
        const double time = 1e-3 + (point - 300) * 500e-6 / 50;
        const int index = sampleAt(time);
        ASSERT_GE(index, 0);
        ASSERT_LT(index, base.sampleCount);
        EXPECT_NEAR(quint8(content.channels[0].samples[index]), screenCode(state, frame, 0, point), 1);
    }
}

struct VariantCase {
    const char* name;
    TriggerType trigger;
    AcquireType acquire;
    TimeFormat format;
    bool longMemory;
    std::uint8_t triggerKind;
    std::uint8_t peakFlags;
    std::int32_t acquireMode;
    WfmTimeMode timeMode;
    int count;
};

class WfmContentVariant : public ::testing::TestWithParam<VariantCase> {};

TEST_P(WfmContentVariant, HeaderSaysWhatTheStateIs)
{
    const VariantCase& c = GetParam();
    SimState state = powerOnState();
    state.trigger.mode = c.trigger;
    state.acquire.type = c.acquire;
    state.timebase.format = c.format;
    WfmRequest request;
    request.longMemory = c.longMemory;
    const WfmContent content = wfmContentOf(state, Acquisition(state).frame(), request);
    EXPECT_EQ(content.triggerKind, c.triggerKind);
    EXPECT_EQ(content.peakFlags, c.peakFlags);
    EXPECT_EQ(content.acquireMode, c.acquireMode);
    EXPECT_EQ(content.timeMode, c.timeMode);
    EXPECT_EQ(content.longMemory, c.longMemory && c.trigger != TriggerType::Alternation);
    EXPECT_EQ(content.timeBaseA.sampleCount, c.count);
    EXPECT_EQ(content.channels[0].samples.size(), c.count);
    // Peak data counts its pairs as two samples and runs at half the rate.
    const double stepsPerDivision = content.timeBaseA.sampleRate * 500e-6;
    const int steps = c.acquire == AcquireType::PeakDetect ? c.count / 2 : c.count;
    EXPECT_NEAR(stepsPerDivision * 12, content.longMemory ? steps * 4000.0 / 16384 : steps, 1);
}

INSTANTIATE_TEST_SUITE_P(
    States, WfmContentVariant,
    ::testing::Values(VariantCase{"Edge", TriggerType::Edge, AcquireType::Normal, TimeFormat::YT, false, 0, 0,
                                  0, WfmTimeMode::YT, 4000},
                      VariantCase{"Pulse", TriggerType::Pulse, AcquireType::Average, TimeFormat::XY, false, 0,
                                  0, 1, WfmTimeMode::XY, 4000},
                      VariantCase{"Peak", TriggerType::Edge, AcquireType::PeakDetect, TimeFormat::YT, false,
                                  0, 1, 2, WfmTimeMode::YT, 4000},
                      VariantCase{"Roll", TriggerType::Edge, AcquireType::Normal, TimeFormat::Roll, false, 0,
                                  0, 0, WfmTimeMode::Roll, 4000},
                      VariantCase{"LongMemory", TriggerType::Edge, AcquireType::Normal, TimeFormat::YT, true,
                                  0, 0, 0, WfmTimeMode::YT, 16384},
                      VariantCase{"AlternationPeak", TriggerType::Alternation, AcquireType::PeakDetect,
                                  TimeFormat::YT, false, 4, 6, 2, WfmTimeMode::YT, 4000},
                      VariantCase{"AlternationRefusesLongMemory", TriggerType::Alternation,
                                  AcquireType::Normal, TimeFormat::YT, true, 4, 0, 0, WfmTimeMode::YT, 4000}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(WfmContent, PeakPairsHoldTheLowerVoltageFirst)
{
    SimState state = powerOnState();
    state.acquire.type = AcquireType::PeakDetect;
    const WfmContent content = wfmContentOf(state, Acquisition(state).frame(), {});
    const QByteArray& samples = content.channels[1].samples;
    int spans = 0;
    for (int i = 0; i + 1 < samples.size(); i += 2) {
        ASSERT_GE(quint8(samples[i]), quint8(samples[i + 1])) << i; // larger row, lower voltage
        spans += samples[i] != samples[i + 1];
    }
    EXPECT_GT(spans, 0); // the square's edges fall inside some steps
}

// In Roll the oldest sample sits at the roll position: it is what the left
// edge of the rolling screen shows, and the newest, before it, the right edge.
TEST(WfmContent, RollRingStartsAtTheRollPosition)
{
    SimState state = powerOnState();
    state.timebase.format = TimeFormat::Roll;
    const Frame frame = Acquisition(state).frame();
    const WfmContent content = wfmContentOf(state, frame, {});
    const QByteArray& samples = content.channels[0].samples;
    const int position = content.rollPosition;
    ASSERT_GT(position, 0);
    ASSERT_LT(position, samples.size());
    EXPECT_NEAR(quint8(samples[position]), screenCode(state, frame, 0, 0), 1);
    EXPECT_NEAR(quint8(samples[position - 1]), screenCode(state, frame, 0, 599), 2);
}

TEST(WfmContent, AlternationKeepsBothTimeBasesAndTheirSources)
{
    SimState state = powerOnState();
    state.trigger.mode = TriggerType::Alternation;
    state.trigger.alternation.channelA = 0;
    state.trigger.alternation.channelB = 2;
    state.timebase.windowB.scale = 20e-6;
    state.timebase.windowB.offset = -40e-6;
    state.channels[2].display = true;
    const WfmContent content = wfmContentOf(state, Acquisition(state).frame(), {});
    EXPECT_EQ(content.triggerSourceA, 0);
    EXPECT_EQ(content.triggerSourceB, 2);
    EXPECT_EQ(content.timeBaseA.timeDiv, 500'000'000);
    EXPECT_EQ(content.timeBaseB.timeDiv, 20'000'000);
    EXPECT_EQ(content.timeBaseB.delay, -40'000'000);
    EXPECT_EQ(content.timeBaseB.sampleCount, content.timeBaseA.sampleCount);
    EXPECT_NEAR(content.timeBaseB.sampleRate, 25 * content.timeBaseA.sampleRate, 1);
    EXPECT_EQ(content.channels[2].samples.size(), content.timeBaseA.sampleCount);
}

TEST(RcdContent, RecordsTheFirstChannelOnAndTheNextInTheSecondBlock)
{
    SimState state = powerOnState();
    state.channels[0].display = false;
    state.channels[3].display = true;
    RcdRequest request;
    request.frames = 12;
    request.secondBlock = true;
    const RcdContent content = rcdContentOf(state, request);
    EXPECT_EQ(content.source, 1);
    EXPECT_EQ(content.timeDiv, 500'000'000);
    EXPECT_EQ(content.channels[1].on, true);
    EXPECT_EQ(content.channels[1].shift, -50);
    EXPECT_EQ(content.channels[3].shift, -75);
    ASSERT_EQ(content.frames.size(), 12);
    ASSERT_EQ(content.secondFrames.size(), 12);
    // CH2, a 1 V square 2 divisions down, lies on rows 125 and 175; CH4, a
    // 0 to 2.5 V pulse 3 divisions down, between rows 112 and 175.
    for (const QByteArray& frame : content.frames) {
        ASSERT_EQ(frame.size(), 600);
        for (char row : frame)
            ASSERT_TRUE(quint8(row) >= 123 && quint8(row) <= 177) << int(quint8(row));
    }
    for (const QByteArray& frame : content.secondFrames)
        for (char row : frame)
            ASSERT_TRUE(quint8(row) >= 110 && quint8(row) <= 177) << int(quint8(row));
}

TEST(RcdContent, RowsStayOnTheScreen)
{
    SimState state = powerOnState();
    state.channels[0].scale = 0.1; // the 1.5 V sine runs far off the grid
    const RcdContent content = rcdContentOf(state, {});
    ASSERT_EQ(content.frames.size(), 100);
    bool top = false, bottom = false;
    for (char row : content.frames[0]) {
        top |= quint8(row) == 0;
        bottom |= quint8(row) == 199;
        ASSERT_LE(quint8(row), 199);
    }
    EXPECT_TRUE(top && bottom);
}

} // namespace
