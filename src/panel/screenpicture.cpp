#include "panel/screenpicture.h"

#include "link/visablocks.h"

QImage ScreenImage(const QByteArray& bytes)
{
    if (bytes.size() != ScreenPictureSize) return {};
    return QImage::fromData(bytes, "BMP");
}

bool ReadScreenPicture(QByteArray& bytes, int tries)
{
    int tried = 0;
    bytes.clear();
    // The panel asks again while it runs; here a count of tries stands in for it.
    ReadDisplayData(bytes, [&tried, tries] { return ++tried < tries; });
    return bytes.size() == ScreenPictureSize;
}
