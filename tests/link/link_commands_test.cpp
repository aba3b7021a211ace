// WriteCmd, AskCmd and the VISA text routines: the gate, the pause, cut
// replies, and what a failed write leaves behind.
#include "acquire/blockdecode.h"
#include "link_fixture.h"

#include "acquire/waveparameter.h"
#include "link/linkcommands.h"
#include "link/linklamp.h"
#include "link/linkstate.h"
#include "link/serialtransport.h"
#include "link/visablocks.h"
#include "link/visatext.h"

#include <functional>

namespace {

struct GatedRoutine {
    const char* name;
    std::function<QString()> run;
};

QString screenCount()
{
    int count = -1;
    UsbReadScreen(count);
    return count == 0 ? QString() : QString::number(count);
}

QString blockCount()
{
    int count = 0;
    QByteArray bytes;
    UsbReadBlock(count, bytes);
    return count == 0 ? QString() : QString::number(count);
}

QString displayData()
{
    QByteArray bytes;
    ReadDisplayData(bytes);
    return QString::fromLatin1(bytes);
}

QString parameterBlock()
{
    WaveParameter parameter;
    return UsbReadParameter(parameter);
}

const GatedRoutine gatedRoutines[] = {
    {"WriteCmd", [] { return WriteCmd("*RST"), QString(); }},
    {"AskCmd", [] { return AskCmd("*IDN?"); }},
    {"UsbWrite", [] { return UsbWrite("*RST"), QString(); }},
    {"UsbRead", [] { return UsbRead(); }},
    {"UsbReadScreen", screenCount},
    {"UsbReadParameter", parameterBlock},
    {"UsbReadBlock", blockCount},
    {"ReadDisplayData", displayData},
    {"Rs232Write", [] { return Rs232Write("*RST"), QString(); }},
    {"Rs232Read", [] { return Rs232Read(); }},
};

class GateTable : public LinkTest, public ::testing::WithParamInterface<int> {};
using CommandTest = LinkTest;

// With neither Connected nor Connecting, nothing is sent, read, slept or shown,
// on either transport, and the result is empty.
TEST_P(GateTable, ClosedGateDoesNothing)
{
    if (GetParam() == 1) {
        connectOverVisa();
        LinkLost();
    }
    for (int transport : {int(TransportVisa), int(TransportRs232)}) {
        TransportType = transport;
        ReplyPending = true; // a serial read would otherwise wait
        for (const GatedRoutine& routine : gatedRoutines) {
            visa->pending = std::string(300, 'x');
            EXPECT_EQ(routine.run(), QString()) << routine.name;
            EXPECT_TRUE(visa->calls.empty()) << routine.name;
            EXPECT_TRUE(platform->sleeps.isEmpty()) << routine.name;
            EXPECT_TRUE(platform->boxes.isEmpty()) << routine.name;
            EXPECT_EQ(platform->doEventsCount, 0) << routine.name;
        }
    }
}

// The state LinkLost leaves is as closed as the state before any connect.
INSTANTIATE_TEST_SUITE_P(Link, GateTable, ::testing::Values(0, 1), [](const auto& info) {
    return info.param == 0 ? std::string("NeverConnected") : std::string("AfterLinkLost");
});

TEST_F(CommandTest, WriteCmdSendsTheLineAndPausesEvenWhenTheWriteFails)
{
    connectOverVisa();
    WriteCmd(":RUN");
    EXPECT_EQ(visa->writes, std::vector<std::string>{":RUN\n"});
    EXPECT_EQ(platform->sleeps, QList<int>{100});

    visa->writeStatus = VI_ERROR_CONN_LOST;
    bool lampOn = true;
    int lost = 0;
    QObject listener;
    QObject::connect(&LinkNotifier(), &LinkEvents::lampChanged, &listener, [&](bool on) { lampOn = on; });
    QObject::connect(&LinkNotifier(), &LinkEvents::linkLost, &listener, [&] { ++lost; });
    WriteCmd(":STOP");
    EXPECT_EQ(platform->sleeps, (QList<int>{100, 100}));
    EXPECT_EQ(boxTexts(), QStringList{"Send Message|Can't Connect to Device!"});
    EXPECT_FALSE(Connected);
    EXPECT_FALSE(lampOn);
    EXPECT_EQ(lost, 1);

    WriteCmd(":RUN");
    EXPECT_EQ(visa->writes.size(), 2u) << "after LinkLost a send is a silent no-op";
    EXPECT_EQ(platform->sleeps.size(), 2);
    EXPECT_EQ(platform->boxes.size(), 1);
}

TEST_F(CommandTest, AskCmdReturnsTheReplyAsItCameWithoutPausing)
{
    connectOverVisa();
    visa->replies["*IDN?"] = "Korva Technologies,KV7204B,1,00.03.05\n";
    EXPECT_EQ(AskCmd("*IDN?"), "Korva Technologies,KV7204B,1,00.03.05\n");
    EXPECT_TRUE(platform->sleeps.isEmpty());
    EXPECT_TRUE(SuppressReadError);
}

TEST_F(CommandTest, LongRepliesAreCutAt256AndContinuedByTheNextRead)
{
    connectOverVisa();
    const std::string longReply = std::string(300, 'a') + "\n";
    const std::string exact = std::string(256, 'b') + "\n";
    visa->replies[":LONG?"] = longReply;
    visa->replies[":EXACT?"] = exact;

    EXPECT_EQ(AskCmd(":LONG?"), QString(256, 'a'));
    EXPECT_EQ(UsbRead(), QString(44, 'a') + "\n");
    EXPECT_EQ(AskCmd(":EXACT?"), QString(256, 'b'));
    EXPECT_EQ(UsbRead(), "\n");
    EXPECT_EQ(UsbRead(), "") << "nothing left: a timed-out read is empty, and not reported";
    EXPECT_TRUE(platform->boxes.isEmpty());
}

} // namespace
