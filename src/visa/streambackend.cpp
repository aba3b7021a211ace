#include "visa/streambackend.h"

namespace selvane::visa {

ViStatus StreamBackend::fetch(size_t, const ReadSettings& settings, const Deadline& deadline,
                              InputQueue& queue)
{
    if (channel_.available() == 0)
        if (const ViStatus status = channel_.receiveMore(deadline); status != VI_SUCCESS) return status;
    while (channel_.available() > 0) {
        const size_t end = settings.streamEndsAtTerm
                               ? scanner_.scan(channel_.data(), channel_.available(), settings.termChar)
                               : LineScanner::kNoEnd;
        const size_t count = end == LineScanner::kNoEnd ? channel_.available() : end;
        queue.push(channel_.data(), count, end != LineScanner::kNoEnd);
        channel_.consume(count);
    }
    return VI_SUCCESS;
}

ViStatus StreamBackend::write(const uint8_t* data, size_t size, const Deadline& deadline, size_t& written)
{
    return channel_.sendAll(data, size, deadline, &written);
}

// A stream has no clear signal: forget what has arrived and start a new message.
ViStatus StreamBackend::clear(const Deadline&)
{
    channel_.discardInput();
    scanner_.reset();
    return VI_SUCCESS;
}

} // namespace selvane::visa
