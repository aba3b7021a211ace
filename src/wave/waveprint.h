#pragma once
// The printed page of a picture: a title, a legend (the date of the reading)
// and the image, placed in inches from the paper's corner; and the print image
// file that is kept beside the program.

#include <QImage>
#include <QRectF>
#include <QString>

class QPainter;

// The picture is drawn for print at this zoom and size.
inline constexpr double PrintZoom = 2.0;
inline constexpr int PrintPictureWidth = 700;
inline constexpr int PrintPictureHeight = 500;

struct PicturePage {
    QString title;
    QString legend;
    QImage image;
};

// Places on the page, in inches from the paper's top left corner.
struct PicturePageLayout {
    QRectF title{0.6, 1.0, 7.28, 0.4};
    QRectF legend{0.6, 1.5, 7.28, 0.3};
    QRectF image{0.6, 2.0, 7.28, 5.2};
    double legendPoints = 8.5;
    double titlePoints = 11;
};

// Paints the page on a painter whose device has dotsPerInch resolution and
// whose origin is the paper's corner.
void PaintPicturePage(QPainter& painter, double dotsPerInch, const PicturePage& page,
                      const PicturePageLayout& layout = {});

// Where the print image goes: "$Print.bmp" in the program's folder when that is
// writable, else in the user's data folder.
QString PrintImagePath();
// Writes the print image; a failure shows its text in a critical box and returns false.
bool SavePrintImage(const QImage& image);
