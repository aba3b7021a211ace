// ASRLn::INSTR (the n-th serial port, /dev/ttyS(n-1)) or ASRL/dev/path::INSTR,
// raw bytes in the framing and handshake the session's attributes give.
#include "visa/resourcename.h"
#include "visa/streambackend.h"
#include "visa/visa.h"

#include <algorithm>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

namespace selvane::visa {

namespace {

struct BaudCode {
    uint32_t rate;
    speed_t code;
};
constexpr BaudCode Bauds[] = {{300, B300},      {600, B600},       {1200, B1200},     {2400, B2400},
                              {4800, B4800},    {9600, B9600},     {19200, B19200},   {38400, B38400},
                              {57600, B57600},  {115200, B115200}, {230400, B230400}, {460800, B460800},
                              {921600, B921600}};

bool isSupportedBaud(uint32_t rate)
{
    for (const BaudCode& baud : Bauds)
        if (baud.rate == rate) return true;
    return false;
}

tcflag_t dataBitsFlag(uint16_t bits)
{
    return bits == 5 ? CS5 : bits == 6 ? CS6 : bits == 7 ? CS7 : CS8;
}

ViStatus configureLine(int fd, const SerialLine& serial)
{
    termios line{};
    if (::tcgetattr(fd, &line) != 0) return VI_ERROR_IO;
    ::cfmakeraw(&line);
    line.c_cflag |= CLOCAL | CREAD;
    line.c_cflag &= ~(CSIZE | CSTOPB | PARENB | PARODD | CMSPAR | CRTSCTS);
    line.c_iflag &= ~(IXON | IXOFF | IXANY);
    line.c_cflag |= dataBitsFlag(serial.dataBits);
    if (serial.stopBits == 20) line.c_cflag |= CSTOPB;
    if (serial.parity != 0) line.c_cflag |= PARENB;
    if (serial.parity == 1 || serial.parity == 3) line.c_cflag |= PARODD;
    if (serial.parity >= 3) line.c_cflag |= CMSPAR;
    if (serial.flow == 1) line.c_iflag |= IXON | IXOFF;
    if (serial.flow == 2) line.c_cflag |= CRTSCTS;
    for (const BaudCode& baud : Bauds)
        if (baud.rate == serial.baud) {
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
        if (!isSupportedBaud(settings.serial.baud)) return VI_ERROR_NSUP_ATTR_STATE;
        const ViStatus status = configureLine(channel().fd(), settings.serial);
        if (status == VI_SUCCESS) settings_ = settings;
        return status;
    }

    // With the term character as the end of output, a message that lacks it gets it.
    ViStatus write(const uint8_t* data, size_t size, const Deadline& deadline, size_t& written) override
    {
        const uint8_t term = settings_.read.termChar;
        if (!settings_.sendEnd || settings_.serial.endOut != 2 || (size > 0 && data[size - 1] == term))
            return StreamBackend::write(data, size, deadline, written);
        std::vector<uint8_t> message(data, data + size);
        message.push_back(term);
        const ViStatus status = StreamBackend::write(message.data(), message.size(), deadline, written);
        written = std::min(written, size);
        return status;
    }

    ViStatus clear(const Deadline& deadline) override
    {
        ::tcflush(channel().fd(), TCIOFLUSH);
        return StreamBackend::clear(deadline);
    }

    void discardSystemBuffers(uint16_t mask) override
    {
        const bool in = (mask & VI_IO_IN_BUF_DISCARD) != 0, out = (mask & VI_IO_OUT_BUF_DISCARD) != 0;
        if (in || out) ::tcflush(channel().fd(), in && out ? TCIOFLUSH : in ? TCIFLUSH : TCOFLUSH);
    }

    size_t pending() const override
    {
        int queued = 0;
        ::ioctl(channel().fd(), FIONREAD, &queued);
        return StreamBackend::pending() + size_t(std::max(queued, 0));
    }

  private:
    SessionSettings settings_;
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
