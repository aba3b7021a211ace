// HiSLIP as only a client of the test's own speaks it: a reply split at a
// small maximum message size, Data pieces, locks, and what a broken peer gets.
// tests/visa runs the ordinary exchanges and device clear against the simulator.

#include "transport/hislipmessage.h"
#include "wireclient.h"

#include <QtEndian>
#include <gtest/gtest.h>

namespace {

// The message types as the simulator itself names them.
using namespace hislip;

struct Message {
    quint8 type = 0xFF, control = 0;
    quint32 parameter = 0;
    QByteArray payload;
};

QByteArray frame(quint8 type, quint8 control, quint32 parameter, const QByteArray& payload = {})
{
    QByteArray header(16, '\0');
    header[0] = 'H';
    header[1] = 'S';
    header[2] = char(type);
    header[3] = char(control);
    qToBigEndian(parameter, header.data() + 4);
    qToBigEndian(quint64(payload.size()), header.data() + 8);
    return header + payload;
}

QByteArray bigEndian64(quint64 value)
{
    QByteArray bytes(8, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

class Channel {
  public:
    bool connectTo(quint16 port) { return wire_.connectTo(port); }
    void send(quint8 type, quint8 control, quint32 parameter, const QByteArray& payload = {})
    {
        wire_.send(frame(type, control, parameter, payload));
    }
    void sendRaw(const QByteArray& bytes) { wire_.send(bytes); }
    bool waitClosed() { return wire_.waitClosed(); }

    Message receive(int timeoutMs = 3000)
    {
        const QByteArray header = wire_.take(16, timeoutMs);
        if (header.size() < 16 || !header.startsWith("HS")) return {};
        Message m{quint8(header[2]), quint8(header[3]), qFromBigEndian<quint32>(header.constData() + 4), {}};
        m.payload = wire_.take(qsizetype(qFromBigEndian<quint64>(header.constData() + 8)));
        return m;
    }

  private:
    WireClient wire_;
};

class HislipTransport : public ::testing::Test {
  protected:
    void open(QStringList options = {})
    {
        sim = startSim(options << "--idn" << kTestIdn);
        ASSERT_TRUE(sim);
        ASSERT_TRUE(sync.connectTo(sim->port("hislip")));
        sync.send(Initialize, 0, 0x0100'5858, "hislip0");
        const Message init = sync.receive();
        ASSERT_EQ(init.type, InitializeResponse);
        EXPECT_EQ(init.parameter >> 16, 0x0100u) << "protocol 1.0";
        ASSERT_TRUE(async.connectTo(sim->port("hislip")));
        async.send(AsyncInitialize, 0, init.parameter & 0xFFFF);
        EXPECT_EQ(async.receive().type, AsyncInitializeResponse);
    }

    // Sends a query as one DataEnd and gathers the reply's Data and DataEnd messages.
    QByteArray ask(const QByteArray& query, quint32 messageId, int* messages = nullptr)
    {
        sync.send(DataEnd, 0, messageId, query);
        QByteArray reply;
        for (int count = 1; count < 100; ++count) {
            const Message m = sync.receive();
            EXPECT_TRUE(m.type == Data || m.type == DataEnd) << int(m.type);
            EXPECT_EQ(m.parameter, messageId);
            reply += m.payload;
            if (m.type != Data) {
                if (messages) *messages = count;
                break;
            }
        }
        return reply;
    }

    std::unique_ptr<SimProcess> sim;
    Channel sync, async;
};

TEST_F(HislipTransport, ReplySplitAtTheClientsMaximumMessageSize)
{
    open();
    async.send(AsyncMaximumMessageSize, 0, 0, bigEndian64(16));
    const Message size = async.receive();
    EXPECT_EQ(size.type, AsyncMaximumMessageSizeResponse);
    EXPECT_EQ(size.payload.size(), 8);
    int messages = 0;
    const QByteArray idn = QByteArray(kTestIdn) + '\n';
    EXPECT_EQ(ask("*IDN?\n", 0xFFFFFF00, &messages), idn);
    EXPECT_EQ(messages, (idn.size() + 15) / 16);
}

TEST_F(HislipTransport, LockIsGrantedAndDataPiecesAreJoined)
{
    open();
    async.send(AsyncLock, 1, 1000, "");
    const Message lock = async.receive();
    EXPECT_EQ(lock.type, AsyncLockResponse);
    EXPECT_EQ(lock.control, 1) << "granted";
    sync.send(Data, 0, 0xFFFFFF04, "*I");
    EXPECT_EQ(ask("DN?", 0xFFFFFF04), QByteArray(kTestIdn) + '\n') << "DataEnd ends the line";
}

TEST_F(HislipTransport, BrokenPeersGetAFatalErrorAndAreClosed)
{
    open();
    Channel stranger; // data before any Initialize
    ASSERT_TRUE(stranger.connectTo(sim->port("hislip")));
    stranger.send(DataEnd, 0, 0, "*IDN?\n");
    EXPECT_EQ(stranger.receive().type, FatalError);
    EXPECT_TRUE(stranger.waitClosed());

    Channel lost; // an asynchronous channel for a session that does not exist
    ASSERT_TRUE(lost.connectTo(sim->port("hislip")));
    lost.send(AsyncInitialize, 0, 0x7777);
    EXPECT_EQ(lost.receive().type, FatalError);

    Channel noise;
    ASSERT_TRUE(noise.connectTo(sim->port("hislip")));
    noise.sendRaw(QByteArray(32, 'Z'));
    EXPECT_EQ(noise.receive().type, FatalError);
    EXPECT_TRUE(noise.waitClosed());

    EXPECT_EQ(ask("*IDN?\n", 0xFFFFFF00), QByteArray(kTestIdn) + '\n') << "the good session lives on";
}

} // namespace
