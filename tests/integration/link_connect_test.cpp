// ConnectDevice, the reads and DisconnectDevice against kv7200b-sim over every
// transport; which identities are refused is tested over the scripted VISA
// (tests/link).
#include "link_simlink.h"

#include "link/connection.h"
#include "link/devicefacts.h"
#include "link/linkcommands.h"
#include "link/linkstate.h"
#include "text/valuetext.h"

#include <QThread>

namespace {

const QString KeyRelease = QStringLiteral(":KEY:LOCK DISABLE");

class TransportTable : public SimLinkTest, public ::testing::WithParamInterface<LinkTransport> {
  protected:
    static void SetUpTestSuite() { link = std::make_unique<SimLink>(); }
    static void TearDownTestSuite() { link.reset(); }
    static inline std::unique_ptr<SimLink> link;
};

TEST_P(TransportTable, ConnectsIdentifiesAndReleasesTheKeysOnLeaving)
{
    ASSERT_TRUE(link->started()) << link->errorString().toStdString();
    link->aim(GetParam());
    const qsizetype released = link->loggedCommands().count(KeyRelease);

    ConnectDevice();

    ASSERT_TRUE(Connected) << boxTexts().join("; ").toStdString();
    EXPECT_FALSE(Connecting);
    EXPECT_TRUE(platform->boxes.isEmpty());
    EXPECT_EQ(ModelName, "KV7204B");
    EXPECT_EQ(BandwidthClass, 4);
    EXPECT_TRUE(FirmwareVersion.startsWith("00.03.03.01")) << FirmwareVersion.toStdString();
    EXPECT_TRUE(MathDisplay == "ON" || MathDisplay == "OFF");
    EXPECT_EQ(StripAtLineFeed(AskCmd("*IDN?")), SupportedIdentity);

    DisconnectDevice();
    EXPECT_FALSE(Connected);
    EXPECT_TRUE(link->waitForLogged(KeyRelease, int(released) + 1));
    DisconnectDevice();
    QThread::msleep(200);
    EXPECT_EQ(link->loggedCommands().count(KeyRelease), released + 1) << "not connected: nothing is sent";
}

INSTANTIATE_TEST_SUITE_P(Sim, TransportTable,
                         ::testing::Values(LinkTransport::Socket, LinkTransport::Vxi11, LinkTransport::Hislip,
                                           LinkTransport::Serial),
                         [](const auto& info) { return transportName(info.param); });

} // namespace
