#pragma once
// Export of a picture to a bitmap file the user picks, shared by the windows
// that show the instrument's screen.

#include <QImage>
#include <QString>

// The save dialog's title and its filter in the classic "text|pattern" form.
QString ExportDialogTitle(int language);
QString ExportDialogFilter(int language);
// A classic "text|pattern|text|pattern" filter in the dialog's own form.
QString QtFileFilter(const QString& classicFilter);

// Writes image to path: a bitmap, or a PNG when the name ends in ".png". The
// old file stays when writing fails; the failure's text is returned, else empty.
QString WritePictureFile(const QImage& image, const QString& path);

// Asks for a name and writes the picture there. A cancelled dialog ends the
// command; a failure shows its text in a critical box. true when written.
bool ExportPicture(const QImage& image);
