#include "platform/testplatform.h"
#include "state/programstate.h"
#include "stored/storedbytes.h"
#include "stored/wfmfile.h"
#include "text/language.h"
#include "text/messages.h"
#include "wfmbytes.h"

#include <gtest/gtest.h>

namespace {

struct Loaded {
    WfmLoadResult result;
    MemoryWaveSlot slot;
    int code = 0;
};

Loaded load(const WfmBytes& file, int code = 0)
{
    Loaded out;
    out.code = code;
    out.result = LoadMemoryWaveBytes(file.bytes, out.slot, out.code);
    return out;
}

std::vector<int16_t> codes(std::initializer_list<int> values)
{
    std::vector<int16_t> out(values.begin(), values.end());
    return out;
}

// The first samples of a channel.
std::vector<int16_t> head(const MemoryWaveSlot& slot, int n, int count = 3)
{
    const auto& s = slot.Samples[size_t(n)];
    return {s.begin(), s.begin() + std::min<qsizetype>(count, qsizetype(s.size()))};
}

class WfmFileTest : public ::testing::Test {
  protected:
    WfmFileTest()
    {
        ResetProgramState();
        LoadMessages();
    }
    ScopedTestPlatform platform;
};

TEST_F(WfmFileTest, BothMagicsLoadAlikeAndAnyOtherIsAFormatError)
{
    WfmBytes file;
    file.channel(0, true).ramp(420, 600, 7);
    const Loaded a5a5 = load(file);
    file.put<uint16_t>(0, 0xA5A1);
    const Loaded a5a1 = load(file);
    ASSERT_TRUE(a5a5.result.accepted && a5a1.result.accepted);
    EXPECT_EQ(a5a5.slot.Samples, a5a1.slot.Samples);
    EXPECT_TRUE(a5a1.slot.HasData);
    const Loaded noChannel = load(WfmBytes{});
    EXPECT_TRUE(noChannel.result.accepted);
    EXPECT_FALSE(noChannel.slot.HasData) << "no channel on loads without data";

    file.put<uint16_t>(0, 0xA5A6);
    MemoryWaveSlot slot = a5a5.slot;
    int code = 0;
    const WfmLoadResult refused = LoadMemoryWaveBytes(file.bytes, slot, code);
    EXPECT_FALSE(refused.accepted);
    EXPECT_EQ(refused.message, QStringLiteral("The file format is error!"));
    EXPECT_FALSE(slot.HasData);
}

TEST_F(WfmFileTest, ModelMustBeSevenCharactersEndingInBAndItsDigitsSetTheBandwidthCode)
{
    const struct {
        const char* model;
        bool accepted;
        int code; // starting from 9
    } cases[] = {{"KV7204", false, 9}, {"KV7204BX", false, 9}, {"KV7204C", false, 9},
                 {"KV7042B", true, 9}, {"KV7062B", true, 2},   {"KV7102B", true, 3},
                 {"KV7204B", true, 4}, {"KV7x6xB", true, 9},   {"", false, 9}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.model);
        WfmBytes file;
        file.model(c.model).channel(0, true);
        const Loaded loaded = load(file, 9);
        EXPECT_EQ(loaded.result.accepted, c.accepted);
        EXPECT_EQ(loaded.result.message, c.accepted ? QString() : QStringLiteral("File utility fail!"));
        EXPECT_EQ(loaded.code, c.code);
    }
}

TEST_F(WfmFileTest, ChineseMessages)
{
    Language = LanguageChinese;
    LoadMessages();
    WfmBytes file;
    file.model("KV7204");
    EXPECT_EQ(load(file).result.message, QStringLiteral("文件操作失败！"));
    file.put<uint16_t>(0, 0);
    EXPECT_EQ(load(file).result.message, QStringLiteral("文件格式错误！"));
}

TEST_F(WfmFileTest, EdgeBlocksHaveA8192PitchWhateverTheCount)
{
    WfmBytes file;
    for (int n = 0; n < 4; ++n)
        file.channel(n, true).ramp(420 + n * 0x2000, 600, 10 * (n + 1));
    const Loaded loaded = load(file);
    for (int n = 0; n < 4; ++n)
        EXPECT_EQ(head(loaded.slot, n), codes({10 * (n + 1) + 25, 10 * (n + 1) + 26, 10 * (n + 1) + 27}))
            << n;
    // Elements 0 to count: the last one is never filled.
    EXPECT_EQ(loaded.slot.Samples[1].size(), 601u);
    EXPECT_EQ(loaded.slot.Samples[1].back(), 0);
    EXPECT_EQ(loaded.slot.sampleCount(1), 600);
}

TEST_F(WfmFileTest, LongMemorySharesABlockBetweenNeighbours)
{
    WfmBytes file;
    file.put<uint8_t>(52, 1).ramp(420, 600, 1).ramp(420 + 0x2000, 600, 99).ramp(420 + 0x4000, 600, 50);
    for (int n = 0; n < 4; ++n)
        file.channel(n, true);
    const Loaded loaded = load(file);
    EXPECT_EQ(loaded.slot.Samples[1], loaded.slot.Samples[0]);
    EXPECT_EQ(head(loaded.slot, 0), codes({26, 27, 28}));
    EXPECT_EQ(head(loaded.slot, 2), codes({75, 76, 77}));
    EXPECT_EQ(loaded.slot.Samples[3], loaded.slot.Samples[2]);
}

TEST_F(WfmFileTest, AlternationChannelsFollowAtTheCountAPitchAndAnOffChannelKeepsItsPlace)
{
    WfmBytes file(504 + 4 * 100);
    file.alternation().put<int32_t>(60, 100).put<int32_t>(268, 50);
    file.channel(0, true).channel(1, false).channel(2, true);
    file.ramp(504, 100, 1).ramp(604, 100, 101).ramp(704, 100, 201);
    const Loaded loaded = load(file);
    EXPECT_TRUE(loaded.slot.ChanEnabled[0] && !loaded.slot.ChanEnabled[1] && loaded.slot.ChanEnabled[2]);
    EXPECT_TRUE(loaded.slot.Samples[1].empty());
    EXPECT_EQ(head(loaded.slot, 2), codes({226, 227, 228}));
    // Time base B's count gives no pitch and no size.
    EXPECT_EQ(loaded.slot.sampleCount(2), 100);
    EXPECT_EQ(loaded.slot.SampleCountB, 50);
}

TEST_F(WfmFileTest, CodesRunPast255AndMissingBytesReadAsTheBuffersZero)
{
    WfmBytes file(420 + 3);
    file.channel(0, true).put<uint8_t>(420, 0).put<uint8_t>(421, 255).put<uint8_t>(422, 128);
    const Loaded loaded = load(file);
    EXPECT_EQ(head(loaded.slot, 0, 5), codes({25, 280, 153, 25, 25}));
}

TEST_F(WfmFileTest, SamplesPastTheBufferAreSkippedWithoutFailing)
{
    // CH4 of an ALTERNATION file with 700,000 samples starts at 2,100,504, past the buffer.
    WfmBytes file(504);
    file.alternation().put<int32_t>(60, 700'000).channel(3, true).channel(2, true);
    file.bytes.append(QByteArray(3 * 700'000 + 10, char(1)));
    const Loaded loaded = load(file);
    ASSERT_TRUE(loaded.result.accepted);
    EXPECT_EQ(head(loaded.slot, 2), codes({26, 26, 26}));
    // CH3 starts at 1,400,504; the buffer's last byte is its sample 699,496.
    EXPECT_EQ(loaded.slot.Samples[2][699'496], 26);
    EXPECT_EQ(loaded.slot.Samples[2][699'497], 0);
    EXPECT_EQ(head(loaded.slot, 3), codes({0, 0, 0}));
}

TEST_F(WfmFileTest, EdgeFillsTheSingleTimeBaseAndAlternationBothOthers)
{
    WfmBytes file;
    file.channel(0, true, 2'000, -50).put<int16_t>(68 + 20, 7).put<int32_t>(68 + 16, 5'000);
    file.put<int64_t>(164, 2'000'000).put<int64_t>(172, -(int64_t(1) << 33)).putFloat(180, 2.5e6f);
    file.put<int64_t>(184, 123).put<int64_t>(192, -7).put<uint8_t>(202, 2).put<uint8_t>(232, 3);
    file.put<int64_t>(272, 40).put<int64_t>(280, 41).putFloat(288, 3.f).put<int64_t>(300, 42);
    file.put<uint8_t>(308, 2).put<int32_t>(56, -9);
    const Loaded edge = load(file);
    const MemoryWaveSlot& s = edge.slot;
    EXPECT_EQ(s.TriggerMode, QStringLiteral("EDGE"));
    EXPECT_EQ(s.SampleCount, 600);
    EXPECT_DOUBLE_EQ(s.TimeDiv, 2e-6);
    EXPECT_DOUBLE_EQ(s.Delay, TickTimeOf(-(int64_t(1) << 33)));
    EXPECT_DOUBLE_EQ(s.Delay, -2 * 0.004294967296);
    EXPECT_FLOAT_EQ(s.SampleRate, 2.5e6f);
    EXPECT_DOUBLE_EQ(s.ExtraTime, 123e-12);
    EXPECT_DOUBLE_EQ(s.StartTime, TickTimeOf(-7));
    EXPECT_EQ(s.TimeDivA, 0);
    EXPECT_EQ(s.TriggerSourceA, 0);
    EXPECT_TRUE(s.ModeRoll && !s.ModeYT && !s.ModeXY);
    EXPECT_EQ(s.RollPosition, -9);
    EXPECT_FLOAT_EQ(s.ChanVoltDiv[0], 0.002f);
    EXPECT_FLOAT_EQ(s.ChanOffset[0], -0.004f);
    EXPECT_FLOAT_EQ(s.ChanVoltDivMeasured[0], 0.005f);
    EXPECT_EQ(s.ChanShiftMeasured[0], 7);

    file.alternation();
    const MemoryWaveSlot& a = load(file).slot;
    EXPECT_EQ(a.TriggerMode, QStringLiteral("ALTERNATION"));
    EXPECT_EQ(a.SampleCount, 0);
    EXPECT_EQ(a.ExtraTime, 0);
    EXPECT_DOUBLE_EQ(a.TimeDivA, 2e-6);
    EXPECT_DOUBLE_EQ(a.TimeDivB, 40e-12);
    EXPECT_DOUBLE_EQ(a.DelayB, 41e-12);
    EXPECT_FLOAT_EQ(a.SampleRateB, 3.f);
    EXPECT_DOUBLE_EQ(a.StartTimeB, 42e-12);
    EXPECT_EQ(a.TriggerSourceA, 2);
    EXPECT_EQ(a.TriggerSourceB, 3);
}

TEST_F(WfmFileTest, PeakStateFollowsAcquireModeFlagsAndTheSourcePairing)
{
    const struct {
        int32_t acquire;
        bool alternation;
        uint8_t flags, sourceA, sourceB;
        std::array<bool, 4> expected;
    } cases[] = {
        {0, false, 7, 0, 1, {false, false, false, false}}, {2, false, 1, 0, 0, {true, true, true, true}},
        {2, false, 6, 0, 0, {false, false, false, false}}, {2, true, 2, 0, 0, {true, true, false, false}},
        {2, true, 4, 0, 0, {false, false, true, true}},    {2, true, 2, 0, 1, {true, false, true, false}},
        {2, true, 4, 2, 3, {false, true, false, true}},
    };
    for (const auto& c : cases) {
        WfmBytes file;
        file.put<int32_t>(404, c.acquire).put<uint8_t>(402, c.flags);
        file.put<uint8_t>(202, c.sourceA).put<uint8_t>(232, c.sourceB);
        if (c.alternation) file.alternation();
        std::array<bool, 4> got{};
        ComputeChanPeakState(file.bytes.left(420), got[0], got[1], got[2], got[3]);
        EXPECT_EQ(got, c.expected) << c.acquire << " " << int(c.flags) << " " << int(c.sourceA);
        EXPECT_EQ(load(file).slot.ChanPeakState, c.expected);
    }
}

TEST_F(WfmFileTest, SnapshotAndRestoreCoverTheSteppedSettings)
{
    WfmBytes file;
    file.channel(0, true, 2'000, 10).put<int64_t>(164, 1'000'000);
    MemoryWaveSlot slot = load(file).slot;
    slot.ChanVoltDiv[0] = 5;
    slot.ChanOffset[0] = 1;
    slot.TimeDiv = 1;
    slot.TimeDivB = 2;
    RestoreLoadedSettings(slot);
    EXPECT_FLOAT_EQ(slot.ChanVoltDiv[0], 0.002f);
    EXPECT_FLOAT_EQ(slot.ChanOffset[0], 0.0008f);
    EXPECT_DOUBLE_EQ(slot.TimeDiv, 1e-6);
    EXPECT_EQ(slot.TimeDivB, 0);
}

} // namespace
