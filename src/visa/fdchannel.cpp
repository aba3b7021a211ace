#include "visa/fdchannel.h"

#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace selvane::visa {

namespace {
constexpr size_t ReceiveChunk = 65536;

// Waits until the descriptor is ready for `events`; VI_ERROR_TMO when the deadline passes first.
ViStatus waitFor(int fd, short events, const Deadline& deadline)
{
    for (;;) {
        pollfd entry{fd, events, 0};
        const int ready = ::poll(&entry, 1, deadline.pollMs());
        if (ready > 0) return VI_SUCCESS;
        if (ready == 0) return VI_ERROR_TMO;
        if (errno != EINTR) return statusFromErrno(errno);
    }
}
} // namespace

ViStatus statusFromErrno(int error)
{
    switch (error) {
    case EPIPE:
    case ECONNRESET:
    case ECONNABORTED:
    case ENOTCONN:
    case EIO:
    case EBADF: return VI_ERROR_CONN_LOST;
    case ETIMEDOUT: return VI_ERROR_TMO;
    default: return VI_ERROR_IO;
    }
}

FdChannel::FdChannel(int fd, bool socket) : fd_(fd), socket_(socket)
{
    if (fd_ >= 0) ::fcntl(fd_, F_SETFL, ::fcntl(fd_, F_GETFL) | O_NONBLOCK);
}

FdChannel::~FdChannel()
{
    close();
}

FdChannel::FdChannel(FdChannel&& other) noexcept
{
    *this = std::move(other);
}

FdChannel& FdChannel::operator=(FdChannel&& other) noexcept
{
    if (this != &other) {
        close();
        fd_ = std::exchange(other.fd_, -1);
        socket_ = other.socket_;
        buffer_ = std::move(other.buffer_);
        head_ = std::exchange(other.head_, 0);
    }
    return *this;
}

void FdChannel::close()
{
    if (fd_ >= 0) ::close(fd_);
    fd_ = -1;
    buffer_.clear();
    head_ = 0;
}

ViStatus FdChannel::sendAll(const void* data, size_t size, const Deadline& deadline, size_t* sent)
{
    const auto* bytes = static_cast<const uint8_t*>(data);
    size_t done = 0;
    ViStatus status = fd_ < 0 ? VI_ERROR_CONN_LOST : VI_SUCCESS;
    while (status == VI_SUCCESS && done < size) {
        const ssize_t n = socket_ ? ::send(fd_, bytes + done, size - done, MSG_NOSIGNAL)
                                  : ::write(fd_, bytes + done, size - done);
        if (n > 0)
            done += size_t(n);
        else if (n < 0 && (errno == EAGAIN || errno == EWOULDBLOCK))
            status = waitFor(fd_, POLLOUT, deadline);
        else if (n < 0 && errno != EINTR)
            status = statusFromErrno(errno);
    }
    if (sent) *sent = done;
    return status;
}

ViStatus FdChannel::receiveMore(const Deadline& deadline)
{
    if (fd_ < 0) return VI_ERROR_CONN_LOST;
    if (head_ >= ReceiveChunk || head_ == buffer_.size()) {
        buffer_.erase(buffer_.begin(), buffer_.begin() + std::ptrdiff_t(head_));
        head_ = 0;
    }
    for (;;) {
        const size_t old = buffer_.size();
        buffer_.resize(old + ReceiveChunk);
        const ssize_t n = ::read(fd_, buffer_.data() + old, ReceiveChunk);
        buffer_.resize(old + (n > 0 ? size_t(n) : 0));
        if (n > 0) return VI_SUCCESS;
        if (n == 0) return VI_ERROR_CONN_LOST;
        if (errno == EAGAIN || errno == EWOULDBLOCK) {
            if (const ViStatus status = waitFor(fd_, POLLIN, deadline); status != VI_SUCCESS) return status;
        } else if (errno != EINTR) {
            return statusFromErrno(errno);
        }
    }
}

ViStatus FdChannel::receiveAtLeast(size_t count, const Deadline& deadline)
{
    while (available() < count)
        if (const ViStatus status = receiveMore(deadline); status != VI_SUCCESS) return status;
    return VI_SUCCESS;
}

void FdChannel::consume(size_t count)
{
    head_ += count < available() ? count : available();
    if (head_ == buffer_.size()) {
        buffer_.clear();
        head_ = 0;
    }
}

void FdChannel::discardInput()
{
    // Bounded, so that a peer that never stops talking cannot hold us here.
    for (int round = 0; round < 256; ++round) {
        buffer_.clear();
        head_ = 0;
        if (receiveMore(Deadline(0)) != VI_SUCCESS) break;
    }
    buffer_.clear();
    head_ = 0;
}

} // namespace selvane::visa
