#include "visa/session.h"

#include <cstring>

namespace selvane::visa {

Session::Session(ResourceName name, std::unique_ptr<Backend> backend, const SessionSettings& settings)
    : name_(std::move(name)), backend_(std::move(backend)), settings_(settings)
{
}

ViStatus Session::read(uint8_t* buffer, size_t count, size_t& got)
{
    std::lock_guard lock(mutex_);
    return readMessage(*backend_, queue_, settings_.read, Deadline(settings_.timeoutMs), buffer, count, got);
}

ViStatus Session::write(const uint8_t* data, size_t size, size_t& written)
{
    std::lock_guard lock(mutex_);
    return backend_->write(data, size, Deadline(settings_.timeoutMs), written);
}

ViStatus Session::clear()
{
    std::lock_guard lock(mutex_);
    queue_.clear();
    return backend_->clear(Deadline(settings_.timeoutMs));
}

bool Session::has(ViAttr attribute) const
{
    switch (attribute) {
    case VI_ATTR_TMO_VALUE:
    case VI_ATTR_TERMCHAR:
    case VI_ATTR_TERMCHAR_EN:
    case VI_ATTR_RSRC_NAME:
    case VI_ATTR_RSRC_MANF_NAME: return true;
    case VI_ATTR_TCPIP_KEEPALIVE:
    case VI_ATTR_TCPIP_NODELAY: return name_.interface == Interface::Tcpip;
    case VI_ATTR_ASRL_BAUD: return name_.interface == Interface::Asrl;
    default: return false;
    }
}

// Changes one setting and lets the transport follow; a refused value leaves all as it was.
ViStatus Session::change(ViAttr attribute, ViAttrState value)
{
    const bool flag = attribute == VI_ATTR_TERMCHAR_EN || attribute == VI_ATTR_TCPIP_KEEPALIVE ||
                      attribute == VI_ATTR_TCPIP_NODELAY;
    const ViAttrState limit = flag ? 1 : attribute == VI_ATTR_TERMCHAR ? 0xFF : VI_TMO_INFINITE;
    if (value > limit) return VI_ERROR_NSUP_ATTR_STATE;
    const SessionSettings previous = settings_;
    switch (attribute) {
    case VI_ATTR_TMO_VALUE: settings_.timeoutMs = ViUInt32(value); return VI_SUCCESS;
    case VI_ATTR_TERMCHAR: settings_.read.termChar = ViUInt8(value); break;
    case VI_ATTR_TERMCHAR_EN: settings_.read.termCharEnabled = value != 0; break;
    case VI_ATTR_TCPIP_KEEPALIVE: settings_.keepAlive = value != 0; break;
    case VI_ATTR_TCPIP_NODELAY: settings_.noDelay = value != 0; break;
    case VI_ATTR_ASRL_BAUD: settings_.baud = ViUInt32(value); break;
    }
    const ViStatus status = backend_->apply(settings_);
    if (status != VI_SUCCESS) settings_ = previous;
    return status;
}

ViStatus Session::setAttribute(ViAttr attribute, ViAttrState value)
{
    std::lock_guard lock(mutex_);
    if (!has(attribute)) return VI_ERROR_NSUP_ATTR;
    if (attribute == VI_ATTR_RSRC_NAME || attribute == VI_ATTR_RSRC_MANF_NAME) return VI_ERROR_ATTR_READONLY;
    return change(attribute, value);
}

ViStatus Session::getAttribute(ViAttr attribute, void* value)
{
    std::lock_guard lock(mutex_);
    if (!has(attribute)) return VI_ERROR_NSUP_ATTR;
    switch (attribute) {
    case VI_ATTR_TMO_VALUE: *static_cast<ViUInt32*>(value) = settings_.timeoutMs; break;
    case VI_ATTR_TERMCHAR: *static_cast<ViUInt8*>(value) = settings_.read.termChar; break;
    case VI_ATTR_TERMCHAR_EN: *static_cast<ViBoolean*>(value) = settings_.read.termCharEnabled; break;
    case VI_ATTR_TCPIP_KEEPALIVE: *static_cast<ViBoolean*>(value) = settings_.keepAlive; break;
    case VI_ATTR_TCPIP_NODELAY: *static_cast<ViBoolean*>(value) = settings_.noDelay; break;
    case VI_ATTR_ASRL_BAUD: *static_cast<ViUInt32*>(value) = settings_.baud; break;
    case VI_ATTR_RSRC_NAME: copyAttributeText(name_.canonical(), value); break;
    case VI_ATTR_RSRC_MANF_NAME: copyAttributeText(kManufacturerName, value); break;
    }
    return VI_SUCCESS;
}

void copyAttributeText(const std::string& text, void* value)
{
    const size_t size = std::min<size_t>(text.size(), VI_FIND_BUFLEN - 1);
    std::memcpy(value, text.data(), size);
    static_cast<char*>(value)[size] = '\0';
}

} // namespace selvane::visa
