// The front end with a vendor library: our own layer's shared build stands in
// for one, loaded through SELVANE_VISA_LIBRARY.
#include "simprocess.h"
#include "visa/visa.h"
#include "visa/visaconfig.h"
#include "visatesting.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

constexpr char kConfigured[] = "TCPIP0::10.9.9.9::inst0::INSTR";

class VendorLibrary : public ::testing::Test {
  protected:
    static void SetUpTestSuite()
    {
        sim = std::make_unique<SimProcess>(SELVANE_SIM_PATH);
        started = sim->start({"--pty", "off"});
    }
    static void TearDownTestSuite() { sim.reset(); }
    void TearDown() override { selvaneVisaSetConfiguredResources({}); }

    static inline std::unique_ptr<SimProcess> sim;
    static inline bool started = false;
    ScopedEnvironment noOverride{"SELVANE_VISA", nullptr};
    ScopedEnvironment library{"SELVANE_VISA_LIBRARY", SELVANE_VISA_SHARED_PATH};
};

TEST_F(VendorLibrary, IsLoadedAndTalksToTheInstrument)
{
    ASSERT_TRUE(started);
    EXPECT_EQ(selvaneVisaImplementation(), SELVANE_VISA_SHARED_PATH);
    ViSession manager = VI_NULL, session = VI_NULL;
    ASSERT_EQ(viOpenDefaultRM(&manager), VI_SUCCESS);
    EXPECT_EQ(textAttribute(manager, VI_ATTR_RSRC_MANF_NAME), "Selvane");
    const std::string name = "TCPIP0::127.0.0.1::" + std::to_string(sim->port("socket")) + "::SOCKET";
    ASSERT_EQ(viOpen(manager, name.c_str(), VI_NO_LOCK, 0, &session), VI_SUCCESS);
    EXPECT_EQ(viSetAttribute(session, VI_ATTR_TMO_VALUE, 5000), VI_SUCCESS);
    ASSERT_EQ(writeText(session, "*IDN?\n"), VI_SUCCESS);
    const Reply reply = readReply(session, 256);
    EXPECT_EQ(reply.bytes.rfind("KORVA TECHNOLOGIES,", 0), 0u) << reply.bytes;
    EXPECT_EQ(viClear(session), VI_SUCCESS);
    EXPECT_EQ(viClose(manager), VI_SUCCESS);
    EXPECT_EQ(viClose(session), VI_ERROR_INV_OBJECT) << "closed with its manager";
}

// The library keeps its own state: what the program configured in our layer is
// in our managers' lists, not in the library's.
TEST_F(VendorLibrary, ManagersOfBothImplementationsServeSideBySide)
{
    ViSession vendor = VI_NULL, own = VI_NULL;
    ASSERT_EQ(viOpenDefaultRM(&vendor), VI_SUCCESS);
    {
        ScopedEnvironment builtin("SELVANE_VISA", "builtin");
        EXPECT_EQ(selvaneVisaImplementation(), "builtin");
        ASSERT_EQ(viOpenDefaultRM(&own), VI_SUCCESS);
    }
    EXPECT_NE(vendor, own);
    selvaneVisaSetConfiguredResources({kConfigured});
    ViUInt32 count = 0;
    char description[VI_FIND_BUFLEN];
    EXPECT_EQ(viFindRsrc(own, kConfigured, nullptr, &count, description), VI_SUCCESS);
    EXPECT_EQ(viFindRsrc(vendor, kConfigured, nullptr, &count, description), VI_ERROR_RSRC_NFOUND);
    EXPECT_EQ(viClose(vendor), VI_SUCCESS);
    EXPECT_EQ(viFindRsrc(own, kConfigured, nullptr, &count, description), VI_SUCCESS);
    EXPECT_EQ(viClose(own), VI_SUCCESS);
}

TEST_F(VendorLibrary, AMissingLibraryIsReportedNotReplaced)
{
    ScopedEnvironment missing("SELVANE_VISA_LIBRARY", "libselvane-no-such-visa.so");
    EXPECT_EQ(selvaneVisaImplementation(), "");
    ViSession manager = 99;
    EXPECT_EQ(viOpenDefaultRM(&manager), VI_ERROR_LIBRARY_NFOUND);
    EXPECT_EQ(manager, VI_NULL);
}

} // namespace
