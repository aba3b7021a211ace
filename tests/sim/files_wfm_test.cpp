// The waveform writer's own rules: zeros where the layout names nothing, the
// model cut, the channel blocks, bounded files. Where each header field stands
// is pinned by the round trip through the program's reader
// (files_wfm_reader_test), whose offsets tests/stored pins byte by byte.
#include "files/wfmwriter.h"
#include "files_littleendian.h"

#include <QFile>
#include <QList>
#include <gtest/gtest.h>

namespace {

WfmChannel channel(bool enabled, int scale, int shift, QByteArray samples = {})
{
    WfmChannel record;
    record.enabled = enabled;
    record.scaleDisplay = scale;
    record.shiftDisplay = static_cast<std::int16_t>(shift);
    record.scaleMeasured = scale * 2;
    record.shiftMeasured = static_cast<std::int16_t>(-shift);
    record.samples = std::move(samples);
    return record;
}

WfmContent distinctHeader()
{
    WfmContent content;
    content.magic = 0xA5A1;
    content.model = "KV7104B";
    content.longMemory = true;
    content.rollPosition = 1234;
    content.channels = {channel(true, 2000, -40), channel(false, 5000000, 75), channel(true, 10000000, 0),
                        channel(false, 500000, 100)};
    content.timeBaseA = {3000, 500'000'000, -1'000'000'000'000, 1.0e6f, -1'500'000'000};
    content.timeBaseB = {2500, 1'000, 25'000, 2.5e9f, -7'000'000'000'000};
    content.extraTime = 0x123456789AB;
    content.triggerKind = kWfmTriggerAlternation;
    content.triggerSourceA = 2;
    content.triggerSourceB = 3;
    content.timeMode = WfmTimeMode::Roll;
    content.peakFlags = 0x6;
    content.acquireMode = kWfmAcquirePeak;
    return content;
}

// Everything the layout doesn't name stays zero, so a reader that looks at
// an unnamed byte finds nothing by accident.
TEST(WfmWriter, UnnamedHeaderBytesAreZero)
{
    WfmContent content = distinctHeader();
    content.model = "KV7204B";
    const LittleEndianImage file(writeWfm(content));
    QList<QPair<int, int>> gaps = {{2, 2},    {24, 28}, {53, 3},   {64, 4},  {201, 1}, {203, 29},
                                   {233, 35}, {292, 8}, {309, 93}, {403, 1}, {408, 96}};
    for (int at = 68; at < 164; at += 24)
        gaps += {{at + 6, 8}, {at + 15, 1}, {at + 22, 2}};
    for (const auto& [offset, size] : gaps)
        EXPECT_EQ(file.bytes(offset, size), QByteArray(size, '\0')) << offset;
}

TEST(WfmWriter, ModelIsCutAtTwentyCharacters)
{
    WfmContent content;
    content.model = "KV7204B-WITH-A-VERY-LONG-NAME";
    const LittleEndianImage file(writeWfm(content));
    EXPECT_EQ(file.text(4, 20), "KV7204B-WITH-A-VERY-");
    EXPECT_EQ(file.u8(24), 0);
}

// Every row of data/wfm_layouts.txt.
TEST(WfmWriter, ReaderFindsEachChannelWhereTheLayoutSays)
{
    QFile layouts(QStringLiteral(SELVANE_TEST_DATA "/sim/data/wfm_layouts.txt"));
    ASSERT_TRUE(layouts.open(QIODevice::ReadOnly | QIODevice::Text));
    int cases = 0;
    while (!layouts.atEnd()) {
        const QByteArray line = layouts.readLine().trimmed();
        if (line.isEmpty() || line.startsWith('#')) continue;
        const QList<QByteArray> f = line.simplified().split(' ');
        ASSERT_EQ(f.size(), 14) << line.constData();
        SCOPED_TRACE(f[0].constData());
        ++cases;
        const int count = f[3].toInt();
        WfmContent content;
        content.triggerKind = std::uint8_t(f[1].toInt());
        content.longMemory = f[2] == "1";
        content.timeBaseA.sampleCount = count;
        for (int n = 0; n < 4; ++n) {
            const bool on = f[4][n] == '1';
            content.channels[n] = channel(on, 1000000, 0, on ? ramp(count, 1 + 60 * n) : QByteArray());
        }
        const LittleEndianImage file(writeWfm(content));
        ASSERT_EQ(file.size(), f[13].toInt());
        for (int n = 0; n < 4; ++n) {
            SCOPED_TRACE(n);
            const QByteArray& source = f[9 + n];
            const QByteArray expected =
                source == "-" ? QByteArray(count, '\0') : ramp(count, 1 + 60 * source.toInt());
            EXPECT_EQ(file.bytes(f[5 + n].toInt(), count), expected);
        }
    }
    EXPECT_EQ(cases, 8);
}

TEST(WfmWriter, SamplesLongerThanTheBlockStopAtItsEnd)
{
    WfmContent content;
    content.timeBaseA.sampleCount = 600;
    content.channels[0] = channel(true, 1000000, 0, QByteArray(9000, '\x7F'));
    const LittleEndianImage file(writeWfm(content));
    EXPECT_EQ(file.bytes(420, 8192), QByteArray(8192, '\x7F'));
    EXPECT_EQ(file.u8(8612), 0);
}

TEST(WfmWriter, AbsurdSampleCountsGiveABoundedFile)
{
    WfmContent content;
    content.triggerKind = kWfmTriggerAlternation;
    for (int count : {-5, 0, 0x7FFFFFFF}) {
        content.timeBaseA.sampleCount = count;
        const QByteArray file = writeWfm(content);
        EXPECT_GE(file.size(), 504);
        EXPECT_LE(file.size(), 504 + 4 * 0x80000);
        EXPECT_EQ(LittleEndianImage(file).i32(60), count);
    }
}

} // namespace
