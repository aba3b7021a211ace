// selvane-cli idn: the identity on stdout, or the box text on stderr and a
// failing exit status.
#include "cliprocess.h"
#include "link_simlink.h"

namespace {

// The settings store of a first start: English.
CliRun idn(const QStringList& arguments)
{
    const QTemporaryDir home;
    return runCli(QStringList{"idn"} + arguments, firstStart(home));
}

// Over HiSLIP it is a round of link_reconnect_test's CliReconnect.
TEST(CliIdn, PrintsTheIdentityOverSerial)
{
    SimLink link;
    ASSERT_TRUE(link.started()) << link.errorString().toStdString();
    const CliRun run = idn({"--serial", link.sim().ptyPath(), "--baud", "38400"});
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    EXPECT_EQ(run.out, QString(SupportedIdentity) + "\n");
}

TEST(CliIdn, FailureShowsTheBoxTextAndFails)
{
    const CliRun serial = idn({"--serial", "/nonexistent/ttyS9"});
    EXPECT_EQ(serial.status, 1);
    EXPECT_TRUE(serial.out.isEmpty());
    EXPECT_TRUE(serial.err.contains("RS232 Init: ")) << serial.err.toStdString();

    const CliRun nothing = idn({"--resource", "TCPIP0::127.0.0.1::1::SOCKET"});
    EXPECT_EQ(nothing.status, 1);
    EXPECT_TRUE(nothing.err.contains("Init: Can't Connect to Device!\n")) << nothing.err.toStdString();

    EXPECT_EQ(idn({}).status, 2);
}

} // namespace
