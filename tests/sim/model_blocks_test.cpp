// Blocks of the simulated instrument: framing, the parameter block decoded
// byte by byte, and screen codes that agree with the measurements.
#include "model/instrument.h"

#include <QtEndian>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>

namespace {

// The data of a definite-length block, after checking its frame.
QByteArray blockData(const QByteArray& reply)
{
    EXPECT_TRUE(reply.startsWith('#'));
    EXPECT_TRUE(reply.endsWith('\n'));
    const int digits = reply.size() > 1 ? reply[1] - '0' : 0;
    const int length = reply.mid(2, digits).toInt();
    EXPECT_EQ(reply.size(), 2 + digits + length + 1);
    return reply.mid(2 + digits, length);
}

int s16At(const QByteArray& block, int offset)
{
    return qFromLittleEndian<qint16>(block.constData() + offset);
}

float f32At(const QByteArray& block, int offset)
{
    const quint32 bits = qFromLittleEndian<quint32>(block.constData() + offset);
    float value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

double measured(Instrument& instrument, const char* query)
{
    return instrument.handle(query).trimmed().toDouble();
}

struct BlockSize {
    const char* setup;
    const char* query;
    int length;
};

class BlockSizeTest : public ::testing::TestWithParam<BlockSize> {};

TEST_P(BlockSizeTest, BlockIsFramedAndSized)
{
    Instrument instrument;
    for (const QByteArray& command : QByteArray(GetParam().setup).split(';'))
        instrument.handle(command);
    EXPECT_EQ(blockData(instrument.handle(GetParam().query)).size(), GetParam().length);
}

INSTANTIATE_TEST_SUITE_P(
    Readings, BlockSizeTest,
    ::testing::Values(BlockSize{"", ":WAVEFORM:SCREENDATA? CHANNEL1", 600},
                      BlockSize{":ACQUIRE:TYPE PEAKDETECT", ":WAVEFORM:SCREENDATA? CHANNEL2", 1200},
                      BlockSize{"", ":WAVEFORM:SCREENDATA? CHANNEL3", 0},
                      BlockSize{":MATH:DISPLAY ON", ":WAVEFORM:DATA? MATH", 600},
                      BlockSize{":FFT:DISPLAY ON", ":WAVEFORM:DATA? FFT", 1024},
                      BlockSize{":TIMEBASE:FORMAT XY", ":WAVEFORM:DATA? XY", 1200},
                      BlockSize{"", ":WAVEFORM:PARAMETER?", 80}, BlockSize{"", ":DISPLAY:DATA?", 77878}));

TEST(ParameterBlockTest, FieldsAtTheirOffsetsFollowTheState)
{
    Instrument instrument;
    for (const char* command : {":CHANNEL3:DISPLAY ON", ":ACQUIRE:TYPE PEAKDETECT", ":FFT:DISPLAY ON",
                                ":FFT:SOURCE CHANNEL2", ":FFT:WINDOW BLACKMAN", ":TRIGGER:MODE ALTERNATION"})
        instrument.handle(command);
    const QByteArray block = blockData(instrument.handle(":WAVEFORM:PARAMETER?"));
    ASSERT_EQ(block.size(), 80);
    EXPECT_EQ(s16At(block, 0), 0);
    EXPECT_EQ(s16At(block, 2), 299);
    EXPECT_EQ(s16At(block, 6), 299);  // end A
    EXPECT_EQ(s16At(block, 10), 299); // end B
    EXPECT_EQ(block[12], 0);          // not rolling
    EXPECT_EQ(block.mid(13, 4), QByteArray("\x01\x01\x01\x00", 4));
    EXPECT_EQ(block[17], 0); // the math trace is the spectrum now
    EXPECT_EQ(block[18], 3); // FFT
    EXPECT_EQ(block[34], 1);
    EXPECT_EQ(block[35], 1); // CH2
    EXPECT_EQ(block[36], 3); // Blackman
    EXPECT_EQ(s16At(block, 70), 0b0111);
    EXPECT_FLOAT_EQ(f32At(block, 28), 1.0f); // math scale: the larger channel scale
}

TEST(ParameterBlockTest, RollFillsTheScreenFromTheRight)
{
    Instrument instrument;
    instrument.handle(":TIMEBASE:FORMAT ROLL");
    const QByteArray first = blockData(instrument.handle(":WAVEFORM:PARAMETER?"));
    const QByteArray second = blockData(instrument.handle(":WAVEFORM:PARAMETER?"));
    EXPECT_EQ(first[12], 1);
    EXPECT_EQ(s16At(first, 0), 200);
    EXPECT_EQ(s16At(second, 0), 100);
    EXPECT_EQ(s16At(second, 2), 299);
}

TEST(ScreenCodesTest, CodesGiveBackTheVoltsTheMeasurementsSee)
{
    Instrument instrument;
    instrument.handle(":STOP");
    const QByteArray codes = blockData(instrument.handle(":WAVEFORM:SCREENDATA? CHANNEL1"));
    const double scale = measured(instrument, ":CHANNEL1:SCALE?");
    const double position = measured(instrument, ":CHANNEL1:OFFSET?") * 25 / scale;
    double low = 1e9, high = -1e9;
    for (char code : codes) {
        const double volts = ((100 - position) - quint8(code)) * scale / 25;
        low = std::min(low, volts);
        high = std::max(high, volts);
    }
    EXPECT_NEAR(high, measured(instrument, ":MEASURE:VMAX? CHANNEL1"), scale / 25);
    EXPECT_NEAR(low, measured(instrument, ":MEASURE:VMIN? CHANNEL1"), scale / 25);
}

TEST(ScreenCodesTest, PeakHalvesBracketEachPoint)
{
    Instrument instrument;
    instrument.handle(":ACQUIRE:TYPE PEAKDETECT");
    const QByteArray codes = blockData(instrument.handle(":WAVEFORM:SCREENDATA? CHANNEL2"));
    ASSERT_EQ(codes.size(), 1200);
    for (int i = 0; i < 600; ++i)
        ASSERT_GE(quint8(codes[i]), quint8(codes[i + 600])) << i; // minimum volts: the larger code
}

TEST(ScreenCodesTest, XyBlockIsTheTwoChannelsCodes)
{
    Instrument instrument;
    instrument.handle(":STOP");
    const QByteArray xy = blockData(instrument.handle(":WAVEFORM:DATA? XY"));
    EXPECT_EQ(xy.left(600), blockData(instrument.handle(":WAVEFORM:SCREENDATA? CHANNEL1")));
    EXPECT_EQ(xy.mid(600), blockData(instrument.handle(":WAVEFORM:SCREENDATA? CHANNEL2")));
}

TEST(ScreenCodesTest, SumOfTheChannelsIsTheMathTrace)
{
    Instrument instrument;
    instrument.handle(":STOP");
    instrument.handle(":CHANNEL1:OFFSET 0");
    instrument.handle(":CHANNEL2:OFFSET 0");
    instrument.handle(":MATH:DISPLAY ON");
    const QByteArray a = blockData(instrument.handle(":WAVEFORM:SCREENDATA? CHANNEL1"));
    const QByteArray b = blockData(instrument.handle(":WAVEFORM:SCREENDATA? CHANNEL2"));
    const QByteArray sum = blockData(instrument.handle(":WAVEFORM:DATA? MATH"));
    for (int i = 0; i < 600; ++i) // both scales are 1 V, like the math scale
        ASSERT_NEAR(100 - quint8(sum[i]), (100 - quint8(a[i])) + (100 - quint8(b[i])), 1.0) << i;
}

TEST(ScreenCodesTest, SpectrumPeaksAtTheSineFrequency)
{
    Instrument instrument;
    instrument.handle(":FFT:DISPLAY ON");
    const QByteArray spectrum = blockData(instrument.handle(":WAVEFORM:DATA? FFT"));
    const auto peak = std::min_element(spectrum.begin() + 1, spectrum.end(),
                                       [](char a, char b) { return quint8(a) < quint8(b); });
    const double binWidth = 1.0 / (0.5e-3 / 50 * 2048); // 500 us a division, 50 points a division
    EXPECT_NEAR((peak - spectrum.begin()) * binWidth, 1000.0, binWidth);
}

TEST(RunStopTest, RunningReadingsAdvanceAndStopFreezes)
{
    Instrument instrument;
    const QByteArray first = instrument.handle(":WAVEFORM:SCREENDATA? CHANNEL2");
    instrument.handle(":TRIGGER:EDGE:SOURCE CHANNEL2"); // CH1 then drifts against the trigger
    instrument.handle(":TIMEBASE:SCALE 2e-4");
    const QByteArray a = instrument.handle(":WAVEFORM:SCREENDATA? CHANNEL1");
    const QByteArray b = instrument.handle(":WAVEFORM:SCREENDATA? CHANNEL1");
    EXPECT_NE(a, b);
    instrument.handle(":STOP");
    EXPECT_EQ(instrument.handle(":TRIGGER:STATUS?"), "STOP\n");
    const QByteArray c = instrument.handle(":WAVEFORM:SCREENDATA? CHANNEL1");
    EXPECT_EQ(instrument.handle(":WAVEFORM:SCREENDATA? CHANNEL1"), c);
    EXPECT_FALSE(first.isEmpty());
}

TEST(RunStopTest, SingleSweepStopsAfterOneFrame)
{
    Instrument instrument;
    instrument.handle(":SINGLE");
    EXPECT_EQ(instrument.handle(":TRIGGER:EDGE:SWEEP?"), "SINGLE\n");
    instrument.handle(":WAVEFORM:PARAMETER?");
    EXPECT_EQ(instrument.handle(":TRIGGER:STATUS?"), "STOP\n");
}

TEST(RunStopTest, NormalSweepWithoutTriggerWaitsUntilForced)
{
    Instrument instrument;
    instrument.handle(":TRIGGER:EDGE:SWEEP NORMAL");
    instrument.handle(":TRIGGER:EDGE:LEVEL 3"); // above the sine
    const QByteArray before = instrument.handle(":WAVEFORM:SCREENDATA? CHANNEL2");
    EXPECT_EQ(instrument.handle(":WAVEFORM:SCREENDATA? CHANNEL2"), before);
    instrument.handle(":FORCETRIG");
    EXPECT_NE(instrument.handle(":WAVEFORM:SCREENDATA? CHANNEL2"), before);
}

} // namespace
