#pragma once
// The end of one I/O operation, from a VISA time-out in milliseconds
// (0: only what is already there; 0xFFFFFFFF: no end).

#include <chrono>
#include <cstdint>

namespace selvane::visa {

class Deadline {
  public:
    using Clock = std::chrono::steady_clock;

    explicit Deadline(uint32_t timeoutMs)
        : infinite_(timeoutMs == 0xFFFFFFFFu), end_(Clock::now() + std::chrono::milliseconds(timeoutMs))
    {
    }

    bool infinite() const { return infinite_; }
    bool passed() const { return !infinite_ && Clock::now() >= end_; }

    // For poll(): -1 waits forever, 0 does not wait.
    int pollMs() const
    {
        if (infinite_) return -1;
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end_ - Clock::now()).count();
        return left <= 0 ? 0 : left > 0x7FFFFFFF ? 0x7FFFFFFF : int(left);
    }

    // What is left, as a time-out to hand to a peer; 0xFFFFFFFF for no end.
    uint32_t remainingMs() const { return infinite_ ? 0xFFFFFFFFu : uint32_t(pollMs()); }

  private:
    bool infinite_;
    Clock::time_point end_;
};

} // namespace selvane::visa
