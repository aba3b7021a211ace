#pragma once
// ONC RPC calls over one TCP connection with record marking (a 4-byte
// header: bit 31 last fragment, low 31 bits the fragment's length).

#include "visa/fdchannel.h"
#include "visa/xdr.h"

#include <string>

namespace selvane::visa {

class RpcClient {
  public:
    RpcClient() = default;
    explicit RpcClient(FdChannel channel);

    // Sends the call and waits for its reply, skipping replies to earlier calls
    // that came too late. `results` gets the reply's result bytes.
    ViStatus call(uint32_t program, uint32_t version, uint32_t procedure, const XdrWriter& arguments,
                  const Deadline& deadline, std::vector<uint8_t>& results);

    FdChannel& channel() { return channel_; }

  private:
    ViStatus receiveRecord(const Deadline& deadline, std::vector<uint8_t>& record);

    FdChannel channel_;
    uint32_t xid_ = 0;
};

constexpr uint16_t PortmapperPort = 111;

// Asks the portmapper on `host` for the TCP port of a program; VI_ERROR_RSRC_NFOUND
// when nothing answers or the program is not registered.
ViStatus portmapperGetPort(const std::string& host, uint16_t portmapperPort, uint32_t program,
                           uint32_t version, uint16_t& port);

} // namespace selvane::visa
