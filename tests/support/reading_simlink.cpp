#include "reading_simlink.h"

#include "link/connection.h"
#include "link/linkstate.h"

#include <QDeadlineTimer>
#include <QTcpSocket>

namespace {

constexpr int WireTimeoutMs = 5000;

// Reads until the buffer holds a whole reply: a line, or a "#" block.
qsizetype replyLength(const QByteArray& buffer)
{
    if (buffer.startsWith('#') && buffer.size() >= 2) {
        const int digits = buffer.at(1) - '0';
        if (digits < 0 || digits > 9 || buffer.size() < 2 + digits) return -1;
        const qsizetype length = digits == 0 ? 0 : buffer.mid(2, digits).toLongLong();
        const qsizetype whole = 2 + digits + length + 1;
        return buffer.size() >= whole ? whole : -1;
    }
    const qsizetype end = buffer.indexOf('\n');
    return end < 0 ? -1 : end + 1;
}

QByteArray exchange(quint16 port, const QByteArray& line)
{
    QTcpSocket socket;
    socket.connectToHost(QStringLiteral("127.0.0.1"), port);
    if (!socket.waitForConnected(WireTimeoutMs)) return {};
    socket.write(line + '\n');
    socket.waitForBytesWritten(WireTimeoutMs);
    QByteArray buffer;
    const QDeadlineTimer deadline(WireTimeoutMs);
    while (replyLength(buffer) < 0 && !deadline.hasExpired()) {
        if (socket.waitForReadyRead(int(deadline.remainingTime()))) buffer += socket.readAll();
    }
    return buffer;
}

} // namespace

SimReadingTest::SimReadingTest()
{
    platform->realSleep = true;
}

SimReadingTest::~SimReadingTest()
{
    DisconnectDevice();
}

bool SimReadingTest::startSim(const QStringList& options)
{
    link = std::make_unique<SimLink>(options);
    sim = &link->sim();
    EXPECT_TRUE(link->started()) << link->errorString().toStdString();
    return link->started();
}

QStringList SimReadingTest::socketResources() const
{
    return {QStringLiteral("TCPIP0::127.0.0.1::%1::SOCKET").arg(sim->port("socket")),
            QStringLiteral("TCPIP0::127.0.0.1::hislip0,%1::INSTR").arg(sim->port("hislip"))};
}

bool SimReadingTest::connectOverSocket()
{
    link->aim(LinkTransport::Socket);
    ConnectDevice();
    return Connected;
}

bool SimReadingTest::connectOverSerial()
{
    link->aim(LinkTransport::Serial);
    BaudRate = QStringLiteral("115200");
    ConnectDevice();
    return Connected;
}

QByteArray SimReadingTest::askText(const QByteArray& line)
{
    return exchange(sim->port("socket"), line).trimmed();
}

QByteArray SimReadingTest::askBlock(const QByteArray& line)
{
    const QByteArray reply = exchange(sim->port("socket"), line);
    if (reply.size() < 3 || !reply.startsWith('#')) return {};
    const int digits = reply.at(1) - '0';
    return reply.mid(2 + digits, reply.size() - 3 - digits);
}

void SimReadingTest::send(const QByteArray& line)
{
    // The identity behind the command tells that the command was taken.
    exchange(sim->port("socket"), line + "\n*IDN?");
}

std::vector<int> CodesOf(const QByteArray& block)
{
    std::vector<int> codes;
    for (const char byte : block)
        codes.push_back(uint8_t(byte));
    return codes;
}
