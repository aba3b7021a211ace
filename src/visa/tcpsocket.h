#pragma once
// TCP connections for the network backends.

#include "visa/fdchannel.h"

#include <cstdint>
#include <string>

namespace selvane::visa {

// Time allowed for a connection to be accepted while a session opens.
constexpr uint32_t ConnectTimeoutMs = 5000;

// VI_ERROR_RSRC_NFOUND when the host is unknown or nothing answers.
ViStatus connectTcp(const std::string& host, uint16_t port, FdChannel& channel);

void setTcpOptions(const FdChannel& channel, bool keepAlive, bool noDelay);

// The host's first address in numeric form; the host itself when it does not resolve.
std::string numericAddress(const std::string& host);

} // namespace selvane::visa
