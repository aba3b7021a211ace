// Our own implementation of the ten calls and of resource name parsing, on the
// object table and the backends.
#include "visa/findpattern.h"
#include "visa/objecttable.h"
#include "visa/resourcelist.h"
#include "visa/usbtmcdevices.h"
#include "visa/visaapi.h"
#include "visa/visaextras.h"

#include <algorithm>

namespace selvane::visa {

namespace {

ViStatus openDefaultRM(ViPSession vi)
{
    if (!vi) return VI_ERROR_INV_PARAMETER;
    *vi = builtinObjects().addManager();
    return VI_SUCCESS;
}

void setDescription(ViChar desc[], const std::string& text)
{
    if (desc) copyAttributeText(text, desc);
}

ViStatus findRsrc(ViSession sesn, ViConstString expr, ViPFindList vi, ViPUInt32 retCnt, ViChar desc[])
{
    if (vi) *vi = VI_NULL;
    if (retCnt) *retCnt = 0;
    setDescription(desc, "");
    if (!builtinObjects().isManager(sesn)) return VI_ERROR_INV_OBJECT;
    const auto pattern = FindPattern::compile(expr ? expr : "");
    if (!pattern) return VI_ERROR_INV_EXPR;
    std::vector<std::string> found = listResources(UsbmiscClassDir);
    std::erase_if(found, [&](const std::string& name) { return !pattern->matches(name); });
    if (found.empty()) return VI_ERROR_RSRC_NFOUND;
    if (retCnt) *retCnt = ViUInt32(found.size());
    setDescription(desc, found.front());
    found.erase(found.begin());
    if (vi) *vi = builtinObjects().addFindList(sesn, std::move(found));
    return VI_SUCCESS;
}

ViStatus findNext(ViFindList vi, ViChar desc[])
{
    std::string name;
    const ViStatus status = builtinObjects().nextFound(vi, name);
    setDescription(desc, name);
    return status;
}

ViStatus openResource(ViSession sesn, ViConstRsrc name, ViAccessMode mode, ViUInt32 timeout, ViPSession vi)
{
    if (vi) *vi = VI_NULL;
    if (!builtinObjects().isManager(sesn)) return VI_ERROR_INV_OBJECT;
    if (!vi) return VI_ERROR_INV_PARAMETER;
    if ((mode & ~(VI_EXCLUSIVE_LOCK | VI_LOAD_CONFIG)) != 0) return VI_ERROR_INV_ACC_MODE;
    const auto resource = parseResourceName(name ? name : "");
    if (!resource) return VI_ERROR_INV_RSRC_NAME;
    const SessionSettings settings;
    ViStatus status = VI_SUCCESS;
    auto backend = openBackend(*resource, settings, status);
    if (!backend) return status < 0 ? status : VI_ERROR_RSRC_NFOUND;
    auto session = std::make_shared<Session>(*resource, std::move(backend), settings);
    std::string key;
    if (mode & VI_EXCLUSIVE_LOCK) status = session->lock(VI_EXCLUSIVE_LOCK, timeout, key);
    if (status < 0) return status;
    *vi = builtinObjects().addSession(sesn, std::move(session));
    return VI_SUCCESS;
}

ViStatus closeObject(ViObject vi)
{
    if (vi == VI_NULL) return VI_WARN_NULL_OBJECT;
    return builtinObjects().remove(vi) ? VI_SUCCESS : VI_ERROR_INV_OBJECT;
}

ViStatus readSession(ViSession vi, ViPBuf buf, ViUInt32 cnt, ViPUInt32 retCnt)
{
    size_t got = 0;
    const auto session = builtinObjects().session(vi);
    const ViStatus status = !session                               ? VI_ERROR_INV_OBJECT
                            : session->checkAccess() != VI_SUCCESS ? VI_ERROR_RSRC_LOCKED
                            : !buf && cnt > 0                      ? VI_ERROR_INV_PARAMETER
                                                                   : session->read(buf, cnt, got);
    if (retCnt) *retCnt = ViUInt32(got);
    return status;
}

ViStatus writeSession(ViSession vi, ViConstBuf buf, ViUInt32 cnt, ViPUInt32 retCnt)
{
    size_t written = 0;
    const auto session = builtinObjects().session(vi);
    const ViStatus status = !session                               ? VI_ERROR_INV_OBJECT
                            : session->checkAccess() != VI_SUCCESS ? VI_ERROR_RSRC_LOCKED
                            : !buf && cnt > 0                      ? VI_ERROR_INV_PARAMETER
                                                                   : session->write(buf, cnt, written);
    if (retCnt) *retCnt = ViUInt32(written);
    return status;
}

ViStatus clearSession(ViSession vi)
{
    const auto session = builtinObjects().session(vi);
    if (!session) return VI_ERROR_INV_OBJECT;
    const ViStatus access = session->checkAccess();
    return access == VI_SUCCESS ? session->clear() : access;
}

// Managers and find lists have only the library's own facts.
ViStatus setAttribute(ViObject vi, ViAttr attrName, ViAttrState attrValue)
{
    if (const auto session = builtinObjects().session(vi)) return session->setAttribute(attrName, attrValue);
    if (!builtinObjects().exists(vi)) return VI_ERROR_INV_OBJECT;
    const bool known = attrName == VI_ATTR_RSRC_MANF_NAME || attrName == VI_ATTR_RSRC_SPEC_VERSION ||
                       attrName == VI_ATTR_RSRC_IMPL_VERSION || attrName == VI_ATTR_RSRC_MANF_ID;
    return known ? VI_ERROR_ATTR_READONLY : VI_ERROR_NSUP_ATTR;
}

ViStatus getAttribute(ViObject vi, ViAttr attrName, void* attrValue)
{
    if (!attrValue) return VI_ERROR_INV_PARAMETER;
    if (const auto session = builtinObjects().session(vi)) return session->getAttribute(attrName, attrValue);
    if (!builtinObjects().exists(vi)) return VI_ERROR_INV_OBJECT;
    switch (attrName) {
    case VI_ATTR_RSRC_MANF_NAME: copyAttributeText(ManufacturerName, attrValue); return VI_SUCCESS;
    case VI_ATTR_RSRC_SPEC_VERSION: *static_cast<ViVersion*>(attrValue) = SpecVersion; return VI_SUCCESS;
    case VI_ATTR_RSRC_IMPL_VERSION:
        *static_cast<ViVersion*>(attrValue) = ImplementationVersion;
        return VI_SUCCESS;
    case VI_ATTR_RSRC_MANF_ID: *static_cast<ViUInt16*>(attrValue) = 0; return VI_SUCCESS;
    default: return VI_ERROR_NSUP_ATTR;
    }
}

} // namespace

ViStatus parseResourceEx(ViSession sesn, ViConstRsrc name, ViPUInt16 intfType, ViPUInt16 intfNum,
                         ViChar rsrcClass[], ViChar expandedName[], ViChar aliasName[])
{
    setDescription(rsrcClass, "");
    setDescription(expandedName, "");
    setDescription(aliasName, "");
    if (!builtinObjects().isManager(sesn)) return VI_ERROR_INV_OBJECT;
    const auto resource = parseResourceName(name ? name : "");
    if (!resource) return VI_ERROR_INV_RSRC_NAME;
    const bool socket =
        resource->interface == Interface::Tcpip && resource->protocol == TcpipProtocol::Socket;
    if (intfType) *intfType = interfaceCode(resource->interface);
    if (intfNum) *intfNum = ViUInt16(resource->board);
    setDescription(rsrcClass, socket ? "SOCKET" : "INSTR");
    setDescription(expandedName, resource->canonical());
    return VI_SUCCESS;
}

ViStatus parseResource(ViSession sesn, ViConstRsrc name, ViPUInt16 intfType, ViPUInt16 intfNum)
{
    return parseResourceEx(sesn, name, intfType, intfNum, nullptr, nullptr, nullptr);
}

const VisaApi& builtinApi()
{
    static const VisaApi api{openDefaultRM, findRsrc,     findNext,     openResource, closeObject,
                             readSession,   writeSession, clearSession, setAttribute, getAttribute};
    return api;
}

} // namespace selvane::visa
