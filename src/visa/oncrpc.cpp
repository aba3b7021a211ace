#include "visa/oncrpc.h"

#include "visa/tcpsocket.h"

#include <chrono>

namespace selvane::visa {

namespace {
constexpr uint32_t CallMessage = 0;
constexpr uint32_t ReplyMessage = 1;
constexpr uint32_t RpcVersion = 2;
constexpr uint32_t LastFragment = 0x80000000u;
// Far above any reply of this layer's calls; a longer record means a broken stream.
constexpr size_t MaxRecord = 64u << 20;

constexpr uint32_t PortmapperProgram = 100000;
constexpr uint32_t PortmapperVersion = 2;
constexpr uint32_t GetPort = 3;
constexpr uint32_t ProtocolTcp = 6;

enum class ReplyCheck { Ours, Stale, Refused };

// Checks a reply's header; for Ours the reader then stands at the results.
ReplyCheck checkReply(XdrReader& reader, uint32_t xid)
{
    if (reader.u32() != xid) return ReplyCheck::Stale;
    const uint32_t type = reader.u32();
    const uint32_t replyStatus = reader.u32();
    reader.u32(); // verifier flavour
    reader.opaque(400);
    const uint32_t acceptStatus = reader.u32();
    if (!reader.ok() || type != ReplyMessage || replyStatus != 0 || acceptStatus != 0)
        return ReplyCheck::Refused;
    return ReplyCheck::Ours;
}
} // namespace

RpcClient::RpcClient(FdChannel channel)
    : channel_(std::move(channel)),
      xid_(uint32_t(std::chrono::steady_clock::now().time_since_epoch().count()) & 0x7FFFFFFFu)
{
}

ViStatus RpcClient::call(uint32_t program, uint32_t version, uint32_t procedure, const XdrWriter& arguments,
                         const Deadline& deadline, std::vector<uint8_t>& results)
{
    const uint32_t xid = ++xid_;
    XdrWriter message;
    message.u32(xid).u32(CallMessage).u32(RpcVersion).u32(program).u32(version).u32(procedure);
    message.u32(0).u32(0).u32(0).u32(0); // null credential and verifier
    std::vector<uint8_t> record;
    appendBigEndian32(record, LastFragment | uint32_t(message.bytes().size() + arguments.bytes().size()));
    record.insert(record.end(), message.bytes().begin(), message.bytes().end());
    record.insert(record.end(), arguments.bytes().begin(), arguments.bytes().end());
    if (const ViStatus status = channel_.sendAll(record.data(), record.size(), deadline);
        status != VI_SUCCESS)
        return status;
    for (;;) {
        if (const ViStatus status = receiveRecord(deadline, record); status != VI_SUCCESS) return status;
        XdrReader reader(record.data(), record.size());
        const ReplyCheck check = checkReply(reader, xid);
        if (check == ReplyCheck::Stale) continue;
        if (check == ReplyCheck::Refused) return VI_ERROR_IO;
        results.assign(record.begin() + std::ptrdiff_t(reader.position()), record.end());
        return VI_SUCCESS;
    }
}

// Nothing is consumed until the whole record is there, so a time-out keeps the stream in step.
ViStatus RpcClient::receiveRecord(const Deadline& deadline, std::vector<uint8_t>& record)
{
    for (;;) {
        record.clear();
        size_t offset = 0;
        while (channel_.available() >= offset + 4) {
            const uint32_t header = readBigEndian32(channel_.data() + offset);
            const size_t length = header & ~LastFragment;
            if (record.size() + length > MaxRecord) return VI_ERROR_IO;
            if (channel_.available() < offset + 4 + length) break;
            record.insert(record.end(), channel_.data() + offset + 4, channel_.data() + offset + 4 + length);
            offset += 4 + length;
            if (header & LastFragment) {
                channel_.consume(offset);
                return VI_SUCCESS;
            }
        }
        if (const ViStatus status = channel_.receiveMore(deadline); status != VI_SUCCESS) return status;
    }
}

ViStatus portmapperGetPort(const std::string& host, uint16_t portmapperPort, uint32_t program,
                           uint32_t version, uint16_t& port)
{
    FdChannel channel;
    if (const ViStatus status = connectTcp(host, portmapperPort, channel); status != VI_SUCCESS)
        return status;
    RpcClient client(std::move(channel));
    XdrWriter arguments;
    arguments.u32(program).u32(version).u32(ProtocolTcp).u32(0);
    std::vector<uint8_t> results;
    if (client.call(PortmapperProgram, PortmapperVersion, GetPort, arguments, Deadline(ConnectTimeoutMs),
                    results) != VI_SUCCESS)
        return VI_ERROR_RSRC_NFOUND;
    XdrReader reader(results.data(), results.size());
    const uint32_t found = reader.u32();
    if (!reader.ok() || found == 0 || found > 0xFFFF) return VI_ERROR_RSRC_NFOUND;
    port = uint16_t(found);
    return VI_SUCCESS;
}

} // namespace selvane::visa
