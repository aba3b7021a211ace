#include "visa/session.h"

#include "visa/resourcelocks.h"

#include <charconv>
#include <cstring>

namespace selvane::visa {

Session::Session(ResourceName name, std::unique_ptr<Backend> backend, const SessionSettings& settings)
    : name_(std::move(name)), lockName_(name_.canonical()), backend_(std::move(backend)), settings_(settings)
{
}

Session::~Session()
{
    processLocks().releaseAll(lockName_, this);
}

ViStatus Session::checkAccess()
{
    return processLocks().allows(lockName_, this) ? VI_SUCCESS : VI_ERROR_RSRC_LOCKED;
}

ViStatus Session::read(uint8_t* buffer, size_t count, size_t& got)
{
    std::lock_guard lock(mutex_);
    const ViStatus status =
        readMessage(*backend_, queue_, settings_.read, Deadline(settings_.timeoutMs), buffer, count, got);
    lastCount_ = got;
    return status;
}

ViStatus Session::write(const uint8_t* data, size_t size, size_t& written)
{
    std::lock_guard lock(mutex_);
    const ViStatus status = backend_->write(data, size, Deadline(settings_.timeoutMs), written);
    lastCount_ = written;
    return status;
}

ViStatus Session::clear()
{
    std::lock_guard lock(mutex_);
    queue_.clear();
    return backend_->clear(Deadline(settings_.timeoutMs));
}

ViStatus Session::queryStatusByte(const Deadline& deadline, uint16_t& statusByte)
{
    static constexpr uint8_t StatusByteQuery[] = "*STB?\n";
    size_t count = 0;
    queue_.clear();
    if (const ViStatus status = backend_->write(StatusByteQuery, sizeof StatusByteQuery - 1, deadline, count);
        status < 0)
        return status;
    uint8_t reply[32];
    const ViStatus status =
        readMessage(*backend_, queue_, settings_.read, deadline, reply, sizeof reply, count);
    if (status < 0) return status;
    unsigned value = 0;
    const auto [end, error] = std::from_chars(reinterpret_cast<const char*>(reply),
                                              reinterpret_cast<const char*>(reply) + count, value);
    if (error != std::errc() || value > 0xFF) return VI_ERROR_IO;
    statusByte = uint16_t(value);
    return VI_SUCCESS;
}

ViStatus Session::readStatusByte(uint16_t& statusByte)
{
    std::lock_guard lock(mutex_);
    const Deadline deadline(settings_.timeoutMs);
    if (backend_->isStream())
        return ioProtocol_ == VI_PROT_4882_STRS ? queryStatusByte(deadline, statusByte) : VI_ERROR_NSUP_OPER;
    return backend_->readStatusByte(deadline, statusByte);
}

ViStatus Session::trigger()
{
    std::lock_guard lock(mutex_);
    const Deadline deadline(settings_.timeoutMs);
    if (!backend_->isStream()) return backend_->trigger(deadline);
    if (ioProtocol_ != VI_PROT_4882_STRS) return VI_ERROR_NSUP_OPER;
    static constexpr uint8_t TriggerCommand[] = "*TRG\n";
    size_t written = 0;
    return backend_->write(TriggerCommand, sizeof TriggerCommand - 1, deadline, written);
}

ViStatus Session::flush(uint16_t mask)
{
    constexpr uint16_t Known = 0xFF;
    if (mask == 0 || (mask & ~Known) != 0) return VI_ERROR_INV_MASK;
    std::lock_guard lock(mutex_);
    // We keep no write buffer, so writes are always flushed; received bytes can be dropped.
    if (mask & (VI_READ_BUF | VI_READ_BUF_DISCARD | VI_IO_IN_BUF_DISCARD)) queue_.clear();
    backend_->discardSystemBuffers(mask);
    return VI_SUCCESS;
}

ViStatus Session::lock(ViAccessMode type, ViUInt32 timeoutMs, std::string& key)
{
    return processLocks().lock(lockName_, this, type, timeoutMs, key);
}

ViStatus Session::unlock()
{
    return processLocks().unlock(lockName_, this);
}

void copyAttributeText(const std::string& text, void* value)
{
    const size_t size = std::min<size_t>(text.size(), VI_FIND_BUFLEN - 1);
    std::memcpy(value, text.data(), size);
    static_cast<char*>(value)[size] = '\0';
}

} // namespace selvane::visa
