#include "acquire/waveparameter.h"

#include <array>
#include <cstring>
#include <gtest/gtest.h>

namespace {

using Block = std::array<unsigned char, WaveParameterSize>;

// Every field a distinct value at its offset: 'b' a byte, 'h' a little-endian
// 16-bit word, 'f' a float. The padding holds bytes that must be ignored.
struct Field {
    int at;
    char kind;
    double value;
    double (*read)(const WaveParameter&);
};
// clang-format off
#define FIELD(at, kind, value, member) {at, kind, value, [](const WaveParameter& p) { return double(p.member); }}
const Field kFields[] = {
    FIELD(0, 'h', 12, s16ScrStartPos),           FIELD(2, 'h', 311, s16ScrEndPos),
    FIELD(4, 'h', -7, s16ScrStartPosA),          FIELD(6, 'h', 0x1234, s16ScrEndPosA),
    FIELD(8, 'h', -32768, s16ScrStartPosB),      FIELD(10, 'h', 32767, s16ScrEndPosB),
    FIELD(12, 'b', 1, s8TimeRolling),            FIELD(13, 'b', -1, s8CH1Enabled_Stop),
    FIELD(14, 'b', 0, s8CH2Enabled_Stop),        FIELD(15, 'b', 1, s8CH3Enabled_Stop),
    FIELD(16, 'b', -128, s8CH4Enabled_Stop),     FIELD(17, 'b', 1, s8MathEnabled_Stop),
    FIELD(18, 'b', 2, s8MathOperate),            FIELD(20, 'f', -1.5, f32MathOffset),
    FIELD(24, 'h', -40, s16MathOffset),          FIELD(28, 'f', 0.002, f32MathScale),
    FIELD(32, 'h', 9, s16MathScale),             FIELD(34, 'b', 1, s8FFTEnabled_Stop),
    FIELD(35, 'b', 0, s8FFTSource),              FIELD(36, 'b', 3, s8FFTWindow),
    FIELD(37, 'b', -2, s8FFTScreen),             FIELD(38, 'b', 1, s8FFTScaleType),
    FIELD(40, 'f', 0.5, f32FFTVrms),             FIELD(44, 'h', -20, s16FFTdBVrms),
    FIELD(48, 'f', 1.25e-3, f32FFTVertOffset),   FIELD(52, 'h', 25, s16FFTVertOffset),
    FIELD(56, 'f', 5000, f32FFTHorizScale),      FIELD(60, 'h', 7, s16FFTHorizScale),
    FIELD(64, 'f', -2.5e6, f32FFTHorizOffset),   FIELD(68, 'h', -100, s16FFTHorizOffset),
    FIELD(70, 'h', 5, s16ChanPeakState),         FIELD(72, 'h', 1, Reserved[0]),
    FIELD(74, 'h', -2, Reserved[1]),             FIELD(76, 'h', 300, Reserved[2]),
    FIELD(78, 'h', -300, Reserved[3]),
};
#undef FIELD
// clang-format on

Block handBuiltBlock()
{
    Block b;
    b.fill(0xA5);
    for (const Field& f : kFields) {
        const float single = float(f.value);
        uint32_t bits = uint32_t(int32_t(f.value));
        if (f.kind == 'f') std::memcpy(&bits, &single, 4);
        for (int i = 0; i < (f.kind == 'b' ? 1 : f.kind == 'h' ? 2 : 4); ++i)
            b[size_t(f.at + i)] = static_cast<unsigned char>(bits >> (8 * i));
    }
    return b;
}

TEST(Lindquay, DecodesEveryFieldAtItsOffset)
{
    const Block b = handBuiltBlock();
    WaveParameter p;
    Lindquay(b.data(), &p);
    for (const Field& f : kFields)
        EXPECT_EQ(f.read(p), f.kind == 'f' ? double(float(f.value)) : f.value) << "offset " << f.at;
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
