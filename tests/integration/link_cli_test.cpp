// selvane-cli idn: the identity on stdout, or the box text on stderr and a
// failing exit status.
#include "link_simlink.h"

#include <QProcess>
#include <QTemporaryDir>

namespace {

struct CliRun {
    int status = -1;
    QString out;
    QString err;
};

CliRun runCli(const QStringList& arguments)
{
    QProcess cli;
    const QTemporaryDir home; // the settings store of a first start: English
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("SELVANE_VISA", "builtin");
    environment.insert("HOME", home.path());
    environment.insert("XDG_CONFIG_HOME", home.path());
    cli.setProcessEnvironment(environment);
    cli.start(SELVANE_CLI_PATH, arguments);
    if (!cli.waitForFinished(30000)) return {};
    return {cli.exitCode(), QString::fromLocal8Bit(cli.readAllStandardOutput()),
            QString::fromLocal8Bit(cli.readAllStandardError())};
}

TEST(CliIdn, PrintsTheIdentityOverHislipAndSerial)
{
    SimLink link;
    ASSERT_TRUE(link.started()) << link.errorString().toStdString();
    const QString hislip =
        "TCPIP0::127.0.0.1::hislip0," + QString::number(link.sim().port("hislip")) + "::INSTR";
    for (const QStringList& arguments :
         {QStringList{"idn", "--resource", hislip},
          QStringList{"idn", "--serial", link.sim().ptyPath(), "--baud", "38400"}}) {
        const CliRun run = runCli(arguments);
        EXPECT_EQ(run.status, 0) << run.err.toStdString();
        EXPECT_EQ(run.out, QString(SupportedIdentity) + "\n");
    }
}

TEST(CliIdn, FailureShowsTheBoxTextAndFails)
{
    const CliRun serial = runCli({"idn", "--serial", "/nonexistent/ttyS9"});
    EXPECT_EQ(serial.status, 1);
    EXPECT_TRUE(serial.out.isEmpty());
    EXPECT_TRUE(serial.err.contains("RS232 Init: ")) << serial.err.toStdString();

    const CliRun nothing = runCli({"idn", "--resource", "TCPIP0::127.0.0.1::1::SOCKET"});
    EXPECT_EQ(nothing.status, 1);
    EXPECT_TRUE(nothing.err.contains("Init: Can't Connect to Device!\n")) << nothing.err.toStdString();

    EXPECT_EQ(runCli({"idn"}).status, 2);
}

} // namespace
