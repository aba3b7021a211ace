// The virtual panel's screen loop against every fault the simulator can play,
// over the raw socket and HiSLIP: the loop always comes back, a lost link
// closes the panel with one box and the lamp out, and whatever else goes
// wrong leaves the link up and the picture asked for again.
#include "faultrows.h"
#include "panel_simlink.h"

#include "link/connection.h"
#include "link/linkcommands.h"
#include "link/linklamp.h"
#include "link/linkstate.h"
#include "link/visalibrary.h"
#include "panel/frmV_Panel.h"
#include "panel/panelstate.h"
#include "panel/screenpicturewidgets.h"

namespace {

// The loop asks for the screen again and again; these many requests are its "transfer".
constexpr int ScreenRequests = 6;

class PanelFaults : public PanelSimTest,
                    public ::testing::WithParamInterface<std::tuple<LinkTransport, int>> {};

TEST_P(PanelFaults, TheScreenLoopReturnsAndLeavesTheLinkKnown)
{
    const auto [transport, row] = GetParam();
    const FaultRow& fault = FaultRows[row];
    const QString ask = QStringLiteral(":DISPLAY:DATA?");
    link =
        std::make_unique<SimLink>(FaultOptions(fault, 2, ScreenRequests, ask) + QStringList{"--pty", "off"});
    ASSERT_TRUE(link->started()) << link->errorString().toStdString();
    link->aim(transport);
    ConnectDevice();
    if (fault.kind == FaultKind::Garbage) {
        EXPECT_FALSE(Connected) << "noise is no instrument";
        platform->clearRecords();
        Connected = true;
    }
    ASSERT_TRUE(Connected) << boxTexts().join("; ").toStdString();
    Visa().setAttribute(VisaSession, VI_ATTR_TMO_VALUE, FaultTimeoutMs);

    bool shown = false;
    EXPECT_TRUE(runPanel([&](frmV_Panel& panel) {
        shown = shown || !panel.AddPic->image().isNull();
        // A dropped link closes the panel by itself.
        if (fault.kind != FaultKind::Drop && loggedCount(ask) >= ScreenRequests) panel.close();
    })) << "the loop came back";
    EXPECT_FALSE(PanelFlags.PanelOpen);
    const QStringList texts = boxTexts();
    const qsizetype lost = texts.count("Send Message|Can't Connect to Device!") +
                           texts.count("Read Message|Can't Read data from Device!");
    if (fault.kind == FaultKind::None) {
        EXPECT_TRUE(shown);
    }
    if (fault.kind == FaultKind::Drop) {
        EXPECT_FALSE(Connected);
    }
    if (Connected) {
        EXPECT_EQ(lost, 0) << texts.join("; ").toStdString();
        return;
    }
    EXPECT_FALSE(LinkLampOn);
    EXPECT_EQ(lost, 1) << texts.join("; ").toStdString();
    const qsizetype logged = link->loggedCommands().size();
    EXPECT_EQ(AskCmd("*IDN?"), "");
    EXPECT_EQ(link->loggedCommands().size(), logged) << "a lost link sends nothing";
    EXPECT_EQ(platform->boxes.size(), texts.size()) << "and is announced once";
}

INSTANTIATE_TEST_SUITE_P(Sim, PanelFaults,
                         ::testing::Combine(::testing::Values(LinkTransport::Socket, LinkTransport::Hislip),
                                            ::testing::Range(0, int(std::size(FaultRows)))),
                         [](const auto& info) {
                             return transportName(std::get<0>(info.param)) +
                                    FaultRows[std::get<1>(info.param)].name;
                         });

} // namespace
