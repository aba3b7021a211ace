// Feeds arbitrary bytes as what a raw socket or serial instrument sends: the
// stream backend cuts them into messages at the term character, except inside
// a "#n<length><bytes>" block, and may not crash, hang or trust the length.
// The first byte picks the size of each read, so blocks split across reads.
#include "visa/streambackend.h"

#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

using namespace selvane::visa;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0) return 0;
    const size_t chunk = 1 + data[0] % 64;
    ++data;
    --size;
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
    StreamBackend backend(FdChannel(fds[0], true));
    InputQueue queue;
    ReadSettings settings;
    settings.termCharEnabled = true;
    std::vector<uint8_t> buffer(chunk);
    size_t total = 0;
    // Every read either copies bytes or fails; a stream of n bytes ends in at most n + 1 reads.
    for (size_t reads = 0; reads <= size + 1; ++reads) {
        size_t got = 0;
        const ViStatus status =
            readMessage(backend, queue, settings, Deadline(200), buffer.data(), chunk, got);
        total += got;
        if (status < VI_SUCCESS || got == 0) break;
    }
    if (total > size) __builtin_trap();
    close(fds[1]);
    return 0;
}
