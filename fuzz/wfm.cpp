// Feeds arbitrary bytes as a waveform file, then shows and saves what loaded:
// no file may crash or hang the reader, the zoom, the drawing or the CSV.
#include "stored/memorysteps.h"
#include "stored/memoryviewdraw.h"
#include "stored/memorywavecsv.h"
#include "stored/wfmfile.h"
#include "wave/recordingsurface.h"

#include <QByteArray>
#include <cstddef>
#include <cstdint>

namespace {

// A valid magic and model first, so most inputs reach the layouts; the input
// then overwrites the header from offset 24 on. Short inputs keep a small file.
QByteArray fileOf(const uint8_t* data, size_t size)
{
    QByteArray bytes(24, '\0');
    bytes[0] = char(0xA5);
    bytes[1] = char(0xA5);
    bytes.replace(4, 7, "KV7204B");
    bytes.append(reinterpret_cast<const char*>(data), qsizetype(size));
    return bytes;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    MemoryWaveSlot slot;
    int code = 0;
    if (!LoadMemoryWaveBytes(fileOf(data, size), slot, code).accepted) return 0;
    for (int target = 0; target <= StepTimeB; ++target)
        StepMemoryValue(slot, target, size % 2 ? 1 : -1, code);
    ComputeMemoryWindows(slot);
    MemoryWaveScreen screen;
    RefreshMemoryChannels(slot, screen);
    RecordingSurface surface;
    DrawMemoryWave(surface, 1.0, slot, screen);
    // The CSV of a huge count is millions of rows; a small one shows every path.
    if (slot.SampleCountA <= 4096) MemoryWaveCsv(slot);
    return 0;
}
