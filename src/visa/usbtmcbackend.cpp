// USB::vid::pid::serial::INSTR through the Linux usbtmc driver: one write()
// is one message with EOM, one read() one transfer whose EOM the driver
// reports through MSG_IN_ATTR; time-out and clear are ioctls.
#include "visa/backend.h"
#include "visa/fdchannel.h"
#include "visa/usbtmcdevices.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <linux/usb/tmc.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace selvane::visa {

namespace {

constexpr uint32_t DriverMinimumTimeoutMs = 100;
constexpr size_t MaxTransfer = 1u << 20;

class UsbtmcBackend : public Backend {
  public:
    explicit UsbtmcBackend(int fd) : fd_(fd) {}
    ~UsbtmcBackend() override { ::close(fd_); }

    ViStatus write(const uint8_t* data, size_t size, const Deadline& deadline, size_t& written) override;
    ViStatus fetch(size_t wanted, const ReadSettings& settings, const Deadline& deadline,
                   InputQueue& queue) override;
    ViStatus clear(const Deadline&) override
    {
        return ::ioctl(fd_, USBTMC_IOCTL_CLEAR) == 0 ? VI_SUCCESS : VI_ERROR_IO;
    }
    ViStatus apply(const SessionSettings& settings) override;
    ViStatus readStatusByte(const Deadline&, uint16_t& statusByte) override
    {
        unsigned char value = 0;
        if (::ioctl(fd_, USBTMC488_IOCTL_READ_STB, &value) != 0) return statusFromErrno(errno);
        statusByte = value;
        return VI_SUCCESS;
    }
    ViStatus trigger(const Deadline&) override
    {
        return ::ioctl(fd_, USBTMC488_IOCTL_TRIGGER) == 0 ? VI_SUCCESS : statusFromErrno(errno);
    }

  private:
    // The driver's time-out is per transfer; give each transfer what is left of the call's.
    void setTimeout(const Deadline& deadline)
    {
        uint32_t ms = std::max(deadline.remainingMs(), DriverMinimumTimeoutMs);
        ::ioctl(fd_, USBTMC_IOCTL_SET_TIMEOUT, &ms);
    }

    int fd_;
};

ViStatus UsbtmcBackend::write(const uint8_t* data, size_t size, const Deadline& deadline, size_t& written)
{
    setTimeout(deadline);
    ssize_t n;
    do
        n = ::write(fd_, data, size);
    while (n < 0 && errno == EINTR);
    written = n > 0 ? size_t(n) : 0;
    return n < 0 ? statusFromErrno(errno) : VI_SUCCESS;
}

ViStatus UsbtmcBackend::fetch(size_t wanted, const ReadSettings&, const Deadline& deadline, InputQueue& queue)
{
    std::vector<uint8_t> buffer(std::clamp<size_t>(wanted, 1, MaxTransfer));
    setTimeout(deadline);
    ssize_t n;
    do
        n = ::read(fd_, buffer.data(), buffer.size());
    while (n < 0 && errno == EINTR);
    if (n < 0) return statusFromErrno(errno);
    uint8_t attributes = 0;
    // Drivers without the ioctl end every read at EOM, so a short transfer is the end.
    const bool end = ::ioctl(fd_, USBTMC_IOCTL_MSG_IN_ATTR, &attributes) == 0 ? (attributes & 1) != 0
                                                                              : size_t(n) < buffer.size();
    queue.push(buffer.data(), size_t(n), end);
    return VI_SUCCESS;
}

ViStatus UsbtmcBackend::apply(const SessionSettings& settings)
{
    // Devices without term character support refuse this; the session finds the character itself.
    usbtmc_termchar term{settings.read.termChar, settings.read.termCharEnabled ? uint8_t(1) : uint8_t(0)};
    ::ioctl(fd_, USBTMC_IOCTL_CONFIG_TERMCHAR, &term);
    return VI_SUCCESS;
}

} // namespace

std::unique_ptr<Backend> openUsbtmcBackend(const ResourceName& name, const SessionSettings& settings,
                                           ViStatus& status)
{
    const std::vector<UsbtmcDevice> devices = listUsbtmcDevices();
    const UsbtmcDevice* device = findUsbtmcDevice(devices, name);
    const int fd = device ? ::open(("/dev/" + device->node).c_str(), O_RDWR | O_CLOEXEC) : -1;
    if (fd < 0) {
        status = device && (errno == EACCES || errno == EBUSY) ? VI_ERROR_RSRC_BUSY : VI_ERROR_RSRC_NFOUND;
        return nullptr;
    }
    auto backend = std::make_unique<UsbtmcBackend>(fd);
    status = backend->apply(settings);
    return backend;
}

} // namespace selvane::visa
