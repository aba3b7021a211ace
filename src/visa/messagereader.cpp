#include "visa/messagereader.h"

#include <algorithm>
#include <cstring>

namespace selvane::visa {

void InputQueue::push(const uint8_t* data, size_t size, bool end)
{
    bytes_.insert(bytes_.end(), data, data + size);
    if (end) ends_.push_back(base_ + bytes_.size());
}

void InputQueue::clear()
{
    base_ += bytes_.size();
    bytes_.clear();
    head_ = 0;
    ends_.clear();
}

size_t InputQueue::take(uint8_t* out, size_t room, const ReadSettings& settings, Stop& stop)
{
    stop = Stop::None;
    size_t count = std::min(room, bytes_.size() - head_);
    if (!ends_.empty()) count = std::min<uint64_t>(count, ends_.front() - position());
    const uint8_t* first = bytes_.data() + head_;
    if (settings.termCharEnabled) {
        const uint8_t* term = std::find(first, first + count, settings.termChar);
        if (term != first + count) {
            count = size_t(term - first) + 1;
            stop = Stop::TermChar;
        }
    }
    if (count > 0) std::memcpy(out, first, count);
    head_ += count;
    if (!ends_.empty() && ends_.front() == position()) {
        ends_.pop_front();
        if (stop == Stop::None && !settings.suppressEnd) stop = Stop::End;
    }
    if (head_ == bytes_.size()) {
        base_ += bytes_.size();
        bytes_.clear();
        head_ = 0;
    }
    return count;
}

ViStatus readMessage(MessageSource& source, InputQueue& queue, const ReadSettings& settings,
                     const Deadline& deadline, uint8_t* buffer, size_t count, size_t& got)
{
    got = 0;
    while (got < count) {
        if (queue.empty()) {
            if (const ViStatus status = source.fetch(count - got, settings, deadline, queue); status < 0)
                return status;
            continue;
        }
        InputQueue::Stop stop;
        got += queue.take(buffer + got, count - got, settings, stop);
        if (stop == InputQueue::Stop::TermChar) return VI_SUCCESS_TERM_CHAR;
        if (stop == InputQueue::Stop::End) return VI_SUCCESS;
    }
    return VI_SUCCESS_MAX_CNT;
}

} // namespace selvane::visa
