// The attributes of an instrument session: which resources have each, its
// type, whether it can be set and to what.
#include "visa/resourcelocks.h"
#include "visa/session.h"
#include "visa/tcpsocket.h"
#include "visa/usbtmcdevices.h"

#include <algorithm>
#include <cstdlib>

namespace selvane::visa {

namespace {

enum class Kind { U8, U16, I16, U32, U64, Boolean, Text };
enum class Scope { Any, Tcpip, TcpipInstr, SocketOrHislip, Hislip, Asrl, Usb, Instr488 };

struct AttributeRow {
    ViAttr id;
    Kind kind;
    Scope scope;
    bool writable;
};

constexpr AttributeRow Attributes[] = {
    {VI_ATTR_RSRC_CLASS, Kind::Text, Scope::Any, false},
    {VI_ATTR_RSRC_NAME, Kind::Text, Scope::Any, false},
    {VI_ATTR_RSRC_MANF_NAME, Kind::Text, Scope::Any, false},
    {VI_ATTR_RSRC_MANF_ID, Kind::U16, Scope::Any, false},
    {VI_ATTR_RSRC_IMPL_VERSION, Kind::U32, Scope::Any, false},
    {VI_ATTR_RSRC_SPEC_VERSION, Kind::U32, Scope::Any, false},
    {VI_ATTR_RSRC_LOCK_STATE, Kind::U32, Scope::Any, false},
    {VI_ATTR_INTF_TYPE, Kind::U16, Scope::Any, false},
    {VI_ATTR_INTF_NUM, Kind::U16, Scope::Any, false},
    {VI_ATTR_INTF_INST_NAME, Kind::Text, Scope::Any, false},
    {VI_ATTR_TMO_VALUE, Kind::U32, Scope::Any, true},
    {VI_ATTR_MAX_QUEUE_LENGTH, Kind::U32, Scope::Any, true},
    {VI_ATTR_TERMCHAR, Kind::U8, Scope::Any, true},
    {VI_ATTR_TERMCHAR_EN, Kind::Boolean, Scope::Any, true},
    {VI_ATTR_SEND_END_EN, Kind::Boolean, Scope::Any, true},
    {VI_ATTR_SUPPRESS_END_EN, Kind::Boolean, Scope::Any, true},
    {VI_ATTR_IO_PROT, Kind::U16, Scope::Any, true},
    {VI_ATTR_DMA_ALLOW_EN, Kind::Boolean, Scope::Any, true},
    {VI_ATTR_FILE_APPEND_EN, Kind::Boolean, Scope::Any, true},
    {VI_ATTR_RET_COUNT_32, Kind::U32, Scope::Any, false},
    {VI_ATTR_RET_COUNT_64, Kind::U64, Scope::Any, false},
    {VI_ATTR_4882_COMPLIANT, Kind::Boolean, Scope::Instr488, false},
    {VI_ATTR_TCPIP_ADDR, Kind::Text, Scope::Tcpip, false},
    {VI_ATTR_TCPIP_HOSTNAME, Kind::Text, Scope::Tcpip, false},
    {VI_ATTR_TCPIP_PORT, Kind::U16, Scope::SocketOrHislip, false},
    {VI_ATTR_TCPIP_DEVICE_NAME, Kind::Text, Scope::TcpipInstr, false},
    {VI_ATTR_TCPIP_NODELAY, Kind::Boolean, Scope::Tcpip, true},
    {VI_ATTR_TCPIP_KEEPALIVE, Kind::Boolean, Scope::Tcpip, true},
    {VI_ATTR_TCPIP_IS_HISLIP, Kind::Boolean, Scope::TcpipInstr, false},
    {VI_ATTR_TCPIP_HISLIP_OVERLAP_EN, Kind::Boolean, Scope::Hislip, true},
    {VI_ATTR_TCPIP_HISLIP_VERSION, Kind::U32, Scope::Hislip, false},
    {VI_ATTR_TCPIP_HISLIP_MAX_MESSAGE_KB, Kind::U32, Scope::Hislip, true},
    {VI_ATTR_ASRL_BAUD, Kind::U32, Scope::Asrl, true},
    {VI_ATTR_ASRL_DATA_BITS, Kind::U16, Scope::Asrl, true},
    {VI_ATTR_ASRL_PARITY, Kind::U16, Scope::Asrl, true},
    {VI_ATTR_ASRL_STOP_BITS, Kind::U16, Scope::Asrl, true},
    {VI_ATTR_ASRL_FLOW_CNTRL, Kind::U16, Scope::Asrl, true},
    {VI_ATTR_ASRL_END_IN, Kind::U16, Scope::Asrl, true},
    {VI_ATTR_ASRL_END_OUT, Kind::U16, Scope::Asrl, true},
    {VI_ATTR_ASRL_AVAIL_NUM, Kind::U32, Scope::Asrl, false},
    {VI_ATTR_MANF_ID, Kind::U16, Scope::Usb, false},
    {VI_ATTR_MODEL_CODE, Kind::U16, Scope::Usb, false},
    {VI_ATTR_MANF_NAME, Kind::Text, Scope::Usb, false},
    {VI_ATTR_MODEL_NAME, Kind::Text, Scope::Usb, false},
    {VI_ATTR_USB_SERIAL_NUM, Kind::Text, Scope::Usb, false},
    {VI_ATTR_USB_INTFC_NUM, Kind::I16, Scope::Usb, false},
};

bool inScope(Scope scope, const ResourceName& name)
{
    const bool tcpip = name.interface == Interface::Tcpip;
    switch (scope) {
    case Scope::Any: return true;
    case Scope::Tcpip: return tcpip;
    case Scope::TcpipInstr: return tcpip && name.protocol != TcpipProtocol::Socket;
    case Scope::SocketOrHislip: return tcpip && name.protocol != TcpipProtocol::Vxi11;
    case Scope::Hislip: return tcpip && name.protocol == TcpipProtocol::Hislip;
    case Scope::Asrl: return name.interface == Interface::Asrl;
    case Scope::Usb: return name.interface == Interface::Usb;
    case Scope::Instr488: return name.interface != Interface::Asrl && name.protocol != TcpipProtocol::Socket;
    }
    return false;
}

const AttributeRow* findRow(ViAttr attribute, const ResourceName& name)
{
    for (const AttributeRow& row : Attributes)
        if (row.id == attribute) return inScope(row.scope, name) ? &row : nullptr;
    return nullptr;
}

void store(Kind kind, ViAttrState value, void* out)
{
    switch (kind) {
    case Kind::U8: *static_cast<ViUInt8*>(out) = ViUInt8(value); break;
    case Kind::U16: *static_cast<ViUInt16*>(out) = ViUInt16(value); break;
    case Kind::I16: *static_cast<ViInt16*>(out) = ViInt16(value); break;
    case Kind::U32: *static_cast<ViUInt32*>(out) = ViUInt32(value); break;
    case Kind::U64: *static_cast<ViUInt64*>(out) = value; break;
    case Kind::Boolean: *static_cast<ViBoolean*>(out) = value ? VI_TRUE : VI_FALSE; break;
    case Kind::Text: break;
    }
}

// The values a writable attribute accepts (the serial rate is left to the line).
bool acceptable(ViAttr attribute, Kind kind, ViAttrState value)
{
    switch (attribute) {
    case VI_ATTR_IO_PROT: return value == VI_PROT_NORMAL || value == VI_PROT_4882_STRS;
    case VI_ATTR_MAX_QUEUE_LENGTH:
    case VI_ATTR_TCPIP_HISLIP_MAX_MESSAGE_KB: return value >= 1 && value <= 0x3FFFFF; // up to 4 GB
    case VI_ATTR_TCPIP_HISLIP_OVERLAP_EN: return value == 0; // we always run synchronized
    case VI_ATTR_ASRL_DATA_BITS: return value >= 5 && value <= 8;
    case VI_ATTR_ASRL_PARITY: return value <= 4;
    case VI_ATTR_ASRL_STOP_BITS: return value == 10 || value == 20;
    case VI_ATTR_ASRL_FLOW_CNTRL: return value <= 2;
    case VI_ATTR_ASRL_END_IN:
    case VI_ATTR_ASRL_END_OUT: return value == 0 || value == 2;
    }
    switch (kind) {
    case Kind::U8: return value <= 0xFF;
    case Kind::U16: return value <= 0xFFFF;
    case Kind::U32: return value <= 0xFFFFFFFFu;
    case Kind::Boolean: return value <= 1;
    default: return false;
    }
}

// SELVANE_VISA_TIMEOUT_MS caps every time-out a program asks for, so a bench
// (or a test) with a dead instrument need not wait out a program's long one.
ViUInt32 cappedTimeout(ViUInt32 wanted)
{
    const char* text = std::getenv("SELVANE_VISA_TIMEOUT_MS");
    if (!text || !*text) return wanted;
    char* end = nullptr;
    const unsigned long long cap = std::strtoull(text, &end, 10);
    if (*end != '\0') return wanted;
    return ViUInt32(std::min<unsigned long long>(wanted, cap));
}

} // namespace

ViUInt16 interfaceCode(Interface interface)
{
    switch (interface) {
    case Interface::Tcpip: return VI_INTF_TCPIP;
    case Interface::Usb: return VI_INTF_USB;
    case Interface::Gpib: return VI_INTF_GPIB;
    case Interface::Asrl: return VI_INTF_ASRL;
    }
    return 0;
}

bool Session::number(ViAttr attribute, ViAttrState& value)
{
    const ReadSettings& read = settings_.read;
    const SerialLine& line = settings_.serial;
    switch (attribute) {
    case VI_ATTR_RSRC_MANF_ID: value = 0; break;
    case VI_ATTR_RSRC_IMPL_VERSION: value = ImplementationVersion; break;
    case VI_ATTR_RSRC_SPEC_VERSION: value = SpecVersion; break;
    case VI_ATTR_RSRC_LOCK_STATE: value = processLocks().state(lockName_); break;
    case VI_ATTR_INTF_TYPE: value = interfaceCode(name_.interface); break;
    case VI_ATTR_INTF_NUM: value = name_.board; break;
    case VI_ATTR_TMO_VALUE: value = settings_.timeoutMs; break;
    case VI_ATTR_MAX_QUEUE_LENGTH: value = maxQueueLength_; break;
    case VI_ATTR_TERMCHAR: value = read.termChar; break;
    case VI_ATTR_TERMCHAR_EN: value = read.termCharEnabled; break;
    case VI_ATTR_SEND_END_EN: value = settings_.sendEnd; break;
    case VI_ATTR_SUPPRESS_END_EN: value = read.suppressEnd; break;
    case VI_ATTR_IO_PROT: value = ioProtocol_; break;
    case VI_ATTR_DMA_ALLOW_EN: value = dmaAllowed_; break;
    case VI_ATTR_FILE_APPEND_EN: value = fileAppend_; break;
    case VI_ATTR_RET_COUNT_32:
    case VI_ATTR_RET_COUNT_64: value = lastCount_; break;
    case VI_ATTR_4882_COMPLIANT: value = true; break;
    case VI_ATTR_TCPIP_PORT: value = name_.port; break;
    case VI_ATTR_TCPIP_NODELAY: value = settings_.noDelay; break;
    case VI_ATTR_TCPIP_KEEPALIVE: value = settings_.keepAlive; break;
    case VI_ATTR_TCPIP_IS_HISLIP: value = name_.protocol == TcpipProtocol::Hislip; break;
    case VI_ATTR_TCPIP_HISLIP_OVERLAP_EN: value = false; break;
    // ViVersion: major in the top twelve bits, minor in the next twelve.
    case VI_ATTR_TCPIP_HISLIP_VERSION:
        value = (backend_->protocolVersion() >> 8) << 20 | (backend_->protocolVersion() & 0xFF) << 8;
        break;
    case VI_ATTR_TCPIP_HISLIP_MAX_MESSAGE_KB: value = settings_.hislipMaxMessageKb; break;
    case VI_ATTR_ASRL_BAUD: value = line.baud; break;
    case VI_ATTR_ASRL_DATA_BITS: value = line.dataBits; break;
    case VI_ATTR_ASRL_PARITY: value = line.parity; break;
    case VI_ATTR_ASRL_STOP_BITS: value = line.stopBits; break;
    case VI_ATTR_ASRL_FLOW_CNTRL: value = line.flow; break;
    case VI_ATTR_ASRL_END_IN: value = line.endIn; break;
    case VI_ATTR_ASRL_END_OUT: value = line.endOut; break;
    case VI_ATTR_ASRL_AVAIL_NUM: value = backend_->pending(); break;
    case VI_ATTR_MANF_ID: value = name_.vendorId; break;
    case VI_ATTR_MODEL_CODE: value = name_.productId; break;
    case VI_ATTR_USB_INTFC_NUM: value = ViAttrState(std::max(name_.interfaceNumber, 0)); break;
    default: return false;
    }
    return true;
}

bool Session::text(ViAttr attribute, std::string& value)
{
    const bool socket = name_.protocol == TcpipProtocol::Socket && name_.interface == Interface::Tcpip;
    switch (attribute) {
    case VI_ATTR_RSRC_CLASS: value = socket ? "SOCKET" : "INSTR"; return true;
    case VI_ATTR_RSRC_NAME: value = name_.canonical(); return true;
    case VI_ATTR_RSRC_MANF_NAME: value = ManufacturerName; return true;
    case VI_ATTR_INTF_INST_NAME: value = name_.canonical(); return true;
    case VI_ATTR_TCPIP_ADDR: value = numericAddress(name_.host); return true;
    case VI_ATTR_TCPIP_HOSTNAME: value = name_.host; return true;
    case VI_ATTR_TCPIP_DEVICE_NAME: value = name_.deviceName; return true;
    case VI_ATTR_USB_SERIAL_NUM: value = name_.serial; return true;
    case VI_ATTR_MANF_NAME:
    case VI_ATTR_MODEL_NAME: {
        const std::vector<UsbtmcDevice> devices = listUsbtmcDevices();
        const UsbtmcDevice* device = findUsbtmcDevice(devices, name_);
        value = !device ? "" : attribute == VI_ATTR_MANF_NAME ? device->manufacturer : device->product;
        return true;
    }
    default: return false;
    }
}

// Changes one setting and lets the transport follow; a refused value leaves all as it was.
ViStatus Session::change(ViAttr attribute, ViAttrState value)
{
    const SessionSettings previous = settings_;
    const bool on = value != 0;
    SerialLine& line = settings_.serial;
    switch (attribute) {
    case VI_ATTR_TMO_VALUE: settings_.timeoutMs = cappedTimeout(ViUInt32(value)); return VI_SUCCESS;
    case VI_ATTR_MAX_QUEUE_LENGTH: maxQueueLength_ = ViUInt32(value); return VI_SUCCESS;
    case VI_ATTR_IO_PROT: ioProtocol_ = ViUInt16(value); return VI_SUCCESS;
    case VI_ATTR_DMA_ALLOW_EN: dmaAllowed_ = on; return VI_SUCCESS;
    case VI_ATTR_FILE_APPEND_EN: fileAppend_ = on; return VI_SUCCESS;
    case VI_ATTR_TCPIP_HISLIP_OVERLAP_EN: return VI_SUCCESS;
    case VI_ATTR_TCPIP_HISLIP_MAX_MESSAGE_KB: settings_.hislipMaxMessageKb = ViUInt32(value); break;
    case VI_ATTR_SUPPRESS_END_EN: settings_.read.suppressEnd = on; return VI_SUCCESS;
    case VI_ATTR_TERMCHAR: settings_.read.termChar = ViUInt8(value); break;
    case VI_ATTR_TERMCHAR_EN: settings_.read.termCharEnabled = on; break;
    case VI_ATTR_SEND_END_EN: settings_.sendEnd = on; break;
    case VI_ATTR_TCPIP_KEEPALIVE: settings_.keepAlive = on; break;
    case VI_ATTR_TCPIP_NODELAY: settings_.noDelay = on; break;
    case VI_ATTR_ASRL_BAUD: line.baud = ViUInt32(value); break;
    case VI_ATTR_ASRL_DATA_BITS: line.dataBits = ViUInt16(value); break;
    case VI_ATTR_ASRL_PARITY: line.parity = ViUInt16(value); break;
    case VI_ATTR_ASRL_STOP_BITS: line.stopBits = ViUInt16(value); break;
    case VI_ATTR_ASRL_FLOW_CNTRL: line.flow = ViUInt16(value); break;
    case VI_ATTR_ASRL_END_IN: line.endIn = ViUInt16(value); break;
    case VI_ATTR_ASRL_END_OUT: line.endOut = ViUInt16(value); break;
    }
    if (name_.interface == Interface::Asrl) settings_.read.streamEndsAtTerm = line.endIn != 0;
    const ViStatus status = backend_->apply(settings_);
    if (status != VI_SUCCESS) settings_ = previous;
    return status;
}

ViStatus Session::setAttribute(ViAttr attribute, ViAttrState value)
{
    std::lock_guard lock(mutex_);
    const AttributeRow* row = findRow(attribute, name_);
    if (!row) return VI_ERROR_NSUP_ATTR;
    if (!row->writable) return VI_ERROR_ATTR_READONLY;
    if (!acceptable(attribute, row->kind, value)) return VI_ERROR_NSUP_ATTR_STATE;
    return change(attribute, value);
}

ViStatus Session::getAttribute(ViAttr attribute, void* value)
{
    std::lock_guard lock(mutex_);
    const AttributeRow* row = findRow(attribute, name_);
    if (!row) return VI_ERROR_NSUP_ATTR;
    if (row->kind == Kind::Text) {
        std::string content;
        text(attribute, content);
        copyAttributeText(content, value);
    } else {
        ViAttrState number = 0;
        this->number(attribute, number);
        store(row->kind, number, value);
    }
    return VI_SUCCESS;
}

} // namespace selvane::visa
