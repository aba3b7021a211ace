// The resource manager of our own layer: the find protocol over the configured
// resources, handles, and closing.
#include "visa/visa.h"
#include "visa/visaconfig.h"
#include "visatesting.h"

#include <gtest/gtest.h>

namespace {

class ResourceManager : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_EQ(viOpenDefaultRM(&manager), VI_SUCCESS); }
    void TearDown() override
    {
        viClose(manager);
        selvaneVisaSetConfiguredResources({});
    }

    // Everything viFindRsrc and viFindNext give for the pattern, as the program loops.
    std::vector<std::string> findAll(const char* pattern, ViStatus* firstStatus = nullptr)
    {
        ViFindList list = VI_NULL;
        ViUInt32 count = 0;
        char description[VI_FIND_BUFLEN] = "?";
        const ViStatus status = viFindRsrc(manager, pattern, &list, &count, description);
        if (firstStatus) *firstStatus = status;
        std::vector<std::string> found;
        if (status != VI_SUCCESS) return found;
        found.push_back(description);
        for (ViUInt32 i = 1; i < count; ++i) {
            EXPECT_EQ(viFindNext(list, description), VI_SUCCESS);
            found.push_back(description);
        }
        EXPECT_EQ(viFindNext(list, description), VI_ERROR_RSRC_NFOUND)
            << "one call past the count finds nothing";
        EXPECT_STREQ(description, "");
        viClose(list);
        return found;
    }

    ViSession manager = VI_NULL;
};

TEST_F(ResourceManager, FindsEnvironmentThenConfiguredResourcesInCanonicalFormWithoutRepeats)
{
    ScopedEnvironment resources("SELVANE_VISA_RESOURCES",
                                "TCPIP0::10.0.0.1::inst0::INSTR; not a name;TCPIP0::10.0.0.2::5025::SOCKET;;"
                                "TCPIP::10.0.0.3::hislip0");
    selvaneVisaSetConfiguredResources(
        {"GPIB0::5::INSTR", "tcpip0::10.0.0.1::INSTR", "TCPIP0::10.0.0.4::INSTR"});
    const std::vector<std::string> expected{"TCPIP0::10.0.0.1::inst0::INSTR",
                                            "TCPIP0::10.0.0.3::hislip0::INSTR", "GPIB0::5::INSTR",
                                            "TCPIP0::10.0.0.4::inst0::INSTR"};
    EXPECT_EQ(findAll("(TCPIP|GPIB)?*INSTR"), expected);
    EXPECT_EQ(findAll("?*SOCKET"), std::vector<std::string>{"TCPIP0::10.0.0.2::5025::SOCKET"});
}

TEST_F(ResourceManager, ReportsNothingFoundAndMalformedPatterns)
{
    ScopedEnvironment resources("SELVANE_VISA_RESOURCES", "TCPIP0::10.0.0.1::inst0::INSTR");
    ViFindList list = 77;
    ViUInt32 count = 77;
    char description[VI_FIND_BUFLEN] = "stale";
    EXPECT_EQ(viFindRsrc(manager, "GPIB?*", &list, &count, description), VI_ERROR_RSRC_NFOUND);
    EXPECT_EQ(count, 0u);
    EXPECT_EQ(list, VI_NULL);
    EXPECT_STREQ(description, "");
    EXPECT_EQ(viFindRsrc(manager, "(TCPIP", &list, &count, description), VI_ERROR_INV_EXPR);
    EXPECT_EQ(viFindRsrc(manager, nullptr, &list, &count, description), VI_ERROR_INV_EXPR);
}

TEST_F(ResourceManager, ClosingTheManagerClosesItsSessionsAndFindLists)
{
    ScopedEnvironment resources("SELVANE_VISA_RESOURCES", "GPIB0::1::INSTR;GPIB0::2::INSTR");
    TcpPeer peer;
    ViFindList list = VI_NULL;
    ViUInt32 count = 0;
    char description[VI_FIND_BUFLEN];
    ASSERT_EQ(viFindRsrc(manager, "GPIB?*", &list, &count, description), VI_SUCCESS);
    ViSession session = VI_NULL;
    ASSERT_EQ(viOpen(manager, peer.socketResource().c_str(), VI_NO_LOCK, 0, &session), VI_SUCCESS);
    ViSession other = VI_NULL;
    ASSERT_EQ(viOpenDefaultRM(&other), VI_SUCCESS);

    EXPECT_EQ(viClose(manager), VI_SUCCESS);
    EXPECT_EQ(viFindNext(list, description), VI_ERROR_INV_OBJECT);
    EXPECT_EQ(writeText(session, "*IDN?\n"), VI_ERROR_INV_OBJECT);
    EXPECT_EQ(viClose(session), VI_ERROR_INV_OBJECT);
    ASSERT_TRUE(peer.accept());
    EXPECT_EQ(peer.receive(1, 500), "") << "the connection was closed";
    EXPECT_EQ(textAttribute(other, VI_ATTR_RSRC_MANF_NAME), "Selvane") << "another manager lives on";
    EXPECT_EQ(viClose(other), VI_SUCCESS);
    manager = VI_NULL;
}

TEST_F(ResourceManager, RefusesUnknownHandlesAndBadArguments)
{
    ViSession session = VI_NULL;
    ViByte byte = 0;
    ViUInt32 count = 5;
    EXPECT_EQ(viClose(VI_NULL), VI_WARN_NULL_OBJECT);
    EXPECT_EQ(viClose(0xBADu), VI_ERROR_INV_OBJECT);
    EXPECT_EQ(viRead(0xBADu, &byte, 1, &count), VI_ERROR_INV_OBJECT);
    EXPECT_EQ(count, 0u);
    EXPECT_EQ(viClear(0xBADu), VI_ERROR_INV_OBJECT);
    EXPECT_EQ(viSetAttribute(0xBADu, VI_ATTR_TMO_VALUE, 1), VI_ERROR_INV_OBJECT);
    EXPECT_EQ(viOpen(0xBADu, "GPIB0::1::INSTR", VI_NO_LOCK, 0, &session), VI_ERROR_INV_OBJECT);
    EXPECT_EQ(viOpenDefaultRM(nullptr), VI_ERROR_INV_PARAMETER);
    TcpPeer peer;
    EXPECT_EQ(viOpen(manager, peer.socketResource().c_str(), 0x80, 0, &session), VI_ERROR_INV_ACC_MODE);
    EXPECT_EQ(viOpen(manager, "GPIB0::1::INSTR", VI_NO_LOCK, 0, &session), VI_ERROR_RSRC_NFOUND);
    EXPECT_EQ(viOpen(manager, "ASRL/dev/null::INSTR", VI_NO_LOCK, 0, &session), VI_ERROR_RSRC_NFOUND)
        << "not a terminal";
    uint16_t closedPort = 0;
    {
        TcpPeer gone;
        closedPort = gone.port();
    }
    const std::string refused = "TCPIP0::127.0.0.1::" + std::to_string(closedPort) + "::SOCKET";
    EXPECT_EQ(viOpen(manager, refused.c_str(), VI_NO_LOCK, 0, &session), VI_ERROR_RSRC_NFOUND);
    EXPECT_EQ(session, VI_NULL);
}

} // namespace
