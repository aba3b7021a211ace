#pragma once
// Finds where a message ends on a byte stream that has no END signal (raw
// socket, serial line): at the term character, except inside a definite-length
// block ("#", digit n, n length digits, the bytes) at the start of a message,
// whose bytes may hold any value.

#include <cstddef>
#include <cstdint>

namespace selvane::visa {

class LineScanner {
  public:
    static constexpr size_t kNoEnd = size_t(-1);

    // Scans on from where the last call stopped; returns the count of bytes up to
    // and including the first message end, or kNoEnd when all bytes were consumed
    // without one.
    size_t scan(const uint8_t* data, size_t size, uint8_t termChar);
    void reset() { state_ = State::MessageStart; }

  private:
    enum class State { MessageStart, Hash, LengthDigits, Block, Text };

    // True when `byte` ends the message.
    bool step(uint8_t byte, uint8_t termChar);
    bool text(uint8_t byte, uint8_t termChar);

    State state_ = State::MessageStart;
    int digitsLeft_ = 0;
    uint64_t blockLeft_ = 0;
};

} // namespace selvane::visa
