#include "wave/qimagesurface.h"

#include <gtest/gtest.h>

namespace {

TEST(QImageSurface, PaintsWholePixelsInTheForeColour)
{
    QImageSurface s(QSize(40, 30));
    s.setBackColor(Qt::white);
    s.setForeColor(Qt::red);
    s.clear();
    s.setPixel(QPointF(10.4, 20.6));
    s.line(QPointF(2, 2), QPointF(8, 2));
    s.lineTo(QPointF(8, 6));
    const QImage& image = s.image();
    EXPECT_EQ(image.pixelColor(10, 21), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(11, 21), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(5, 2), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(8, 4), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(5, 4), QColor(Qt::white));
}

TEST(QImageSurface, OpaqueTextFillsItsCellTransparentTextDoesNot)
{
    QImageSurface opaque(QSize(60, 20)), clear(QSize(60, 20));
    for (QImageSurface* s : {&opaque, &clear}) {
        s->setBackColor(Qt::white);
        s->clear();
        s->setBackColor(Qt::blue);
        s->setForeColor(Qt::black);
    }
    opaque.text(QPointF(2, 2), QStringLiteral("T"), true);
    clear.text(QPointF(2, 2), QStringLiteral("T"), false);
    const auto count = [](const QImage& image, QColor colour) {
        int n = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                n += image.pixelColor(x, y) == colour;
        return n;
    };
    EXPECT_GT(count(opaque.image(), Qt::blue), 0);
    EXPECT_EQ(count(clear.image(), Qt::blue), 0);
    EXPECT_LT(count(clear.image(), Qt::white), 60 * 20) << "the letter itself is drawn";
}

TEST(QImageSurface, ACopyKeepsThePictureOfItsMoment)
{
    QImageSurface s(QSize(10, 10));
    s.setBackColor(Qt::black);
    s.clear();
    const QImage before = s.image();
    s.setForeColor(Qt::green);
    s.setPixel(QPointF(3, 3));
    EXPECT_EQ(before.pixelColor(3, 3), QColor(Qt::black));
    EXPECT_EQ(s.image().pixelColor(3, 3), QColor(Qt::green));
}

} // namespace
