#pragma once
// Puts a fuzzer's bytes on a local stream socket as a peer would send them and
// closes the peer's sending side, so a reader sees the bytes and then the end.

#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

// The reading end (the caller closes it), or -1. The stream stays small enough
// for the socket's buffer, so one write takes it all; `size` is cut to what was sent.
inline int SocketWithBytes(const uint8_t* data, size_t& size)
{
    int fds[2];
    if (socketpair(AF_UNIX, SOCK_STREAM, 0, fds) != 0) return -1;
    size = std::min<size_t>(size, 64 * 1024);
    const bool sent = write(fds[1], data, size) == ssize_t(size);
    close(fds[1]);
    if (!sent) {
        close(fds[0]);
        return -1;
    }
    return fds[0];
}
