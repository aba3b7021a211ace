#pragma once
// The ten calls as a table of function pointers: our own layer fills one, a
// vendor library's exported functions another; the front end forwards to either.

#include "visa/visa.h"

namespace selvane::visa {

struct VisaApi {
    ViStatus (*openDefaultRM)(ViPSession vi);
    ViStatus (*findRsrc)(ViSession sesn, ViConstString expr, ViPFindList vi, ViPUInt32 retCnt, ViChar desc[]);
    ViStatus (*findNext)(ViFindList vi, ViChar desc[]);
    ViStatus (*open)(ViSession sesn, ViConstRsrc name, ViAccessMode mode, ViUInt32 timeout, ViPSession vi);
    ViStatus (*close)(ViObject vi);
    ViStatus (*read)(ViSession vi, ViPBuf buf, ViUInt32 cnt, ViPUInt32 retCnt);
    ViStatus (*write)(ViSession vi, ViConstBuf buf, ViUInt32 cnt, ViPUInt32 retCnt);
    ViStatus (*clear)(ViSession vi);
    ViStatus (*setAttribute)(ViObject vi, ViAttr attrName, ViAttrState attrValue);
    ViStatus (*getAttribute)(ViObject vi, ViAttr attrName, void* attrValue);
};

// Our own implementation.
const VisaApi& builtinApi();

} // namespace selvane::visa
