#include "acquire/waveparameter.h"

#include <array>
#include <cstring>
#include <gtest/gtest.h>

namespace {

using Block = std::array<unsigned char, WaveParameterSize>;

void put16(Block& b, int at, int16_t v)
{
    b[at] = static_cast<unsigned char>(v & 0xFF);
    b[at + 1] = static_cast<unsigned char>((v >> 8) & 0xFF);
}

void putFloat(Block& b, int at, float v)
{
    uint32_t bits;
    std::memcpy(&bits, &v, 4);
    for (int i = 0; i < 4; ++i)
        b[at + i] = static_cast<unsigned char>(bits >> (8 * i));
}

// Every field a distinct value; the padding holds bytes that must be ignored.
Block handBuiltBlock()
{
    Block b;
    b.fill(0xA5);
    put16(b, 0, 12);
    put16(b, 2, 311);
    put16(b, 4, -7);
    put16(b, 6, 0x1234);
    put16(b, 8, -32768);
    put16(b, 10, 32767);
    const unsigned char bytes[] = {1, 0xFF, 0, 1, 0x80, 1, 2};
    std::memcpy(&b[12], bytes, sizeof bytes); // offsets 12 to 18
    putFloat(b, 20, -1.5f);
    put16(b, 24, -40);
    putFloat(b, 28, 0.002f);
    put16(b, 32, 9);
    b[34] = 1;
    b[35] = 0;
    b[36] = 3;
    b[37] = 0xFE;
    b[38] = 1;
    putFloat(b, 40, 0.5f);
    put16(b, 44, -20);
    putFloat(b, 48, 1.25e-3f);
    put16(b, 52, 25);
    putFloat(b, 56, 5000.0f);
    put16(b, 60, 7);
    putFloat(b, 64, -2.5e6f);
    put16(b, 68, -100);
    put16(b, 70, 0x0005);
    put16(b, 72, 1);
    put16(b, 74, -2);
    put16(b, 76, 300);
    put16(b, 78, -300);
    return b;
}

TEST(Lindquay, DecodesEveryFieldAtItsOffset)
{
    const Block b = handBuiltBlock();
    WaveParameter p;
    Lindquay(b.data(), &p);
    EXPECT_EQ(p.s16ScrStartPos, 12);
    EXPECT_EQ(p.s16ScrEndPos, 311);
    EXPECT_EQ(p.s16ScrStartPosA, -7);
    EXPECT_EQ(p.s16ScrEndPosA, 0x1234);
    EXPECT_EQ(p.s16ScrStartPosB, -32768);
    EXPECT_EQ(p.s16ScrEndPosB, 32767);
    EXPECT_EQ(p.s8TimeRolling, 1);
    EXPECT_EQ(p.s8CH1Enabled_Stop, -1);
    EXPECT_EQ(p.s8CH2Enabled_Stop, 0);
    EXPECT_EQ(p.s8CH3Enabled_Stop, 1);
    EXPECT_EQ(p.s8CH4Enabled_Stop, -128);
    EXPECT_EQ(p.s8MathEnabled_Stop, 1);
    EXPECT_EQ(p.s8MathOperate, 2);
    EXPECT_EQ(p.f32MathOffset, -1.5f);
    EXPECT_EQ(p.s16MathOffset, -40);
    EXPECT_EQ(p.f32MathScale, 0.002f);
    EXPECT_EQ(p.s16MathScale, 9);
    EXPECT_EQ(p.s8FFTEnabled_Stop, 1);
    EXPECT_EQ(p.s8FFTSource, 0);
    EXPECT_EQ(p.s8FFTWindow, 3);
    EXPECT_EQ(p.s8FFTScreen, -2);
    EXPECT_EQ(p.s8FFTScaleType, 1);
    EXPECT_EQ(p.f32FFTVrms, 0.5f);
    EXPECT_EQ(p.s16FFTdBVrms, -20);
    EXPECT_EQ(p.f32FFTVertOffset, 1.25e-3f);
    EXPECT_EQ(p.s16FFTVertOffset, 25);
    EXPECT_EQ(p.f32FFTHorizScale, 5000.0f);
    EXPECT_EQ(p.s16FFTHorizScale, 7);
    EXPECT_EQ(p.f32FFTHorizOffset, -2.5e6f);
    EXPECT_EQ(p.s16FFTHorizOffset, -100);
    EXPECT_EQ(p.s16ChanPeakState, 5);
    EXPECT_EQ(p.Reserved, (std::array<int16_t, 4>{1, -2, 300, -300}));
}

TEST(Lindquay, NullArgumentsLeaveTheRecordAlone)
{
    WaveParameter p;
    p.s16ScrEndPos = 299;
    Lindquay(nullptr, &p);
    EXPECT_EQ(p.s16ScrEndPos, 299);
    const Block b = handBuiltBlock();
    Lindquay(b.data(), nullptr); // must not crash
}

struct PeakCase {
    int16_t state;
    PeakFlags expected;
};

class GetPeakStatesTest : public ::testing::TestWithParam<PeakCase> {};

TEST_P(GetPeakStatesTest, FlagFollowsItsBit)
{
    WaveParameter p;
    p.s16ChanPeakState = GetParam().state;
    PeakFlags flags;
    flags.fill(true);
    GetPeakStates(p, flags);
    EXPECT_EQ(flags, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Bits, GetPeakStatesTest,
                         ::testing::Values(PeakCase{0, {false, false, false, false, false}},
                                           PeakCase{4, {false, false, false, true, false}},
                                           PeakCase{1, {false, true, false, false, false}},
                                           PeakCase{0x0F, {false, true, true, true, true}},
                                           // bits above channel 4 mean nothing
                                           PeakCase{static_cast<int16_t>(0xFFF0),
                                                    {false, false, false, false, false}}));

} // namespace
