#include "transport/hislipmessage.h"

#include <QtEndian>

namespace hislip {

QByteArray encode(quint8 type, quint8 control, quint32 parameter, QByteArrayView payload)
{
    QByteArray message(HeaderSize, '\0');
    message[0] = 'H';
    message[1] = 'S';
    message[2] = char(type);
    message[3] = char(control);
    qToBigEndian(parameter, message.data() + 4);
    qToBigEndian(quint64(payload.size()), message.data() + 8);
    message.append(payload);
    return message;
}

QByteArray sizePayload(quint64 size)
{
    QByteArray payload(8, '\0');
    qToBigEndian(size, payload.data());
    return payload;
}

std::optional<Message> Reader::next()
{
    if (failed_ || buffer_.size() < HeaderSize) return std::nullopt;
    const quint64 size = qFromBigEndian<quint64>(buffer_.constData() + 8);
    if (!buffer_.startsWith("HS") || size > MaxMessageSize) {
        failed_ = true;
        return std::nullopt;
    }
    if (quint64(buffer_.size()) < HeaderSize + size) return std::nullopt;
    Message message;
    message.type = quint8(buffer_[2]);
    message.control = quint8(buffer_[3]);
    message.parameter = qFromBigEndian<quint32>(buffer_.constData() + 4);
    message.payload = buffer_.mid(HeaderSize, qsizetype(size));
    buffer_.remove(0, HeaderSize + qsizetype(size));
    return message;
}

} // namespace hislip
