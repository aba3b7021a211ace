#include "transport/oncrpc.h"

#include <QtEndian>
#include <utility>

namespace {
constexpr quint32 CallMessage = 0;
constexpr quint32 ReplyMessage = 1;
constexpr quint32 MsgAccepted = 0;
constexpr quint32 MsgDenied = 1;
constexpr quint32 RpcMismatch = 0;
constexpr quint32 LastFragment = 0x80000000u;

quint32 padded(quint32 size)
{
    return (size + 3) & ~3u;
}

// A credential or verifier: flavour and an opaque body of at most 400 bytes.
void skipAuth(XdrReader& in)
{
    in.u32();
    in.opaque(400);
}

XdrWriter replyHeader(quint32 xid, quint32 replyStatus)
{
    XdrWriter out;
    out.u32(xid).u32(ReplyMessage).u32(replyStatus);
    return out;
}
} // namespace

quint32 XdrReader::u32()
{
    if (!ok_ || data_.size() - pos_ < 4) {
        ok_ = false;
        return 0;
    }
    const quint32 value = qFromBigEndian<quint32>(data_.data() + pos_);
    pos_ += 4;
    return value;
}

QByteArray XdrReader::opaque(quint32 maxSize)
{
    const quint32 size = u32();
    if (!ok_ || size > maxSize || quint64(data_.size() - pos_) < padded(size)) {
        ok_ = false;
        return {};
    }
    QByteArray bytes = data_.sliced(pos_, size).toByteArray();
    pos_ += padded(size);
    return bytes;
}

XdrWriter& XdrWriter::u32(quint32 value)
{
    char word[4];
    qToBigEndian(value, word);
    data_.append(word, 4);
    return *this;
}

XdrWriter& XdrWriter::opaque(QByteArrayView bytes)
{
    u32(quint32(bytes.size()));
    data_.append(bytes);
    data_.append(QByteArray(padded(quint32(bytes.size())) - bytes.size(), '\0'));
    return *this;
}

XdrWriter& XdrWriter::raw(QByteArrayView bytes)
{
    data_.append(bytes);
    return *this;
}

std::optional<RpcCall> parseRpcCall(QByteArrayView message, bool* rpcVersionOk)
{
    XdrReader in(message);
    RpcCall call;
    call.xid = in.u32();
    if (in.u32() != CallMessage) return std::nullopt;
    *rpcVersionOk = in.u32() == 2;
    call.program = in.u32();
    call.version = in.u32();
    call.procedure = in.u32();
    skipAuth(in);
    skipAuth(in);
    if (!in.ok()) return std::nullopt;
    call.args = in.rest().toByteArray();
    return call;
}

QByteArray rpcReply(quint32 xid, RpcAccept status, QByteArrayView results)
{
    XdrWriter out = replyHeader(xid, MsgAccepted);
    out.u32(0).u32(0); // null verifier
    out.u32(quint32(status));
    return out.raw(results).data();
}

QByteArray rpcProgramMismatch(quint32 xid, quint32 low, quint32 high)
{
    XdrWriter results;
    results.u32(low).u32(high);
    return rpcReply(xid, RpcAccept::ProgMismatch, results.data());
}

QByteArray rpcVersionMismatch(quint32 xid)
{
    return replyHeader(xid, MsgDenied).u32(RpcMismatch).u32(2).u32(2).data();
}

std::optional<QByteArray> RecordReader::next()
{
    while (!failed_ && buffer_.size() >= 4) {
        const quint32 mark = qFromBigEndian<quint32>(buffer_.constData());
        const qsizetype size = mark & ~LastFragment;
        if (record_.size() + size > maxRecord_) {
            failed_ = true;
            break;
        }
        if (buffer_.size() < 4 + size) break;
        record_.append(buffer_.constData() + 4, size);
        buffer_.remove(0, 4 + size);
        if (mark & LastFragment) return std::exchange(record_, QByteArray());
    }
    return std::nullopt;
}

QByteArray recordMarked(QByteArrayView message)
{
    return XdrWriter().u32(LastFragment | quint32(message.size())).raw(message).data();
}
