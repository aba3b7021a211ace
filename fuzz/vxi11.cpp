// Feeds arbitrary bytes as the replies of an ONC RPC server (the VXI-11
// transport): record marking, the reply header and the results' XDR fields.
// None may crash, hang or allocate what a length word claims before it came.
#include "visa/oncrpc.h"
#include "visa/xdr.h"

#include <sys/socket.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

using namespace selvane::visa;

namespace {

// The transaction id of the call the client sent, from the peer's side.
bool sentXid(int fd, uint32_t& xid)
{
    uint8_t call[512];
    const ssize_t got = read(fd, call, sizeof call);
    if (got < 8) return false;
    xid = readBigEndian32(call + 4);
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    int fds[2];
    if (socketpair(AF_UNIX, SOCK_STREAM, 0, fds) != 0) return 0;
    RpcClient client(FdChannel(fds[0], true));
    XdrWriter arguments;
    arguments.u32(0).string("inst0");
    std::vector<uint8_t> results;
    // A first call that finds no reply gives away the id; the fuzzer's "XID!"
    // words become the id of the next call, so replies can be ours or stale.
    client.call(0x0607AF, 1, 10, arguments, Deadline(0), results);
    uint32_t xid = 0;
    if (!sentXid(fds[1], xid)) {
        close(fds[1]);
        return 0;
    }
    std::vector<uint8_t> reply(data, data + std::min<size_t>(size, 64 * 1024));
    for (size_t i = 0; i + 4 <= reply.size(); ++i)
        if (std::memcmp(reply.data() + i, "XID!", 4) == 0) {
            std::vector<uint8_t> word;
            appendBigEndian32(word, xid + 1);
            std::memcpy(reply.data() + i, word.data(), 4);
        }
    if (write(fds[1], reply.data(), reply.size()) != ssize_t(reply.size())) {
        close(fds[1]);
        return 0;
    }
    shutdown(fds[1], SHUT_WR);
    if (client.call(0x0607AF, 1, 12, arguments, Deadline(2000), results) == VI_SUCCESS) {
        // A device_read reply: error, reason, data.
        XdrReader reader(results.data(), results.size());
        reader.u32();
        reader.u32();
        reader.opaque(results.size());
        reader.ok();
    }
    close(fds[1]);
    return 0;
}
