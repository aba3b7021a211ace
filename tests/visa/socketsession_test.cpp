// A SOCKET session against a peer the test drives byte by byte: what only the
// socket backend decides (several messages in one arrival, partial time-outs,
// clear, attributes). How a read ends is the message reader's table; blocks
// with line feeds inside, lost links and late replies over every backend are
// in simtransports_test.
#include "visa/visa.h"
#include "visatesting.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

class SocketSession : public ::testing::Test {
  protected:
    void SetUp() override
    {
        ASSERT_EQ(viOpenDefaultRM(&manager), VI_SUCCESS);
        ASSERT_EQ(viOpen(manager, peer.socketResource().c_str(), VI_NO_LOCK, 0, &session), VI_SUCCESS);
        ASSERT_TRUE(peer.accept());
        ViUInt32 timeout = 0;
        viGetAttribute(session, VI_ATTR_TMO_VALUE, &timeout);
        ASSERT_EQ(timeout, 2000u) << "the standard default";
    }
    void TearDown() override { viClose(manager); }

    ViStatus read(ViUInt32 limit, std::string& bytes)
    {
        std::string buffer(limit, '\0');
        ViUInt32 count = 12345;
        const ViStatus status = viRead(session, reinterpret_cast<ViByte*>(buffer.data()), limit, &count);
        bytes = buffer.substr(0, std::min(count, limit));
        return status;
    }

    TcpPeer peer;
    ViSession manager = VI_NULL;
    ViSession session = VI_NULL;
};

// Two lines in one arrival: the first line feed ends the read, the second line waits.
TEST_F(SocketSession, TheLineFeedEndsAReadAndNextLinesWait)
{
    peer.send("first\nsecond\n");
    std::string bytes;
    EXPECT_EQ(read(256, bytes), VI_SUCCESS);
    EXPECT_EQ(bytes, "first\n");
    ASSERT_EQ(viSetAttribute(session, VI_ATTR_TERMCHAR_EN, VI_TRUE), VI_SUCCESS);
    EXPECT_EQ(read(256, bytes), VI_SUCCESS_TERM_CHAR);
    EXPECT_EQ(bytes, "second\n");
}

TEST_F(SocketSession, ATimeOutReportsThePartialCountAndTheRestFollowsLater)
{
    ASSERT_EQ(viSetAttribute(session, VI_ATTR_TMO_VALUE, 150), VI_SUCCESS);
    peer.send("abc");
    std::string bytes;
    EXPECT_EQ(read(256, bytes), VI_ERROR_TMO);
    EXPECT_EQ(bytes, "abc");
    peer.send("def\n");
    EXPECT_EQ(read(256, bytes), VI_SUCCESS);
    EXPECT_EQ(bytes, "def\n");
    ASSERT_EQ(viSetAttribute(session, VI_ATTR_TMO_VALUE, VI_TMO_IMMEDIATE), VI_SUCCESS);
    EXPECT_EQ(read(256, bytes), VI_ERROR_TMO);
    EXPECT_EQ(bytes, "");
}

TEST_F(SocketSession, ClearDropsWhatHasArrived)
{
    peer.send("stale reply\n");
    std::string bytes;
    ASSERT_EQ(read(2, bytes), VI_SUCCESS_MAX_CNT);
    EXPECT_EQ(viClear(session), VI_SUCCESS);
    peer.send("fresh\n");
    EXPECT_EQ(read(256, bytes), VI_SUCCESS);
    EXPECT_EQ(bytes, "fresh\n");
}

struct AttributeCase {
    ViAttr attribute;
    ViAttrState value;
    ViStatus status;
};

std::ostream& operator<<(std::ostream& out, const AttributeCase& c)
{
    return out << std::hex << "attribute 0x" << c.attribute << " = 0x" << c.value;
}

class SocketAttributes : public SocketSession, public ::testing::WithParamInterface<AttributeCase> {};

// Read back as a number; the buffer is large enough for the string attributes too.
TEST_P(SocketAttributes, SetAndReadBack)
{
    const AttributeCase& c = GetParam();
    ViUInt32 before[VI_FIND_BUFLEN / 4] = {};
    viGetAttribute(session, c.attribute, before);
    EXPECT_EQ(viSetAttribute(session, c.attribute, c.value), c.status);
    ViUInt32 after[VI_FIND_BUFLEN / 4] = {};
    if (viGetAttribute(session, c.attribute, after) == VI_SUCCESS) {
        EXPECT_EQ(after[0], c.status == VI_SUCCESS ? c.value : before[0])
            << "a refused value changes nothing";
    }
}

INSTANTIATE_TEST_SUITE_P(
    Table, SocketAttributes,
    ::testing::Values(AttributeCase{VI_ATTR_TMO_VALUE, 50000, VI_SUCCESS},
                      AttributeCase{VI_ATTR_TMO_VALUE, VI_TMO_INFINITE, VI_SUCCESS},
                      AttributeCase{VI_ATTR_TMO_VALUE, 0x100000000ull, VI_ERROR_NSUP_ATTR_STATE},
                      AttributeCase{VI_ATTR_TCPIP_KEEPALIVE, 1, VI_SUCCESS},
                      AttributeCase{VI_ATTR_TCPIP_KEEPALIVE, 2, VI_ERROR_NSUP_ATTR_STATE},
                      AttributeCase{VI_ATTR_TCPIP_NODELAY, 0, VI_SUCCESS},
                      AttributeCase{VI_ATTR_TERMCHAR, '\r', VI_SUCCESS},
                      AttributeCase{VI_ATTR_TERMCHAR, 0x100, VI_ERROR_NSUP_ATTR_STATE},
                      AttributeCase{VI_ATTR_TERMCHAR_EN, 1, VI_SUCCESS},
                      AttributeCase{VI_ATTR_ASRL_BAUD, 9600, VI_ERROR_NSUP_ATTR},
                      AttributeCase{VI_ATTR_RSRC_MANF_NAME, 0, VI_ERROR_ATTR_READONLY},
                      AttributeCase{0x3FFF0FFFu, 0, VI_ERROR_NSUP_ATTR}));

} // namespace
