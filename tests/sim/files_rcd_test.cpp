#include "files/rcdwriter.h"
#include "files_littleendian.h"

#include <QList>
#include <gtest/gtest.h>

namespace {

constexpr int kSecondStart = 524160;

QVector<QByteArray> rampFrames(int count, int first)
{
    QVector<QByteArray> frames;
    for (int k = 0; k < count; ++k)
        frames.append(ramp(600, first + k));
    return frames;
}

RcdContent distinctHeader()
{
    RcdContent content;
    content.model = "KV7202B";
    content.source = 4;
    content.sourceAlt = 2;
    content.firstFrame = 5;
    content.lastFrame = 14;
    content.channels = {RcdChannel{true, 2000, -25}, RcdChannel{false, 10000000, 50},
                        RcdChannel{true, 500000, 0}, RcdChannel{true, 1000000, 100}};
    content.timeDiv = 2'000'000'000'000;
    content.delay = -300'000'000;
    content.frames = rampFrames(10, 0);
    return content;
}

TEST(RcdWriter, HeaderFieldsStandAtTheirOffsets)
{
    const RcdContent content = distinctHeader();
    const LittleEndianImage file(writeRcd(content));
    EXPECT_EQ(file.u16(0), 0xBABA);
    EXPECT_EQ(file.text(4, 20), "KV7202B");
    EXPECT_EQ(file.i32(44), 0);
    EXPECT_EQ(file.i32(48), 4);
    EXPECT_EQ(file.i32(52), 2);
    EXPECT_EQ(file.i16(56), 5);
    EXPECT_EQ(file.i16(58), 14);
    EXPECT_EQ(file.i64(96), 2'000'000'000'000);
    EXPECT_EQ(file.i64(104), -300'000'000);
    EXPECT_EQ(file.u8(116), 0);
    const int on[4] = {60, 70, 78, 86}, scale[4] = {64, 72, 80, 88}, shift[4] = {68, 76, 84, 92};
    for (int n = 0; n < 4; ++n) {
        SCOPED_TRACE(n);
        EXPECT_EQ(file.u8(on[n]), content.channels[n].on ? 1 : 0);
        EXPECT_EQ(file.i32(scale[n]), content.channels[n].scale);
        EXPECT_EQ(file.i16(shift[n]), content.channels[n].shift);
    }
}

TEST(RcdWriter, UnnamedHeaderBytesAreZero)
{
    const LittleEndianImage file(writeRcd(distinctHeader()));
    const QList<QPair<int, int>> gaps = {{2, 2},  {24, 20}, {61, 3},  {71, 1},  {79, 1},
                                         {87, 1}, {94, 2},  {112, 4}, {117, 11}};
    for (const auto& [offset, size] : gaps)
        EXPECT_EQ(file.bytes(offset, size), QByteArray(size, '\0')) << offset;
}

TEST(RcdWriter, FramesFollowTheHeaderEvery600Bytes)
{
    const LittleEndianImage file(writeRcd(distinctHeader()));
    ASSERT_EQ(file.size(), 128 + 10 * 600);
    for (int k = 1; k <= 10; ++k)
        EXPECT_EQ(file.bytes(128 + (k - 1) * 600, 600), ramp(600, k - 1)) << k;
}

TEST(RcdWriter, ShortFramesArePaddedAndLongOnesCut)
{
    RcdContent content;
    content.frames = {QByteArray(10, '\x11'), QByteArray(700, '\x22')};
    const LittleEndianImage file(writeRcd(content));
    ASSERT_EQ(file.size(), 128 + 2 * 600);
    EXPECT_EQ(file.bytes(128, 600), QByteArray(10, '\x11') + QByteArray(590, '\0'));
    EXPECT_EQ(file.bytes(728, 600), QByteArray(600, '\x22'));
}

TEST(RcdWriter, LastFrameDefaultsToTheFramesWritten)
{
    RcdContent content;
    content.firstFrame = 3;
    content.frames = rampFrames(7, 0);
    const LittleEndianImage file(writeRcd(content));
    EXPECT_EQ(file.i16(56), 3);
    EXPECT_EQ(file.i16(58), 9);
}

struct SecondBlockCase {
    const char* name;
    int frames;
    int secondFrames;
    int dataLength; // file length - 128
    int framesKept; // of the first block
};

class RcdSecondBlock : public ::testing::TestWithParam<SecondBlockCase> {};

TEST_P(RcdSecondBlock, StartsAtItsFixedPlaceAndKeepsTheFileLongEnough)
{
    const SecondBlockCase& c = GetParam();
    RcdContent content;
    content.frames = rampFrames(c.frames, 0);
    content.secondFrames = rampFrames(c.secondFrames, 100);
    const LittleEndianImage file(writeRcd(content));
    ASSERT_EQ(file.size() - 128, c.dataLength);
    EXPECT_EQ(file.u8(116) & 1, 1);
    EXPECT_EQ(file.i32(44), c.secondFrames * 600);
    EXPECT_EQ(file.i16(58), c.framesKept);
    for (int k = 0; k < c.secondFrames; ++k)
        EXPECT_EQ(file.bytes(128 + kSecondStart + k * 600, 600), ramp(600, 100 + k)) << k;
    // The first block never runs into the second.
    EXPECT_EQ(file.bytes(128 + (c.framesKept - 1) * 600, 600), ramp(600, c.framesKept - 1));
    EXPECT_LE(c.framesKept * 600, kSecondStart);
}

INSTANTIATE_TEST_SUITE_P(
    Layouts, RcdSecondBlock,
    ::testing::Values(
        // Even one frame of the second block makes the file pass the reader's 524,288-byte test.
        SecondBlockCase{"OneFrameEach", 1, 1, kSecondStart + 600, 1},
        SecondBlockCase{"Ordinary", 40, 40, kSecondStart + 40 * 600, 40},
        // 873 frames fill the space before the second block; more are dropped.
        SecondBlockCase{"FirstBlockFull", 900, 2, kSecondStart + 1200, 873}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(RcdWriter, NoFramesGiveAHeaderOnly)
{
    const LittleEndianImage file(writeRcd(RcdContent{}));
    EXPECT_EQ(file.size(), 128);
    EXPECT_EQ(file.i16(56), 1);
    EXPECT_EQ(file.i16(58), 0);
}

} // namespace
