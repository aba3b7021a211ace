#include "visa/visastatus.h"

const char* viStatusName(ViStatus status)
{
    switch (status) {
    case VI_SUCCESS: return "VI_SUCCESS";
    case VI_SUCCESS_TERM_CHAR: return "VI_SUCCESS_TERM_CHAR";
    case VI_SUCCESS_MAX_CNT: return "VI_SUCCESS_MAX_CNT";
    case VI_WARN_NULL_OBJECT: return "VI_WARN_NULL_OBJECT";
    case VI_ERROR_SYSTEM_ERROR: return "VI_ERROR_SYSTEM_ERROR";
    case VI_ERROR_INV_OBJECT: return "VI_ERROR_INV_OBJECT";
    case VI_ERROR_RSRC_LOCKED: return "VI_ERROR_RSRC_LOCKED";
    case VI_ERROR_INV_EXPR: return "VI_ERROR_INV_EXPR";
    case VI_ERROR_RSRC_NFOUND: return "VI_ERROR_RSRC_NFOUND";
    case VI_ERROR_INV_RSRC_NAME: return "VI_ERROR_INV_RSRC_NAME";
    case VI_ERROR_INV_ACC_MODE: return "VI_ERROR_INV_ACC_MODE";
    case VI_ERROR_TMO: return "VI_ERROR_TMO";
    case VI_ERROR_NSUP_ATTR: return "VI_ERROR_NSUP_ATTR";
    case VI_ERROR_NSUP_ATTR_STATE: return "VI_ERROR_NSUP_ATTR_STATE";
    case VI_ERROR_ATTR_READONLY: return "VI_ERROR_ATTR_READONLY";
    case VI_ERROR_ALLOC: return "VI_ERROR_ALLOC";
    case VI_ERROR_IO: return "VI_ERROR_IO";
    case VI_ERROR_NSUP_OPER: return "VI_ERROR_NSUP_OPER";
    case VI_ERROR_RSRC_BUSY: return "VI_ERROR_RSRC_BUSY";
    case VI_ERROR_INV_PARAMETER: return "VI_ERROR_INV_PARAMETER";
    case VI_ERROR_LIBRARY_NFOUND: return "VI_ERROR_LIBRARY_NFOUND";
    case VI_ERROR_CONN_LOST: return "VI_ERROR_CONN_LOST";
    default: return "";
    }
}
