#pragma once
// HiSLIP framing: a 16-byte header ("HS", message type, control code, a
// 32-bit parameter, a 64-bit payload length, big-endian) and the payload.

#include <QByteArray>
#include <QByteArrayView>
#include <optional>

namespace hislip {
enum Type : quint8 {
    Initialize = 0,
    InitializeResponse = 1,
    FatalError = 2,
    Error = 3,
    AsyncLock = 4,
    AsyncLockResponse = 5,
    Data = 6,
    DataEnd = 7,
    DeviceClearComplete = 8,
    DeviceClearAcknowledge = 9,
    AsyncRemoteLocalControl = 10,
    AsyncRemoteLocalResponse = 11,
    Trigger = 12,
    AsyncMaximumMessageSize = 15,
    AsyncMaximumMessageSizeResponse = 16,
    AsyncInitialize = 17,
    AsyncInitializeResponse = 18,
    AsyncDeviceClear = 19,
    AsyncStatusQuery = 21,
    AsyncStatusResponse = 22,
    AsyncDeviceClearAcknowledge = 23,
    AsyncLockInfo = 24,
    AsyncLockInfoResponse = 25,
};

// Codes of a FatalError message.
enum Fatal : quint8 { PoorlyFormedHeader = 1, NoChannelPair = 2, InvalidInitialization = 3 };
// Codes of an Error message.
enum NonFatal : quint8 { UnrecognizedType = 1 };

constexpr qsizetype HeaderSize = 16;
constexpr quint64 MaxMessageSize = 1 << 20;

struct Message {
    quint8 type = 0;
    quint8 control = 0;
    quint32 parameter = 0;
    QByteArray payload;
};

// The 8-byte payload of the maximum-message-size messages.
QByteArray sizePayload(quint64 size);

QByteArray encode(quint8 type, quint8 control, quint32 parameter, QByteArrayView payload = {});

// Cuts a TCP stream into messages. A wrong prologue or a payload beyond the
// limit breaks the stream for good.
class Reader {
  public:
    void append(QByteArrayView bytes) { buffer_ += bytes; }
    std::optional<Message> next();
    bool failed() const { return failed_; }

  private:
    QByteArray buffer_;
    bool failed_ = false;
};
} // namespace hislip
