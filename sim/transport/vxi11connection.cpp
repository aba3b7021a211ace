#include "transport/vxi11connection.h"

#include "transport/vxi11link.h"
#include "transport/vxi11server.h"

#include <QRegularExpression>
#include <QTcpSocket>

namespace {
enum Procedure : quint32 {
    Null = 0,
    CreateLink = 10,
    DeviceWrite = 11,
    DeviceRead = 12,
    DeviceReadStb = 13,
    DeviceTrigger = 14,
    DeviceClear = 15,
    DeviceRemote = 16,
    DeviceLocal = 17,
    DeviceLock = 18,
    DeviceUnlock = 19,
    DeviceEnableSrq = 20,
    DeviceDoCmd = 22,
    DestroyLink = 23,
    CreateIntrChan = 25,
    DestroyIntrChan = 26,
};
constexpr quint32 DeviceAbort = 1;
constexpr quint32 DeviceNotAccessible = 3;

bool isDeviceName(const QByteArray& name)
{
    static const QRegularExpression pattern("^inst[0-9]+$", QRegularExpression::CaseInsensitiveOption);
    return pattern.match(QString::fromLatin1(name)).hasMatch();
}
} // namespace

Vxi11Connection::Vxi11Connection(Vxi11Server& server, QTcpSocket* socket)
    : QObject(socket), server_(server), socket_(socket)
{
    connect(socket, &QTcpSocket::readyRead, this, &Vxi11Connection::readRecords);
}

void Vxi11Connection::readRecords()
{
    records_.append(socket_->readAll());
    while (socket_->isOpen()) {
        const std::optional<QByteArray> message = records_.next();
        if (!message) break;
        handleMessage(*message);
    }
    if (records_.failed()) socket_->abort();
}

void Vxi11Connection::handleMessage(const QByteArray& message)
{
    bool rpcVersionOk = false;
    const std::optional<RpcCall> call = parseRpcCall(message, &rpcVersionOk);
    if (!call) return;
    if (!rpcVersionOk)
        socket_->write(recordMarked(rpcVersionMismatch(call->xid)));
    else
        handleCall(*call);
}

void Vxi11Connection::handleCall(const RpcCall& call)
{
    const bool core = call.program == vxi11::CoreProgram;
    if (!core && call.program != vxi11::AbortProgram)
        refuse(call.xid, RpcAccept::ProgUnavail);
    else if (call.version != vxi11::Version)
        socket_->write(recordMarked(rpcProgramMismatch(call.xid, vxi11::Version, vxi11::Version)));
    else if (call.procedure == Null)
        send(call.xid, {});
    else if (core)
        handleCore(call);
    else
        handleAbort(call);
}

void Vxi11Connection::handleCore(const RpcCall& call)
{
    switch (call.procedure) {
    case CreateLink: return createLink(call);
    case DeviceWrite: return deviceWrite(call);
    case DeviceRead: return deviceRead(call);
    case DeviceReadStb: return deviceReadStb(call);
    case DeviceClear: return deviceClear(call);
    case DestroyLink: return destroyLink(call);
    case DeviceTrigger:
    case DeviceRemote:
    case DeviceLocal:
    case DeviceLock:
    case DeviceUnlock:
    case DeviceEnableSrq: return acceptCall(call);
    case DeviceDoCmd: return send(call.xid, XdrWriter().u32(vxi11::NotSupported).opaque({}).data());
    case CreateIntrChan: return sendError(call.xid, vxi11::NotSupported);
    case DestroyIntrChan: return sendError(call.xid, vxi11::NoError);
    default: refuse(call.xid, RpcAccept::ProcUnavail);
    }
}

void Vxi11Connection::handleAbort(const RpcCall& call)
{
    if (call.procedure != DeviceAbort) {
        refuse(call.xid, RpcAccept::ProcUnavail);
        return;
    }
    Vxi11Link* link = server_.link(XdrReader(call.args).u32());
    if (link) link->abortRead();
    sendError(call.xid, link ? vxi11::NoError : vxi11::InvalidLink);
}

void Vxi11Connection::send(quint32 xid, const QByteArray& results)
{
    socket_->write(recordMarked(rpcReply(xid, RpcAccept::Success, results)));
}

void Vxi11Connection::refuse(quint32 xid, RpcAccept status)
{
    socket_->write(recordMarked(rpcReply(xid, status)));
}

void Vxi11Connection::sendError(quint32 xid, quint32 error)
{
    send(xid, XdrWriter().u32(error).data());
}

void Vxi11Connection::createLink(const RpcCall& call)
{
    XdrReader in(call.args);
    in.i32(); // client id
    in.boolean();
    in.u32(); // lock time-out
    const QByteArray device = in.opaque(256);
    if (!in.ok()) return refuse(call.xid, RpcAccept::GarbageArgs);
    if (!isDeviceName(device))
        return send(call.xid, XdrWriter().u32(DeviceNotAccessible).u32(0).u32(0).u32(0).data());
    Vxi11Link* link = server_.createLink(this);
    connect(&link->session(), &Session::dropRequested, this, &Vxi11Connection::drop);
    send(call.xid,
         XdrWriter().u32(vxi11::NoError).u32(link->id()).u32(server_.port()).u32(vxi11::MaxRecvSize).data());
}

void Vxi11Connection::deviceWrite(const RpcCall& call)
{
    XdrReader in(call.args);
    Vxi11Link* link = ownLink(in.u32());
    in.u32(); // I/O time-out
    in.u32(); // lock time-out
    const quint32 flags = in.u32();
    const QByteArray data = in.opaque();
    if (!in.ok()) return refuse(call.xid, RpcAccept::GarbageArgs);
    if (!link) return send(call.xid, XdrWriter().u32(vxi11::InvalidLink).u32(0).data());
    link->write(data, flags & vxi11::WriteEnd);
    if (!link->session().isDropped())
        send(call.xid, XdrWriter().u32(vxi11::NoError).u32(quint32(data.size())).data());
}

void Vxi11Connection::deviceRead(const RpcCall& call)
{
    XdrReader in(call.args);
    Vxi11Link* link = ownLink(in.u32());
    Vxi11ReadRequest request;
    request.requestSize = in.u32();
    request.ioTimeoutMs = in.u32();
    in.u32(); // lock time-out
    request.flags = in.u32();
    request.termChar = in.u32() & 0xFF;
    if (!in.ok()) return refuse(call.xid, RpcAccept::GarbageArgs);
    if (!link) return send(call.xid, XdrWriter().u32(vxi11::InvalidLink).u32(0).opaque({}).data());
    const quint32 xid = call.xid;
    link->read(request, [this, xid](const QByteArray& results) { send(xid, results); });
}

// The simulated instrument never raises a service request: the status byte is 0.
void Vxi11Connection::deviceReadStb(const RpcCall& call)
{
    const quint32 error = ownLink(XdrReader(call.args).u32()) ? vxi11::NoError : vxi11::InvalidLink;
    send(call.xid, XdrWriter().u32(error).u32(0).data());
}

void Vxi11Connection::deviceClear(const RpcCall& call)
{
    Vxi11Link* link = ownLink(XdrReader(call.args).u32());
    if (link) link->clear();
    sendError(call.xid, link ? vxi11::NoError : vxi11::InvalidLink);
}

void Vxi11Connection::destroyLink(const RpcCall& call)
{
    Vxi11Link* link = ownLink(XdrReader(call.args).u32());
    sendError(call.xid, link ? vxi11::NoError : vxi11::InvalidLink);
    if (!link) return;
    link->abortRead();
    delete link;
}

// Calls the simulator takes without anything to do: only the link must be right.
void Vxi11Connection::acceptCall(const RpcCall& call)
{
    sendError(call.xid, ownLink(XdrReader(call.args).u32()) ? vxi11::NoError : vxi11::InvalidLink);
}

void Vxi11Connection::drop()
{
    socket_->abort();
}

Vxi11Link* Vxi11Connection::ownLink(quint32 id) const
{
    Vxi11Link* link = server_.link(id);
    return link && link->parent() == this ? link : nullptr;
}
