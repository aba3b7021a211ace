#include "transport/hislipsession.h"

#include <QTcpSocket>
#include <QtEndian>

using namespace hislip;

HislipSession::HislipSession(quint16 id, Faults& faults, QTcpSocket* sync)
    : QObject(sync), id_(id), session_(faults, this), sync_(sync)
{
    connect(&session_, &Session::replyReady, this, &HislipSession::sendReply);
    connect(&session_, &Session::dropRequested, this, &HislipSession::drop);
}

HislipSession::~HislipSession()
{
    if (async_) async_->disconnectFromHost();
}

bool HislipSession::attachAsync(QTcpSocket* async)
{
    if (async_) return false;
    async_ = async;
    return true;
}

void HislipSession::handleSync(const Message& message)
{
    switch (message.type) {
    case Data:
    case DataEnd:
        messageId_ = message.parameter;
        session_.receive(message.payload, message.type == DataEnd);
        break;
    case DeviceClearComplete: sync_->write(encode(DeviceClearAcknowledge, 0, 0)); break;
    case Trigger:
    case Error: break;
    case FatalError: drop(); break;
    default: sync_->write(encode(Error, UnrecognizedType, 0, "unrecognized message type"));
    }
}

void HislipSession::handleAsync(const Message& message)
{
    switch (message.type) {
    case AsyncMaximumMessageSize:
        setClientMaximum(message.payload);
        return answerAsync(AsyncMaximumMessageSizeResponse, 0, 0, sizePayload(MaxMessageSize));
    case AsyncLock: return answerAsync(AsyncLockResponse, 1, 0); // granted (or released)
    case AsyncLockInfo: return answerAsync(AsyncLockInfoResponse, 0, 0);
    case AsyncRemoteLocalControl: return answerAsync(AsyncRemoteLocalResponse, 0, 0);
    case AsyncStatusQuery: return answerAsync(AsyncStatusResponse, 0, 0);
    case AsyncDeviceClear: session_.clear(); return answerAsync(AsyncDeviceClearAcknowledge, 0, 0);
    case Error: return;
    case FatalError: return drop();
    default: answerAsync(Error, UnrecognizedType, 0, "unrecognized message type");
    }
}

// A reply beyond the client's maximum message size goes out in pieces; the last one is DataEnd.
void HislipSession::sendReply(const QByteArray& reply)
{
    const qsizetype piece =
        clientMaximum_ > 0 ? qsizetype(qMin<quint64>(clientMaximum_, MaxMessageSize)) : reply.size();
    for (qsizetype at = 0; at < reply.size(); at += piece) {
        const bool last = at + piece >= reply.size();
        sync_->write(encode(last ? DataEnd : Data, 0, messageId_, reply.mid(at, piece)));
    }
}

void HislipSession::answerAsync(quint8 type, quint8 control, quint32 parameter, QByteArrayView payload)
{
    if (async_) async_->write(encode(type, control, parameter, payload));
}

void HislipSession::setClientMaximum(const QByteArray& payload)
{
    if (payload.size() == 8) clientMaximum_ = qFromBigEndian<quint64>(payload.constData());
}

void HislipSession::drop()
{
    if (async_) async_->abort();
    sync_->abort();
}

void sendFatal(QTcpSocket* socket, quint8 code, const QByteArray& text)
{
    socket->write(encode(FatalError, code, 0, text));
    socket->disconnectFromHost();
}
