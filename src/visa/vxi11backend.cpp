// TCPIP::host[::device]::INSTR over VXI-11: the core channel's port comes from
// the host's portmapper (SELVANE_PORTMAPPER_PORT, else 111), then a link to the
// LAN device carries writes with END, counted reads and device clear.
#include "visa/backend.h"
#include "visa/oncrpc.h"
#include "visa/resourcename.h"
#include "visa/tcpsocket.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace selvane::visa {

namespace {

constexpr uint32_t CoreProgram = 0x0607AF;
constexpr uint32_t CoreVersion = 1;
enum Procedure : uint32_t {
    CreateLink = 10,
    DeviceWrite = 11,
    DeviceRead = 12,
    DeviceReadStb = 13,
    DeviceTrigger = 14,
    DeviceClear = 15,
    DestroyLink = 23
};
constexpr uint32_t FlagEnd = 0x08;
constexpr uint32_t FlagTermChar = 0x80;
constexpr uint32_t ReasonEnd = 4;
constexpr uint32_t MinimumRecvSize = 1024;
// A device answers a timed-out call itself; this is how much later we give up on it.
constexpr uint32_t ReplyGraceMs = 2000;
constexpr uint32_t DestroyTimeoutMs = 1000;
// Largest single device_read request; the reply has to fit one RPC record.
constexpr size_t MaxReadRequest = 1u << 20;

ViStatus statusOfDeviceError(uint32_t error)
{
    switch (error) {
    case 0: return VI_SUCCESS;
    case 8: return VI_ERROR_NSUP_OPER;
    case 11: return VI_ERROR_RSRC_LOCKED;
    case 15: return VI_ERROR_TMO;
    case 4: return VI_ERROR_CONN_LOST;
    default: return VI_ERROR_IO;
    }
}

uint16_t portmapperPort()
{
    const char* text = std::getenv("SELVANE_PORTMAPPER_PORT");
    const long port = text ? std::strtol(text, nullptr, 10) : 0;
    return port > 0 && port <= 0xFFFF ? uint16_t(port) : PortmapperPort;
}

Deadline replyDeadline(const Deadline& deadline)
{
    return Deadline(deadline.infinite() ? 0xFFFFFFFFu : deadline.remainingMs() + ReplyGraceMs);
}

class Vxi11Backend : public Backend {
  public:
    explicit Vxi11Backend(RpcClient client) : client_(std::move(client)) {}
    ~Vxi11Backend() override;

    ViStatus createLink(const std::string& device);
    ViStatus write(const uint8_t* data, size_t size, const Deadline& deadline, size_t& written) override;
    ViStatus fetch(size_t wanted, const ReadSettings& settings, const Deadline& deadline,
                   InputQueue& queue) override;
    ViStatus clear(const Deadline& deadline) override;
    ViStatus apply(const SessionSettings& settings) override
    {
        setTcpOptions(client_.channel(), settings.keepAlive, settings.noDelay);
        sendEnd_ = settings.sendEnd;
        return VI_SUCCESS;
    }
    ViStatus readStatusByte(const Deadline& deadline, uint16_t& statusByte) override;
    ViStatus trigger(const Deadline& deadline) override;

  private:
    // One call; the reply's first word is the device error, the reader stands behind it.
    ViStatus call(uint32_t procedure, const XdrWriter& arguments, const Deadline& deadline,
                  std::vector<uint8_t>& results, XdrReader& reader);
    ViStatus writePiece(const uint8_t* data, size_t size, bool last, const Deadline& deadline,
                        size_t& accepted);

    RpcClient client_;
    uint32_t link_ = 0;
    bool linked_ = false;
    size_t maxRecvSize_ = MinimumRecvSize;
    bool sendEnd_ = true;
};

Vxi11Backend::~Vxi11Backend()
{
    if (!linked_) return;
    std::vector<uint8_t> results;
    client_.call(CoreProgram, CoreVersion, DestroyLink, XdrWriter().u32(link_), Deadline(DestroyTimeoutMs),
                 results);
}

ViStatus Vxi11Backend::call(uint32_t procedure, const XdrWriter& arguments, const Deadline& deadline,
                            std::vector<uint8_t>& results, XdrReader& reader)
{
    if (const ViStatus status =
            client_.call(CoreProgram, CoreVersion, procedure, arguments, replyDeadline(deadline), results);
        status != VI_SUCCESS)
        return status;
    reader = XdrReader(results.data(), results.size());
    const uint32_t error = reader.u32();
    return reader.ok() ? statusOfDeviceError(error) : VI_ERROR_IO;
}

ViStatus Vxi11Backend::createLink(const std::string& device)
{
    XdrWriter arguments;
    arguments.u32(uint32_t(reinterpret_cast<uintptr_t>(this))).u32(0).u32(0).string(device);
    std::vector<uint8_t> results;
    XdrReader reader(nullptr, 0);
    if (call(CreateLink, arguments, Deadline(ConnectTimeoutMs), results, reader) != VI_SUCCESS)
        return VI_ERROR_RSRC_NFOUND;
    link_ = reader.u32();
    reader.u32(); // abort port
    const uint32_t maxRecvSize = reader.u32();
    if (!reader.ok()) return VI_ERROR_RSRC_NFOUND;
    linked_ = true;
    maxRecvSize_ = std::max(maxRecvSize, MinimumRecvSize);
    return VI_SUCCESS;
}

ViStatus Vxi11Backend::writePiece(const uint8_t* data, size_t size, bool last, const Deadline& deadline,
                                  size_t& accepted)
{
    XdrWriter arguments;
    arguments.u32(link_).u32(deadline.remainingMs()).u32(0).u32(last ? FlagEnd : 0).opaque(data, size);
    std::vector<uint8_t> results;
    XdrReader reader(nullptr, 0);
    const ViStatus status = call(DeviceWrite, arguments, deadline, results, reader);
    accepted = std::min<size_t>(reader.u32(), size);
    return status;
}

// Longer messages go in pieces of the device's maximum, END on the last.
ViStatus Vxi11Backend::write(const uint8_t* data, size_t size, const Deadline& deadline, size_t& written)
{
    written = 0;
    do {
        const size_t piece = std::min(size - written, maxRecvSize_);
        size_t accepted = 0;
        const ViStatus status =
            writePiece(data + written, piece, written + piece == size && sendEnd_, deadline, accepted);
        written += accepted;
        if (status != VI_SUCCESS) return status;
        if (accepted == 0 && piece > 0) return VI_ERROR_IO;
    } while (written < size);
    return VI_SUCCESS;
}

ViStatus Vxi11Backend::fetch(size_t wanted, const ReadSettings& settings, const Deadline& deadline,
                             InputQueue& queue)
{
    XdrWriter arguments;
    arguments.u32(link_).u32(uint32_t(std::min(wanted, MaxReadRequest))).u32(deadline.remainingMs()).u32(0);
    arguments.u32(settings.termCharEnabled ? FlagTermChar : 0).u32(settings.termChar);
    std::vector<uint8_t> results;
    XdrReader reader(nullptr, 0);
    const ViStatus status = call(DeviceRead, arguments, deadline, results, reader);
    const uint32_t reason = reader.u32();
    const std::vector<uint8_t> data = reader.opaque(MaxReadRequest);
    if (!reader.ok()) return status == VI_SUCCESS ? VI_ERROR_IO : status;
    queue.push(data.data(), data.size(), (reason & ReasonEnd) != 0);
    return status;
}

ViStatus Vxi11Backend::clear(const Deadline& deadline)
{
    std::vector<uint8_t> results;
    XdrReader reader(nullptr, 0);
    return call(DeviceClear, XdrWriter().u32(link_).u32(0).u32(0).u32(deadline.remainingMs()), deadline,
                results, reader);
}

// Device_GenericParms: link, flags, lock time-out, I/O time-out.
ViStatus Vxi11Backend::readStatusByte(const Deadline& deadline, uint16_t& statusByte)
{
    std::vector<uint8_t> results;
    XdrReader reader(nullptr, 0);
    const ViStatus status =
        call(DeviceReadStb, XdrWriter().u32(link_).u32(0).u32(0).u32(deadline.remainingMs()), deadline,
             results, reader);
    const uint32_t value = reader.u32();
    if (status == VI_SUCCESS && !reader.ok()) return VI_ERROR_IO;
    if (status == VI_SUCCESS) statusByte = uint16_t(value & 0xFF);
    return status;
}

ViStatus Vxi11Backend::trigger(const Deadline& deadline)
{
    std::vector<uint8_t> results;
    XdrReader reader(nullptr, 0);
    return call(DeviceTrigger, XdrWriter().u32(link_).u32(0).u32(0).u32(deadline.remainingMs()), deadline,
                results, reader);
}

} // namespace

std::unique_ptr<Backend> openVxi11Backend(const ResourceName& name, const SessionSettings& settings,
                                          ViStatus& status)
{
    uint16_t port = 0;
    status = portmapperGetPort(name.host, portmapperPort(), CoreProgram, CoreVersion, port);
    FdChannel channel;
    if (status == VI_SUCCESS) status = connectTcp(name.host, port, channel);
    if (status != VI_SUCCESS) return nullptr;
    auto backend = std::make_unique<Vxi11Backend>(RpcClient(std::move(channel)));
    status = backend->createLink(name.deviceName);
    if (status != VI_SUCCESS) return nullptr;
    backend->apply(settings);
    return backend;
}

} // namespace selvane::visa
