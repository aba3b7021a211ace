// ASRLn::INSTR (the n-th serial port, /dev/ttyS(n-1)) or ASRL/dev/path::INSTR,
// raw 8N1 without handshake.
#include "visa/resourcename.h"
#include "visa/streambackend.h"

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace selvane::visa {

namespace {

struct BaudCode {
    uint32_t rate;
    speed_t code;
};
constexpr BaudCode kBauds[] = {{300, B300},      {600, B600},       {1200, B1200},     {2400, B2400},
                               {4800, B4800},    {9600, B9600},     {19200, B19200},   {38400, B38400},
                               {57600, B57600},  {115200, B115200}, {230400, B230400}, {460800, B460800},
                               {921600, B921600}};

bool isSupportedBaud(uint32_t rate)
{
    for (const BaudCode& baud : kBauds)
        if (baud.rate == rate) return true;
    return false;
}

ViStatus configureLine(int fd, uint32_t rate)
{
    termios line{};
    if (::tcgetattr(fd, &line) != 0) return VI_ERROR_IO;
    ::cfmakeraw(&line);
    line.c_cflag |= CLOCAL | CREAD;
    line.c_cflag &= ~(CSTOPB | PARENB | CRTSCTS);
    for (const BaudCode& baud : kBauds)
        if (baud.rate == rate) {
            ::cfsetispeed(&line, baud.code);
            ::cfsetospeed(&line, baud.code);
        }
    return ::tcsetattr(fd, TCSANOW, &line) == 0 ? VI_SUCCESS : VI_ERROR_IO;
}

class SerialBackend : public StreamBackend {
  public:
    using StreamBackend::StreamBackend;

    ViStatus apply(const SessionSettings& settings) override
    {
        if (!isSupportedBaud(settings.baud)) return VI_ERROR_NSUP_ATTR_STATE;
        return configureLine(channel().fd(), settings.baud);
    }

    ViStatus clear(const Deadline& deadline) override
    {
        ::tcflush(channel().fd(), TCIOFLUSH);
        return StreamBackend::clear(deadline);
    }
};

std::string devicePath(const ResourceName& name)
{
    if (!name.devicePath.empty()) return name.devicePath;
    return name.board == 0 ? std::string() : "/dev/ttyS" + std::to_string(name.board - 1);
}

} // namespace

std::unique_ptr<Backend> openSerialBackend(const ResourceName& name, const SessionSettings& settings,
                                           ViStatus& status)
{
    const std::string path = devicePath(name);
    const int fd = path.empty() ? -1 : ::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0 || !::isatty(fd)) {
        if (fd >= 0) ::close(fd);
        status = VI_ERROR_RSRC_NFOUND;
        return nullptr;
    }
    auto backend = std::make_unique<SerialBackend>(FdChannel(fd, false));
    status = backend->apply(settings);
    return status == VI_SUCCESS ? std::move(backend) : nullptr;
}

} // namespace selvane::visa
