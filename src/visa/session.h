#pragma once
// One open instrument session of our own layer: its resource, attributes,
// backend and the bytes received but not yet read.

#include "visa/backend.h"
#include "visa/resourcename.h"
#include "visa/visa.h"

#include <mutex>

namespace selvane::visa {

inline constexpr const char* ManufacturerName = "Selvane";
// Major version in the top twelve bits, minor in the next twelve: VISA 7.1, our own 0.1.
inline constexpr ViVersion SpecVersion = 0x00700100u;
inline constexpr ViVersion ImplementationVersion = 0x00000100u;

class Session {
  public:
    Session(ResourceName name, std::unique_ptr<Backend> backend, const SessionSettings& settings);
    ~Session();

    ViStatus read(uint8_t* buffer, size_t count, size_t& got);
    ViStatus write(const uint8_t* data, size_t size, size_t& written);
    ViStatus clear();
    ViStatus readStatusByte(uint16_t& statusByte);
    ViStatus trigger();
    // VI_READ_BUF... VI_IO_OUT_BUF_DISCARD bits; VI_ERROR_INV_MASK for others.
    ViStatus flush(uint16_t mask);
    ViStatus setAttribute(ViAttr attribute, ViAttrState value);
    ViStatus getAttribute(ViAttr attribute, void* value);

    // Locks on this session's resource, shared with the process's other sessions.
    ViStatus lock(ViAccessMode type, ViUInt32 timeoutMs, std::string& key);
    ViStatus unlock();
    // VI_ERROR_RSRC_LOCKED when another session holds the resource.
    ViStatus checkAccess();

    const ResourceName& name() const { return name_; }
    bool fileAppend() const { return fileAppend_; }

  private:
    ViStatus change(ViAttr attribute, ViAttrState value);
    // Numeric attributes; false when the attribute is text or unknown here.
    bool number(ViAttr attribute, ViAttrState& value);
    bool text(ViAttr attribute, std::string& value);
    // Asks "*STB?" on a byte stream, where 488.2 strings stand in for the protocol.
    ViStatus queryStatusByte(const Deadline& deadline, uint16_t& statusByte);

    std::mutex mutex_; // one operation at a time on the session
    ResourceName name_;
    std::string lockName_;
    std::unique_ptr<Backend> backend_;
    SessionSettings settings_;
    InputQueue queue_;
    uint64_t lastCount_ = 0;
    uint16_t ioProtocol_ = VI_PROT_NORMAL;
    uint32_t maxQueueLength_ = 50;
    bool dmaAllowed_ = false;
    bool fileAppend_ = false;
};

// VI_INTF_TCPIP and its kin.
ViUInt16 interfaceCode(Interface interface);

// Copies a string attribute into the caller's buffer of VI_FIND_BUFLEN bytes.
void copyAttributeText(const std::string& text, void* value);

} // namespace selvane::visa
