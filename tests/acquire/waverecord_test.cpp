#include "acquire/tabletext.h"
#include "acquire/wavebytes.h"
#include "acquire/waverecord.h"
#include "state/programstate.h"

#include <gtest/gtest.h>

namespace {

struct SplitCase {
    const char* triggerMode;
    const char* fftDisplay;
    int8_t fftScreen;
    bool split;
};

class SplitScreenTest : public ::testing::TestWithParam<SplitCase> {};

TEST_P(SplitScreenTest, FollowsTriggerModeAndSharedSpectrum)
{
    const SplitCase& c = GetParam();
    EXPECT_EQ(
        SplitScreenOf(QString::fromLatin1(c.triggerMode), QString::fromLatin1(c.fftDisplay), c.fftScreen),
        c.split);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, SplitScreenTest,
    ::testing::Values(SplitCase{"EDGE", "ON", 0, true}, SplitCase{"EDGE", "ON", 1, false},
                      SplitCase{"EDGE", "ON", -1, true}, SplitCase{"EDGE", "OFF", 0, false},
                      SplitCase{"ALTERNATION", "OFF", 1, true}, SplitCase{"ALTERNATION", "ON", 1, true},
                      SplitCase{"alternation", "OFF", 0, false}, SplitCase{"EDGE", "on", 0, false}));

TEST(WaveRecord, ChannelAccessorsReachTheirOwnFields)
{
    WaveRecord r;
    r.setShowChannel(3, true);
    r.setShowChannel(0, true);
    r.setShowChannel(5, true);
    EXPECT_TRUE(r.ShowCH3);
    EXPECT_FALSE(r.ShowCH1 || r.ShowCH2 || r.ShowCH4 || r.ShowMath);
    EXPECT_FALSE(r.showChannel(0));
    EXPECT_FALSE(r.showChannel(5));
    r.channelPeak(4).push_back(7);
    EXPECT_EQ(r.WaveCH4Peak, WaveArray{7});
    EXPECT_TRUE(r.WaveCH4.empty());
}

TEST(ResetProgramState, ClearsSnapshotsBlockAndTables)
{
    WaveRecords[17].HasData = true;
    WaveRecords[17].WaveCH1.assign(10, 1);
    CurrentWaveIndex = 5;
    WaveBytes[6200] = 9;
    WaveCount = 3;
    DataValueText2[10240] = QStringLiteral("x");
    DataHeaderText = QStringLiteral("CH1 ");
    ResetProgramState();
    EXPECT_FALSE(WaveRecords[17].HasData);
    EXPECT_TRUE(WaveRecords[17].WaveCH1.empty());
    EXPECT_EQ(CurrentWaveIndex, 0);
    EXPECT_EQ(WaveBytes[6200], 0);
    EXPECT_EQ(WaveCount, 0);
    EXPECT_TRUE(DataValueText2[10240].isEmpty());
    EXPECT_TRUE(DataHeaderText.isEmpty());
}

struct CodeCase {
    float value;
    const char* text;
};

class FormatCodeTest : public ::testing::TestWithParam<CodeCase> {};

TEST_P(FormatCodeTest, SignsTheExponentBySize)
{
    EXPECT_EQ(FormatCode(GetParam().value), QString::fromLatin1(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(Values, FormatCodeTest,
                         ::testing::Values(CodeCase{1.0f, "1.00E+00"}, CodeCase{12345.0f, "1.23E+04"},
                                           CodeCase{0.5f, "5.00E-01"}, CodeCase{0.00125f, "1.25E-03"},
                                           CodeCase{-0.002f, "-2.00E-03"}, CodeCase{-2.5f, "-2.50E00"},
                                           CodeCase{0.0f, "0.00E00"}));

} // namespace
