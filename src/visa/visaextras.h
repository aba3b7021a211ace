#pragma once
// The rest of the standard calls that message-based clients make, beyond the
// ten of VisaApi, in our own layer. The shared library exports them under
// their standard names.

#include "visa/visa.h"

namespace selvane::visa {

ViStatus parseResource(ViSession sesn, ViConstRsrc name, ViPUInt16 intfType, ViPUInt16 intfNum);
ViStatus parseResourceEx(ViSession sesn, ViConstRsrc name, ViPUInt16 intfType, ViPUInt16 intfNum,
                         ViChar rsrcClass[], ViChar expandedName[], ViChar aliasName[]);
ViStatus readStatusByte(ViSession vi, ViPUInt16 status);
ViStatus assertTrigger(ViSession vi, ViUInt16 protocol);
ViStatus flush(ViSession vi, ViUInt16 mask);
ViStatus setBuffer(ViSession vi, ViUInt16 mask, ViUInt32 size);
ViStatus statusDescription(ViObject vi, ViStatus status, ViChar desc[]);
ViStatus lock(ViSession vi, ViAccessMode lockType, ViUInt32 timeout, ViConstKeyId requestedKey,
              ViChar accessKey[]);
ViStatus unlock(ViSession vi);
ViStatus enableEvent(ViSession vi, ViEventType eventType, ViUInt16 mechanism, ViEventFilter context);
ViStatus disableEvent(ViSession vi, ViEventType eventType, ViUInt16 mechanism);
ViStatus discardEvents(ViSession vi, ViEventType eventType, ViUInt16 mechanism);
ViStatus waitOnEvent(ViSession vi, ViEventType inEventType, ViUInt32 timeout, ViPEventType outEventType,
                     ViPEvent outContext);
ViStatus gpibControlRen(ViSession vi, ViUInt16 mode);
ViStatus readToFile(ViSession vi, ViConstString fileName, ViUInt32 count, ViPUInt32 retCount);
ViStatus writeFromFile(ViSession vi, ViConstString fileName, ViUInt32 count, ViPUInt32 retCount);

} // namespace selvane::visa
