// Peers that answer the opening handshake with nonsense: the open fails at
// once with VI_ERROR_RSRC_NFOUND, without hanging or reading past a frame.
#include "visa/visa.h"
#include "visatesting.h"

#include <gtest/gtest.h>

#include <ostream>
#include <thread>

namespace {

std::string bigEndian32(uint32_t value)
{
    return {char(value >> 24), char(value >> 16), char(value >> 8), char(value)};
}

std::string hislipHeader(uint8_t type, uint64_t length)
{
    return std::string("HS") + char(type) + '\0' + bigEndian32(0) + bigEndian32(uint32_t(length >> 32)) +
           bigEndian32(uint32_t(length));
}

enum class Protocol { Hislip, Vxi11 };

struct HostileCase {
    const char* what;
    Protocol protocol;
    std::string answer; // sent once the request came; then the peer hangs up
};

std::ostream& operator<<(std::ostream& out, const HostileCase& c)
{
    return out << c.what;
}

class HostilePeer : public ::testing::TestWithParam<HostileCase> {};

TEST_P(HostilePeer, MakesTheOpenFailPromptly)
{
    const HostileCase& c = GetParam();
    TcpPeer peer;
    const std::string port = std::to_string(peer.port());
    ScopedEnvironment portmapper("SELVANE_PORTMAPPER_PORT", port.c_str());
    std::thread serve([&] {
        if (!peer.accept()) return;
        peer.receive(1);
        peer.send(c.answer);
        peer.closeConnection();
    });
    const std::string name = c.protocol == Protocol::Hislip ? "TCPIP::127.0.0.1::hislip0," + port + "::INSTR"
                                                            : "TCPIP::127.0.0.1::inst0::INSTR";
    ViSession manager = VI_NULL, session = VI_NULL;
    ASSERT_EQ(viOpenDefaultRM(&manager), VI_SUCCESS);
    EXPECT_EQ(viOpen(manager, name.c_str(), VI_NO_LOCK, 0, &session), VI_ERROR_RSRC_NFOUND);
    EXPECT_EQ(session, VI_NULL);
    serve.join();
    viClose(manager);
}

INSTANTIATE_TEST_SUITE_P(
    Table, HostilePeer,
    ::testing::Values(
        HostileCase{"no HiSLIP prologue", Protocol::Hislip, "GARBAGE!GARBAGE!GARBAGE!"},
        HostileCase{"a HiSLIP payload of a terabyte", Protocol::Hislip, hislipHeader(1, uint64_t(1) << 40)},
        HostileCase{"a HiSLIP fatal error", Protocol::Hislip, hislipHeader(2, 3) + "bad"},
        HostileCase{"a HiSLIP header cut short", Protocol::Hislip, "HS\1\0"},
        HostileCase{"silence, then hanging up", Protocol::Hislip, ""},
        HostileCase{"an RPC record of 2 GiB", Protocol::Vxi11, bigEndian32(0xFFFFFFFFu) + "xxxx"},
        HostileCase{"an RPC reply to another call", Protocol::Vxi11,
                    bigEndian32(0x80000000u | 24) + bigEndian32(7) + bigEndian32(1) + std::string(16, '\0')},
        HostileCase{"a first fragment and no more", Protocol::Vxi11, bigEndian32(8) + "12345678"},
        HostileCase{"an RPC record shorter than its header", Protocol::Vxi11,
                    bigEndian32(0x80000000u | 2) + "ab"}));

} // namespace
