#include "transport/portmapper.h"

#include "transport/oncrpc.h"

#include <QNetworkDatagram>
#include <QTcpSocket>

namespace {
enum Procedure : quint32 { Null = 0, Set = 1, Unset = 2, GetPort = 3, Dump = 4 };
} // namespace

Portmapper::Portmapper(QObject* parent) : TcpService(parent)
{
    connect(&udp_, &QUdpSocket::readyRead, this, &Portmapper::readDatagrams);
}

bool Portmapper::listen(const QHostAddress& address, quint16 port)
{
    if (!TcpService::listen(address, port)) return false;
    if (!udp_.bind(address, this->port())) return false;
    registerService(portmap::Program, portmap::Version, portmap::Tcp, this->port());
    registerService(portmap::Program, portmap::Version, portmap::Udp, this->port());
    return true;
}

void Portmapper::registerService(quint32 program, quint32 version, quint32 protocol, quint16 port)
{
    mappings_.append({program, version, protocol, port});
}

QByteArray Portmapper::answer(QByteArrayView message) const
{
    bool rpcVersionOk = false;
    const std::optional<RpcCall> call = parseRpcCall(message, &rpcVersionOk);
    if (!call) return {};
    if (!rpcVersionOk) return rpcVersionMismatch(call->xid);
    if (call->program != portmap::Program) return rpcReply(call->xid, RpcAccept::ProgUnavail);
    if (call->version != portmap::Version)
        return rpcProgramMismatch(call->xid, portmap::Version, portmap::Version);
    return answerCall(call->xid, call->procedure, call->args);
}

QByteArray Portmapper::answerCall(quint32 xid, quint32 procedure, const QByteArray& args) const
{
    switch (procedure) {
    case Null: return rpcReply(xid, RpcAccept::Success);
    case Set:
    case Unset: return rpcReply(xid, RpcAccept::Success, XdrWriter().u32(0).data());
    case GetPort: return rpcReply(xid, RpcAccept::Success, XdrWriter().u32(portOf(args)).data());
    case Dump: return rpcReply(xid, RpcAccept::Success, dump());
    default: return rpcReply(xid, RpcAccept::ProcUnavail);
    }
}

// GETPORT's answer: the port of (program, version, protocol), 0 if none.
quint32 Portmapper::portOf(const QByteArray& args) const
{
    XdrReader in(args);
    const quint32 program = in.u32();
    const quint32 version = in.u32();
    const quint32 protocol = in.u32();
    for (const Mapping& m : mappings_) {
        if (in.ok() && m.program == program && m.version == version && m.protocol == protocol) return m.port;
    }
    return 0;
}

QByteArray Portmapper::dump() const
{
    XdrWriter out;
    for (const Mapping& m : mappings_)
        out.u32(1).u32(m.program).u32(m.version).u32(m.protocol).u32(m.port);
    return out.u32(0).data();
}

void Portmapper::accepted(QTcpSocket* socket)
{
    auto records = std::make_shared<RecordReader>(64 * 1024);
    connect(socket, &QTcpSocket::readyRead, this, [this, socket, records] {
        records->append(socket->readAll());
        while (std::optional<QByteArray> message = records->next()) {
            const QByteArray reply = answer(*message);
            if (!reply.isEmpty()) socket->write(recordMarked(reply));
        }
        if (records->failed()) socket->abort();
    });
}

void Portmapper::readDatagrams()
{
    while (udp_.hasPendingDatagrams()) {
        const QNetworkDatagram datagram = udp_.receiveDatagram(64 * 1024);
        const QByteArray reply = answer(datagram.data());
        if (!reply.isEmpty()) udp_.writeDatagram(datagram.makeReply(reply));
    }
}
