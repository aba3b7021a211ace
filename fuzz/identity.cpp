// Feeds arbitrary text as the instrument's identity reply: taking the firmware
// field out and judging it may not crash or hang, whatever the reply holds.
#include "link/firmware.h"

#include <QString>
#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString reply = QString::fromLatin1(reinterpret_cast<const char*>(data), qsizetype(size));
    IsFirmwareSupported(ExtractFirmwareVersion(reply));
    IsFirmwareSupported(reply);
    return 0;
}
