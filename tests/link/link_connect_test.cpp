// ConnectDevice and DisconnectDevice over a fake VISA instrument: which
// identities are accepted, what a refusal shows and leaves behind.
#include "link_fixture.h"

#include "link/connection.h"
#include "link/devicefacts.h"
#include "link/linklamp.h"
#include "link/linkstate.h"
#include "text/language.h"
#include "text/messages.h"

namespace {

const char* const DeviceNotFound = "Connect to Oscilloscope|Device not found!";
const char* const LowFirmware = "|Low firmware,please update it.";

struct IdentityCase {
    const char* name;
    const char* identity;
    bool connected;
    const char* box; // "" for none
    int bandwidthClass;
};

class IdentityTable : public LinkTest, public ::testing::WithParamInterface<IdentityCase> {
  protected:
    void connectTo(const std::string& identity)
    {
        visa->resources = {"USB0::0x1234::0x5678::S0::INSTR"};
        visa->replies["*IDN?"] = identity;
        visa->replies[":MATH:DISPLAY?"] = "1\n";
        ConnectDevice();
    }
};
using ConnectTest = IdentityTable;

TEST_P(IdentityTable, AcceptsOnlyASupportedModelWithNewEnoughFirmware)
{
    const IdentityCase& c = GetParam();
    std::vector<bool> lamp;
    QObject listener;
    QObject::connect(&LinkNotifier(), &LinkEvents::lampChanged, &listener,
                     [&](bool on) { lamp.push_back(on); });

    connectTo(c.identity);

    EXPECT_EQ(Connected, c.connected);
    EXPECT_FALSE(Connecting);
    EXPECT_EQ(boxTexts(), *c.box ? QStringList{c.box} : QStringList{});
    EXPECT_EQ(lamp, std::vector<bool>{c.connected});
    EXPECT_EQ(MathDisplay, c.connected ? "ON" : "OFF");
    if (c.connected) {
        EXPECT_EQ(BandwidthClass, c.bandwidthClass);
        EXPECT_EQ(ModelIsSupported, 1);
        EXPECT_EQ(SampleBase, 0);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Identities, IdentityTable,
    ::testing::Values(
        IdentityCase{"mixedCaseVendor", "Korva Technologies,KV7204B,123,00.03.03\n", true, "", 4},
        IdentityCase{"servicePack", "KORVA TECHNOLOGIES,KV7102B,9,00.03.03.SP1\n", true, "", 3},
        IdentityCase{"twoDigits02", "Korva Technologies,KV7022B,9,00.03.05.00.00", true, "", 0},
        IdentityCase{"unknownBandwidth", "Korva Technologies,KV7994B,9,00.03.05.00.00", true, "", 5},
        IdentityCase{"otherVendor", "Acme Instruments,KV7204B,1,00.03.05\n", false, DeviceNotFound, 0},
        IdentityCase{"vendorWithoutFamily", "KORVA TECHNOLOGIES,XY1000B,1,00.03.05\n", true, "", 5},
        IdentityCase{"silent", "", false, DeviceNotFound, 0},
        IdentityCase{"noComma", "KORVA TECHNOLOGIES KV7204B\n", false, DeviceNotFound, 0},
        IdentityCase{"modelWithoutB", "Korva Technologies,KV7204A,1,00.03.05\n", false, DeviceNotFound, 0},
        IdentityCase{"modelLongerThanB", "Korva Technologies,KV7204BX,1,00.03.05\n", false, DeviceNotFound,
                     0}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(ConnectTest, AnIdentityNotStartingWithThePatternCostsAPause)
{
    connectTo("Acme,KV7204B,1,00.03.05\n");
    EXPECT_EQ(platform->sleeps, QList<int>{50});
    EXPECT_EQ(visa->countOf("write"), 1) << "one try only";
    platform->clearRecords();
    connectTo("Korva Technologies,KV7204B,1,00.03.05\n");
    EXPECT_TRUE(platform->sleeps.isEmpty());
}

TEST_F(ConnectTest, OldFirmwareIsRefusedAndLeavesConnectingSet)
{
    std::vector<bool> lamp;
    QObject listener;
    QObject::connect(&LinkNotifier(), &LinkEvents::lampChanged, &listener,
                     [&](bool on) { lamp.push_back(on); });
    connectTo("Korva Technologies,KV7204B,1,00.03.02.00.00\n");

    EXPECT_FALSE(Connected);
    EXPECT_TRUE(Connecting) << "the transport routines stay open until the next connect";
    EXPECT_TRUE(lamp.empty()) << "the lamp is left as it was";
    ASSERT_EQ(platform->boxes.size(), 1);
    EXPECT_EQ(boxTexts(), QStringList{LowFirmware});
    EXPECT_EQ(platform->boxes[0].style, vbOKOnly) << "no icon";
    EXPECT_EQ(FirmwareVersion, "00.03.02.00.00\n");

    connectTo("Korva Technologies,KV7204B,1,00.03.03.SP1\n");
    EXPECT_TRUE(Connected);
    EXPECT_FALSE(Connecting);
    EXPECT_EQ(FirmwareVersion, "00.03.03.01\n");
}

TEST_F(ConnectTest, ASupportedModelSeenOnceIsNeverForgotten)
{
    connectTo("Korva Technologies,KV7204BX,1,00.03.05\n");
    EXPECT_FALSE(Connected);
    connectTo("Korva Technologies,KV7204B,1,00.03.05\n");
    connectTo("Korva Technologies,KV7204BX,1,00.03.05\n");
    EXPECT_TRUE(Connected);
    EXPECT_EQ(ModelName, "KV7204BX");
}

TEST_F(ConnectTest, AFailedOpenShowsOnlyItsOwnBox)
{
    visa->replies["*IDN?"] = "Korva Technologies,KV7204B,1,00.03.05\n";
    ConnectDevice(); // no resource found
    EXPECT_EQ(boxTexts(), QStringList{"Init|Can't Connect to Device!"});
    EXPECT_FALSE(Connected);
    EXPECT_FALSE(Connecting);
    EXPECT_EQ(visa->countOf("write"), 0);
}

TEST_F(ConnectTest, RefusalSpeaksTheLanguageInForce)
{
    Language = LanguageChinese;
    LoadMessages();
    connectTo("Acme,KV7204B,1,00.03.05\n");
    connectTo("Korva Technologies,KV7204B,1,00.03.01\n");
    EXPECT_EQ(boxTexts(), (QStringList{"连接示波器|设备未找到!", "|示波器软件版本过低,请升级示波器固件."}));
}

TEST_F(ConnectTest, DisconnectReleasesTheKeysOnlyWhenConnected)
{
    DisconnectDevice();
    EXPECT_TRUE(visa->calls.empty());

    connectTo("Korva Technologies,KV7204B,1,00.03.05\n");
    visa->calls.clear();
    visa->writes.clear();
    platform->clearRecords();
    DisconnectDevice();

    EXPECT_EQ(visa->writes, std::vector<std::string>{":KEY:LOCK DISABLE\n"});
    EXPECT_EQ(platform->sleeps, QList<int>{100});
    EXPECT_EQ(visa->calls, (std::vector<std::string>{"write", "clear 22", "close 22"}));
    EXPECT_FALSE(Connected);
    EXPECT_FALSE(LinkLampOn);
}

} // namespace
