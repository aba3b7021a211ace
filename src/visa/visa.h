#pragma once
// The VISA calls the program makes, with the standard types, attribute ids and
// C linkage, so that a vendor library and our own layer are interchangeable.

#include "visa/visastatus.h"

#include <cstdint>

using ViUInt64 = uint64_t;
using ViUInt32 = uint32_t;
using ViUInt16 = uint16_t;
using ViUInt8 = uint8_t;
using ViInt32 = int32_t;
using ViInt16 = int16_t;
using ViBoolean = ViUInt16;
using ViChar = char;
using ViByte = unsigned char;
using ViPBuf = ViByte*;
using ViConstBuf = const ViByte*;
using ViString = ViChar*;
using ViConstString = const ViChar*;
using ViRsrc = ViString;
using ViConstRsrc = ViConstString;
using ViObject = ViUInt32;
using ViSession = ViObject;
using ViFindList = ViObject;
using ViAttr = ViUInt32;
using ViAccessMode = ViUInt32;
using ViAttrState = ViUInt64;
using ViPSession = ViSession*;
using ViPFindList = ViFindList*;
using ViPUInt32 = ViUInt32*;
using ViPAttrState = void*;
using ViPUInt16 = ViUInt16*;
using ViEventType = ViUInt32;
using ViPEventType = ViEventType*;
using ViEvent = ViObject;
using ViPEvent = ViEvent*;
using ViEventFilter = ViUInt32;
using ViKeyId = ViString;
using ViConstKeyId = ViConstString;
using ViVersion = ViUInt32;

constexpr ViObject VI_NULL = 0;
constexpr ViBoolean VI_TRUE = 1;
constexpr ViBoolean VI_FALSE = 0;
constexpr ViAccessMode VI_NO_LOCK = 0;
constexpr ViAccessMode VI_EXCLUSIVE_LOCK = 1;
constexpr ViAccessMode VI_SHARED_LOCK = 2;
constexpr ViAccessMode VI_LOAD_CONFIG = 4;
constexpr ViUInt32 VI_TMO_IMMEDIATE = 0;
constexpr ViUInt32 VI_TMO_INFINITE = 0xFFFFFFFFu;
// Size of the description buffers of viFindRsrc and viFindNext, and of string attributes.
constexpr int VI_FIND_BUFLEN = 256;

constexpr ViAttr VI_ATTR_RSRC_CLASS = 0xBFFF0001u;
constexpr ViAttr VI_ATTR_RSRC_NAME = 0xBFFF0002u;
constexpr ViAttr VI_ATTR_RSRC_IMPL_VERSION = 0x3FFF0003u;
constexpr ViAttr VI_ATTR_RSRC_LOCK_STATE = 0x3FFF0004u;
constexpr ViAttr VI_ATTR_MAX_QUEUE_LENGTH = 0x3FFF0005u;
constexpr ViAttr VI_ATTR_SEND_END_EN = 0x3FFF0016u;
constexpr ViAttr VI_ATTR_TERMCHAR = 0x3FFF0018u;
constexpr ViAttr VI_ATTR_TMO_VALUE = 0x3FFF001Au;
constexpr ViAttr VI_ATTR_IO_PROT = 0x3FFF001Cu;
constexpr ViAttr VI_ATTR_DMA_ALLOW_EN = 0x3FFF001Eu;
constexpr ViAttr VI_ATTR_ASRL_BAUD = 0x3FFF0021u;
constexpr ViAttr VI_ATTR_ASRL_DATA_BITS = 0x3FFF0022u;
constexpr ViAttr VI_ATTR_ASRL_PARITY = 0x3FFF0023u;
constexpr ViAttr VI_ATTR_ASRL_STOP_BITS = 0x3FFF0024u;
constexpr ViAttr VI_ATTR_ASRL_FLOW_CNTRL = 0x3FFF0025u;
constexpr ViAttr VI_ATTR_SUPPRESS_END_EN = 0x3FFF0036u;
constexpr ViAttr VI_ATTR_TERMCHAR_EN = 0x3FFF0038u;
constexpr ViAttr VI_ATTR_MANF_NAME = 0xBFFF0072u;
constexpr ViAttr VI_ATTR_MODEL_NAME = 0xBFFF0077u;
constexpr ViAttr VI_ATTR_ASRL_AVAIL_NUM = 0x3FFF00ACu;
constexpr ViAttr VI_ATTR_ASRL_END_IN = 0x3FFF00B3u;
constexpr ViAttr VI_ATTR_ASRL_END_OUT = 0x3FFF00B4u;
constexpr ViAttr VI_ATTR_MANF_ID = 0x3FFF00D9u;
constexpr ViAttr VI_ATTR_MODEL_CODE = 0x3FFF00DFu;
constexpr ViAttr VI_ATTR_INTF_INST_NAME = 0xBFFF00E9u;
constexpr ViAttr VI_ATTR_RSRC_SPEC_VERSION = 0x3FFF0170u;
constexpr ViAttr VI_ATTR_INTF_TYPE = 0x3FFF0171u;
constexpr ViAttr VI_ATTR_RSRC_MANF_NAME = 0xBFFF0174u;
constexpr ViAttr VI_ATTR_RSRC_MANF_ID = 0x3FFF0175u;
constexpr ViAttr VI_ATTR_INTF_NUM = 0x3FFF0176u;
constexpr ViAttr VI_ATTR_FILE_APPEND_EN = 0x3FFF0192u;
constexpr ViAttr VI_ATTR_TCPIP_ADDR = 0xBFFF0195u;
constexpr ViAttr VI_ATTR_TCPIP_HOSTNAME = 0xBFFF0196u;
constexpr ViAttr VI_ATTR_TCPIP_PORT = 0x3FFF0197u;
constexpr ViAttr VI_ATTR_TCPIP_DEVICE_NAME = 0xBFFF0199u;
constexpr ViAttr VI_ATTR_TCPIP_NODELAY = 0x3FFF019Au;
constexpr ViAttr VI_ATTR_TCPIP_KEEPALIVE = 0x3FFF019Bu;
constexpr ViAttr VI_ATTR_4882_COMPLIANT = 0x3FFF019Fu;
constexpr ViAttr VI_ATTR_USB_SERIAL_NUM = 0xBFFF01A0u;
constexpr ViAttr VI_ATTR_USB_INTFC_NUM = 0x3FFF01A1u;
constexpr ViAttr VI_ATTR_TCPIP_HISLIP_OVERLAP_EN = 0x3FFF0300u;
constexpr ViAttr VI_ATTR_TCPIP_HISLIP_VERSION = 0x3FFF0301u;
constexpr ViAttr VI_ATTR_TCPIP_HISLIP_MAX_MESSAGE_KB = 0x3FFF0302u;
constexpr ViAttr VI_ATTR_TCPIP_IS_HISLIP = 0x3FFF0303u;
constexpr ViAttr VI_ATTR_RET_COUNT_32 = 0x3FFF4026u;
constexpr ViAttr VI_ATTR_RET_COUNT_64 = 0x3FFF4028u;

constexpr ViUInt16 VI_INTF_GPIB = 1;
constexpr ViUInt16 VI_INTF_ASRL = 4;
constexpr ViUInt16 VI_INTF_TCPIP = 6;
constexpr ViUInt16 VI_INTF_USB = 7;
constexpr ViUInt16 VI_PROT_NORMAL = 1;
constexpr ViUInt16 VI_PROT_4882_STRS = 4;

constexpr ViUInt16 VI_READ_BUF = 1;
constexpr ViUInt16 VI_WRITE_BUF = 2;
constexpr ViUInt16 VI_READ_BUF_DISCARD = 4;
constexpr ViUInt16 VI_WRITE_BUF_DISCARD = 8;
constexpr ViUInt16 VI_IO_IN_BUF = 16;
constexpr ViUInt16 VI_IO_OUT_BUF = 32;
constexpr ViUInt16 VI_IO_IN_BUF_DISCARD = 64;
constexpr ViUInt16 VI_IO_OUT_BUF_DISCARD = 128;

constexpr ViEventType VI_EVENT_IO_COMPLETION = 0x3FFF2009u;
constexpr ViEventType VI_EVENT_SERVICE_REQ = 0x3FFF200Bu;
constexpr ViEventType VI_ALL_ENABLED_EVENTS = 0x3FFF7FFFu;
constexpr ViUInt16 VI_QUEUE = 1;
constexpr ViUInt16 VI_HNDLR = 2;
constexpr ViUInt16 VI_SUSPEND_HNDLR = 4;
constexpr ViUInt16 VI_ALL_MECH = 0xFFFF;

extern "C" {
ViStatus viOpenDefaultRM(ViPSession vi);
ViStatus viFindRsrc(ViSession sesn, ViConstString expr, ViPFindList vi, ViPUInt32 retCnt, ViChar desc[]);
ViStatus viFindNext(ViFindList vi, ViChar desc[]);
ViStatus viOpen(ViSession sesn, ViConstRsrc name, ViAccessMode mode, ViUInt32 timeout, ViPSession vi);
ViStatus viClose(ViObject vi);
ViStatus viRead(ViSession vi, ViPBuf buf, ViUInt32 cnt, ViPUInt32 retCnt);
ViStatus viWrite(ViSession vi, ViConstBuf buf, ViUInt32 cnt, ViPUInt32 retCnt);
ViStatus viClear(ViSession vi);
ViStatus viSetAttribute(ViObject vi, ViAttr attrName, ViAttrState attrValue);
ViStatus viGetAttribute(ViObject vi, ViAttr attrName, void* attrValue);
}
