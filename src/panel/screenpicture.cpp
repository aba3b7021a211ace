#include "panel/screenpicture.h"

#include "link/usbtransport.h"

QImage ScreenImage(const QByteArray& bytes)
{
    if (bytes.size() != ScreenPictureSize) return {};
    return QImage::fromData(bytes, "BMP");
}

bool ReadScreenPicture(QByteArray& bytes, int tries)
{
    const std::function<bool()> previous = PanelRunFlagsSet;
    int tried = 0;
    // ReadDisplayData asks again while the panel runs; here a count stands in for it.
    PanelRunFlagsSet = [&tried, tries] { return ++tried < tries; };
    bytes.clear();
    ReadDisplayData(bytes);
    PanelRunFlagsSet = previous;
    return bytes.size() == ScreenPictureSize;
}
