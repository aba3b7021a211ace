#pragma once
// One open instrument session's transport. The session keeps the attributes
// and the input queue; the backend moves bytes.

#include "visa/messagereader.h"

#include <memory>

namespace selvane::visa {

struct ResourceName;

struct SessionSettings {
    uint32_t timeoutMs = 2000;
    ReadSettings read;
    bool keepAlive = false;
    bool noDelay = true;
    uint32_t baud = 9600;
};

class Backend : public MessageSource {
  public:
    // Sends one whole message, marked as ended where the protocol can.
    virtual ViStatus write(const uint8_t* data, size_t size, const Deadline& deadline, size_t& written) = 0;
    // Device clear: the device drops unfinished input and pending replies.
    virtual ViStatus clear(const Deadline& deadline) = 0;
    // Called when an attribute the transport itself uses has changed.
    virtual ViStatus apply(const SessionSettings&) { return VI_SUCCESS; }
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
