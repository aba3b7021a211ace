// The screen picture of :DISPLAY:DATA? as the panel shows it: any bytes of the
// picture's length (the only ones it decodes) give a picture or a null image.
#include "panel/screenpicture.h"
#include "link/visablocks.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    // Short inputs are padded to a whole picture so the decoder is reached.
    QByteArray bytes(ScreenPictureSize, '\0');
    std::memcpy(bytes.data(), data, std::min<size_t>(size, size_t(ScreenPictureSize)));
    const QImage image = ScreenImage(bytes);
    if (!image.isNull() && image.width() <= 0) __builtin_trap();
    return 0;
}
