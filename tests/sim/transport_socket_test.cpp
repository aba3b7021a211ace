// The raw SCPI socket, and the fault options, which act the same on every
// transport and are seen most plainly here.

#include "transport/faults.h"
#include "wireclient.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

const QByteArray kIdnLine = QByteArray(kTestIdn) + '\n';

class SocketTransport : public ::testing::Test {
  protected:
    // Starts the simulator with the test identity and connects to its socket port.
    void open(QStringList options = {})
    {
        sim = startSim(options << "--idn" << kTestIdn);
        ASSERT_TRUE(sim);
        ASSERT_TRUE(client.connectTo(sim->port("socket")));
    }

    QByteArray ask(const QByteArray& query, int timeoutMs = 3000)
    {
        client.send(query + '\n');
        return client.takeLine(timeoutMs);
    }

    std::unique_ptr<SimProcess> sim;
    WireClient client;
};

TEST_F(SocketTransport, AnswersIdnWithTheIdentityGiven)
{
    open();
    EXPECT_EQ(ask("*IDN?"), kIdnLine);
    EXPECT_EQ(ask("*idn?"), kIdnLine);
}

TEST_F(SocketTransport, LinesMayComeSplitJoinedOrWithCarriageReturns)
{
    open();
    client.send("*ID");
    client.send("N?\r\n\n   \n:KEY:LOCK DISABLE\n*IDN?\n");
    EXPECT_EQ(client.takeLine(), kIdnLine);
    EXPECT_EQ(client.takeLine(), kIdnLine);
    EXPECT_TRUE(client.collect(200).isEmpty()) << "a command or a blank line must not be answered";
}

TEST_F(SocketTransport, EveryConnectionHasItsOwnInputBuffer)
{
    open();
    WireClient other;
    ASSERT_TRUE(other.connectTo(sim->port("socket")));
    client.send("*ID");
    other.send("*IDN?\n");
    EXPECT_EQ(other.takeLine(), kIdnLine);
    client.send("N?\n");
    EXPECT_EQ(client.takeLine(), kIdnLine);
}

TEST_F(SocketTransport, SilentQueryIsNeverAnsweredOthersAre)
{
    open({"--silent", "*IDN?", "--silent", ":waveform:screendata?"});
    EXPECT_TRUE(ask("*IDN?", 300).isEmpty());
    EXPECT_TRUE(ask(":WAVEFORM:SCREENDATA? CHANNEL1", 300).isEmpty()) << "silenced by its header";
    EXPECT_FALSE(ask(":MATH:DISPLAY?").isEmpty());
}

TEST_F(SocketTransport, GarbageReplacesTheReplyWithNoiseOfTheSameLength)
{
    open({"--garbage"});
    const QByteArray reply = ask("*IDN?");
    ASSERT_EQ(reply.size(), kIdnLine.size());
    EXPECT_NE(reply, kIdnLine);
    EXPECT_EQ(reply.indexOf('\n'), reply.size() - 1);
}

TEST_F(SocketTransport, ShortBlocksCarryLessDataThanTheirHeaderSays)
{
    open({"--short-blocks"});
    client.send(":WAVEFORM:SCREENDATA? CHANNEL1\n");
    const QByteArray head = client.take(2);
    ASSERT_EQ(head.size(), 2);
    ASSERT_EQ(head[0], '#');
    const int digits = head[1] - '0';
    const int promised = client.take(digits).toInt();
    ASSERT_GT(promised, 1);
    const QByteArray rest = client.collect(500);
    ASSERT_TRUE(rest.endsWith('\n'));
    EXPECT_LT(rest.size() - 1, promised);
    EXPECT_GT(rest.size() - 1, 0);
}

TEST_F(SocketTransport, DropAfterClosesTheLinkWhenTheNextCommandComes)
{
    open({"--drop-after", "2"});
    EXPECT_EQ(ask("*IDN?"), kIdnLine);
    EXPECT_EQ(ask("*IDN?"), kIdnLine);
    EXPECT_TRUE(ask("*IDN?", 1000).isEmpty());
    EXPECT_TRUE(client.waitClosed());

    WireClient fresh; // every connection counts for itself
    ASSERT_TRUE(fresh.connectTo(sim->port("socket")));
    fresh.send("*IDN?\n");
    EXPECT_EQ(fresh.takeLine(), kIdnLine);
}

TEST_F(SocketTransport, DelayHoldsEveryReplyBackButKeepsTheirOrder)
{
    open({"--delay-ms", "300"});
    QElapsedTimer clock;
    clock.start();
    client.send("*IDN?\n:MATH:DISPLAY?\n*IDN?\n");
    EXPECT_EQ(client.takeLine(), kIdnLine);
    EXPECT_GE(clock.elapsed(), 290); // never early; how late is the benchmark's business
    client.takeLine();
    EXPECT_EQ(client.takeLine(), kIdnLine);
}

TEST_F(SocketTransport, LogHasEveryCommandWithRisingMonotonicTimes)
{
    QTemporaryDir dir;
    const QString path = dir.filePath("commands.log");
    const qint64 before = monotonicMicroseconds();
    open({"--log", path, "--silent", "*IDN?"});
    client.send("*IDN?\n:KEY:LOCK DISABLE\n");
    client.send("*IDN?\n");
    ask(":MATH:DISPLAY?");

    QFile log(path);
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = log.readAll().split('\n');
    ASSERT_EQ(lines.size(), 5); // four lines and the empty rest after the last line feed
    const QList<QByteArray> expected{"*IDN?", ":KEY:LOCK DISABLE", "*IDN?", ":MATH:DISPLAY?"};
    qint64 previous = before;
    for (int i = 0; i < 4; ++i) {
        const qsizetype blank = lines[i].indexOf(' ');
        EXPECT_EQ(lines[i].mid(blank + 1), expected[i]);
        const qint64 stamp = lines[i].left(blank).toLongLong();
        EXPECT_GE(stamp, previous) << "line " << i;
        previous = stamp;
    }
    EXPECT_LE(previous, monotonicMicroseconds());
}

TEST(SimulatorOptions, BadValuesStopTheSimulatorWithAMessage)
{
    for (const QStringList& options :
         {QStringList{"--drop-after", "x"}, QStringList{"--socket-port", "70000"},
          QStringList{"--delay-ms", "-5"}, QStringList{"--pty", "yes"}}) {
        SimProcess sim(SELVANE_SIM_PATH);
        EXPECT_FALSE(sim.start(options)) << options.join(' ').toStdString();
    }
}

TEST(SimulatorOptions, TransportsCanBeSwitchedOff)
{
    auto sim = startSim({"--vxi11-port", "off", "--hislip-port", "off", "--pty", "off"});
    ASSERT_TRUE(sim);
    EXPECT_NE(sim->port("socket"), 0);
    EXPECT_NE(sim->port("portmapper"), 0);
    EXPECT_EQ(sim->port("vxi11"), 0);
    EXPECT_EQ(sim->port("hislip"), 0);
    EXPECT_TRUE(sim->ptyPath().isEmpty());
}

} // namespace
