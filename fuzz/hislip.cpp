// Feeds arbitrary bytes as what a HiSLIP server sends: the message decoder
// reads message after message until the stream ends or breaks, and may not
// crash, hang or take a header's length on trust.
#include "socketinput.h"
#include "visa/hislipframe.h"

#include <cstddef>
#include <cstdint>

using namespace selvane::visa;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const int fd = SocketWithBytes(data, size);
    if (fd < 0) return 0;
    FdChannel channel(fd, true);
    const Deadline deadline(2000);
    hislip::Message message;
    // The first half of the messages as they come, then waiting for one kind.
    for (int n = 0; n < 8; ++n)
        if (hislip::receive(channel, deadline, message) != VI_SUCCESS) break;
    hislip::await(channel, hislip::DataEnd, deadline, message);
    return 0;
}
