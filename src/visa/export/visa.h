/* Selvane's VISA library (libselvanevisa): the standard types, constants and
 * calls for message-based instruments over TCPIP (VXI-11, HiSLIP, SOCKET),
 * USBTMC and serial lines. Link with `pkg-config --libs selvanevisa`. */
#ifndef SELVANE_VISA_H
#define SELVANE_VISA_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef uint64_t ViUInt64;
typedef int64_t ViInt64;
typedef uint32_t ViUInt32;
typedef int32_t ViInt32;
typedef uint16_t ViUInt16;
typedef int16_t ViInt16;
typedef uint8_t ViUInt8;
typedef int8_t ViInt8;
typedef char ViChar;
typedef unsigned char ViByte;
typedef ViUInt16 ViBoolean;
typedef ViInt32 ViStatus;
typedef ViUInt32 ViObject;
typedef ViObject ViSession;
typedef ViObject ViFindList;
typedef ViObject ViEvent;
typedef ViUInt32 ViAttr;
typedef ViUInt32 ViAccessMode;
typedef ViUInt32 ViEventType;
typedef ViUInt32 ViEventFilter;
typedef ViUInt32 ViVersion;
typedef ViUInt64 ViAttrState;
typedef ViByte* ViPBuf;
typedef const ViByte* ViConstBuf;
typedef ViChar* ViString;
typedef const ViChar* ViConstString;
typedef ViString ViRsrc;
typedef ViConstString ViConstRsrc;
typedef ViString ViKeyId;
typedef ViConstString ViConstKeyId;
typedef ViSession* ViPSession;
typedef ViFindList* ViPFindList;
typedef ViEvent* ViPEvent;
typedef ViEventType* ViPEventType;
typedef ViUInt16* ViPUInt16;
typedef ViUInt32* ViPUInt32;

#define VI_NULL 0
#define VI_TRUE 1
#define VI_FALSE 0
#define VI_FIND_BUFLEN 256
#define VI_SPEC_VERSION 0x00700100UL

#define VI_NO_LOCK 0
#define VI_EXCLUSIVE_LOCK 1
#define VI_SHARED_LOCK 2
#define VI_LOAD_CONFIG 4
#define VI_TMO_IMMEDIATE 0L
#define VI_TMO_INFINITE 0xFFFFFFFFUL

#define VI_INTF_GPIB 1
#define VI_INTF_ASRL 4
#define VI_INTF_TCPIP 6
#define VI_INTF_USB 7
#define VI_PROT_NORMAL 1
#define VI_PROT_4882_STRS 4
#define VI_TRIG_PROT_DEFAULT 0

#define VI_READ_BUF 1
#define VI_WRITE_BUF 2
#define VI_READ_BUF_DISCARD 4
#define VI_WRITE_BUF_DISCARD 8
#define VI_IO_IN_BUF 16
#define VI_IO_OUT_BUF 32
#define VI_IO_IN_BUF_DISCARD 64
#define VI_IO_OUT_BUF_DISCARD 128

#define VI_ASRL_PAR_NONE 0
#define VI_ASRL_PAR_ODD 1
#define VI_ASRL_PAR_EVEN 2
#define VI_ASRL_PAR_MARK 3
#define VI_ASRL_PAR_SPACE 4
#define VI_ASRL_STOP_ONE 10
#define VI_ASRL_STOP_TWO 20
#define VI_ASRL_FLOW_NONE 0
#define VI_ASRL_FLOW_XON_XOFF 1
#define VI_ASRL_FLOW_RTS_CTS 2
#define VI_ASRL_END_NONE 0
#define VI_ASRL_END_TERMCHAR 2

#define VI_EVENT_IO_COMPLETION 0x3FFF2009UL
#define VI_EVENT_SERVICE_REQ 0x3FFF200BUL
#define VI_ALL_ENABLED_EVENTS 0x3FFF7FFFUL
#define VI_QUEUE 1
#define VI_HNDLR 2
#define VI_SUSPEND_HNDLR 4
#define VI_ALL_MECH 0xFFFF

#define VI_ATTR_RSRC_CLASS 0xBFFF0001UL
#define VI_ATTR_RSRC_NAME 0xBFFF0002UL
#define VI_ATTR_RSRC_IMPL_VERSION 0x3FFF0003UL
#define VI_ATTR_RSRC_LOCK_STATE 0x3FFF0004UL
#define VI_ATTR_MAX_QUEUE_LENGTH 0x3FFF0005UL
#define VI_ATTR_SEND_END_EN 0x3FFF0016UL
#define VI_ATTR_TERMCHAR 0x3FFF0018UL
#define VI_ATTR_TMO_VALUE 0x3FFF001AUL
#define VI_ATTR_IO_PROT 0x3FFF001CUL
#define VI_ATTR_DMA_ALLOW_EN 0x3FFF001EUL
#define VI_ATTR_ASRL_BAUD 0x3FFF0021UL
#define VI_ATTR_ASRL_DATA_BITS 0x3FFF0022UL
#define VI_ATTR_ASRL_PARITY 0x3FFF0023UL
#define VI_ATTR_ASRL_STOP_BITS 0x3FFF0024UL
#define VI_ATTR_ASRL_FLOW_CNTRL 0x3FFF0025UL
#define VI_ATTR_SUPPRESS_END_EN 0x3FFF0036UL
#define VI_ATTR_TERMCHAR_EN 0x3FFF0038UL
#define VI_ATTR_MANF_NAME 0xBFFF0072UL
#define VI_ATTR_MODEL_NAME 0xBFFF0077UL
#define VI_ATTR_ASRL_AVAIL_NUM 0x3FFF00ACUL
#define VI_ATTR_ASRL_END_IN 0x3FFF00B3UL
#define VI_ATTR_ASRL_END_OUT 0x3FFF00B4UL
#define VI_ATTR_MANF_ID 0x3FFF00D9UL
#define VI_ATTR_MODEL_CODE 0x3FFF00DFUL
#define VI_ATTR_INTF_INST_NAME 0xBFFF00E9UL
#define VI_ATTR_RSRC_SPEC_VERSION 0x3FFF0170UL
#define VI_ATTR_INTF_TYPE 0x3FFF0171UL
#define VI_ATTR_RSRC_MANF_NAME 0xBFFF0174UL
#define VI_ATTR_RSRC_MANF_ID 0x3FFF0175UL
#define VI_ATTR_INTF_NUM 0x3FFF0176UL
#define VI_ATTR_FILE_APPEND_EN 0x3FFF0192UL
#define VI_ATTR_TCPIP_ADDR 0xBFFF0195UL
#define VI_ATTR_TCPIP_HOSTNAME 0xBFFF0196UL
#define VI_ATTR_TCPIP_PORT 0x3FFF0197UL
#define VI_ATTR_TCPIP_DEVICE_NAME 0xBFFF0199UL
#define VI_ATTR_TCPIP_NODELAY 0x3FFF019AUL
#define VI_ATTR_TCPIP_KEEPALIVE 0x3FFF019BUL
#define VI_ATTR_4882_COMPLIANT 0x3FFF019FUL
#define VI_ATTR_USB_SERIAL_NUM 0xBFFF01A0UL
#define VI_ATTR_USB_INTFC_NUM 0x3FFF01A1UL
#define VI_ATTR_TCPIP_HISLIP_OVERLAP_EN 0x3FFF0300UL
#define VI_ATTR_TCPIP_HISLIP_VERSION 0x3FFF0301UL
#define VI_ATTR_TCPIP_HISLIP_MAX_MESSAGE_KB 0x3FFF0302UL
#define VI_ATTR_TCPIP_IS_HISLIP 0x3FFF0303UL
#define VI_ATTR_RET_COUNT_32 0x3FFF4026UL
#define VI_ATTR_RET_COUNT_64 0x3FFF4028UL
#define VI_ATTR_RET_COUNT VI_ATTR_RET_COUNT_64

#define VI_SUCCESS 0L
#define VI_SUCCESS_EVENT_EN 0x3FFF0002L
#define VI_SUCCESS_EVENT_DIS 0x3FFF0003L
#define VI_SUCCESS_QUEUE_EMPTY 0x3FFF0004L
#define VI_SUCCESS_TERM_CHAR 0x3FFF0005L
#define VI_SUCCESS_MAX_CNT 0x3FFF0006L
#define VI_WARN_NULL_OBJECT 0x3FFF0082L
#define VI_WARN_UNKNOWN_STATUS 0x3FFF0085L
#define VI_SUCCESS_NESTED_SHARED 0x3FFF0099L
#define VI_SUCCESS_NESTED_EXCLUSIVE 0x3FFF009AL
#define VI_ERROR_SYSTEM_ERROR ((ViStatus)0xBFFF0000UL)
#define VI_ERROR_INV_OBJECT ((ViStatus)0xBFFF000EUL)
#define VI_ERROR_RSRC_LOCKED ((ViStatus)0xBFFF000FUL)
#define VI_ERROR_INV_EXPR ((ViStatus)0xBFFF0010UL)
#define VI_ERROR_RSRC_NFOUND ((ViStatus)0xBFFF0011UL)
#define VI_ERROR_INV_RSRC_NAME ((ViStatus)0xBFFF0012UL)
#define VI_ERROR_INV_ACC_MODE ((ViStatus)0xBFFF0013UL)
#define VI_ERROR_TMO ((ViStatus)0xBFFF0015UL)
#define VI_ERROR_NSUP_ATTR ((ViStatus)0xBFFF001DUL)
#define VI_ERROR_NSUP_ATTR_STATE ((ViStatus)0xBFFF001EUL)
#define VI_ERROR_ATTR_READONLY ((ViStatus)0xBFFF001FUL)
#define VI_ERROR_INV_LOCK_TYPE ((ViStatus)0xBFFF0020UL)
#define VI_ERROR_INV_ACCESS_KEY ((ViStatus)0xBFFF0021UL)
#define VI_ERROR_INV_EVENT ((ViStatus)0xBFFF0026UL)
#define VI_ERROR_INV_MECH ((ViStatus)0xBFFF0027UL)
#define VI_ERROR_NENABLED ((ViStatus)0xBFFF002FUL)
#define VI_ERROR_ALLOC ((ViStatus)0xBFFF003CUL)
#define VI_ERROR_INV_MASK ((ViStatus)0xBFFF003DUL)
#define VI_ERROR_IO ((ViStatus)0xBFFF003EUL)
#define VI_ERROR_NSUP_OPER ((ViStatus)0xBFFF0067UL)
#define VI_ERROR_RSRC_BUSY ((ViStatus)0xBFFF0072UL)
#define VI_ERROR_INV_PARAMETER ((ViStatus)0xBFFF0078UL)
#define VI_ERROR_INV_SIZE ((ViStatus)0xBFFF007BUL)
#define VI_ERROR_INV_MODE ((ViStatus)0xBFFF0091UL)
#define VI_ERROR_SESN_NLOCKED ((ViStatus)0xBFFF009CUL)
#define VI_ERROR_LIBRARY_NFOUND ((ViStatus)0xBFFF009EUL)
#define VI_ERROR_FILE_ACCESS ((ViStatus)0xBFFF00A1UL)
#define VI_ERROR_FILE_IO ((ViStatus)0xBFFF00A2UL)
#define VI_ERROR_CONN_LOST ((ViStatus)0xBFFF00A6UL)

ViStatus viOpenDefaultRM(ViPSession vi);
ViStatus viFindRsrc(ViSession sesn, ViConstString expr, ViPFindList vi, ViPUInt32 retCnt, ViChar desc[]);
ViStatus viFindNext(ViFindList vi, ViChar desc[]);
ViStatus viParseRsrc(ViSession sesn, ViConstRsrc name, ViPUInt16 intfType, ViPUInt16 intfNum);
ViStatus viParseRsrcEx(ViSession sesn, ViConstRsrc name, ViPUInt16 intfType, ViPUInt16 intfNum,
                       ViChar rsrcClass[], ViChar expandedUnaliasedName[], ViChar aliasIfExists[]);
ViStatus viOpen(ViSession sesn, ViConstRsrc name, ViAccessMode mode, ViUInt32 timeout, ViPSession vi);
ViStatus viClose(ViObject vi);
ViStatus viSetAttribute(ViObject vi, ViAttr attrName, ViAttrState attrValue);
ViStatus viGetAttribute(ViObject vi, ViAttr attrName, void* attrValue);
ViStatus viStatusDesc(ViObject vi, ViStatus status, ViChar desc[]);
ViStatus viLock(ViSession vi, ViAccessMode lockType, ViUInt32 timeout, ViConstKeyId requestedKey,
                ViChar accessKey[]);
ViStatus viUnlock(ViSession vi);
ViStatus viEnableEvent(ViSession vi, ViEventType eventType, ViUInt16 mechanism, ViEventFilter context);
ViStatus viDisableEvent(ViSession vi, ViEventType eventType, ViUInt16 mechanism);
ViStatus viDiscardEvents(ViSession vi, ViEventType eventType, ViUInt16 mechanism);
ViStatus viWaitOnEvent(ViSession vi, ViEventType inEventType, ViUInt32 timeout, ViPEventType outEventType,
                       ViPEvent outContext);
ViStatus viRead(ViSession vi, ViPBuf buf, ViUInt32 cnt, ViPUInt32 retCnt);
ViStatus viReadToFile(ViSession vi, ViConstString filename, ViUInt32 cnt, ViPUInt32 retCnt);
ViStatus viWrite(ViSession vi, ViConstBuf buf, ViUInt32 cnt, ViPUInt32 retCnt);
ViStatus viWriteFromFile(ViSession vi, ViConstString filename, ViUInt32 cnt, ViPUInt32 retCnt);
ViStatus viAssertTrigger(ViSession vi, ViUInt16 protocol);
ViStatus viReadSTB(ViSession vi, ViPUInt16 status);
ViStatus viClear(ViSession vi);
ViStatus viSetBuf(ViSession vi, ViUInt16 mask, ViUInt32 size);
ViStatus viFlush(ViSession vi, ViUInt16 mask);
ViStatus viBufWrite(ViSession vi, ViConstBuf buf, ViUInt32 cnt, ViPUInt32 retCnt);
ViStatus viBufRead(ViSession vi, ViPBuf buf, ViUInt32 cnt, ViPUInt32 retCnt);
ViStatus viGpibControlREN(ViSession vi, ViUInt16 mode);

#ifdef __cplusplus
}
#endif

#endif
