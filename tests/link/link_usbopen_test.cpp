// UsbOpen: the find loop, the chooser for several resources, the kept choice,
// the boxes, and the session's attributes.
#include "link_fixture.h"

#include "link/linkstate.h"
#include "link/resourcechooser.h"
#include "link/visaopen.h"
#include "text/language.h"
#include "text/messages.h"

namespace {

std::vector<std::string> resourcesNamed(int count)
{
    std::vector<std::string> names;
    for (int i = 0; i < count; ++i)
        names.push_back("USB0::0x1234::0x5678::S" + std::to_string(i) + "::INSTR");
    return names;
}

struct OpenCase {
    const char* name;
    int found;
    int choice;      // row the chooser takes; -1 cancels
    bool opened;     // a session was opened
    bool box;        // "Can't Connect to Device!" was shown
    int rowsOffered; // rows handed to the chooser; 0 when it isn't asked
    int findNextCalls;
};

class UsbOpenTable : public LinkTest, public ::testing::WithParamInterface<OpenCase> {};
using UsbOpenTest = LinkTest;

TEST_P(UsbOpenTable, FindsChoosesAndOpens)
{
    const OpenCase& c = GetParam();
    visa->resources = resourcesNamed(c.found);
    QStringList offered;
    InstallResourceChooser([&](const QStringList& rows) {
        offered = rows;
        if (c.choice < 0) return false;
        ResourceName = rows.at(c.choice);
        return true;
    });
    DevicePresent = true;

    UsbOpen();

    EXPECT_EQ(visa->countOf("findRsrc (USB|TCPIP|GPIB)?*INSTR"), 1);
    EXPECT_EQ(visa->countOf("findNext"), c.findNextCalls);
    EXPECT_EQ(visa->countOf("open "), c.opened ? 1 : 0);
    EXPECT_EQ(DevicePresent, c.opened);
    EXPECT_EQ(offered.size(), c.rowsOffered);
    if (c.rowsOffered > 0) {
        EXPECT_EQ(offered.last(), "") << "the last row is the blank entry";
    }
    const QStringList expectedBoxes = c.box ? QStringList{"Init|Can't Connect to Device!"} : QStringList{};
    EXPECT_EQ(boxTexts(), expectedBoxes);
}

INSTANTIATE_TEST_SUITE_P(Counts, UsbOpenTable,
                         ::testing::Values(OpenCase{"none", 0, 0, false, true, 0, 0},
                                           OpenCase{"one", 1, 0, true, false, 0, 1},
                                           OpenCase{"twoChosen", 2, 1, true, false, 3, 2},
                                           OpenCase{"twoCancelled", 2, -1, false, false, 3, 2},
                                           OpenCase{"tenFillTheList", 10, 9, true, false, 11, 10},
                                           OpenCase{"elevenOverflow", 11, 0, false, true, 0, 10}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(UsbOpenTest, OneResourceBecomesTheChoiceAndGetsItsAttributes)
{
    visa->resources = resourcesNamed(1);
    UsbOpen();
    EXPECT_TRUE(ResourceChosen);
    EXPECT_EQ(ResourceName, "USB0::0x1234::0x5678::S0::INSTR");
    EXPECT_EQ(VisaSession, FakeVisa::Session);
    EXPECT_EQ(visa->attributes[VI_ATTR_TMO_VALUE], 50000u);
    EXPECT_EQ(visa->attributes[VI_ATTR_TCPIP_KEEPALIVE], 1u);
    EXPECT_EQ(visa->countOf("getAttribute"), 2) << "each attribute is read back";
}

TEST_F(UsbOpenTest, AChoiceMadeEarlierIsOpenedThoughAnotherWasFound)
{
    ResourceChosen = true;
    ResourceName = "TCPIP0::10.0.0.9::inst0::INSTR";
    visa->resources = resourcesNamed(1);
    visa->openStatus = VI_ERROR_RSRC_NFOUND;

    UsbOpen();

    EXPECT_EQ(visa->countOf("open TCPIP0::10.0.0.9::inst0::INSTR"), 1);
    EXPECT_EQ(ResourceName, "TCPIP0::10.0.0.9::inst0::INSTR");
    EXPECT_FALSE(DevicePresent);
    EXPECT_EQ(boxTexts(), QStringList{"Init|Can't Connect to Device!"});
}

TEST_F(UsbOpenTest, TheChooserShowsTheChosenResourceFirst)
{
    const QStringList rows{"A::INSTR", "B::INSTR", ""};
    ResourceName = "B::INSTR";
    EXPECT_EQ(PreselectedResourceRow(rows), 1);
    ResourceName.clear();
    EXPECT_EQ(PreselectedResourceRow(rows), 0) << "an empty name never picks the blank row";
    EXPECT_TRUE(ChooseResource(rows));
    EXPECT_EQ(ResourceName, "A::INSTR");
}

TEST_F(UsbOpenTest, BoxesSpeakTheLanguageInForce)
{
    Language = LanguageChinese;
    LoadMessages();
    UsbOpen();
    EXPECT_EQ(boxTexts(), QStringList{"初始化|不能连接设备！"});
}

} // namespace
