// VXI-11 and its portmapper, spoken by a small client of the test's own: XDR
// words written by hand here, so a mistake in the simulator's codec can't
// hide behind the same mistake in the client. Only what our VISA layer never
// looks at is here (UDP, a read's time-out and reason, locks, writes without END, abort,
// broken peers); tests/visa runs the ordinary exchanges against the simulator.

#include "wireclient.h"

#include <QUdpSocket>
#include <QtEndian>
#include <gtest/gtest.h>

namespace {

constexpr quint32 kPortmapper = 100000;
constexpr quint32 kCore = 0x0607AF;
enum : quint32 { ReqCnt = 1, End = 4 };
enum : quint32 {
    GetPort = 3,
    CreateLink = 10,
    Write = 11,
    Read = 12,
    Clear = 15,
    Lock = 18,
    Unlock = 19,
    Destroy = 23
};
constexpr quint32 kEndFlag = 0x08;

QByteArray words(std::initializer_list<quint32> values)
{
    QByteArray out;
    for (quint32 v : values) {
        char word[4];
        qToBigEndian(v, word);
        out.append(word, 4);
    }
    return out;
}

QByteArray opaque(const QByteArray& bytes)
{
    return words({quint32(bytes.size())}) + bytes + QByteArray((4 - bytes.size() % 4) % 4, '\0');
}

QByteArray callMessage(quint32 xid, quint32 program, quint32 version, quint32 procedure,
                       const QByteArray& args)
{
    return words({xid, 0, 2, program, version, procedure, 0, 0, 0, 0}) + args;
}

// The results of an accepted, successful reply, read word by word.
struct Results {
    QByteArray bytes;
    qsizetype at = 0;
    quint32 word()
    {
        if (bytes.size() < at + 4) return 0xDEADBEEF;
        at += 4;
        return qFromBigEndian<quint32>(bytes.constData() + at - 4);
    }
    QByteArray opaque()
    {
        const quint32 size = word();
        const QByteArray data = bytes.mid(at, size);
        at += (size + 3) & ~3u;
        return data;
    }
};

Results resultsOf(const QByteArray& reply, quint32 xid)
{
    Results r{reply};
    EXPECT_EQ(r.word(), xid);
    EXPECT_EQ(r.word(), 1u) << "a reply";
    EXPECT_EQ(r.word(), 0u) << "accepted";
    r.word(); // verifier flavour
    r.opaque();
    EXPECT_EQ(r.word(), 0u) << "success";
    return r;
}

// ONC RPC over TCP with record marking.
class RpcClient {
  public:
    bool connectTo(quint16 port) { return wire_.connectTo(port); }
    void sendRaw(const QByteArray& bytes) { wire_.send(bytes); }
    bool waitClosed() { return wire_.waitClosed(); }

    quint32 send(quint32 program, quint32 version, quint32 procedure, const QByteArray& args)
    {
        const quint32 xid = ++xid_;
        const QByteArray message = callMessage(xid, program, version, procedure, args);
        wire_.send(words({0x80000000u | quint32(message.size())}) + message);
        return xid;
    }

    Results call(quint32 program, quint32 version, quint32 procedure, const QByteArray& args)
    {
        return receive(send(program, version, procedure, args));
    }

    Results receive(quint32 xid)
    {
        const QByteArray mark = wire_.take(4, 5000);
        if (mark.size() != 4) {
            ADD_FAILURE() << "no reply to call " << xid;
            return {};
        }
        const quint32 size = qFromBigEndian<quint32>(mark.constData()) & 0x7FFFFFFF;
        return resultsOf(wire_.take(size), xid);
    }

  private:
    WireClient wire_;
    quint32 xid_ = 0x1000;
};

class Vxi11Transport : public ::testing::Test {
  protected:
    void open(QStringList options = {})
    {
        sim = startSim(options << "--idn" << kTestIdn);
        ASSERT_TRUE(sim);
        ASSERT_TRUE(rpc.connectTo(sim->port("vxi11")));
        Results r = rpc.call(kCore, 1, CreateLink, words({7, 0, 0}) + opaque("inst0"));
        ASSERT_EQ(r.word(), 0u);
        lid = r.word();
        EXPECT_EQ(r.word(), sim->port("vxi11")) << "abort port";
        EXPECT_GE(r.word(), 1024u) << "max receive size";
    }

    quint32 write(const QByteArray& data, quint32 flags = kEndFlag)
    {
        Results r = rpc.call(kCore, 1, Write, words({lid, 1000, 0, flags}) + opaque(data));
        const quint32 error = r.word();
        EXPECT_EQ(r.word(), error == 0 ? quint32(data.size()) : 0u);
        return error;
    }

    struct ReadResult {
        quint32 error, reason;
        QByteArray data;
    };
    ReadResult read(quint32 requestSize, quint32 ioTimeoutMs = 3000)
    {
        Results r = rpc.call(kCore, 1, Read, words({lid, requestSize, ioTimeoutMs, 0, 0, 0}));
        const quint32 error = r.word();
        const quint32 reason = r.word();
        return {error, reason, r.opaque()};
    }

    quint32 generic(quint32 procedure, quint32 link)
    {
        return rpc.call(kCore, 1, procedure, words({link, 0, 0, 0})).word();
    }

    std::unique_ptr<SimProcess> sim;
    RpcClient rpc;
    quint32 lid = 0;
};

TEST_F(Vxi11Transport, PortmapperTellsTheCorePortOverTcpAndUdp)
{
    open();
    RpcClient mapper;
    ASSERT_TRUE(mapper.connectTo(sim->port("portmapper")));
    EXPECT_EQ(mapper.call(kPortmapper, 2, GetPort, words({kCore, 1, 6, 0})).word(), sim->port("vxi11"));
    EXPECT_EQ(mapper.call(kPortmapper, 2, GetPort, words({kCore, 1, 17, 0})).word(), 0u)
        << "no VXI-11 over UDP";
    EXPECT_EQ(mapper.call(kPortmapper, 2, GetPort, words({0x20000001, 1, 6, 0})).word(), 0u);

    QUdpSocket udp;
    udp.writeDatagram(callMessage(99, kPortmapper, 2, GetPort, words({kCore, 1, 6, 0})),
                      QHostAddress::LocalHost, sim->port("portmapper"));
    ASSERT_TRUE(udp.waitForReadyRead(3000));
    QByteArray reply(int(udp.pendingDatagramSize()), '\0');
    udp.readDatagram(reply.data(), reply.size());
    EXPECT_EQ(resultsOf(reply, 99).word(), sim->port("vxi11"));
}

// Our VISA layer keeps its own deadline and counts the bytes: it never looks
// at the time-out error or the reason.
TEST_F(Vxi11Transport, ReadsEndOnTimeOutCountOrEnd)
{
    open();
    EXPECT_EQ(read(256, 100).error, 15u) << "I/O time-out";
    EXPECT_EQ(write("*IDN?\n"), 0u);
    QByteArray whole;
    ReadResult piece{};
    for (int reads = 0; reads < 20 && !(piece.reason & End); ++reads) {
        piece = read(8);
        ASSERT_EQ(piece.error, 0u);
        ASSERT_LE(piece.data.size(), 8);
        if (!(piece.reason & End)) {
            EXPECT_EQ(piece.reason, ReqCnt);
        }
        whole += piece.data;
    }
    EXPECT_EQ(whole, QByteArray(kTestIdn) + '\n');
}

TEST_F(Vxi11Transport, LockUnlockJoinedWritesAndUnknownLinks)
{
    open();
    EXPECT_EQ(write("*ID", 0), 0u) << "no END: the pieces are joined";
    EXPECT_EQ(write("N?\n", 0), 0u);
    EXPECT_EQ(read(4096).data, QByteArray(kTestIdn) + '\n');
    EXPECT_EQ(rpc.call(kCore, 1, Lock, words({lid, 0, 0})).word(), 0u);
    EXPECT_EQ(rpc.call(kCore, 1, Unlock, words({lid})).word(), 0u);
    EXPECT_EQ(generic(Clear, lid + 100), 4u) << "invalid link";
    EXPECT_EQ(rpc.call(kCore, 1, Destroy, words({lid})).word(), 0u);
    EXPECT_EQ(rpc.call(kCore, 1, Destroy, words({lid})).word(), 4u);
    EXPECT_EQ(write("*IDN?\n"), 4u);
    EXPECT_EQ(rpc.call(kCore, 1, CreateLink, words({7, 0, 0}) + opaque("gpib0,5")).word(), 3u);
}

TEST_F(Vxi11Transport, AbortOnTheAbortPortEndsAWaitingRead)
{
    open();
    const quint32 read = rpc.send(kCore, 1, Read, words({lid, 256, 10000, 0, 0, 0}));
    RpcClient abort; // create_link named the core port as the abort port
    ASSERT_TRUE(abort.connectTo(sim->port("vxi11")));
    EXPECT_EQ(abort.call(0x0607B0, 1, 1, words({lid})).word(), 0u);
    EXPECT_EQ(rpc.receive(read).word(), 23u) << "aborted";
}

TEST_F(Vxi11Transport, NonsenseOnTheWireClosesOnlyThatConnection)
{
    open();
    RpcClient bad;
    ASSERT_TRUE(bad.connectTo(sim->port("vxi11")));
    bad.sendRaw(QByteArray("\x7f\xff\xff\xff", 4) + QByteArray(64, 'x')); // a 2 GB fragment
    EXPECT_TRUE(bad.waitClosed());
    EXPECT_EQ(write("*IDN?\n"), 0u);
    EXPECT_EQ(read(256).data, QByteArray(kTestIdn) + '\n');
}

} // namespace
