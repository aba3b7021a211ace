// The standard VISA entry points of the program. Each resource manager is
// opened on the implementation in force at that moment, and every handle
// handed out is our own, mapped to the implementation's handle, so our layer
// and a vendor library can serve side by side without their numbers meeting.
#include "visa/handletable.h"
#include "visa/vendorlibrary.h"
#include "visa/visaconfig.h"

#include <optional>

namespace selvane::visa {

namespace {

struct Route {
    const VisaApi* api;
    ViObject target;
};

HandleTable<Route>& routes()
{
    static HandleTable<Route> table;
    return table;
}

// Runs `call` with the route of `handle`; VI_ERROR_INV_OBJECT for an unknown handle.
template <typename Call> ViStatus forward(ViObject handle, Call&& call)
{
    std::optional<Route> route;
    routes().visit(handle, [&](const Route& found) { route = found; });
    return route ? call(*route) : VI_ERROR_INV_OBJECT;
}

// A new object made from `manager`'s implementation gets its own handle on success.
ViStatus adopt(ViStatus status, const Route& manager, ViObject managerHandle, ViObject made, ViObject* out)
{
    if (out)
        *out = status >= VI_SUCCESS && made != VI_NULL ? routes().add(managerHandle, {manager.api, made})
                                                       : VI_NULL;
    return status;
}

} // namespace

} // namespace selvane::visa

using namespace selvane::visa;

extern "C" {

ViStatus viOpenDefaultRM(ViPSession vi)
{
    if (!vi) return VI_ERROR_INV_PARAMETER;
    *vi = VI_NULL;
    const Implementation implementation = currentImplementation();
    if (!implementation.api) return VI_ERROR_LIBRARY_NFOUND;
    ViSession target = VI_NULL;
    const ViStatus status = implementation.api->openDefaultRM(&target);
    if (status >= VI_SUCCESS) *vi = routes().add(VI_NULL, {implementation.api, target});
    return status;
}

ViStatus viFindRsrc(ViSession sesn, ViConstString expr, ViPFindList vi, ViPUInt32 retCnt, ViChar desc[])
{
    return forward(sesn, [&](const Route& route) {
        ViFindList list = VI_NULL;
        const ViStatus status = route.api->findRsrc(route.target, expr, vi ? &list : nullptr, retCnt, desc);
        return adopt(status, route, sesn, list, vi);
    });
}

ViStatus viFindNext(ViFindList vi, ViChar desc[])
{
    return forward(vi, [&](const Route& route) { return route.api->findNext(route.target, desc); });
}

ViStatus viOpen(ViSession sesn, ViConstRsrc name, ViAccessMode mode, ViUInt32 timeout, ViPSession vi)
{
    return forward(sesn, [&](const Route& route) {
        ViSession session = VI_NULL;
        const ViStatus status = route.api->open(route.target, name, mode, timeout, vi ? &session : nullptr);
        return adopt(status, route, sesn, session, vi);
    });
}

ViStatus viClose(ViObject vi)
{
    if (vi == VI_NULL) return VI_WARN_NULL_OBJECT;
    return forward(vi, [&](const Route& route) {
        const ViStatus status = route.api->close(route.target);
        routes().remove(vi);
        return status;
    });
}

ViStatus viRead(ViSession vi, ViPBuf buf, ViUInt32 cnt, ViPUInt32 retCnt)
{
    if (retCnt) *retCnt = 0;
    return forward(vi, [&](const Route& route) { return route.api->read(route.target, buf, cnt, retCnt); });
}

ViStatus viWrite(ViSession vi, ViConstBuf buf, ViUInt32 cnt, ViPUInt32 retCnt)
{
    if (retCnt) *retCnt = 0;
    return forward(vi, [&](const Route& route) { return route.api->write(route.target, buf, cnt, retCnt); });
}

ViStatus viClear(ViSession vi)
{
    return forward(vi, [&](const Route& route) { return route.api->clear(route.target); });
}

ViStatus viSetAttribute(ViObject vi, ViAttr attrName, ViAttrState attrValue)
{
    return forward(
        vi, [&](const Route& route) { return route.api->setAttribute(route.target, attrName, attrValue); });
}

ViStatus viGetAttribute(ViObject vi, ViAttr attrName, void* attrValue)
{
    return forward(
        vi, [&](const Route& route) { return route.api->getAttribute(route.target, attrName, attrValue); });
}

} // extern "C"

std::string selvaneVisaImplementation()
{
    const Implementation implementation = currentImplementation();
    return implementation.api ? implementation.name : std::string();
}
