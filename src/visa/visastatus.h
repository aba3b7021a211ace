#pragma once
// VISA status codes, shared by every backend and by the vendor library loader.
#include <cstdint>

using ViStatus = int32_t;

constexpr ViStatus VI_SUCCESS = 0;
constexpr ViStatus VI_SUCCESS_EVENT_EN = 0x3FFF0002;
constexpr ViStatus VI_SUCCESS_EVENT_DIS = 0x3FFF0003;
constexpr ViStatus VI_SUCCESS_QUEUE_EMPTY = 0x3FFF0004;
constexpr ViStatus VI_SUCCESS_TERM_CHAR = 0x3FFF0005;
constexpr ViStatus VI_SUCCESS_MAX_CNT = 0x3FFF0006;
constexpr ViStatus VI_WARN_NULL_OBJECT = 0x3FFF0082;
constexpr ViStatus VI_WARN_UNKNOWN_STATUS = 0x3FFF0085;
constexpr ViStatus VI_SUCCESS_NESTED_SHARED = 0x3FFF0099;
constexpr ViStatus VI_SUCCESS_NESTED_EXCLUSIVE = 0x3FFF009A;
constexpr ViStatus VI_ERROR_SYSTEM_ERROR = static_cast<ViStatus>(0xBFFF0000);
constexpr ViStatus VI_ERROR_INV_OBJECT = static_cast<ViStatus>(0xBFFF000E);
constexpr ViStatus VI_ERROR_RSRC_LOCKED = static_cast<ViStatus>(0xBFFF000F);
constexpr ViStatus VI_ERROR_INV_EXPR = static_cast<ViStatus>(0xBFFF0010);
constexpr ViStatus VI_ERROR_RSRC_NFOUND = static_cast<ViStatus>(0xBFFF0011);
constexpr ViStatus VI_ERROR_INV_RSRC_NAME = static_cast<ViStatus>(0xBFFF0012);
constexpr ViStatus VI_ERROR_INV_ACC_MODE = static_cast<ViStatus>(0xBFFF0013);
constexpr ViStatus VI_ERROR_TMO = static_cast<ViStatus>(0xBFFF0015);
constexpr ViStatus VI_ERROR_NSUP_ATTR = static_cast<ViStatus>(0xBFFF001D);
constexpr ViStatus VI_ERROR_NSUP_ATTR_STATE = static_cast<ViStatus>(0xBFFF001E);
constexpr ViStatus VI_ERROR_ATTR_READONLY = static_cast<ViStatus>(0xBFFF001F);
constexpr ViStatus VI_ERROR_INV_LOCK_TYPE = static_cast<ViStatus>(0xBFFF0020);
constexpr ViStatus VI_ERROR_INV_ACCESS_KEY = static_cast<ViStatus>(0xBFFF0021);
constexpr ViStatus VI_ERROR_INV_EVENT = static_cast<ViStatus>(0xBFFF0026);
constexpr ViStatus VI_ERROR_INV_MECH = static_cast<ViStatus>(0xBFFF0027);
constexpr ViStatus VI_ERROR_NENABLED = static_cast<ViStatus>(0xBFFF002F);
constexpr ViStatus VI_ERROR_ALLOC = static_cast<ViStatus>(0xBFFF003C);
constexpr ViStatus VI_ERROR_INV_MASK = static_cast<ViStatus>(0xBFFF003D);
constexpr ViStatus VI_ERROR_IO = static_cast<ViStatus>(0xBFFF003E);
constexpr ViStatus VI_ERROR_NSUP_OPER = static_cast<ViStatus>(0xBFFF0067);
constexpr ViStatus VI_ERROR_RSRC_BUSY = static_cast<ViStatus>(0xBFFF0072);
constexpr ViStatus VI_ERROR_INV_PARAMETER = static_cast<ViStatus>(0xBFFF0078);
constexpr ViStatus VI_ERROR_INV_SIZE = static_cast<ViStatus>(0xBFFF007B);
constexpr ViStatus VI_ERROR_INV_MODE = static_cast<ViStatus>(0xBFFF0091);
constexpr ViStatus VI_ERROR_SESN_NLOCKED = static_cast<ViStatus>(0xBFFF009C);
constexpr ViStatus VI_ERROR_LIBRARY_NFOUND = static_cast<ViStatus>(0xBFFF009E);
constexpr ViStatus VI_ERROR_FILE_ACCESS = static_cast<ViStatus>(0xBFFF00A1);
constexpr ViStatus VI_ERROR_FILE_IO = static_cast<ViStatus>(0xBFFF00A2);
constexpr ViStatus VI_ERROR_CONN_LOST = static_cast<ViStatus>(0xBFFF00A6);

// The constant's own name, for diagnostics ("VI_ERROR_TMO"); "" for an unknown code.
const char* viStatusName(ViStatus status);
// A sentence on what the code means; null for an unknown code.
const char* viStatusText(ViStatus status);
