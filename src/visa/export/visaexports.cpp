// Our own layer under the standard VISA names, for the shared library build;
// the linker's version script exports these and nothing else.
#include "visa/visaapi.h"
#include "visa/visaextras.h"

using selvane::visa::builtinApi;
namespace layer = selvane::visa;

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

ViStatus viParseRsrc(ViSession sesn, ViConstRsrc name, ViPUInt16 intfType, ViPUInt16 intfNum)
{
    return layer::parseResource(sesn, name, intfType, intfNum);
}

ViStatus viParseRsrcEx(ViSession sesn, ViConstRsrc name, ViPUInt16 intfType, ViPUInt16 intfNum,
                       ViChar rsrcClass[], ViChar expandedName[], ViChar aliasName[])
{
    return layer::parseResourceEx(sesn, name, intfType, intfNum, rsrcClass, expandedName, aliasName);
}

ViStatus viReadSTB(ViSession vi, ViPUInt16 status)
{
    return layer::readStatusByte(vi, status);
}

ViStatus viAssertTrigger(ViSession vi, ViUInt16 protocol)
{
    return layer::assertTrigger(vi, protocol);
}

ViStatus viFlush(ViSession vi, ViUInt16 mask)
{
    return layer::flush(vi, mask);
}

ViStatus viSetBuf(ViSession vi, ViUInt16 mask, ViUInt32 size)
{
    return layer::setBuffer(vi, mask, size);
}

ViStatus viStatusDesc(ViObject vi, ViStatus status, ViChar desc[])
{
    return layer::statusDescription(vi, status, desc);
}

ViStatus viLock(ViSession vi, ViAccessMode lockType, ViUInt32 timeout, ViConstKeyId requestedKey,
                ViChar accessKey[])
{
    return layer::lock(vi, lockType, timeout, requestedKey, accessKey);
}

ViStatus viUnlock(ViSession vi)
{
    return layer::unlock(vi);
}

ViStatus viEnableEvent(ViSession vi, ViEventType eventType, ViUInt16 mechanism, ViEventFilter context)
{
    return layer::enableEvent(vi, eventType, mechanism, context);
}

ViStatus viDisableEvent(ViSession vi, ViEventType eventType, ViUInt16 mechanism)
{
    return layer::disableEvent(vi, eventType, mechanism);
}

ViStatus viDiscardEvents(ViSession vi, ViEventType eventType, ViUInt16 mechanism)
{
    return layer::discardEvents(vi, eventType, mechanism);
}

ViStatus viWaitOnEvent(ViSession vi, ViEventType inEventType, ViUInt32 timeout, ViPEventType outEventType,
                       ViPEvent outContext)
{
    return layer::waitOnEvent(vi, inEventType, timeout, outEventType, outContext);
}

ViStatus viGpibControlREN(ViSession vi, ViUInt16 mode)
{
    return layer::gpibControlRen(vi, mode);
}

ViStatus viReadToFile(ViSession vi, ViConstString fileName, ViUInt32 count, ViPUInt32 retCount)
{
    return layer::readToFile(vi, fileName, count, retCount);
}

ViStatus viWriteFromFile(ViSession vi, ViConstString fileName, ViUInt32 count, ViPUInt32 retCount)
{
    return layer::writeFromFile(vi, fileName, count, retCount);
}

// We keep no formatted I/O buffer of our own: these are the plain read and write.
ViStatus viBufRead(ViSession vi, ViPBuf buf, ViUInt32 cnt, ViPUInt32 retCnt)
{
    return builtinApi().read(vi, buf, cnt, retCnt);
}

ViStatus viBufWrite(ViSession vi, ViConstBuf buf, ViUInt32 cnt, ViPUInt32 retCnt)
{
    return builtinApi().write(vi, buf, cnt, retCnt);
}

} // extern "C"
