#include "visa/linescanner.h"

namespace selvane::visa {

size_t LineScanner::scan(const uint8_t* data, size_t size, uint8_t termChar)
{
    for (size_t i = 0; i < size; ++i)
        if (step(data[i], termChar)) return i + 1;
    return kNoEnd;
}

bool LineScanner::step(uint8_t byte, uint8_t termChar)
{
    const bool digit = byte >= '0' && byte <= '9';
    switch (state_) {
    case State::MessageStart:
        if (byte == '#') {
            state_ = State::Hash;
            return false;
        }
        return text(byte, termChar);
    case State::Hash:
        if (byte < '1' || byte > '9') return text(byte, termChar);
        digitsLeft_ = byte - '0';
        blockLeft_ = 0;
        state_ = State::LengthDigits;
        return false;
    case State::LengthDigits:
        if (!digit) return text(byte, termChar);
        blockLeft_ = blockLeft_ * 10 + (byte - '0');
        if (--digitsLeft_ == 0) state_ = blockLeft_ > 0 ? State::Block : State::Text;
        return false;
    case State::Block:
        if (--blockLeft_ == 0) state_ = State::Text;
        return false;
    case State::Text: return text(byte, termChar);
    }
    return false;
}

bool LineScanner::text(uint8_t byte, uint8_t termChar)
{
    state_ = byte == termChar ? State::MessageStart : State::Text;
    return byte == termChar;
}

} // namespace selvane::visa
