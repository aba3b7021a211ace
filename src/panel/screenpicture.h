#pragma once
// The instrument's own screen as :DISPLAY:DATA? sends it: a bitmap file image
// of 77,878 bytes, shown from memory.

#include <QByteArray>
#include <QImage>

// The picture of a whole bitmap file image; a null image for anything else.
QImage ScreenImage(const QByteArray& bytes);

// One ReadDisplayData outside the panel: a short or missing picture is asked for
// again, `tries` times in all. true when a whole picture came.
bool ReadScreenPicture(QByteArray& bytes, int tries);
