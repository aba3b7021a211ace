// The standard calls on an open session beyond read, write and clear: status
// byte, trigger, buffers, locks, events and file transfers.
#include "visa/objecttable.h"
#include "visa/visaapi.h"
#include "visa/visaextras.h"

#include <cstdio>
#include <memory>
#include <vector>

namespace selvane::visa {

namespace {

constexpr ViUInt16 VI_TRIG_PROT_DEFAULT = 0;
constexpr size_t FileChunk = 64 * 1024;

// Runs `use` on the session when it exists and no other session holds its resource.
template <typename Use> ViStatus withSession(ViSession vi, Use&& use)
{
    const auto session = builtinObjects().session(vi);
    if (!session) return VI_ERROR_INV_OBJECT;
    if (const ViStatus status = session->checkAccess(); status != VI_SUCCESS) return status;
    return use(*session);
}

bool knownMechanism(ViUInt16 mechanism, bool allAllowed)
{
    return mechanism == VI_QUEUE || mechanism == VI_HNDLR || mechanism == VI_SUSPEND_HNDLR ||
           (allAllowed && mechanism == VI_ALL_MECH);
}

using FilePointer = std::unique_ptr<FILE, int (*)(FILE*)>;

} // namespace

ViStatus readStatusByte(ViSession vi, ViPUInt16 status)
{
    if (!status) return builtinObjects().session(vi) ? VI_ERROR_INV_PARAMETER : VI_ERROR_INV_OBJECT;
    return withSession(vi, [&](Session& session) { return session.readStatusByte(*status); });
}

ViStatus assertTrigger(ViSession vi, ViUInt16 protocol)
{
    return withSession(vi, [&](Session& session) {
        return protocol == VI_TRIG_PROT_DEFAULT ? session.trigger() : VI_ERROR_INV_PARAMETER;
    });
}

ViStatus flush(ViSession vi, ViUInt16 mask)
{
    return withSession(vi, [&](Session& session) { return session.flush(mask); });
}

// Our buffers grow as needed, so any size is accepted.
ViStatus setBuffer(ViSession vi, ViUInt16 mask, ViUInt32)
{
    return withSession(vi, [&](Session&) {
        constexpr ViUInt16 Buffers = VI_READ_BUF | VI_WRITE_BUF | VI_IO_IN_BUF | VI_IO_OUT_BUF;
        return mask == 0 || (mask & ~Buffers) != 0 ? VI_ERROR_INV_MASK : VI_SUCCESS;
    });
}

ViStatus statusDescription(ViObject vi, ViStatus status, ViChar desc[])
{
    if (!desc) return VI_ERROR_INV_PARAMETER;
    const char* text = viStatusText(status);
    copyAttributeText(text ? text : "Unknown status code.", desc);
    if (vi != VI_NULL && !builtinObjects().exists(vi)) return VI_ERROR_INV_OBJECT;
    return text ? VI_SUCCESS : VI_WARN_UNKNOWN_STATUS;
}

// Locking is the one operation a session may do on a resource another session holds.
ViStatus lock(ViSession vi, ViAccessMode lockType, ViUInt32 timeout, ViConstKeyId requestedKey,
              ViChar accessKey[])
{
    const auto session = builtinObjects().session(vi);
    if (!session) return VI_ERROR_INV_OBJECT;
    if (lockType == VI_SHARED_LOCK && !accessKey) return VI_ERROR_INV_PARAMETER;
    std::string key = lockType == VI_SHARED_LOCK && requestedKey ? requestedKey : "";
    if (key.size() >= VI_FIND_BUFLEN) return VI_ERROR_INV_ACCESS_KEY;
    const ViStatus status = session->lock(lockType, timeout, key);
    if (accessKey && status >= 0 && lockType == VI_SHARED_LOCK) copyAttributeText(key, accessKey);
    return status;
}

ViStatus unlock(ViSession vi)
{
    const auto session = builtinObjects().session(vi);
    return session ? session->unlock() : VI_ERROR_INV_OBJECT;
}

// No transport of ours delivers events to the caller yet, so none can be enabled.
ViStatus enableEvent(ViSession vi, ViEventType, ViUInt16 mechanism, ViEventFilter)
{
    if (!builtinObjects().session(vi)) return VI_ERROR_INV_OBJECT;
    return knownMechanism(mechanism, false) ? VI_ERROR_INV_EVENT : VI_ERROR_INV_MECH;
}

ViStatus disableEvent(ViSession vi, ViEventType eventType, ViUInt16 mechanism)
{
    if (!builtinObjects().session(vi)) return VI_ERROR_INV_OBJECT;
    if (!knownMechanism(mechanism, true)) return VI_ERROR_INV_MECH;
    return eventType == VI_ALL_ENABLED_EVENTS ? VI_SUCCESS_EVENT_DIS : VI_ERROR_INV_EVENT;
}

ViStatus discardEvents(ViSession vi, ViEventType eventType, ViUInt16 mechanism)
{
    if (!builtinObjects().session(vi)) return VI_ERROR_INV_OBJECT;
    if (!knownMechanism(mechanism, true)) return VI_ERROR_INV_MECH;
    return eventType == VI_ALL_ENABLED_EVENTS ? VI_SUCCESS_QUEUE_EMPTY : VI_ERROR_INV_EVENT;
}

ViStatus waitOnEvent(ViSession vi, ViEventType, ViUInt32, ViPEventType outEventType, ViPEvent outContext)
{
    if (outEventType) *outEventType = 0;
    if (outContext) *outContext = VI_NULL;
    return builtinObjects().session(vi) ? VI_ERROR_NENABLED : VI_ERROR_INV_OBJECT;
}

ViStatus gpibControlRen(ViSession vi, ViUInt16)
{
    return withSession(vi, [](Session&) { return VI_ERROR_NSUP_OPER; });
}

ViStatus readToFile(ViSession vi, ViConstString fileName, ViUInt32 count, ViPUInt32 retCount)
{
    if (retCount) *retCount = 0;
    return withSession(vi, [&](Session& session) {
        if (!fileName) return VI_ERROR_INV_PARAMETER;
        FilePointer file(std::fopen(fileName, session.fileAppend() ? "ab" : "wb"), &std::fclose);
        if (!file) return VI_ERROR_FILE_ACCESS;
        std::vector<uint8_t> buffer(std::min<size_t>(count, FileChunk));
        ViUInt32 total = 0;
        ViStatus status = VI_SUCCESS_MAX_CNT;
        while (total < count && status == VI_SUCCESS_MAX_CNT) {
            size_t got = 0;
            status = session.read(buffer.data(), std::min<size_t>(count - total, buffer.size()), got);
            if (got > 0 && std::fwrite(buffer.data(), 1, got, file.get()) != got) return VI_ERROR_FILE_IO;
            total += ViUInt32(got);
            if (retCount) *retCount = total;
        }
        return std::fflush(file.get()) == 0 ? status : VI_ERROR_FILE_IO;
    });
}

ViStatus writeFromFile(ViSession vi, ViConstString fileName, ViUInt32 count, ViPUInt32 retCount)
{
    if (retCount) *retCount = 0;
    return withSession(vi, [&](Session& session) {
        if (!fileName) return VI_ERROR_INV_PARAMETER;
        FilePointer file(std::fopen(fileName, "rb"), &std::fclose);
        if (!file) return VI_ERROR_FILE_ACCESS;
        std::vector<uint8_t> data;
        uint8_t buffer[4096];
        while (data.size() < count) {
            const size_t got =
                std::fread(buffer, 1, std::min<size_t>(sizeof buffer, count - data.size()), file.get());
            if (got == 0) break;
            data.insert(data.end(), buffer, buffer + got);
        }
        if (std::ferror(file.get())) return VI_ERROR_FILE_IO;
        size_t written = 0;
        const ViStatus status = session.write(data.data(), data.size(), written);
        if (retCount) *retCount = ViUInt32(written);
        return status;
    });
}

} // namespace selvane::visa
