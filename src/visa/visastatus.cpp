#include "visa/visastatus.h"

namespace {

struct StatusEntry {
    ViStatus code;
    const char* name;
    const char* text;
};

constexpr StatusEntry Statuses[] = {
    {VI_SUCCESS, "VI_SUCCESS", "Operation completed successfully."},
    {VI_SUCCESS_EVENT_EN, "VI_SUCCESS_EVENT_EN", "The event was already enabled."},
    {VI_SUCCESS_EVENT_DIS, "VI_SUCCESS_EVENT_DIS", "The event was already disabled."},
    {VI_SUCCESS_QUEUE_EMPTY, "VI_SUCCESS_QUEUE_EMPTY", "The event queue was empty."},
    {VI_SUCCESS_TERM_CHAR, "VI_SUCCESS_TERM_CHAR", "The read ended at the termination character."},
    {VI_SUCCESS_MAX_CNT, "VI_SUCCESS_MAX_CNT", "The read filled the requested count."},
    {VI_WARN_NULL_OBJECT, "VI_WARN_NULL_OBJECT", "The object reference was null."},
    {VI_WARN_UNKNOWN_STATUS, "VI_WARN_UNKNOWN_STATUS", "The status code is not known."},
    {VI_SUCCESS_NESTED_SHARED, "VI_SUCCESS_NESTED_SHARED", "The session already held a shared lock."},
    {VI_SUCCESS_NESTED_EXCLUSIVE, "VI_SUCCESS_NESTED_EXCLUSIVE",
     "The session already held an exclusive lock."},
    {VI_ERROR_SYSTEM_ERROR, "VI_ERROR_SYSTEM_ERROR", "Unknown system error."},
    {VI_ERROR_INV_OBJECT, "VI_ERROR_INV_OBJECT", "The session or object reference is invalid."},
    {VI_ERROR_RSRC_LOCKED, "VI_ERROR_RSRC_LOCKED", "Another session holds a lock on the resource."},
    {VI_ERROR_INV_EXPR, "VI_ERROR_INV_EXPR", "The search expression is invalid."},
    {VI_ERROR_RSRC_NFOUND, "VI_ERROR_RSRC_NFOUND", "The resource is not present or not configured."},
    {VI_ERROR_INV_RSRC_NAME, "VI_ERROR_INV_RSRC_NAME", "The resource name is invalid."},
    {VI_ERROR_INV_ACC_MODE, "VI_ERROR_INV_ACC_MODE", "The access mode is invalid."},
    {VI_ERROR_TMO, "VI_ERROR_TMO", "The time-out expired before the operation completed."},
    {VI_ERROR_NSUP_ATTR, "VI_ERROR_NSUP_ATTR", "The attribute is not supported by this resource."},
    {VI_ERROR_NSUP_ATTR_STATE, "VI_ERROR_NSUP_ATTR_STATE", "The attribute value is not supported."},
    {VI_ERROR_ATTR_READONLY, "VI_ERROR_ATTR_READONLY", "The attribute is read-only."},
    {VI_ERROR_INV_LOCK_TYPE, "VI_ERROR_INV_LOCK_TYPE", "The lock type is invalid."},
    {VI_ERROR_INV_ACCESS_KEY, "VI_ERROR_INV_ACCESS_KEY", "The access key is invalid."},
    {VI_ERROR_INV_EVENT, "VI_ERROR_INV_EVENT", "The event type is not supported by this resource."},
    {VI_ERROR_INV_MECH, "VI_ERROR_INV_MECH", "The event mechanism is invalid."},
    {VI_ERROR_NENABLED, "VI_ERROR_NENABLED", "The session is not enabled for this event."},
    {VI_ERROR_ALLOC, "VI_ERROR_ALLOC", "Insufficient system resources."},
    {VI_ERROR_INV_MASK, "VI_ERROR_INV_MASK", "The buffer mask is invalid."},
    {VI_ERROR_IO, "VI_ERROR_IO", "An unknown I/O error occurred."},
    {VI_ERROR_NSUP_OPER, "VI_ERROR_NSUP_OPER", "The operation is not supported by this resource."},
    {VI_ERROR_RSRC_BUSY, "VI_ERROR_RSRC_BUSY", "The resource is busy."},
    {VI_ERROR_INV_PARAMETER, "VI_ERROR_INV_PARAMETER", "A parameter is invalid."},
    {VI_ERROR_INV_SIZE, "VI_ERROR_INV_SIZE", "The size is invalid."},
    {VI_ERROR_INV_MODE, "VI_ERROR_INV_MODE", "The mode is invalid."},
    {VI_ERROR_SESN_NLOCKED, "VI_ERROR_SESN_NLOCKED", "The session does not hold a lock on the resource."},
    {VI_ERROR_LIBRARY_NFOUND, "VI_ERROR_LIBRARY_NFOUND", "A library needed for the operation was not found."},
    {VI_ERROR_FILE_ACCESS, "VI_ERROR_FILE_ACCESS", "The file could not be opened."},
    {VI_ERROR_FILE_IO, "VI_ERROR_FILE_IO", "The file could not be read or written."},
    {VI_ERROR_CONN_LOST, "VI_ERROR_CONN_LOST", "The connection to the device was lost."},
};

const StatusEntry* find(ViStatus status)
{
    for (const StatusEntry& entry : Statuses)
        if (entry.code == status) return &entry;
    return nullptr;
}

} // namespace

const char* viStatusName(ViStatus status)
{
    const StatusEntry* entry = find(status);
    return entry ? entry->name : "";
}

const char* viStatusText(ViStatus status)
{
    const StatusEntry* entry = find(status);
    return entry ? entry->text : nullptr;
}
