// A wave window's reading against the simulator: the record holds the
// instrument's codes at the drawing's indices, its settings and its block.
#include "reading_simlink.h"

#include "acquire/blockplacement.h"
#include "acquire/operation.h"
#include "acquire/readblocks.h"
#include "acquire/waverecord.h"
#include "link/linkcommands.h"
#include "link/linkstate.h"
#include "wave/drawosc.h"
#include "wave/recordingsurface.h"

#include <algorithm>

namespace {

WaveRecord& readWindow(std::initializer_list<int> channels)
{
    WaveRecord& record = WaveRecords[3];
    for (const int n : channels)
        record.setShowChannel(n, true);
    RunReadingFrame({OperationWaveWindow, 3});
    return record;
}

// Entries from..from + count - 1 of an array, as a vector to compare.
std::vector<int> slice(const WaveArray& array, size_t from, size_t count)
{
    if (array.size() < from + count) return {};
    return {array.begin() + long(from), array.begin() + long(from + count)};
}

class WaveReading : public SimReadingTest {
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(startSim());
        ASSERT_TRUE(connectOverSocket());
    }
};

TEST_F(WaveReading, ChannelsHoldTheInstrumentsCodesAndItsSettings)
{
    send(":STOP");
    const WaveRecord& r = readWindow({1, 2});

    EXPECT_TRUE(OperationDone);
    EXPECT_FALSE(OperationRunning);
    EXPECT_FALSE(LinkBusy);
    EXPECT_EQ(TriggerStatusText, "STOP");
    const std::vector<int> ch1 = CodesOf(askBlock(":WAVEFORM:SCREENDATA? CHANNEL1"));
    const std::vector<int> ch2 = CodesOf(askBlock(":WAVEFORM:SCREENDATA? CHANNEL2"));
    ASSERT_EQ(ch1.size(), 600u);
    ASSERT_EQ(ch2.size(), 600u);
    EXPECT_EQ(slice(r.WaveCH1, ChannelOrigin + 1, 600), ch1);
    EXPECT_EQ(slice(r.WaveCH2, ChannelOrigin + 1, 600), ch2);
    EXPECT_EQ(r.WaveCH1.at(ChannelOrigin), 0) << "nothing before sample 1";
    // The sine of CH1 (1.5 V at 1 V a division, 2 divisions up) swings about
    // code 50 by 37.5 codes.
    const auto [low, high] = std::minmax_element(ch1.begin(), ch1.end());
    EXPECT_NEAR(*low, 12, 3);
    EXPECT_NEAR(*high, 88, 3);

    WaveParameter block;
    const QByteArray bytes = askBlock(":WAVEFORM:PARAMETER?");
    ASSERT_EQ(bytes.size(), 80);
    Lindquay(reinterpret_cast<const unsigned char*>(bytes.constData()), &block);
    EXPECT_EQ(r.Parameter, block);
    EXPECT_EQ(r.TriggerMode, "EDGE");
    EXPECT_EQ(r.ScaleText[1], "1.00V");
    EXPECT_EQ(r.OffsetText[1], "2.00V");
    EXPECT_EQ(r.OffsetText[2], "-2.00V");
    EXPECT_EQ(r.TimeScaleText, "500.0us");
    EXPECT_TRUE(r.YTMode);
    EXPECT_FALSE(r.XYMode);
    EXPECT_EQ(r.Points, 600);
    EXPECT_EQ(r.LastChannel, 2);
    EXPECT_TRUE(r.PrevShow[1] && r.PrevShow[2] && !r.PrevShow[3]);
    EXPECT_TRUE(r.WaveCH3.empty()) << "a channel not shown is not read";
}

TEST_F(WaveReading, PeakDetectFillsBothHalvesWithTheMiddleSampleInBoth)
{
    WriteCmd(":ACQUIRE:TYPE PEAKDETECT");
    send(":STOP");
    const WaveRecord& r = readWindow({1});

    const std::vector<int> codes = CodesOf(askBlock(":WAVEFORM:SCREENDATA? CHANNEL1"));
    ASSERT_EQ(codes.size(), 1200u);
    EXPECT_EQ(r.Parameter.s16ChanPeakState & 1, 1);
    const std::vector<int> minima(codes.begin(), codes.begin() + 600);
    const std::vector<int> maxima(codes.begin() + 600, codes.end());
    EXPECT_EQ(slice(r.WaveCH1, PeakOrigin + 1, 600), minima);
    EXPECT_EQ(slice(r.WaveCH1Peak, PeakOrigin + 1, 600), maxima);
    EXPECT_EQ(r.WaveCH1Peak.at(PeakOrigin), codes[599]) << "sample 600 lies in both halves";
}

TEST_F(WaveReading, XyFillsBothChannelsFromOneBlock)
{
    WriteCmd(":TIMEBASE:FORMAT XY");
    send(":STOP");
    const WaveRecord& r = readWindow({3});

    const std::vector<int> codes = CodesOf(askBlock(":WAVEFORM:DATA? XY"));
    ASSERT_EQ(codes.size(), 1200u);
    EXPECT_TRUE(r.XYMode);
    EXPECT_FALSE(r.YTMode || r.RollMode);
    EXPECT_TRUE(r.ShowCH1 && r.ShowCH2) << "X-Y shows both of its channels";
    ASSERT_EQ(r.WaveCH1.size(), 1025u);
    ASSERT_EQ(r.WaveCH2.size(), 1025u);
    EXPECT_EQ(slice(r.WaveCH1, 1, 600), std::vector<int>(codes.begin(), codes.begin() + 600));
    EXPECT_EQ(slice(r.WaveCH2, 1, 600), std::vector<int>(codes.begin() + 600, codes.end()));
    EXPECT_EQ(r.WaveCH1[601], codes[600]) << "the first half runs on into the second";
}

TEST_F(WaveReading, AlternateTriggerAsksBothTimeBasesInOrder)
{
    WriteCmd(":TRIGGER:MODE ALTERNATION");
    const WaveRecord& r = readWindow({1});

    EXPECT_EQ(r.TriggerMode, "ALTERNATION");
    EXPECT_TRUE(r.SplitScreen);
    QStringList timeQueries;
    for (const QString& command : link->loggedCommands())
        if (command.startsWith(":TRIGGER:ALTERNATION:TIME") || command.startsWith(":TIMEBASE:SCALE") ||
            command.startsWith(":TIMEBASE:OFFSET"))
            timeQueries.append(command);
    EXPECT_EQ(
        timeQueries,
        QStringList({":TRIGGER:ALTERNATION:TIMESCALE? SOURCEA", ":TRIGGER:ALTERNATION:TIMEOFFSET? SOURCEA",
                     ":TRIGGER:ALTERNATION:TIMESCALE? SOURCEB", ":TRIGGER:ALTERNATION:TIMEOFFSET? SOURCEB"}));
    EXPECT_FALSE(r.TimeScaleAText.isEmpty());
    EXPECT_FALSE(r.TimeScaleBText.isEmpty());
}

// Markers and traces of four channels share one answer about the source pair.
TEST_F(WaveReading, AnAlternateTriggerPictureAsksTheSourcePairOnce)
{
    WriteCmd(":TRIGGER:MODE ALTERNATION");
    WaveRecord& r = readWindow({1, 2, 3, 4});
    r.HasData = true;
    const QString query = QStringLiteral(":TRIGGER:ALTERNATION:SOURCE?");
    const qsizetype before = link->loggedCommands().count(query);
    RecordingSurface s;
    DrawOSC(WaveCanvas(s, 1), r);
    ASSERT_TRUE(link->waitForLogged(query, int(before) + 1));
    EXPECT_EQ(link->loggedCommands().count(query), before + 1);
}

class WaveReadingSerial : public SimReadingTest {};

// Binary reads need VISA: over the serial port the text queries pass, the
// blocks never reach the record, and the reading still ends.
TEST_F(WaveReadingSerial, BringsNothingAndEnds)
{
    ASSERT_TRUE(startSim());
    ASSERT_TRUE(connectOverSerial());
    WaveRecords[0].ShowCH1 = true;
    RunReadingFrame({OperationWaveWindow, 0});

    EXPECT_TRUE(OperationDone);
    EXPECT_FALSE(LinkBusy);
    const WaveArray& wave = WaveRecords[0].WaveCH1;
    EXPECT_TRUE(std::all_of(wave.begin(), wave.end(), [](int code) { return code == 0; }));
}

} // namespace
