// selvane-cli list and scpi against the simulator: what a user types first
// at a new instrument, by hand and from a pipe.
#include "cliprocess.h"
#include "link_simlink.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace {

// Runs the program as a user without a desktop session: a fresh home, no
// runtime folder, no platform chosen.
CliRun scpiCli(const QStringList& arguments, const QByteArray& input = {}, const QString& visaConf = {})
{
    const QTemporaryDir home;
    QProcessEnvironment environment = firstStart(home);
    for (const char* name :
         {"XDG_RUNTIME_DIR", "QT_QPA_PLATFORM", "SELVANE_VISA_RESOURCES", "SELVANE_VISA_CONF"})
        environment.remove(name);
    if (!visaConf.isEmpty()) {
        QDir(home.path()).mkpath("selvane");
        QFile file(home.filePath("selvane/visa.conf"));
        if (!file.open(QIODevice::WriteOnly) || file.write(visaConf.toUtf8()) < 0) return {};
    }
    return runCli(arguments, environment, input);
}

class ScpiCli : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(link.started()) << link.errorString().toStdString(); }

    QString hislip()
    {
        return "TCPIP0::127.0.0.1::hislip0," + QString::number(link.sim().port("hislip")) + "::INSTR";
    }
    QString socket()
    {
        return "TCPIP0::127.0.0.1::" + QString::number(link.sim().port("socket")) + "::SOCKET";
    }

    SimLink link;
    const QString identity = SupportedIdentity;
};

TEST_F(ScpiCli, ListFindsTheConfiguredLanInstrumentAndThePseudoTerminalOnlyWithSerial)
{
    const QString pty = "ASRL" + link.sim().ptyPath() + "::INSTR";
    const QString conf = "# the lab's scope\n" + hislip() + "\n";
    const QStringList asked{"list", "--timeout", "1000", "--resource", pty};

    const CliRun lan = scpiCli(asked, {}, conf);
    EXPECT_EQ(lan.status, 0) << lan.err.toStdString();
    EXPECT_TRUE(lan.err.isEmpty()) << lan.err.toStdString();
    EXPECT_TRUE(lan.out.contains("hislip0," + QString::number(link.sim().port("hislip")) + "::INSTR\t" +
                                 identity + "\n"))
        << lan.out.toStdString();
    EXPECT_FALSE(lan.out.contains("ASRL")) << lan.out.toStdString();

    const CliRun serial = scpiCli(asked + QStringList{"--serial"}, {}, conf);
    EXPECT_EQ(serial.status, 0);
    EXPECT_TRUE(serial.out.contains(pty + "\t" + identity + "\n")) << serial.out.toStdString();
    EXPECT_TRUE(serial.out.contains("hislip0")) << serial.out.toStdString();
}

TEST_F(ScpiCli, AnswersFromTheCommandLineAndFromAPipe)
{
    const CliRun arguments = scpiCli({"scpi", "--resource", hislip(), "*IDN?"});
    EXPECT_EQ(arguments.status, 0);
    EXPECT_EQ(arguments.out, identity + "\n");
    EXPECT_TRUE(arguments.err.isEmpty()) << arguments.err.toStdString();

    const CliRun pipe = scpiCli({"scpi", "--resource", socket()}, "*IDN?\n\n  *IDN?  \n");
    EXPECT_EQ(pipe.status, 0) << pipe.err.toStdString();
    EXPECT_EQ(pipe.out, identity + "\n" + identity + "\n");
}

// A binary block may hold line feeds: it is read by its length, so the reply
// after it comes out whole, over a socket where only the line feed ends a read.
TEST_F(ScpiCli, WritesABlockToOutAndTellsItsLength)
{
    const QTemporaryDir dir;
    const QString out = dir.filePath("parameter.bin");
    const CliRun run =
        scpiCli({"scpi", "--resource", socket(), "--out", out, ":WAVEFORM:PARAMETER?", "*IDN?"});
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    const qint64 size = QFileInfo(out).size();
    EXPECT_GT(size, 0);
    EXPECT_EQ(run.out, QString("[block of %1 bytes]\n").arg(size) + identity + "\n");
}

TEST_F(ScpiCli, NoReplyAndUsageErrorsHaveTheirStatus)
{
    const CliRun silent = scpiCli({"scpi", "--resource", "TCPIP0::127.0.0.1::1::SOCKET", "*IDN?"});
    EXPECT_EQ(silent.status, 1);
    EXPECT_EQ(scpiCli({"scpi", "*IDN?"}).status, 2);
    EXPECT_EQ(scpiCli({"scpi", "--bogus"}).status, 2);

    const CliRun unknown = scpiCli({"wfmx", "--help"});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_TRUE(unknown.err.contains("unknown subcommand 'wfmx'")) << unknown.err.toStdString();
    const CliRun version = scpiCli({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_TRUE(version.out.startsWith("selvane-cli ")) << version.out.toStdString();
}

} // namespace
