// TCPIP::host::hislip0[,port]::INSTR: a synchronous channel for data and an
// asynchronous one for device clear, paired by the session id the server gives.
#include "visa/backend.h"
#include "visa/hislipframe.h"
#include "visa/resourcename.h"
#include "visa/tcpsocket.h"
#include "visa/xdr.h"

#include <algorithm>

namespace selvane::visa {

namespace {

using namespace hislip;

constexpr uint32_t ClientVersion = 0x0100; // 1.0
constexpr uint32_t VendorId = ('S' << 8) | 'V';
constexpr uint32_t FirstMessageId = 0xFFFFFF00u;
// What we ask the server to keep its messages to; we buffer beyond a read's limit anyway.
constexpr uint64_t ClientMaximum = 1u << 20;

std::vector<uint8_t> sizePayload(uint64_t size)
{
    std::vector<uint8_t> bytes;
    appendBigEndian32(bytes, uint32_t(size >> 32));
    appendBigEndian32(bytes, uint32_t(size));
    return bytes;
}

class HislipBackend : public Backend {
  public:
    ViStatus open(const ResourceName& name);
    ViStatus write(const uint8_t* data, size_t size, const Deadline& deadline, size_t& written) override;
    ViStatus fetch(size_t wanted, const ReadSettings& settings, const Deadline& deadline,
                   InputQueue& queue) override;
    ViStatus clear(const Deadline& deadline) override;
    ViStatus apply(const SessionSettings& settings) override
    {
        setTcpOptions(sync_, settings.keepAlive, settings.noDelay);
        setTcpOptions(async_, settings.keepAlive, settings.noDelay);
        sendEnd_ = settings.sendEnd;
        const uint64_t offer = uint64_t(settings.hislipMaxMessageKb) * 1024;
        if (offer == offeredSize_ || !async_.isOpen()) return VI_SUCCESS;
        const ViStatus status = negotiateSize(Deadline(ConnectTimeoutMs), offer);
        if (status == VI_SUCCESS) offeredSize_ = offer;
        return status;
    }
    ViStatus readStatusByte(const Deadline& deadline, uint16_t& statusByte) override;
    ViStatus trigger(const Deadline& deadline) override;
    uint32_t protocolVersion() const override { return serverVersion_; }

  private:
    ViStatus initialize(const ResourceName& name, const Deadline& deadline);
    ViStatus negotiateSize(const Deadline& deadline, uint64_t ours);

    FdChannel sync_;
    FdChannel async_;
    uint32_t messageId_ = FirstMessageId;
    size_t serverPiece_ = ClientMaximum;
    uint64_t offeredSize_ = ClientMaximum; // the largest message we told the server we take
    bool sendEnd_ = true;
    bool delivered_ = false; // a whole reply has reached the caller since our last message
    uint32_t serverVersion_ = 0;
};

ViStatus HislipBackend::open(const ResourceName& name)
{
    const Deadline deadline(ConnectTimeoutMs);
    ViStatus status = connectTcp(name.host, name.port, sync_);
    if (status == VI_SUCCESS) status = initialize(name, deadline);
    if (status == VI_SUCCESS) status = negotiateSize(deadline, offeredSize_);
    return status == VI_SUCCESS ? status : VI_ERROR_RSRC_NFOUND;
}

ViStatus HislipBackend::initialize(const ResourceName& name, const Deadline& deadline)
{
    const auto* subAddress = reinterpret_cast<const uint8_t*>(name.deviceName.data());
    Message reply;
    ViStatus status = send(sync_, Initialize, 0, ClientVersion << 16 | VendorId, deadline, subAddress,
                           name.deviceName.size());
    if (status == VI_SUCCESS) status = await(sync_, InitializeResponse, deadline, reply);
    const uint32_t sessionId = reply.parameter & 0xFFFF;
    serverVersion_ = reply.parameter >> 16;
    if (status == VI_SUCCESS) status = connectTcp(name.host, name.port, async_);
    if (status == VI_SUCCESS) status = send(async_, AsyncInitialize, 0, sessionId, deadline);
    if (status == VI_SUCCESS) status = await(async_, AsyncInitializeResponse, deadline, reply);
    return status;
}

ViStatus HislipBackend::negotiateSize(const Deadline& deadline, uint64_t offer)
{
    const std::vector<uint8_t> ours = sizePayload(offer);
    Message reply;
    ViStatus status = send(async_, AsyncMaximumMessageSize, 0, 0, deadline, ours.data(), ours.size());
    if (status == VI_SUCCESS) status = await(async_, AsyncMaximumMessageSizeResponse, deadline, reply);
    if (status == VI_SUCCESS && reply.payload.size() == 8) {
        const uint64_t theirs =
            uint64_t(readBigEndian32(reply.payload.data())) << 32 | readBigEndian32(reply.payload.data() + 4);
        // The maximum counts the header too; keep a sane floor against odd answers.
        serverPiece_ =
            size_t(std::clamp<uint64_t>(theirs > HeaderSize ? theirs - HeaderSize : 0, 256, ClientMaximum));
    }
    return status;
}

ViStatus HislipBackend::write(const uint8_t* data, size_t size, const Deadline& deadline, size_t& written)
{
    written = 0;
    do {
        const size_t piece = std::min(size - written, serverPiece_);
        const bool last = written + piece == size;
        const ViStatus status = send(sync_, last && sendEnd_ ? DataEnd : Data, delivered_ ? 1 : 0, messageId_,
                                     deadline, data + written, piece);
        delivered_ = false;
        messageId_ += 2;
        if (status != VI_SUCCESS) return status;
        written += piece;
    } while (written < size);
    return VI_SUCCESS;
}

ViStatus HislipBackend::fetch(size_t, const ReadSettings&, const Deadline& deadline, InputQueue& queue)
{
    for (;;) {
        Message message;
        if (const ViStatus status = receive(sync_, deadline, message); status != VI_SUCCESS) return status;
        if (message.type == Data || message.type == DataEnd) {
            queue.push(message.payload.data(), message.payload.size(), message.type == DataEnd);
            delivered_ = delivered_ || message.type == DataEnd;
            return VI_SUCCESS;
        }
        if (message.type == FatalError) return VI_ERROR_CONN_LOST;
    }
}

// Async clear, its acknowledgement, then DeviceClearComplete on the synchronous
// channel; data still in flight before the server's acknowledgement is dropped.
ViStatus HislipBackend::clear(const Deadline& deadline)
{
    Message reply;
    ViStatus status = send(async_, AsyncDeviceClear, 0, 0, deadline);
    if (status == VI_SUCCESS) status = await(async_, AsyncDeviceClearAcknowledge, deadline, reply);
    if (status == VI_SUCCESS) status = send(sync_, DeviceClearComplete, reply.control, 0, deadline);
    if (status == VI_SUCCESS) status = await(sync_, DeviceClearAcknowledge, deadline, reply);
    messageId_ = FirstMessageId;
    return status;
}

// The status byte comes on the asynchronous channel, as the response's control code.
ViStatus HislipBackend::readStatusByte(const Deadline& deadline, uint16_t& statusByte)
{
    Message reply;
    ViStatus status = send(async_, AsyncStatusQuery, delivered_ ? 1 : 0, messageId_ - 2, deadline);
    if (status == VI_SUCCESS) status = await(async_, AsyncStatusResponse, deadline, reply);
    delivered_ = false;
    if (status == VI_SUCCESS) statusByte = reply.control;
    return status;
}

ViStatus HislipBackend::trigger(const Deadline& deadline)
{
    const ViStatus status = send(sync_, Trigger, delivered_ ? 1 : 0, messageId_, deadline);
    messageId_ += 2;
    delivered_ = false;
    return status;
}

} // namespace

std::unique_ptr<Backend> openHislipBackend(const ResourceName& name, const SessionSettings& settings,
                                           ViStatus& status)
{
    auto backend = std::make_unique<HislipBackend>();
    status = backend->open(name);
    if (status != VI_SUCCESS) return nullptr;
    backend->apply(settings);
    return backend;
}

} // namespace selvane::visa
