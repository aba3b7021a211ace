// Feeds arbitrary bytes as what a HiSLIP server sends: the message decoder
// reads message after message until the stream ends or breaks, and may not
// crash, hang or take a header's length on trust.
#include "visa/hislipframe.h"

#include <sys/socket.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>

using namespace selvane::visa;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    int fds[2];
    if (socketpair(AF_UNIX, SOCK_STREAM, 0, fds) != 0) return 0;
    // The stream stays small enough for the socket's buffer, so one write takes it all.
    size = std::min<size_t>(size, 64 * 1024);
    if (write(fds[1], data, size) != ssize_t(size)) {
        close(fds[0]);
        close(fds[1]);
        return 0;
    }
    shutdown(fds[1], SHUT_WR);
    FdChannel channel(fds[0], true);
    const Deadline deadline(2000);
    hislip::Message message;
    // The first half of the messages as they come, then waiting for one kind.
    for (int n = 0; n < 8; ++n)
        if (hislip::receive(channel, deadline, message) != VI_SUCCESS) break;
    hislip::await(channel, hislip::DataEnd, deadline, message);
    close(fds[1]);
    return 0;
}
