#pragma once
// Helpers of the VISA layer's tests: a TCP peer the test drives by hand, an
// environment variable set for one scope, and reading a whole reply.

#include "visa/visa.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Listens on a free loopback port; the connection a session makes waits in
// the backlog until accept(), so no thread is needed.
class TcpPeer {
  public:
    TcpPeer();
    ~TcpPeer();
    TcpPeer(const TcpPeer&) = delete;
    TcpPeer& operator=(const TcpPeer&) = delete;

    uint16_t port() const { return port_; }
    std::string socketResource() const;
    bool accept(int timeoutMs = 2000);
    void send(std::string_view bytes);
    // Exactly `count` bytes, or what came before the time ran out.
    std::string receive(size_t count, int timeoutMs = 2000);
    void closeConnection();

  private:
    int listener_ = -1;
    int connection_ = -1;
    uint16_t port_ = 0;
};

class ScopedEnvironment {
  public:
    // A null value unsets the variable for the scope.
    ScopedEnvironment(const char* name, const char* value);
    ~ScopedEnvironment();
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

  private:
    std::string name_;
    std::optional<std::string> previous_;
};

struct Reply {
    std::string bytes;
    std::vector<ViStatus> statuses; // one per viRead
};

// viRead in pieces of `chunk` bytes while they end on the count (at most 1000 pieces).
Reply readReply(ViSession session, ViUInt32 chunk);

ViStatus writeText(ViSession session, std::string_view text);

std::string textAttribute(ViObject object, ViAttr attribute);
