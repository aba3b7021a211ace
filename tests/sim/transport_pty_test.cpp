// The RS232 pseudo-terminal, opened the way a serial client opens a port.

#include "transport/ptyserver.h"
#include "wireclient.h"

#include <QDeadlineTimer>
#include <cerrno>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

namespace {

class SerialClient {
  public:
    explicit SerialClient(const QString& path)
    {
        fd_ = ::open(path.toLocal8Bit().constData(), O_RDWR | O_NOCTTY | O_NONBLOCK);
        termios settings{};
        if (fd_ >= 0 && tcgetattr(fd_, &settings) == 0) {
            cfmakeraw(&settings);
            cfsetspeed(&settings, B9600);
            tcsetattr(fd_, TCSANOW, &settings);
        }
    }
    ~SerialClient()
    {
        if (fd_ >= 0) ::close(fd_);
    }
    bool isOpen() const { return fd_ >= 0; }
    void send(const QByteArray& bytes)
    {
        EXPECT_EQ(::write(fd_, bytes.constData(), bytes.size()), bytes.size());
    }

    // What came until a line feed (or count bytes) or the deadline; hungUp tells whether the line went dead.
    QByteArray receive(qsizetype count, int timeoutMs, bool* hungUp = nullptr)
    {
        QByteArray got;
        const QDeadlineTimer deadline(timeoutMs);
        while (got.size() < count && !got.endsWith('\n') && !deadline.hasExpired()) {
            pollfd p{fd_, POLLIN, 0};
            if (::poll(&p, 1, int(deadline.remainingTime())) <= 0) continue;
            char buffer[512];
            const ssize_t n = ::read(fd_, buffer, size_t(qMin<qsizetype>(sizeof buffer, count - got.size())));
            if (n > 0)
                got.append(buffer, n);
            else if (n == 0 || (errno != EAGAIN && errno != EINTR)) {
                if (hungUp) *hungUp = true;
                break;
            }
        }
        return got;
    }

  private:
    int fd_ = -1;
};

class PtyTransport : public ::testing::Test {
  protected:
    void open(QStringList options = {})
    {
        sim = startSim(options << "--idn" << kTestIdn);
        ASSERT_TRUE(sim);
        ASSERT_FALSE(sim->ptyPath().isEmpty());
        serial = std::make_unique<SerialClient>(sim->ptyPath());
        ASSERT_TRUE(serial->isOpen());
    }

    std::unique_ptr<SimProcess> sim;
    std::unique_ptr<SerialClient> serial;
};

TEST_F(PtyTransport, AnswersTextQueriesLineByLine)
{
    open();
    serial->send("*IDN?\n");
    EXPECT_EQ(serial->receive(4096, 3000), QByteArray(kTestIdn) + '\n');
    serial->send(":KEY:LOCK DISABLE\n*I");
    serial->send("DN?\r\n");
    EXPECT_EQ(serial->receive(4096, 3000), QByteArray(kTestIdn) + '\n');
}

TEST_F(PtyTransport, DropAfterHangsTheLineUp)
{
    open({"--drop-after", "1"});
    serial->send("*IDN?\n");
    EXPECT_EQ(serial->receive(4096, 3000), QByteArray(kTestIdn) + '\n');
    serial->send("*IDN?\n");
    bool hungUp = false;
    EXPECT_TRUE(serial->receive(4096, 3000, &hungUp).isEmpty());
    EXPECT_TRUE(hungUp);
}

struct SerialFormCase {
    QByteArray reply;
    QByteArray onTheLine;
};

class SerialForm : public ::testing::TestWithParam<SerialFormCase> {};

TEST_P(SerialForm, TextPassesBlocksCarryALittleEndianLength)
{
    EXPECT_EQ(serialForm(GetParam().reply), GetParam().onTheLine);
}

INSTANTIATE_TEST_SUITE_P(Replies, SerialForm,
                         ::testing::Values(SerialFormCase{"KORVA,KV7204B,1,2\n", "KORVA,KV7204B,1,2\n"},
                                           SerialFormCase{"#13abc\n", QByteArray("\x03\0\0\0abc", 7)},
                                           SerialFormCase{"#15a\nb\nc\n", QByteArray("\x05\0\0\0a\nb\nc", 9)},
                                           SerialFormCase{"#0\n",
                                                          "#0\n"}, // not a definite-length block: left alone
                                           SerialFormCase{"#9", QByteArray("\0\0\0\0", 4)}));

} // namespace
