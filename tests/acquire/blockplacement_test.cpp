#include "acquire/blockplacement.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

// A block as the reading leaves it: index 0 unused, samples from 1.
std::vector<int32_t> block(std::initializer_list<int32_t> samples)
{
    std::vector<int32_t> codes{0};
    codes.insert(codes.end(), samples);
    return codes;
}

struct PlaceCase {
    const char* name;
    TraceSource source;
    int sampleBase;
    int32_t code;   // sample 2 of a three-sample block
    int index;      // where sample 2 must land
    int32_t placed; // what it must read there
};

class PlaceTraceBlockTest : public ::testing::TestWithParam<PlaceCase> {};

TEST_P(PlaceTraceBlockTest, LandsAtItsIndexClippedByItsSource)
{
    const PlaceCase& c = GetParam();
    const std::vector<int32_t> codes = block({7, c.code, 9});
    WaveArray trace{1, 2, 3};
    ASSERT_TRUE(PlaceTraceBlock(codes, 3, c.source, c.sampleBase, trace));
    ASSERT_EQ(trace.size(), 2049u);
    EXPECT_EQ(trace[c.index], c.placed);
    EXPECT_EQ(trace[c.index - 1], 7 - c.sampleBase);
    EXPECT_EQ(trace[0], 0) << "the array is made anew";
}

INSTANTIATE_TEST_SUITE_P(
    Sources, PlaceTraceBlockTest,
    ::testing::Values(PlaceCase{"ChannelInside", TraceSource::Channel, 0, 120, 214, 120},
                      PlaceCase{"ChannelAbove199", TraceSource::Channel, 0, 250, 214, 199},
                      PlaceCase{"ChannelBelow0", TraceSource::Channel, 0, -3, 214, 0},
                      PlaceCase{"ChannelBaseShifted", TraceSource::Channel, 5, 250, 214, 199},
                      PlaceCase{"ChannelBelowBase", TraceSource::Channel, 5, 2, 214, 0},
                      PlaceCase{"FftClipped", TraceSource::Fft, 0, 230, 213, 199},
                      PlaceCase{"XyKeepsHighCodes", TraceSource::Xy, 0, 250, 213, 250},
                      PlaceCase{"XyShiftedNotClipped", TraceSource::Xy, 5, 250, 213, 245}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(PlaceTraceBlock, ScreenOfSixHundredFillsTheMiddle)
{
    std::vector<int32_t> codes(601);
    for (int i = 1; i <= 600; ++i)
        codes[i] = i % 200;
    WaveArray trace;
    ASSERT_TRUE(PlaceTraceBlock(codes, 600, TraceSource::Channel, 0, trace));
    EXPECT_EQ(trace[213], 1);
    EXPECT_EQ(trace[812], 0); // sample 600
    EXPECT_EQ(trace[811], 199);
    EXPECT_EQ(trace[813], 0);
}

TEST(PlaceTraceBlock, LogicChannelsTakeTheCodesAsTheyStand)
{
    const std::vector<int32_t> codes = block({300, -1});
    WaveArray trace;
    ASSERT_TRUE(PlaceTraceBlock(codes, 2, TraceSource::La, 0, trace));
    EXPECT_EQ(trace, codes);
}

struct BoundCase {
    const char* name;
    TraceSource source;
    int count;
    std::size_t codesSize;
    bool whole;
    int lastPlacedIndex; // highest index written (0 when none)
};

class PlaceTraceBoundsTest : public ::testing::TestWithParam<BoundCase> {};

TEST_P(PlaceTraceBoundsTest, AnIndexPastItsBoundEndsThePlacement)
{
    const BoundCase& c = GetParam();
    const std::vector<int32_t> codes(c.codesSize, 1);
    WaveArray trace;
    EXPECT_EQ(PlaceTraceBlock(codes, c.count, c.source, 0, trace), c.whole);
    ASSERT_EQ(trace.size(), 2049u);
    if (c.lastPlacedIndex > 0) {
        EXPECT_EQ(trace[c.lastPlacedIndex], 1);
    }
    if (c.lastPlacedIndex < 2048) {
        EXPECT_EQ(trace[c.lastPlacedIndex + 1], 0);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Bounds, PlaceTraceBoundsTest,
    ::testing::Values(BoundCase{"ChannelLastFits", TraceSource::Channel, 1836, 6201, true, 2048},
                      BoundCase{"ChannelOnePast", TraceSource::Channel, 1837, 6201, false, 2048},
                      BoundCase{"XyLastFits", TraceSource::Xy, 1837, 6201, true, 2048},
                      BoundCase{"FullWaveBytes", TraceSource::Fft, 6400, 6201, false, 2048},
                      BoundCase{"ShortBlock", TraceSource::Channel, 600, 301, false, 512},
                      BoundCase{"NegativeCount", TraceSource::Channel, -5, 6201, true, 0}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(PlacePeakBlock, SampleAtHalfLiesInBothHalves)
{
    const std::vector<int32_t> codes = block({10, 11, 12, 13, 20, 21, 22, 23});
    WaveArray first, second;
    ASSERT_TRUE(PlacePeakBlock(codes, 8, 0, first, second));
    EXPECT_EQ(std::vector<int32_t>(first.begin() + 211, first.begin() + 217),
              (std::vector<int32_t>{0, 10, 11, 12, 13, 0}));
    EXPECT_EQ(std::vector<int32_t>(second.begin() + 210, second.begin() + 217),
              (std::vector<int32_t>{0, 13, 20, 21, 22, 23, 0}));
}

TEST(PlacePeakBlock, NothingIsClippedAndOnlyTheFirstHalfIsShifted)
{
    const std::vector<int32_t> codes = block({250, -4, 260, 270});
    WaveArray first, second;
    ASSERT_TRUE(PlacePeakBlock(codes, 4, 3, first, second));
    EXPECT_EQ(first[212], 247);
    EXPECT_EQ(first[213], -7);
    EXPECT_EQ(second[211], -4);
    EXPECT_EQ(second[213], 270);
}

TEST(PlacePeakBlock, PastTheArrayEndsThePlacement)
{
    const std::vector<int32_t> codes(6201, 5);
    WaveArray first, second;
    EXPECT_TRUE(PlacePeakBlock(codes, 2 * 1837, 0, first, second));
    EXPECT_FALSE(PlacePeakBlock(codes, 2 * 1838, 0, first, second));
    EXPECT_EQ(first[2048], 5);
    EXPECT_EQ(second[211], 0) << "the second half is never reached";
}

TEST(PlaceXyTraces, SplitsTheBlockAtHalf)
{
    std::vector<int32_t> codes(1201);
    for (int i = 1; i <= 1200; ++i)
        codes[i] = i;
    WaveArray xy, ch1, ch2;
    ASSERT_TRUE(PlaceTraceBlock(codes, 1200, TraceSource::Xy, 0, xy));
    ASSERT_TRUE(PlaceXyTraces(xy, 1200, ch1, ch2));
    ASSERT_EQ(ch1.size(), 1025u);
    EXPECT_EQ(ch1[1], 1);
    EXPECT_EQ(ch1[600], 600);
    EXPECT_EQ(ch2[1], 601);
    EXPECT_EQ(ch2[600], 1200);
    EXPECT_EQ(ch2[601], 0);
}

TEST(PlaceXyTraces, HalfTooLargeReachesPastTheTrace)
{
    WaveArray xy(2049, 1), ch1, ch2;
    EXPECT_TRUE(PlaceXyTraces(xy, 2 * 813, ch1, ch2));
    EXPECT_FALSE(PlaceXyTraces(xy, 2 * 814, ch1, ch2));
    EXPECT_FALSE(PlaceXyTraces(WaveArray{}, 1200, ch1, ch2));
}

} // namespace
