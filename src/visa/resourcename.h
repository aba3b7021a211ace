#pragma once
// Resource strings: "TCPIP0::host::inst0::INSTR" and the other classes the
// layer knows, parsed into their parts and printed back in one canonical form.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace selvane::visa {

enum class Interface { Tcpip, Usb, Gpib, Asrl };
enum class TcpipProtocol { Vxi11, Hislip, Socket };

constexpr uint16_t HislipDefaultPort = 4880;

struct ResourceName {
    Interface interface = Interface::Tcpip;
    unsigned board = 0;

    TcpipProtocol protocol = TcpipProtocol::Vxi11;
    std::string host;       // an IPv6 address without its brackets
    std::string deviceName; // VXI-11 LAN device name ("inst0", "gpib0,5") or HiSLIP sub-address ("hislip0")
    uint16_t port = 0;      // SOCKET port; HiSLIP port

    uint16_t vendorId = 0;
    uint16_t productId = 0;
    std::string serial;
    int interfaceNumber = -1; // -1: the device's first USBTMC interface

    unsigned primary = 0;
    int secondary = -1; // -1: none

    std::string devicePath; // ASRL with a device path in place of the board number

    std::string canonical() const;
};

// Names longer than this are refused, so a hostile caller cannot make parsing costly.
inline constexpr size_t ResourceNameLimit = 1024;

// Case-insensitive; the board defaults to 0 and "::INSTR" may be left out.
// Empty for a malformed name.

std::optional<ResourceName> parseResourceName(std::string_view text);

bool equalsIgnoringCase(std::string_view a, std::string_view b);

} // namespace selvane::visa
