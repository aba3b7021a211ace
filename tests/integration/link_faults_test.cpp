// A link that breaks, a query that is never answered, and blocks that are cut
// or noise: the link must end in LinkLost or an empty reply, never crash,
// never read past a buffer.
#include "acquire/blockdecode.h"
#include "link_simlink.h"

#include "acquire/waveparameter.h"
#include "link/connection.h"
#include "link/linkcommands.h"
#include "link/linklamp.h"
#include "link/linkstate.h"
#include "link/visablocks.h"
#include "link/visalibrary.h"

namespace {

class DroppedLink : public SimLinkTest, public ::testing::WithParamInterface<LinkTransport> {};

TEST_P(DroppedLink, EndsInLinkLostAndLaterSendsAreSilent)
{
    // Connecting costs two commands (*IDN? and :MATH:DISPLAY?); the fourth is dropped.
    SimLink link({"--drop-after", "3"});
    ASSERT_TRUE(link.started()) << link.errorString().toStdString();
    link.aim(GetParam());
    ConnectDevice();
    ASSERT_TRUE(Connected);
    EXPECT_FALSE(AskCmd("*IDN?").isEmpty());

    for (int i = 0; i < 3 && Connected; ++i)
        AskCmd("*IDN?");

    EXPECT_FALSE(Connected);
    EXPECT_FALSE(LinkLampOn);
    EXPECT_EQ(boxTexts(), QStringList{"Send Message|Can't Connect to Device!"});
    const qsizetype sleeps = platform->sleeps.size();
    WriteCmd(":RUN");
    EXPECT_EQ(AskCmd("*IDN?"), "");
    EXPECT_EQ(platform->boxes.size(), 1);
    EXPECT_EQ(platform->sleeps.size(), sleeps) << "a no-op doesn't even pause";
}

INSTANTIATE_TEST_SUITE_P(Sim, DroppedLink,
                         ::testing::Values(LinkTransport::Socket, LinkTransport::Vxi11,
                                           LinkTransport::Hislip),
                         [](const auto& info) { return transportName(info.param); });

using SerialSilence = SimLinkTest;

// Four seconds of real time: the ticks come from the TimeOutTimer.
TEST_F(SerialSilence, AnUnansweredQueryGivesAnEmptyReplyAfterFourSeconds)
{
    SimLink link({"--silent", ":TRIGGER:STATUS?"});
    ASSERT_TRUE(link.started()) << link.errorString().toStdString();
    link.aim(LinkTransport::Serial);
    ConnectDevice();
    ASSERT_TRUE(Connected) << boxTexts().join("; ").toStdString();

    EXPECT_EQ(AskCmd(":TRIGGER:STATUS?"), "");
    EXPECT_GE(ReplyTicks, 40);
    EXPECT_TRUE(Connected) << "silence is not a lost link";
    EXPECT_TRUE(platform->boxes.isEmpty());
    EXPECT_EQ(AskCmd("*IDN?"), SupportedIdentity);
}

using BadBlocks = SimLinkTest;

TEST_F(BadBlocks, ShortBlocksGiveFewerSamples)
{
    SimLink link({"--short-blocks", "--pty", "off"});
    ASSERT_TRUE(link.started()) << link.errorString().toStdString();
    link.aim(LinkTransport::Socket);
    ConnectDevice();
    ASSERT_TRUE(Connected);
    // A cut block never ends by itself: each read waits out the session's time-out.
    Visa().setAttribute(VisaSession, VI_ATTR_TMO_VALUE, 300);

    WriteCmd(":WAVEFORM:SCREENDATA? CHANNEL1");
    int samples = -1;
    EXPECT_TRUE(UsbReadScreen(samples));
    EXPECT_GT(samples, 0);
    EXPECT_LT(samples, 600);

    WriteCmd(":WAVEFORM:PARAMETER?");
    WaveParameter parameter;
    UsbReadParameter(parameter);

    int count = 0;
    QByteArray picture;
    WriteCmd(":DISPLAY:DATA?");
    UsbReadBlock(count, picture);
    EXPECT_EQ(count, 0) << "a cut picture is not taken";
    EXPECT_TRUE(picture.isEmpty());
}

TEST_F(BadBlocks, NoiseIsRefusedAndReadsOfItStayInBounds)
{
    SimLink link({"--garbage", "--pty", "off"});
    ASSERT_TRUE(link.started()) << link.errorString().toStdString();
    link.aim(LinkTransport::Socket);
    ConnectDevice();
    EXPECT_FALSE(Connected);
    EXPECT_EQ(boxTexts(), QStringList{"Connect to Oscilloscope|Device not found!"});

    // The session stays open after a refusal; read noise through it as a connected link would.
    Connected = true;
    for (int round = 0; round < 5; ++round) {
        int samples = -1;
        WriteCmd(":WAVEFORM:SCREENDATA? CHANNEL1");
        UsbReadScreen(samples);
        EXPECT_GE(samples, 0);
        EXPECT_LE(samples, 6400);
        WriteCmd(":WAVEFORM:PARAMETER?");
        WaveParameter parameter;
        UsbReadParameter(parameter);
    }
}

} // namespace
