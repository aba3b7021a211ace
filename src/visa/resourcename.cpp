#include "visa/resourcename.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <vector>

namespace selvane::visa {

namespace {

using Fields = std::vector<std::string_view>;

char lower(char c)
{
    return char(std::tolower(static_cast<unsigned char>(c)));
}

bool startsWithIgnoringCase(std::string_view text, std::string_view prefix)
{
    return text.size() >= prefix.size() && equalsIgnoringCase(text.substr(0, prefix.size()), prefix);
}

std::string_view trimmed(std::string_view text)
{
    const auto blank = [](char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; };
    while (!text.empty() && blank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && blank(text.back()))
        text.remove_suffix(1);
    return text;
}

// Splits at "::", but not inside the brackets of an IPv6 address, which open a
// field; elsewhere brackets are plain characters. Empty when a bracket stays open.
Fields splitFields(std::string_view text)
{
    Fields fields;
    size_t start = 0;
    int depth = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '[' && i == start)
            ++depth;
        else if (text[i] == ']' && depth > 0)
            --depth;
        else if (depth == 0 && text[i] == ':' && i + 1 < text.size() && text[i + 1] == ':') {
            fields.push_back(text.substr(start, i - start));
            start = i + 2;
            ++i;
        }
    }
    if (depth > 0) return {};
    fields.push_back(text.substr(start));
    return fields;
}

template <typename T> std::optional<T> number(std::string_view text, T maximum, int base = 10)
{
    if (text.empty() || text.size() > 9) return std::nullopt;
    unsigned value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, base);
    if (error != std::errc() || end != text.data() + text.size() || value > unsigned(maximum))
        return std::nullopt;
    return T(value);
}

// USB ids are hexadecimal with "0x" or decimal.
std::optional<uint16_t> usbId(std::string_view text)
{
    if (startsWithIgnoringCase(text, "0x")) return number<uint16_t>(text.substr(2), 0xFFFF, 16);
    return number<uint16_t>(text, 0xFFFF);
}

bool validHost(std::string_view host)
{
    if (host.size() >= 2 && host.front() == '[' && host.back() == ']') {
        const std::string_view inner = host.substr(1, host.size() - 2);
        return !inner.empty() && std::all_of(inner.begin(), inner.end(), [](char c) {
            return std::isxdigit(static_cast<unsigned char>(c)) || c == ':' || c == '.' || c == '%' ||
                   std::isalnum(static_cast<unsigned char>(c));
        });
    }
    return !host.empty() && std::all_of(host.begin(), host.end(), [](char c) {
        return std::isalnum(static_cast<unsigned char>(c)) || c == '.' || c == '-' || c == '_';
    });
}

std::string withoutBrackets(std::string_view host)
{
    if (!host.empty() && host.front() == '[') return std::string(host.substr(1, host.size() - 2));
    return std::string(host);
}

bool validDeviceName(std::string_view name)
{
    return !name.empty() && std::all_of(name.begin(), name.end(), [](char c) {
        return std::isalnum(static_cast<unsigned char>(c)) || c == '_' || c == ',' || c == '.';
    });
}

// "hislip0" or "hislip0,4881".
bool parseHislip(std::string_view device, ResourceName& name)
{
    const size_t comma = device.find(',');
    const std::string_view subAddress = device.substr(0, comma);
    if (!number<unsigned>(subAddress.substr(6), 999999)) return false;
    name.protocol = TcpipProtocol::Hislip;
    name.deviceName = "hislip" + std::string(subAddress.substr(6));
    name.port = HislipDefaultPort;
    if (comma == std::string_view::npos) return true;
    const auto port = number<uint16_t>(device.substr(comma + 1), 0xFFFF);
    if (!port || *port == 0) return false;
    name.port = *port;
    return true;
}

bool parseTcpip(const Fields& fields, bool socket, ResourceName& name)
{
    if (fields.empty() || !validHost(fields[0])) return false;
    name.host = withoutBrackets(fields[0]);
    if (socket) {
        const auto port = fields.size() == 2 ? number<uint16_t>(fields[1], 0xFFFF) : std::nullopt;
        name.protocol = TcpipProtocol::Socket;
        name.port = port.value_or(0);
        return name.port != 0;
    }
    if (fields.size() > 2) return false;
    const std::string_view device = fields.size() == 2 ? fields[1] : std::string_view("inst0");
    if (!validDeviceName(device)) return false;
    if (startsWithIgnoringCase(device, "hislip")) return parseHislip(device, name);
    name.deviceName = std::string(device);
    return true;
}

bool parseUsb(const Fields& fields, ResourceName& name)
{
    if (fields.size() != 3 && fields.size() != 4) return false;
    const auto vendor = usbId(fields[0]);
    const auto product = usbId(fields[1]);
    if (!vendor || !product || fields[2].empty()) return false;
    name.vendorId = *vendor;
    name.productId = *product;
    name.serial = std::string(fields[2]);
    if (fields.size() == 3) return true;
    const auto interface = number<int>(fields[3], 255);
    name.interfaceNumber = interface.value_or(-1);
    return interface.has_value();
}

bool parseGpib(const Fields& fields, ResourceName& name)
{
    if (fields.empty() || fields.size() > 2) return false;
    const auto primary = number<unsigned>(fields[0], 30);
    const auto secondary = fields.size() == 2 ? number<int>(fields[1], 30) : std::optional<int>(-1);
    if (!primary || !secondary) return false;
    name.primary = *primary;
    name.secondary = *secondary;
    return true;
}

struct Prefix {
    std::string_view word;
    Interface interface;
};
constexpr Prefix Prefixes[] = {{"TCPIP", Interface::Tcpip},
                               {"USB", Interface::Usb},
                               {"GPIB", Interface::Gpib},
                               {"ASRL", Interface::Asrl}};

// "TCPIP0", "USB", "ASRL/dev/ttyUSB0": the interface and its board.
bool parseBoard(std::string_view first, ResourceName& name)
{
    for (const Prefix& prefix : Prefixes) {
        if (!startsWithIgnoringCase(first, prefix.word)) continue;
        const std::string_view board = first.substr(prefix.word.size());
        name.interface = prefix.interface;
        if (prefix.interface == Interface::Asrl && board.size() > 1 && board.front() == '/') {
            name.devicePath = std::string(board);
            return std::none_of(board.begin(), board.end(), [](char c) {
                return c == '[' || c == ']' || c == ':' || std::isspace(static_cast<unsigned char>(c)) ||
                       std::iscntrl(static_cast<unsigned char>(c));
            });
        }
        const auto value = board.empty() ? std::optional<unsigned>(0) : number<unsigned>(board, 65535);
        name.board = value.value_or(0);
        return value.has_value();
    }
    return false;
}

bool parseFields(Fields fields, ResourceName& name)
{
    if (!parseBoard(fields.front(), name)) return false;
    fields.erase(fields.begin());
    const bool socket = !fields.empty() && equalsIgnoringCase(fields.back(), "SOCKET");
    if (socket || (!fields.empty() && equalsIgnoringCase(fields.back(), "INSTR"))) fields.pop_back();
    // A field at a lone ":" would merge with its neighbour's "::" once printed back.
    if (std::any_of(fields.begin(), fields.end(),
                    [](std::string_view f) { return f.empty() || f.front() == ':' || f.back() == ':'; }))
        return false;
    if (socket && name.interface != Interface::Tcpip) return false;
    switch (name.interface) {
    case Interface::Tcpip: return parseTcpip(fields, socket, name);
    case Interface::Usb: return parseUsb(fields, name);
    case Interface::Gpib: return parseGpib(fields, name);
    case Interface::Asrl: return fields.empty();
    }
    return false;
}

std::string hex4(uint16_t value)
{
    static const char digits[] = "0123456789ABCDEF";
    std::string text = "0x";
    for (int shift = 12; shift >= 0; shift -= 4)
        text += digits[(value >> shift) & 0xF];
    return text;
}

// A host that came in brackets and would not read back bare (an IPv6 address,
// a zone after "%") goes out in brackets again.
std::string bracketed(const std::string& host)
{
    return validHost(host) ? host : "[" + host + "]";
}

} // namespace

bool equalsIgnoringCase(std::string_view a, std::string_view b)
{
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return lower(x) == lower(y); });
}

std::optional<ResourceName> parseResourceName(std::string_view text)
{
    text = trimmed(text);
    if (text.empty() || text.size() > ResourceNameLimit) return std::nullopt;
    ResourceName name;
    const Fields fields = splitFields(text);
    if (fields.empty() || !parseFields(fields, name)) return std::nullopt;
    return name;
}

std::string ResourceName::canonical() const
{
    const std::string b = std::to_string(board);
    switch (interface) {
    case Interface::Tcpip:
        if (protocol == TcpipProtocol::Socket)
            return "TCPIP" + b + "::" + bracketed(host) + "::" + std::to_string(port) + "::SOCKET";
        if (protocol == TcpipProtocol::Hislip && port != HislipDefaultPort)
            return "TCPIP" + b + "::" + bracketed(host) + "::" + deviceName + "," + std::to_string(port) +
                   "::INSTR";
        return "TCPIP" + b + "::" + bracketed(host) + "::" + deviceName + "::INSTR";
    case Interface::Usb:
        return "USB" + b + "::" + hex4(vendorId) + "::" + hex4(productId) + "::" + serial +
               (interfaceNumber >= 0 ? "::" + std::to_string(interfaceNumber) : "") + "::INSTR";
    case Interface::Gpib:
        return "GPIB" + b + "::" + std::to_string(primary) +
               (secondary >= 0 ? "::" + std::to_string(secondary) : "") + "::INSTR";
    case Interface::Asrl: return "ASRL" + (devicePath.empty() ? b : devicePath) + "::INSTR";
    }
    return {};
}

} // namespace selvane::visa
