#include "visa/hislipframe.h"

#include "visa/xdr.h"

namespace selvane::visa::hislip {

namespace {
// Far above the message size we announce; a longer payload means a broken stream.
constexpr uint64_t MaxPayload = 64u << 20;

uint64_t readBigEndian64(const uint8_t* data)
{
    return uint64_t(readBigEndian32(data)) << 32 | readBigEndian32(data + 4);
}
} // namespace

std::vector<uint8_t> encode(uint8_t type, uint8_t control, uint32_t parameter, const uint8_t* payload,
                            size_t size)
{
    std::vector<uint8_t> bytes{'H', 'S', type, control};
    appendBigEndian32(bytes, parameter);
    appendBigEndian32(bytes, uint32_t(uint64_t(size) >> 32));
    appendBigEndian32(bytes, uint32_t(size));
    if (size > 0) bytes.insert(bytes.end(), payload, payload + size);
    return bytes;
}

ViStatus send(FdChannel& channel, uint8_t type, uint8_t control, uint32_t parameter, const Deadline& deadline,
              const uint8_t* payload, size_t size)
{
    const std::vector<uint8_t> bytes = encode(type, control, parameter, payload, size);
    return channel.sendAll(bytes.data(), bytes.size(), deadline);
}

ViStatus receive(FdChannel& channel, const Deadline& deadline, Message& message)
{
    if (const ViStatus status = channel.receiveAtLeast(HeaderSize, deadline); status != VI_SUCCESS)
        return status;
    const uint8_t* header = channel.data();
    const uint64_t length = readBigEndian64(header + 8);
    if (header[0] != 'H' || header[1] != 'S' || length > MaxPayload) return VI_ERROR_IO;
    if (const ViStatus status = channel.receiveAtLeast(HeaderSize + length, deadline); status != VI_SUCCESS)
        return status;
    header = channel.data();
    message.type = header[2];
    message.control = header[3];
    message.parameter = readBigEndian32(header + 4);
    message.payload.assign(header + HeaderSize, header + HeaderSize + length);
    channel.consume(HeaderSize + length);
    return VI_SUCCESS;
}

ViStatus await(FdChannel& channel, uint8_t type, const Deadline& deadline, Message& message)
{
    for (;;) {
        if (const ViStatus status = receive(channel, deadline, message); status != VI_SUCCESS) return status;
        if (message.type == type) return VI_SUCCESS;
        if (message.type == FatalError) return VI_ERROR_IO;
    }
}

} // namespace selvane::visa::hislip
