// Every backend against the simulator: the exchanges the program makes, read
// the way it reads them.
#include "simprocess.h"
#include "visa/visa.h"
#include "visatesting.h"

#include <gtest/gtest.h>

#include <memory>
#include <ostream>

namespace {

constexpr char kIdn[] = "Korva Technologies,KV7204B,KV7204T0007,00.03.03.SP1";

enum class Transport { Socket, Vxi11, Hislip, Serial };

std::ostream& operator<<(std::ostream& out, Transport transport)
{
    const char* names[] = {"SOCKET", "VXI-11", "HiSLIP", "ASRL"};
    return out << names[int(transport)];
}

// The definite-length block at the start of `reply`: its data length, or -1.
long blockLength(const std::string& reply)
{
    if (reply.size() < 2 || reply[0] != '#' || reply[1] < '1' || reply[1] > '9') return -1;
    const size_t digits = size_t(reply[1] - '0');
    return reply.size() < 2 + digits ? -1 : std::stol(reply.substr(2, digits));
}

// One simulator per test suite; each test opens its own session on the transport given.
class SimSession : public ::testing::TestWithParam<Transport> {
  protected:
    static void startSim(const QStringList& options = {})
    {
        sim = std::make_unique<SimProcess>(SELVANE_SIM_PATH);
        started = sim->start(QStringList{"--idn", kIdn} + options);
    }
    static void SetUpTestSuite() { startSim(); }
    static void TearDownTestSuite() { sim.reset(); }

    void SetUp() override
    {
        ASSERT_TRUE(started) << sim->errorString().toStdString();
        ASSERT_EQ(viOpenDefaultRM(&manager), VI_SUCCESS);
        ASSERT_EQ(viOpen(manager, resourceName().c_str(), VI_NO_LOCK, 0, &session), VI_SUCCESS)
            << resourceName();
        ASSERT_EQ(viSetAttribute(session, VI_ATTR_TMO_VALUE, 5000), VI_SUCCESS);
    }
    void TearDown() override { viClose(manager); }

    bool isTcpip() const { return GetParam() != Transport::Serial; }

    std::string resourceName() const
    {
        const auto port = [](const char* transport) { return std::to_string(sim->port(transport)); };
        switch (GetParam()) {
        case Transport::Socket: return "TCPIP0::127.0.0.1::" + port("socket") + "::SOCKET";
        case Transport::Vxi11: return "TCPIP0::127.0.0.1::inst0::INSTR";
        case Transport::Hislip: return "TCPIP0::127.0.0.1::hislip0," + port("hislip") + "::INSTR";
        case Transport::Serial: return "ASRL" + sim->ptyPath().toStdString() + "::INSTR";
        }
        return {};
    }

    Reply ask(const std::string& query, ViUInt32 chunk)
    {
        EXPECT_EQ(writeText(session, query + "\n"), VI_SUCCESS) << query;
        return readReply(session, chunk);
    }

    static inline std::unique_ptr<SimProcess> sim;
    static inline bool started = false;
    // The VXI-11 backend asks the simulator's portmapper, not port 111.
    ScopedEnvironment portmapper{"SELVANE_PORTMAPPER_PORT",
                                 sim ? std::to_string(sim->port("portmapper")).c_str() : nullptr};
    ViSession manager = VI_NULL;
    ViSession session = VI_NULL;
};

using SimTransports = SimSession;

// The program's time-out and keepalive, then its usual read of 256 bytes.
TEST_P(SimTransports, IdnComesInOne256ByteReadUnderTheProgramsSettings)
{
    EXPECT_EQ(viSetAttribute(session, VI_ATTR_TMO_VALUE, 50000), VI_SUCCESS);
    EXPECT_EQ(viSetAttribute(session, VI_ATTR_TCPIP_KEEPALIVE, VI_TRUE),
              isTcpip() ? VI_SUCCESS : VI_ERROR_NSUP_ATTR);
    ViUInt32 timeout = 0;
    EXPECT_EQ(viGetAttribute(session, VI_ATTR_TMO_VALUE, &timeout), VI_SUCCESS);
    EXPECT_EQ(timeout, 50000u);
    const Reply reply = ask("*IDN?", 256);
    EXPECT_EQ(reply.bytes, std::string(kIdn) + "\n");
    EXPECT_EQ(reply.statuses, std::vector<ViStatus>{VI_SUCCESS});
}

TEST_P(SimTransports, SmallReadsEndOnTheCountUntilTheLastOne)
{
    const Reply reply = ask("*IDN?", 10);
    EXPECT_EQ(reply.bytes, std::string(kIdn) + "\n");
    ASSERT_EQ(reply.statuses.size(), 6u);
    EXPECT_EQ(reply.statuses.front(), VI_SUCCESS_MAX_CNT);
    EXPECT_EQ(reply.statuses.back(), VI_SUCCESS);
}

// Binary blocks travel over the network backends only.
using SimBlocks = SimSession;

TEST_P(SimBlocks, ParameterBlockReadsAsTheProgramReadsIt)
{
    ASSERT_EQ(writeText(session, ":WAVEFORM:PARAMETER?\n"), VI_SUCCESS);
    ViByte head[2] = {};
    ViUInt32 count = 0;
    EXPECT_EQ(viRead(session, head, 2, &count), VI_SUCCESS_MAX_CNT);
    ASSERT_EQ(count, 2u);
    ASSERT_EQ(head[0], '#');
    const ViUInt32 rest = ViUInt32(head[1] - '0') + 81;
    std::vector<ViByte> block(rest);
    const ViStatus status = viRead(session, block.data(), rest, &count);
    EXPECT_TRUE(status == VI_SUCCESS || status == VI_SUCCESS_MAX_CNT) << viStatusName(status);
    EXPECT_EQ(count, rest);
    EXPECT_EQ(block.back(), '\n');
}

TEST_P(SimBlocks, ScreenPictureArrivesInOneLargeRead)
{
    const Reply reply = ask(":DISPLAY:DATA?", 100000);
    ASSERT_EQ(reply.statuses, std::vector<ViStatus>{VI_SUCCESS});
    EXPECT_EQ(blockLength(reply.bytes), 77878);
    EXPECT_EQ(reply.bytes.substr(reply.bytes.size() - 77879, 2), "BM");
}

// A byte stream has no device clear: there a reply in flight cannot be told from a new one.
using SimDeviceClear = SimSession;

TEST_P(SimDeviceClear, DropsAnUnreadReply)
{
    ASSERT_EQ(writeText(session, "*IDN?\n"), VI_SUCCESS);
    EXPECT_EQ(viClear(session), VI_SUCCESS);
    EXPECT_EQ(ask(":TRIGGER:STATUS?", 256).bytes, "RUN\n");
}

std::string transportName(const ::testing::TestParamInfo<Transport>& info)
{
    const char* names[] = {"Socket", "Vxi11", "Hislip", "Serial"};
    return names[int(info.param)];
}

class SimDroppedLink : public SimSession {
  protected:
    static void SetUpTestSuite() { startSim({"--drop-after", "1"}); }
};

TEST_P(SimDroppedLink, EndsTheExchangeWithAnErrorNotAHang)
{
    EXPECT_EQ(ask("*IDN?", 256).bytes, std::string(kIdn) + "\n");
    writeText(session, "*IDN?\n");
    const Reply reply = readReply(session, 256);
    EXPECT_EQ(viStatusName(reply.statuses.back()), std::string("VI_ERROR_CONN_LOST"));
    EXPECT_EQ(reply.bytes, "");
}

class SimLateReplies : public SimSession {
  protected:
    static void SetUpTestSuite() { startSim({"--delay-ms", "400"}); }
};

// A read that times out reads nothing and leaves the link in step: the late
// reply is the next read's.
TEST_P(SimLateReplies, ComeToTheReadAfterATimeOut)
{
    ASSERT_EQ(viSetAttribute(session, VI_ATTR_TMO_VALUE, 100), VI_SUCCESS);
    ASSERT_EQ(writeText(session, "*IDN?\n"), VI_SUCCESS);
    const Reply early = readReply(session, 256);
    EXPECT_EQ(early.statuses, std::vector<ViStatus>{VI_ERROR_TMO});
    EXPECT_EQ(early.bytes, "");
    ASSERT_EQ(viSetAttribute(session, VI_ATTR_TMO_VALUE, 5000), VI_SUCCESS);
    EXPECT_EQ(readReply(session, 256).bytes, std::string(kIdn) + "\n");
    EXPECT_EQ(ask(":TRIGGER:STATUS?", 256).bytes, "RUN\n");
}

const auto kAllTransports =
    ::testing::Values(Transport::Socket, Transport::Vxi11, Transport::Hislip, Transport::Serial);
const auto kNetworkTransports = ::testing::Values(Transport::Socket, Transport::Vxi11, Transport::Hislip);

INSTANTIATE_TEST_SUITE_P(Backends, SimTransports, kAllTransports, transportName);
INSTANTIATE_TEST_SUITE_P(Backends, SimBlocks, kNetworkTransports, transportName);
INSTANTIATE_TEST_SUITE_P(Backends, SimDeviceClear, ::testing::Values(Transport::Vxi11, Transport::Hislip),
                         transportName);
INSTANTIATE_TEST_SUITE_P(Backends, SimDroppedLink, kAllTransports, transportName);
INSTANTIATE_TEST_SUITE_P(Backends, SimLateReplies, kAllTransports, transportName);

} // namespace
