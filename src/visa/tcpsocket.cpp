#include "visa/tcpsocket.h"

#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace selvane::visa {

namespace {

// Connects one address without blocking past the deadline; -1 on failure.
int connectAddress(const addrinfo& address, const Deadline& deadline)
{
    const int fd =
        ::socket(address.ai_family, address.ai_socktype | SOCK_NONBLOCK | SOCK_CLOEXEC, address.ai_protocol);
    if (fd < 0) return -1;
    if (::connect(fd, address.ai_addr, address.ai_addrlen) == 0) return fd;
    if (errno == EINPROGRESS) {
        pollfd entry{fd, POLLOUT, 0};
        int error = 0;
        socklen_t length = sizeof error;
        if (::poll(&entry, 1, deadline.pollMs()) == 1 &&
            ::getsockopt(fd, SOL_SOCKET, SO_ERROR, &error, &length) == 0 && error == 0)
            return fd;
    }
    ::close(fd);
    return -1;
}

} // namespace

ViStatus connectTcp(const std::string& host, uint16_t port, FdChannel& channel)
{
    addrinfo hints{};
    hints.ai_family = AF_UNSPEC;
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (::getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &found) != 0)
        return VI_ERROR_RSRC_NFOUND;
    std::unique_ptr<addrinfo, decltype(&::freeaddrinfo)> list(found, &::freeaddrinfo);
    const Deadline deadline(ConnectTimeoutMs);
    for (const addrinfo* address = found; address; address = address->ai_next) {
        const int fd = connectAddress(*address, deadline);
        if (fd >= 0) {
            channel = FdChannel(fd, true);
            return VI_SUCCESS;
        }
    }
    return VI_ERROR_RSRC_NFOUND;
}

void setTcpOptions(const FdChannel& channel, bool keepAlive, bool noDelay)
{
    const int keep = keepAlive ? 1 : 0;
    const int nodelay = noDelay ? 1 : 0;
    ::setsockopt(channel.fd(), SOL_SOCKET, SO_KEEPALIVE, &keep, sizeof keep);
    ::setsockopt(channel.fd(), IPPROTO_TCP, TCP_NODELAY, &nodelay, sizeof nodelay);
}

std::string numericAddress(const std::string& host)
{
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (::getaddrinfo(host.c_str(), nullptr, &hints, &found) != 0 || !found) return host;
    char text[NI_MAXHOST];
    const bool named =
        ::getnameinfo(found->ai_addr, found->ai_addrlen, text, sizeof text, nullptr, 0, NI_NUMERICHOST) == 0;
    ::freeaddrinfo(found);
    return named ? std::string(text) : host;
}

} // namespace selvane::visa
