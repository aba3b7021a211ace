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

constexpr ViObject VI_NULL = 0;
constexpr ViBoolean VI_TRUE = 1;
constexpr ViBoolean VI_FALSE = 0;
constexpr ViAccessMode VI_NO_LOCK = 0;
constexpr ViAccessMode VI_EXCLUSIVE_LOCK = 1;
constexpr ViAccessMode VI_LOAD_CONFIG = 4;
constexpr ViUInt32 VI_TMO_IMMEDIATE = 0;
constexpr ViUInt32 VI_TMO_INFINITE = 0xFFFFFFFFu;
// Size of the description buffers of viFindRsrc and viFindNext, and of string attributes.
constexpr int VI_FIND_BUFLEN = 256;

constexpr ViAttr VI_ATTR_RSRC_NAME = 0xBFFF0002u;
constexpr ViAttr VI_ATTR_TERMCHAR = 0x3FFF0018u;
constexpr ViAttr VI_ATTR_TMO_VALUE = 0x3FFF001Au;
constexpr ViAttr VI_ATTR_ASRL_BAUD = 0x3FFF0021u;
constexpr ViAttr VI_ATTR_TERMCHAR_EN = 0x3FFF0038u;
constexpr ViAttr VI_ATTR_RSRC_MANF_NAME = 0xBFFF0174u;
constexpr ViAttr VI_ATTR_TCPIP_NODELAY = 0x3FFF019Au;
constexpr ViAttr VI_ATTR_TCPIP_KEEPALIVE = 0x3FFF019Bu;

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
