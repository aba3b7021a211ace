// The raw SCPI socket: line framing, one input buffer per connection, the
// command log, and the options that start the simulator. The fault layer's
// rewriting of replies is tested under the transports (transport_codec_test).

#include "transport/faults.h"
#include "wireclient.h"

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

TEST_F(SocketTransport, LinesMayComeSplitJoinedOrWithCarriageReturns)
{
    open();
    client.send("*ID");
    client.send("N?\r\n\n   \n:KEY:LOCK DISABLE\n*idn?\n");
    EXPECT_EQ(client.takeLine(), kIdnLine);
    EXPECT_EQ(client.takeLine(), kIdnLine) << "the identity given, in either case";
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
