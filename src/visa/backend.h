#pragma once
// One open instrument session's transport. The session keeps the attributes
// and the input queue; the backend moves bytes.

#include "visa/messagereader.h"

#include <memory>

namespace selvane::visa {

struct ResourceName;

// A serial line's framing; the values are the VISA attribute values.
struct SerialLine {
    uint32_t baud = 9600;
    uint16_t dataBits = 8;
    uint16_t parity = 0;    // none, odd, even, mark, space
    uint16_t stopBits = 10; // 10: one, 20: two
    uint16_t flow = 0;      // 0 none, 1 XON/XOFF, 2 RTS/CTS
    uint16_t endIn = 2;     // 0 none, 2 term character
    uint16_t endOut = 0;    // 0 none, 2 term character
};

struct SessionSettings {
    uint32_t timeoutMs = 2000;
    ReadSettings read;
    bool sendEnd = true; // mark the last byte of a write as the message's end
    bool keepAlive = false;
    bool noDelay = true;
    SerialLine serial;
    uint32_t hislipMaxMessageKb = 1024; // what a HiSLIP client offers to take
};

class Backend : public MessageSource {
  public:
    // Sends one whole message, marked as ended where the protocol can.
    virtual ViStatus write(const uint8_t* data, size_t size, const Deadline& deadline, size_t& written) = 0;
    // Device clear: the device drops unfinished input and pending replies.
    virtual ViStatus clear(const Deadline& deadline) = 0;
    // Called when an attribute the transport itself uses has changed.
    virtual ViStatus apply(const SessionSettings&) { return VI_SUCCESS; }
    // The status byte through the protocol's own service; NSUP_OPER where it has none.
    virtual ViStatus readStatusByte(const Deadline&, uint16_t&) { return VI_ERROR_NSUP_OPER; }
    virtual ViStatus trigger(const Deadline&) { return VI_ERROR_NSUP_OPER; }
    // Drops what the system holds in its input or output buffer (mask: VI_IO_*_BUF_DISCARD).
    virtual void discardSystemBuffers(uint16_t) {}
    // Bytes received but not yet fetched.
    virtual size_t pending() const { return 0; }
    // A HiSLIP server's protocol version (major << 8 | minor); 0 elsewhere.
    virtual uint32_t protocolVersion() const { return 0; }
    // Whether a raw stream backend; those read and trigger through IEEE 488.2 strings.
    virtual bool isStream() const { return false; }
};

// The backend for the resource's class, connected; empty with `status` set when it fails.
std::unique_ptr<Backend> openBackend(const ResourceName& name, const SessionSettings& settings,
                                     ViStatus& status);

std::unique_ptr<Backend> openSocketBackend(const ResourceName& name, const SessionSettings& settings,
                                           ViStatus& status);
std::unique_ptr<Backend> openSerialBackend(const ResourceName& name, const SessionSettings& settings,
                                           ViStatus& status);
std::unique_ptr<Backend> openVxi11Backend(const ResourceName& name, const SessionSettings& settings,
                                          ViStatus& status);
std::unique_ptr<Backend> openHislipBackend(const ResourceName& name, const SessionSettings& settings,
                                           ViStatus& status);
std::unique_ptr<Backend> openUsbtmcBackend(const ResourceName& name, const SessionSettings& settings,
                                           ViStatus& status);

} // namespace selvane::visa
