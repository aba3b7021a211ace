// Feeds arbitrary bytes as a record file, then plays and draws what was loaded:
// nothing may crash, hang or read past an array, whatever the header promises.
#include "stored/rcdfile.h"
#include "stored/recordplay.h"
#include "stored/recordplaydraw.h"
#include "stored/recordslot.h"
#include "wave/recordingsurface.h"
#include "wave/wavecanvas.h"

#include <QByteArray>
#include <cstddef>
#include <cstdint>

namespace {

// The first input byte steers: bit 0 puts a valid model and magic in place so
// the parse is reached; the rest makes the file longer than the bytes read.
QByteArray recordBytes(const uint8_t* data, size_t size, uint8_t mode)
{
    QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    if ((mode & 1) && bytes.size() >= 24) {
        bytes[0] = char(0xBA);
        bytes[1] = char(0xBA);
        bytes.replace(4, 8, QByteArray("KV7204B\0", 8));
    }
    return bytes;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1) return 0;
    const uint8_t mode = data[0];
    const QByteArray bytes = recordBytes(data + 1, size - 1, mode);
    const qint64 length = bytes.size() + qint64(mode >> 1) * 20000;
    RecordSlot slot;
    if (LoadRecordBytes(bytes, length, slot) != RecordLoad::Loaded) return 0;
    RecordingSurface surface;
    RecordReplayStart(slot);
    for (int tick = 0; tick < 3; ++tick) {
        DrawRecordFrame(WaveCanvas(surface, 1.0), slot);
        surface.reset();
        RecordReplayTick(slot);
    }
    RecordGoToEnd(slot);
    DrawRecordTraces(WaveCanvas(surface, 1.0), slot);
    return 0;
}
