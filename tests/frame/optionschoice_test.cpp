#include "frame/optionschoice.h"
#include "link/linkstate.h"
#include "platform/testplatform.h"
#include "settings/softwaresettings.h"
#include "support/freshstate.h"

#include <gtest/gtest.h>

namespace {

class OptionsChoiceTest : public FreshStateTest {
  protected:
    ScopedTestPlatform test;
};

TEST_F(OptionsChoiceTest, TheChoiceLandsInTheSettings)
{
    OptionsChoice choice{true, true, false, true, "5", true, "COM3", " 19200 ", "12", "USB0::1::2::S::INSTR"};
    ApplyOptions(choice);
    EXPECT_TRUE(StartupCheckHardware);
    EXPECT_TRUE(StartupLoadSheet);
    EXPECT_FALSE(StartupLoadCtrl);
    EXPECT_EQ(RefreshType, "Auto");
    EXPECT_EQ(RefreshInterval, 5000);
    EXPECT_EQ(TransportType, 2);
    EXPECT_EQ(ComPort, 3);
    EXPECT_EQ(BaudRate, "19200");
    EXPECT_EQ(GpibAddress, 12);
    EXPECT_TRUE(ResourceChosen);
    EXPECT_EQ(ResourceName, "USB0::1::2::S::INSTR");
    EXPECT_TRUE(test->sleeps.isEmpty()) << "without a link nothing is sent; a command would cost 100 ms";
}

TEST_F(OptionsChoiceTest, NoDeviceForgetsTheChosenResource)
{
    ResourceChosen = true;
    ResourceName = "USB0::1::2::S::INSTR";
    ApplyOptions(OptionsChoice{});
    EXPECT_FALSE(ResourceChosen);
    EXPECT_EQ(ResourceName, "");
    EXPECT_EQ(TransportType, 0);
    EXPECT_EQ(RefreshType, "Single");
}

struct TextCase {
    const char* text;
    int port;
};

TEST(PortNumber, ReadsTheDigitsOfThePortText)
{
    for (const TextCase& c : {TextCase{"COM1", 1}, TextCase{"COM12", 12}, TextCase{"com7 ", 7},
                              TextCase{"COM", 0}, TextCase{"", 0}, TextCase{"COM99999999999", 999999999}})
        EXPECT_EQ(PortNumber(c.text), c.port) << c.text;
}

TEST(ShortResourceText, DropsTheInterfaceAndTheSuffix)
{
    EXPECT_EQ(ShortResourceText("USB0::0x1234::0x5678::SN1::INSTR"), "0x1234 0x5678 SN1");
    EXPECT_EQ(ShortResourceText("USB::0x1::0x2::X::0::instr"), "0x1 0x2 X 0");
    EXPECT_EQ(ShortResourceText("ODD"), "ODD");
    EXPECT_EQ(ShortResourceText(""), "");
}

} // namespace
