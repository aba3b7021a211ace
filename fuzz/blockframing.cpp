// Feeds arbitrary bytes as what a raw socket or serial instrument sends: the
// stream backend cuts them into messages at the term character, except inside
// a "#n<length><bytes>" block, and may not crash, hang or trust the length.
// The first byte picks the size of each read, so blocks split across reads.
#include "socketinput.h"
#include "visa/streambackend.h"

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
    const int fd = SocketWithBytes(data, size);
    if (fd < 0) return 0;
    StreamBackend backend(FdChannel(fd, true));
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
    return 0;
}
