// The instrument goes away in the middle of a session and comes back: the
// lost link is announced once, what was read stays, and connecting again to
// the same resource reads again.
#include "cliprocess.h"
#include "reading_simlink.h"

#include "acquire/operation.h"
#include "acquire/readdatatable.h"
#include "acquire/tabletext.h"
#include "acquire/wavebytes.h"
#include "link/connection.h"
#include "link/linkcommands.h"
#include "link/linklamp.h"
#include "link/linkstate.h"

#include <QFile>
#include <QTemporaryDir>

namespace {

using Reconnect = SimReadingTest;

TEST_F(Reconnect, AfterTheSimulatorIsKilledARestartedOneConnectsAndReadsAgain)
{
    ASSERT_TRUE(startSim());
    ASSERT_TRUE(connectOverSocket());
    const QString resource = ResourceName;
    const quint16 socketPort = sim->port("socket");
    send(":STOP");
    RunReadingFrame({OperationTableCH1});
    ASSERT_EQ(WaveCount, 600);
    const QString header = DataHeaderText;
    const QString lastValue = DataValueText[600];

    sim->process().kill();
    sim->process().waitForFinished(5000);
    RunReadingFrame({OperationTableCH1});
    for (int i = 0; i < 3 && Connected; ++i)
        AskCmd("*IDN?");
    EXPECT_FALSE(Connected);
    EXPECT_FALSE(LinkLampOn);
    EXPECT_EQ(boxTexts().count("Send Message|Can't Connect to Device!"), 1)
        << boxTexts().join("; ").toStdString();
    EXPECT_EQ(AskCmd("*IDN?"), "") << "a lost link answers nothing and asks nothing";
    EXPECT_EQ(DataHeaderText, header) << "the table read before the loss stays";
    EXPECT_EQ(DataValueText[600], lastValue);

    // The instrument comes back at the same address.
    ASSERT_TRUE(startSim({"--socket-port", QString::number(socketPort)}));
    ASSERT_EQ(sim->port("socket"), socketPort);
    ASSERT_TRUE(connectOverSocket()) << boxTexts().join("; ").toStdString();
    EXPECT_EQ(ResourceName, resource);
    EXPECT_TRUE(LinkLampOn);
    EXPECT_EQ(AskCmd("*IDN?").trimmed(), QString(SupportedIdentity));
    send(":STOP");
    DataHeaderText.clear();
    RunReadingFrame({OperationTableCH1});
    EXPECT_EQ(WaveCount, 600);
    EXPECT_TRUE(DataHeaderText.startsWith("CH1 ")) << DataHeaderText.toStdString();
    EXPECT_TRUE(Connected);
}

// selvane-cli against one HiSLIP address: exit status and output.
std::pair<int, QString> cli(const QStringList& arguments)
{
    const QTemporaryDir home;
    const CliRun run = runCli(arguments, firstStart(home));
    return {run.status, run.out};
}

TEST(CliReconnect, EachRoundAgainstARestartedSimulatorWorksAndAGoneOneFails)
{
    auto sim = std::make_unique<SimLink>();
    ASSERT_TRUE(sim->started()) << sim->errorString().toStdString();
    const QString port = QString::number(sim->sim().port("hislip"));
    const QString resource = "TCPIP0::127.0.0.1::hislip0," + port + "::INSTR";
    const QTemporaryDir dir;
    const QString picture = dir.filePath("wave.png");
    for (int round = 0; round < 3; ++round) {
        EXPECT_EQ(cli({"idn", "--resource", resource}), std::make_pair(0, QString(SupportedIdentity) + "\n"))
            << round;
        QFile::remove(picture);
        EXPECT_EQ(cli({"wave", "--resource", resource, "--out", picture}).first, 0) << round;
        EXPECT_TRUE(QFile::exists(picture)) << round;
        sim.reset();
        EXPECT_EQ(cli({"idn", "--resource", resource}).first, 1) << round;
        EXPECT_NE(cli({"wave", "--resource", resource, "--out", picture}).first, 0) << round;
        sim = std::make_unique<SimLink>(QStringList{"--hislip-port", port});
        ASSERT_TRUE(sim->started()) << sim->errorString().toStdString();
    }
}

} // namespace
