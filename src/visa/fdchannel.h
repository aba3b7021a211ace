#pragma once
// A file descriptor (TCP socket, serial line) with a receive buffer, so that
// a time-out in the middle of a frame loses nothing: the bytes stay buffered
// for the next call.

#include "visa/deadline.h"
#include "visa/visastatus.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace selvane::visa {

class FdChannel {
  public:
    FdChannel() = default;
    // Takes ownership; the descriptor is made non-blocking.
    FdChannel(int fd, bool socket);
    ~FdChannel();
    FdChannel(FdChannel&& other) noexcept;
    FdChannel& operator=(FdChannel&& other) noexcept;
    FdChannel(const FdChannel&) = delete;
    FdChannel& operator=(const FdChannel&) = delete;

    int fd() const { return fd_; }
    bool isOpen() const { return fd_ >= 0; }
    void close();

    ViStatus sendAll(const void* data, size_t size, const Deadline& deadline, size_t* sent = nullptr);

    // Waits for at least one more byte and buffers all that has arrived.
    ViStatus receiveMore(const Deadline& deadline);
    // Waits until `count` bytes are buffered.
    ViStatus receiveAtLeast(size_t count, const Deadline& deadline);

    const uint8_t* data() const { return buffer_.data() + head_; }
    size_t available() const { return buffer_.size() - head_; }
    void consume(size_t count);

    // Forgets the buffer and whatever the system holds already, without waiting.
    void discardInput();

  private:
    int fd_ = -1;
    bool socket_ = false;
    std::vector<uint8_t> buffer_;
    size_t head_ = 0;
};

// The VISA status for an errno of a failed send or receive.
ViStatus statusFromErrno(int error);

} // namespace selvane::visa
