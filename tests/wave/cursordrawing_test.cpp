#include "drawtesting.h"
#include "wave/cursordrawing.h"
#include "wave/cursormouse.h"
#include "wave/wavecolors.h"

namespace {

// Dashed lines run between the arrows (five pixels in) of each band: full
// screen, and split at zoom 2 with a pair in each half (Y2 and Y4 clamped to
// 25 + 200 - 2 and 25 + 400 - 2); the pen and the texts take the cursor
// layer's colours, in colour and in black and white.
TEST(DrawCursors, Pictures)
{
    const auto cursors = [](bool colour, bool split) {
        return [=](RecordingSurface& s) {
            CursorState c;
            c.CursorXShown = true;
            ReadoutInput in;
            in.ColorMode = colour;
            in.TimeScaleText = QStringLiteral("1.000ms");
            if (split) {
                c.CursorYShown = true;
                in.geometry = CursorGeometry{2, true};
                c.CursorY1 = 100;
                c.CursorY2 = c.CursorY3 = 300;
                c.CursorY4 = 500;
            }
            DrawCursors(s, c, in);
        };
    };
    ExpectDrawings("cursors", {{"full", cursors(true, false)},
                               {"split", cursors(true, true)},
                               {"black-and-white", cursors(false, true)}});
}

TEST(DrawCursors, ACursorDraggedOverTheEdgeStopsInsideTheGrid)
{
    CursorState c;
    c.CursorXShown = true;
    const CursorGeometry g{1.5, false};
    PressCursors(c, {52, 100}, g);
    DragCursors(c, {-40, 100});
    RecordingSurface s;
    ReadoutInput in;
    in.geometry = g;
    DrawCursors(s, c, in);
    EXPECT_EQ(c.CursorX1, 27);
    ReleaseCursors(c);
    PressCursors(c, {297, 100}, g);
    DragCursors(c, {900, 100});
    DrawCursors(s, c, in);
    EXPECT_EQ(c.CursorX2, 25 + 450 - 2);
}

TEST(DrawCursors, OnACopyOfThePictureLeavesTheCleanPictureAlone)
{
    QImage clean(350, 250, QImage::Format_RGB32);
    clean.fill(Qt::black);
    CursorState c;
    c.CursorXShown = true;
    const QImage shown = DrawCursors(clean, c, ReadoutInput{});
    ASSERT_EQ(shown.size(), clean.size());
    const QRgb pen = QColor(230, 200, 150).rgb();
    // The top arrow of X1 runs along row 25 from column 47 to 57.
    EXPECT_EQ(shown.pixel(52, 25), pen);
    EXPECT_EQ(shown.pixel(297, 25), pen);
    EXPECT_EQ(shown.pixel(200, 25), QColor(Qt::black).rgb());
    EXPECT_EQ(clean.pixel(52, 25), QColor(Qt::black).rgb());
    // A second step starts again from the clean picture.
    c.CursorX1 = 100;
    const QImage next = DrawCursors(clean, c, ReadoutInput{});
    EXPECT_EQ(next.pixel(52, 25), QColor(Qt::black).rgb());
    EXPECT_EQ(next.pixel(100, 25), pen);
}

TEST(PrepareCursorBuffer, HoldsTheWholePictureUntilReleased)
{
    QImage picture(40, 30, QImage::Format_ARGB32);
    picture.fill(QColor(10, 20, 30));
    std::unique_ptr<QImageSurface> buffer = PrepareCursorBuffer(picture, true);
    ASSERT_TRUE(buffer);
    EXPECT_EQ(buffer->image().size(), picture.size());
    EXPECT_EQ(buffer->image().pixel(39, 29), QColor(10, 20, 30).rgb());
    ReleaseCursorBuffer(buffer);
    EXPECT_FALSE(buffer);
}

TEST(PrepareCursorBuffer, AnEmptyPictureGivesABlankPixel)
{
    CursorState c;
    c.CursorXShown = c.CursorYShown = true;
    EXPECT_EQ(DrawCursors(QImage(), c, ReadoutInput{}).size(), QSize(1, 1));
}

} // namespace
