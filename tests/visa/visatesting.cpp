#include "visatesting.h"

#include <arpa/inet.h>
#include <cstdlib>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

TcpPeer::TcpPeer()
{
    listener_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    if (::bind(listener_, reinterpret_cast<sockaddr*>(&address), length) == 0 &&
        ::listen(listener_, 4) == 0 &&
        ::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &length) == 0)
        port_ = ntohs(address.sin_port);
}

TcpPeer::~TcpPeer()
{
    closeConnection();
    ::close(listener_);
}

std::string TcpPeer::socketResource() const
{
    return "TCPIP0::127.0.0.1::" + std::to_string(port_) + "::SOCKET";
}

bool TcpPeer::accept(int timeoutMs)
{
    pollfd entry{listener_, POLLIN, 0};
    if (::poll(&entry, 1, timeoutMs) != 1) return false;
    connection_ = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    return connection_ >= 0;
}

void TcpPeer::send(std::string_view bytes)
{
    size_t done = 0;
    while (connection_ >= 0 && done < bytes.size()) {
        const ssize_t n = ::send(connection_, bytes.data() + done, bytes.size() - done, MSG_NOSIGNAL);
        if (n <= 0) return;
        done += size_t(n);
    }
}

std::string TcpPeer::receive(size_t count, int timeoutMs)
{
    std::string bytes;
    while (connection_ >= 0 && bytes.size() < count) {
        pollfd entry{connection_, POLLIN, 0};
        if (::poll(&entry, 1, timeoutMs) != 1) break;
        char buffer[4096];
        const ssize_t n = ::recv(connection_, buffer, std::min(sizeof buffer, count - bytes.size()), 0);
        if (n <= 0) break;
        bytes.append(buffer, size_t(n));
    }
    return bytes;
}

void TcpPeer::closeConnection()
{
    if (connection_ >= 0) ::close(connection_);
    connection_ = -1;
}

ScopedEnvironment::ScopedEnvironment(const char* name, const char* value) : name_(name)
{
    if (const char* old = std::getenv(name)) previous_ = old;
    if (value)
        ::setenv(name, value, 1);
    else
        ::unsetenv(name);
}

ScopedEnvironment::~ScopedEnvironment()
{
    if (previous_)
        ::setenv(name_.c_str(), previous_->c_str(), 1);
    else
        ::unsetenv(name_.c_str());
}

Reply readReply(ViSession session, ViUInt32 chunk)
{
    Reply reply;
    std::vector<ViByte> buffer(chunk);
    for (int piece = 0; piece < 1000; ++piece) {
        ViUInt32 count = 0;
        const ViStatus status = viRead(session, buffer.data(), chunk, &count);
        reply.bytes.append(reinterpret_cast<const char*>(buffer.data()), count);
        reply.statuses.push_back(status);
        if (status != VI_SUCCESS_MAX_CNT) break;
    }
    return reply;
}

ViStatus writeText(ViSession session, std::string_view text)
{
    ViUInt32 written = 0;
    return viWrite(session, reinterpret_cast<const ViByte*>(text.data()), ViUInt32(text.size()), &written);
}

std::string textAttribute(ViObject object, ViAttr attribute)
{
    char text[VI_FIND_BUFLEN] = "";
    viGetAttribute(object, attribute, text);
    return text;
}

namespace {
// Every test of this program uses our own layer unless it chooses otherwise.
class BuiltinByDefault : public ::testing::Environment {
  public:
    void SetUp() override { ::setenv("SELVANE_VISA", "builtin", 1); }
};
[[maybe_unused]] ::testing::Environment* const kBuiltinByDefault =
    ::testing::AddGlobalTestEnvironment(new BuiltinByDefault);
} // namespace
