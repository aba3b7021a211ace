// Our own layer under the standard VISA names, for the shared library build;
// the linker's version script exports these ten and nothing else.
#include "visa/visaapi.h"

using selvane::visa::builtinApi;

extern "C" {

ViStatus viOpenDefaultRM(ViPSession vi)
{
    return builtinApi().openDefaultRM(vi);
}

ViStatus viFindRsrc(ViSession sesn, ViConstString expr, ViPFindList vi, ViPUInt32 retCnt, ViChar desc[])
{
    return builtinApi().findRsrc(sesn, expr, vi, retCnt, desc);
}

ViStatus viFindNext(ViFindList vi, ViChar desc[])
{
    return builtinApi().findNext(vi, desc);
}

ViStatus viOpen(ViSession sesn, ViConstRsrc name, ViAccessMode mode, ViUInt32 timeout, ViPSession vi)
{
    return builtinApi().open(sesn, name, mode, timeout, vi);
}

ViStatus viClose(ViObject vi)
{
    return builtinApi().close(vi);
}

ViStatus viRead(ViSession vi, ViPBuf buf, ViUInt32 cnt, ViPUInt32 retCnt)
{
    return builtinApi().read(vi, buf, cnt, retCnt);
}

ViStatus viWrite(ViSession vi, ViConstBuf buf, ViUInt32 cnt, ViPUInt32 retCnt)
{
    return builtinApi().write(vi, buf, cnt, retCnt);
}

ViStatus viClear(ViSession vi)
{
    return builtinApi().clear(vi);
}

ViStatus viSetAttribute(ViObject vi, ViAttr attrName, ViAttrState attrValue)
{
    return builtinApi().setAttribute(vi, attrName, attrValue);
}

ViStatus viGetAttribute(ViObject vi, ViAttr attrName, void* attrValue)
{
    return builtinApi().getAttribute(vi, attrName, attrValue);
}

} // extern "C"
