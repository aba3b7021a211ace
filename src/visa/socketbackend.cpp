// TCPIP::host::port::SOCKET: a plain TCP connection.
#include "visa/resourcename.h"
#include "visa/streambackend.h"
#include "visa/tcpsocket.h"

namespace selvane::visa {

namespace {
class SocketBackend : public StreamBackend {
  public:
    using StreamBackend::StreamBackend;

    ViStatus apply(const SessionSettings& settings) override
    {
        setTcpOptions(channel(), settings.keepAlive, settings.noDelay);
        return VI_SUCCESS;
    }
};
} // namespace

std::unique_ptr<Backend> openSocketBackend(const ResourceName& name, const SessionSettings& settings,
                                           ViStatus& status)
{
    FdChannel channel;
    status = connectTcp(name.host, name.port, channel);
    if (status != VI_SUCCESS) return nullptr;
    auto backend = std::make_unique<SocketBackend>(std::move(channel));
    backend->apply(settings);
    return backend;
}

} // namespace selvane::visa
