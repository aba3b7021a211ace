// The VISA binary reads: screen codes into WaveBytes, the parameter block, the
// screen picture, and the picture loop of the virtual panel. Malformed blocks
// must never read outside their buffers.
#include "acquire/blockdecode.h"
#include "link_fixture.h"

#include "acquire/wavebytes.h"
#include "acquire/waveparameter.h"
#include "link/linklamp.h"
#include "link/linkstate.h"
#include "link/visablocks.h"

#include <cstring>

namespace {

std::string dataBytes(int count)
{
    std::string bytes;
    for (int i = 0; i < count; ++i)
        bytes.push_back(char((i * 7 + 3) & 0xFF));
    return bytes;
}

int dataByte(int i)
{
    return (i * 7 + 3) & 0xFF;
}

struct ScreenCase {
    const char* name;
    std::string reply;
    bool ok;
    int samples;
    int lastStored; // highest index of WaveBytes expected to hold a data byte; 0: none
};

class ScreenTable : public LinkTest, public ::testing::WithParamInterface<ScreenCase> {};

TEST_P(ScreenTable, StoresTheBytesBetweenHeaderAndLineFeed)
{
    const ScreenCase& c = GetParam();
    connectOverVisa();
    WaveBytes.fill(-1);
    visa->pending = c.reply;
    int samples = -1;

    EXPECT_EQ(UsbReadScreen(samples), c.ok);

    EXPECT_EQ(samples, c.samples);
    for (int i = 1; i <= c.lastStored; ++i)
        ASSERT_EQ(WaveBytes[size_t(i)], dataByte(i - 1)) << "sample " << i;
    if (c.lastStored < WaveBytesLast) {
        EXPECT_EQ(WaveBytes[size_t(c.lastStored + 1)], -1) << "nothing beyond the samples";
    }
    EXPECT_EQ(visa->countOf("read 6400"), 1);
    EXPECT_TRUE(platform->boxes.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Blocks, ScreenTable,
    ::testing::Values(ScreenCase{"screen", "#3600" + dataBytes(600) + "\n", true, 600, 600},
                      ScreenCase{"shortBlockKeepsItsHeader", "#3600" + dataBytes(300) + "\n", true, 300, 300},
                      ScreenCase{"emptyReadKeepsTheOldCodes", "", true, 0, 0},
                      ScreenCase{"headerOnly", "#", true, 0, 0},
                      ScreenCase{"overTheBoundOfWaveBytes", "#14" + dataBytes(6396) + "\n", false, 6396,
                                 6200},
                      ScreenCase{"noHeaderReadsBeforeTheBuffer", "  " + dataBytes(40) + "\n", false, 56, 0}),
    [](const auto& info) { return std::string(info.param.name); });

using BlockTest = LinkTest;

std::string parameterReply(float fftHorizOffset, int16_t startPos)
{
    std::string block(WaveParameterSize, '\0');
    std::memcpy(&block[64], &fftHorizOffset, 4); // the wire is little-endian, as this host
    block[0] = char(startPos & 0xFF);
    block[1] = char((startPos >> 8) & 0xFF);
    return "#280" + block + "\n";
}

TEST_F(BlockTest, ParameterBlockIsDecodedAndMarked)
{
    connectOverVisa();
    visa->pending = parameterReply(2.5f, -3);
    WaveParameter parameter;
    EXPECT_EQ(UsbReadParameter(parameter), "2.5");
    EXPECT_EQ(parameter.s16ScrStartPos, -3);
    EXPECT_EQ(visa->countOf("read 2"), 1);
    EXPECT_EQ(visa->countOf("read 83"), 1) << "two length digits, 80 bytes and the line feed";
}

TEST_F(BlockTest, FailedParameterReadIsReportedAndLeavesTheBlock)
{
    connectOverVisa();
    visa->pending = parameterReply(2.5f, -3);
    visa->readStatuses = {VI_SUCCESS, VI_ERROR_TMO};
    WaveParameter parameter;
    parameter.s16ScrStartPos = 77;

    EXPECT_EQ(UsbReadParameter(parameter), "");

    EXPECT_EQ(parameter.s16ScrStartPos, 77);
    EXPECT_EQ(boxTexts(), QStringList{"Read Message|Can't Read data from Device!"});
    EXPECT_FALSE(Connected);
    EXPECT_FALSE(LinkLampOn);
}

std::string pictureReply()
{
    return "#577878" + dataBytes(ScreenPictureSize) + "\n";
}

TEST_F(BlockTest, WholePictureIsTakenFromBehindItsHeader)
{
    connectOverVisa();
    SuppressReadError = true;
    visa->pending = pictureReply();
    int count = 0;
    QByteArray bytes;

    UsbReadBlock(count, bytes);

    EXPECT_EQ(count, ScreenPictureSize);
    ASSERT_EQ(bytes.size(), ScreenPictureSize);
    EXPECT_EQ(uchar(bytes.front()), dataByte(0));
    EXPECT_EQ(uchar(bytes.back()), dataByte(ScreenPictureSize - 1));
    EXPECT_FALSE(SuppressReadError);
}

TEST_F(BlockTest, FailedPictureReadIsSilentOnlyAfterAQuery)
{
    connectOverVisa();
    int count = 5;
    QByteArray bytes = "old";

    SuppressReadError = true;
    UsbReadBlock(count, bytes);
    EXPECT_TRUE(platform->boxes.isEmpty());
    EXPECT_TRUE(Connected);

    SuppressReadError = false;
    UsbReadBlock(count, bytes);
    EXPECT_EQ(boxTexts(), QStringList{"Read Message|Can't Read data from Device!"});
    EXPECT_FALSE(Connected);
    EXPECT_EQ(count, 5);
    EXPECT_EQ(bytes, "old");
}

TEST_F(BlockTest, DisplayDataAsksAgainWhileThePanelRuns)
{
    connectOverVisa();
    SuppressReadError = true;
    int asked = 0;
    const auto panelRuns = [&] {
        visa->pending = pictureReply();
        return ++asked < 5;
    };
    QByteArray bytes;

    ReadDisplayData(bytes, panelRuns);

    EXPECT_EQ(asked, 1);
    EXPECT_EQ(visa->writes, (std::vector<std::string>{":DISPLAY:DATA?\n", ":DISPLAY:DATA?\n"}));
    EXPECT_EQ(platform->sleeps, (QList<int>{100, 100}));
    EXPECT_EQ(bytes.size(), ScreenPictureSize);
}

TEST_F(BlockTest, DisplayDataWithoutThePanelTriesOnce)
{
    connectOverVisa();
    SuppressReadError = true;
    QByteArray bytes;
    ReadDisplayData(bytes);
    EXPECT_EQ(visa->countOf("read 100000"), 1);
    EXPECT_EQ(visa->writes.size(), 2u);
    EXPECT_TRUE(bytes.isEmpty());

    TransportType = TransportRs232;
    ReadDisplayData(bytes);
    EXPECT_EQ(visa->writes.size(), 2u) << "the picture needs VISA";
}

} // namespace
