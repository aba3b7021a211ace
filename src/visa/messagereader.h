#pragma once
// How every backend's viRead ends: bytes arrive in pieces, some marked as the
// END of a message; a read stops at END (VI_SUCCESS), after an enabled term
// character (VI_SUCCESS_TERM_CHAR), at its byte limit (VI_SUCCESS_MAX_CNT),
// or on an error such as VI_ERROR_TMO, always reporting what it copied.
// Bytes beyond a read's limit wait in the queue for the next read.

#include "visa/deadline.h"
#include "visa/visastatus.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <vector>

namespace selvane::visa {

struct ReadSettings {
    uint8_t termChar = '\n';
    bool termCharEnabled = false;
    bool suppressEnd = false;     // END does not end a read (the term character still may)
    bool streamEndsAtTerm = true; // a byte stream marks END after the term character
};

class InputQueue {
  public:
    enum class Stop { None, End, TermChar };

    // `end`: the message ends after these bytes (an empty piece may carry it alone).
    void push(const uint8_t* data, size_t size, bool end);
    bool empty() const { return head_ == bytes_.size() && ends_.empty(); }
    void clear();

    // Copies at most `room` bytes, stopping after an END or an enabled term character.
    size_t take(uint8_t* out, size_t room, const ReadSettings& settings, Stop& stop);

  private:
    uint64_t position() const { return base_ + head_; }

    std::vector<uint8_t> bytes_;
    size_t head_ = 0;
    uint64_t base_ = 0;         // bytes dropped from the front of bytes_ so far
    std::deque<uint64_t> ends_; // absolute positions just after a message's last byte
};

// A backend's receive side: brings at least one more piece (or an END) into the
// queue, or fails. `wanted` is what the read still lacks, a hint for protocols
// that ask the device for a byte count.
class MessageSource {
  public:
    virtual ~MessageSource() = default;
    virtual ViStatus fetch(size_t wanted, const ReadSettings& settings, const Deadline& deadline,
                           InputQueue& queue) = 0;
};

ViStatus readMessage(MessageSource& source, InputQueue& queue, const ReadSettings& settings,
                     const Deadline& deadline, uint8_t* buffer, size_t count, size_t& got);

} // namespace selvane::visa
