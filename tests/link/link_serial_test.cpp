// The serial transport: the receive rules of a line and of a block, the
// silence limit of Rs232Read, and writes, opens and queries on a real
// pseudo-terminal.
#include "link_fixture.h"

#include "link/linkcommands.h"
#include "link/linkstate.h"
#include "link/serialtransport.h"
#include "link/timeouttimer.h"

#include <QSerialPort>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace {

class SerialTest : public LinkTest {
  protected:
    SerialTest()
    {
        Connecting = true;
        ReplyPending = true;
    }
};

TEST_F(SerialTest, LineFeedInTheFirstChunkEndsTheReplyAndDropsWhatFollows)
{
    Rs232RecvLine("abc\nxyz");
    EXPECT_FALSE(ReplyPending);
    EXPECT_EQ(ReplyText, "abc");
    EXPECT_EQ(ReplyByteCount, 6) << "the line feed is not counted";
    EXPECT_EQ(ReplyBufferUsed, 7);
    EXPECT_EQ(std::string(ReplyBuffer.begin(), ReplyBuffer.begin() + 7), "abc\nxyz");
}

TEST_F(SerialTest, ChunksGatherUntilTheLineFeed)
{
    ReplyTicks = 30;
    Rs232RecvLine("KORVA,");
    EXPECT_TRUE(ReplyPending);
    EXPECT_EQ(ReplyTicks, 0) << "every chunk restarts the silence count";
    Rs232RecvLine("KV7204B");
    Rs232RecvLine("\n");
    EXPECT_FALSE(ReplyPending);
    EXPECT_EQ(ReplyText, "KORVA,KV7204B");
    EXPECT_EQ(ReplyByteCount, 13);
    EXPECT_EQ(ReplyBufferUsed, 14);

    ReplyChunkSeen = false; // what Rs232Write does before the next query: the buffer starts afresh
    ReplyText.clear();
    Rs232RecvLine("2\n");
    EXPECT_EQ(ReplyBufferUsed, 2);
    EXPECT_EQ(ReplyByteCount, 1);
    EXPECT_EQ(ReplyBuffer[0], '2');
}

TEST_F(SerialTest, AFloodEndsAtTheBufferWithoutWritingPastIt)
{
    Rs232RecvLine(QByteArray(70000, 'z'));
    EXPECT_EQ(ReplyText.size(), ReplyBufferLast + 1);
    EXPECT_TRUE(ReplyPending);
    Rs232RecvLine("\n");
    EXPECT_FALSE(ReplyPending) << "a later line feed still ends the reply";
    EXPECT_EQ(ReplyText.size(), ReplyBufferLast + 1);
}

TEST_F(SerialTest, BlockEndsWhenItsLittleEndianLengthHasCome)
{
    BlockReceive = true;
    Rs232Receive(QByteArray("\x05\x00\x00\x00"
                            "ab",
                            6));
    EXPECT_EQ(BlockLength, 5);
    EXPECT_TRUE(ReplyPending);
    Rs232Receive("cde");
    EXPECT_FALSE(ReplyPending);
    EXPECT_EQ(ReplyBufferUsed, 5);
    EXPECT_EQ(std::string(ReplyBuffer.begin(), ReplyBuffer.begin() + 5), "abcde");

    ReplyChunkSeen = false; // the next reply
    Rs232RecvBlock(QByteArray("\x01\x02\x03\x04", 4));
    EXPECT_EQ(BlockLength, 0x04030201) << "all four bytes count";
}

// Rs232Read counts ticks, not time: each turn of the event loop here is one tick.
TEST_F(SerialTest, FourSecondsOfSilenceGiveAnEmptyReply)
{
    int turns = 0;
    platform->onDoEvents = [&] {
        TimeOutTimerTick();
        if (++turns == 30) Rs232RecvLine("partial");
    };
    EXPECT_EQ(Rs232Read(), "");
    EXPECT_EQ(turns, 30 + 40) << "the chunk at tick 30 restarted the count";
}

TEST_F(SerialTest, ACompleteReplyEndsTheWait)
{
    int turns = 0;
    platform->onDoEvents = [&] {
        if (++turns == 3) Rs232RecvLine("ok\n");
        TimeOutTimerTick();
    };
    EXPECT_EQ(Rs232Read(), "ok");
    EXPECT_EQ(turns, 3);
}

// A pseudo-terminal: the link opens the slave side, the test plays the instrument on the master side.
class PseudoTerminal {
  public:
    PseudoTerminal()
    {
        master_ = posix_openpt(O_RDWR | O_NOCTTY);
        if (master_ >= 0 && grantpt(master_) == 0 && unlockpt(master_) == 0) slave_ = ptsname(master_);
    }
    ~PseudoTerminal()
    {
        if (master_ >= 0) ::close(master_);
    }
    QString slave() const { return slave_; }

    QByteArray take(int timeoutMs = 2000)
    {
        pollfd in{master_, POLLIN, 0};
        if (poll(&in, 1, timeoutMs) <= 0) return {};
        char buffer[512];
        const ssize_t got = ::read(master_, buffer, sizeof buffer);
        return got > 0 ? QByteArray(buffer, got) : QByteArray();
    }
    void give(const QByteArray& bytes) { (void)!::write(master_, bytes.constData(), size_t(bytes.size())); }

  private:
    int master_ = -1;
    QString slave_;
};

struct PaceCase {
    const char* baud;
    int sleepMs; // for "*IDN?" and its line feed: six characters
};

class SerialPace : public LinkTest, public ::testing::WithParamInterface<PaceCase> {};

TEST_P(SerialPace, WriteWaitsForTheCharactersToLeave)
{
    PseudoTerminal pty;
    ASSERT_FALSE(pty.slave().isEmpty());
    SerialDevice = pty.slave();
    BaudRate = GetParam().baud;
    Connecting = true;
    Rs232Open();
    ASSERT_TRUE(platform->boxes.isEmpty()) << boxTexts().join("; ").toStdString();

    Rs232Write("*IDN?");

    EXPECT_EQ(platform->sleeps, QList<int>{GetParam().sleepMs});
    EXPECT_EQ(pty.take(), "*IDN?\n");
}

INSTANTIATE_TEST_SUITE_P(Bauds, SerialPace,
                         ::testing::Values(PaceCase{"300", 600}, PaceCase{"9600", 18}, PaceCase{" 4800 ", 37},
                                           PaceCase{"19200", 18}, PaceCase{"38400", 18}));

using SerialPortTest = LinkTest;

TEST_F(SerialPortTest, ComPortNumbersNameTheSerialDevices)
{
    ComPort = 1;
    EXPECT_EQ(SerialPortName(), "/dev/ttyS0");
    ComPort = 4;
    EXPECT_EQ(SerialPortName(), "/dev/ttyS3");
    SerialDevice = "/dev/ttyUSB0";
    EXPECT_EQ(SerialPortName(), "/dev/ttyUSB0");
}

TEST_F(SerialPortTest, FailedOpenShowsTheErrorAsAWarning)
{
    for (const char* baud : {"9600", "fast"}) {
        platform->clearRecords();
        SerialDevice = "/nonexistent/ttyS9";
        BaudRate = baud;
        DevicePresent = true;
        Rs232Open();
        EXPECT_FALSE(DevicePresent) << baud;
        ASSERT_EQ(platform->boxes.size(), 1) << baud;
        EXPECT_EQ(platform->boxes[0].title, "RS232 Init");
        EXPECT_EQ(platform->boxes[0].style, vbExclamation);
        EXPECT_FALSE(platform->boxes[0].text.isEmpty());
    }
}

TEST_F(SerialPortTest, QueryOverThePseudoTerminal)
{
    PseudoTerminal pty;
    SerialDevice = pty.slave();
    TransportType = TransportRs232;
    Connecting = true;
    Rs232Open();
    BlockReceive = true;
    platform->onDoEvents = [&] {
        if (pty.take(0) == "*IDN?\n") pty.give("KORVA,KV7204B\r\nrest");
        TimeOutTimerTick();
    };

    EXPECT_EQ(AskCmd("*IDN?"), "KORVA,KV7204B\r");
    EXPECT_FALSE(BlockReceive) << "every query reads text";
    EXPECT_FALSE(LinkBusy);
    EXPECT_FALSE(ReplyPending);
}

TEST_F(SerialPortTest, WriteOnAClosedPortIsReportedAndLosesTheLink)
{
    Connected = true;
    Rs232Write(":RUN");
    EXPECT_EQ(platform->boxes.size(), 1);
    EXPECT_EQ(platform->boxes.value(0).title, "RS232 Send Message");
    EXPECT_FALSE(Connected);
    EXPECT_TRUE(platform->sleeps.isEmpty());
}

} // namespace
