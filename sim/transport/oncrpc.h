#pragma once
// ONC RPC as the VXI-11 core channel and the portmapper speak it: XDR words,
// call and reply headers, and TCP record marking. Bad bytes from a client
// never throw or read past a buffer; the reader just reports failure.

#include <QByteArray>
#include <QByteArrayView>
#include <optional>

class XdrReader {
  public:
    explicit XdrReader(QByteArrayView data) : data_(data) {}

    quint32 u32();
    qint32 i32() { return qint32(u32()); }
    bool boolean() { return u32() != 0; }
    // Variable-length opaque data or a string; longer than maxSize fails.
    QByteArray opaque(quint32 maxSize = 1u << 24);

    bool ok() const { return ok_; }
    QByteArrayView rest() const { return ok_ ? data_.sliced(pos_) : QByteArrayView(); }

  private:
    QByteArrayView data_;
    qsizetype pos_ = 0;
    bool ok_ = true;
};

class XdrWriter {
  public:
    XdrWriter& u32(quint32 value);
    XdrWriter& opaque(QByteArrayView bytes);
    XdrWriter& raw(QByteArrayView bytes);
    const QByteArray& data() const { return data_; }

  private:
    QByteArray data_;
};

struct RpcCall {
    quint32 xid = 0;
    quint32 program = 0;
    quint32 version = 0;
    quint32 procedure = 0;
    QByteArray args;
};

enum class RpcAccept : quint32 {
    Success = 0,
    ProgUnavail = 1,
    ProgMismatch = 2,
    ProcUnavail = 3,
    GarbageArgs = 4
};

// The call in one RPC message. rpcVersionOk is false for a call of another
// RPC version (answer with rpcVersionMismatch); empty for anything not a call.
std::optional<RpcCall> parseRpcCall(QByteArrayView message, bool* rpcVersionOk);

QByteArray rpcReply(quint32 xid, RpcAccept status, QByteArrayView results = {});
QByteArray rpcProgramMismatch(quint32 xid, quint32 low, quint32 high);
QByteArray rpcVersionMismatch(quint32 xid);

// Splits a TCP byte stream into records: a 4-byte mark (bit 31 = last
// fragment, low bits = length) before each fragment.
class RecordReader {
  public:
    explicit RecordReader(qsizetype maxRecord = 4 << 20) : maxRecord_(maxRecord) {}

    void append(QByteArrayView bytes) { buffer_ += bytes; }
    // The next whole record, or empty when more bytes are needed or the stream broke.
    std::optional<QByteArray> next();
    // A record grew beyond the limit: the stream can't be trusted any more.
    bool failed() const { return failed_; }

  private:
    QByteArray buffer_;
    QByteArray record_;
    qsizetype maxRecord_;
    bool failed_ = false;
};

// One record as a single last fragment.
QByteArray recordMarked(QByteArrayView message);
