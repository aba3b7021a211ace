#include "drawtesting.h"
#include "wave/cursordrawing.h"
#include "wave/cursormouse.h"
#include "wave/wavecolors.h"

namespace {

// The dashed lines and the arrow outlines of a run of calls, in order.
struct Strokes {
    std::vector<std::pair<QPointF, QPointF>> dashed;
    std::vector<Path> arrows;
};

Strokes strokesOf(const RecordingSurface& s)
{
    Strokes out;
    DashStyle dash = DashStyle::Solid;
    for (const SurfaceCall& c : s.calls()) {
        if (c.kind == SurfaceCall::Dash) dash = c.dash;
        if (c.kind == SurfaceCall::Line && dash == DashStyle::DashDotDot)
            out.dashed.push_back({c.from, c.to});
        if (c.kind == SurfaceCall::Line && dash == DashStyle::Solid) out.arrows.push_back({c.from, c.to});
        if (c.kind == SurfaceCall::LineTo && !out.arrows.empty()) out.arrows.back().push_back(c.to);
    }
    return out;
}

// Arrows of a vertical cursor at x over a band from `top` to `bottom`.
std::vector<Path> verticalArrows(double x, double top, double bottom)
{
    return {Closed({{x - 5, top}, {x + 5, top}, {x, top + 5}}),
            Closed({{x - 5, bottom}, {x + 5, bottom}, {x, bottom - 5}})};
}

std::vector<Path> horizontalArrows(double y, double left, double right)
{
    return {Closed({{left, y - 5}, {left, y + 5}, {left + 5, y}}),
            Closed({{right, y - 5}, {right, y + 5}, {right - 5, y}})};
}

std::vector<Path> concat(std::initializer_list<std::vector<Path>> parts)
{
    std::vector<Path> all;
    for (const auto& p : parts)
        all.insert(all.end(), p.begin(), p.end());
    return all;
}

using Segment = std::pair<QPointF, QPointF>;

Strokes draw(CursorState& cursors, const ReadoutInput& in)
{
    RecordingSurface s;
    DrawCursors(s, cursors, in);
    return strokesOf(s);
}

TEST(DrawCursors, FullScreenVerticalCursorsRunBetweenTheirArrows)
{
    CursorState c;
    c.CursorXShown = true;
    const Strokes s = draw(c, ReadoutInput{});
    EXPECT_EQ(s.dashed, (std::vector<Segment>{{{52, 30}, {52, 220}}, {{297, 30}, {297, 220}}}));
    EXPECT_EQ(s.arrows, concat({verticalArrows(52, 25, 225), verticalArrows(297, 25, 225)}));
}

TEST(DrawCursors, SplitScreenHasAPairInEachHalf)
{
    CursorState c;
    c.CursorXShown = c.CursorYShown = true;
    ReadoutInput in;
    in.geometry = CursorGeometry{2, true};
    c.CursorY1 = 100;
    c.CursorY2 = 300; // clamped to 25 + 200 - 2
    c.CursorY3 = 300;
    c.CursorY4 = 500; // clamped to 25 + 400 - 2
    const Strokes s = draw(c, in);
    // Upper band 25 .. 225, lower band 225 .. 425.
    EXPECT_EQ(s.dashed, (std::vector<Segment>{{{52, 30}, {52, 220}},
                                              {{297, 30}, {297, 220}},
                                              {{79, 230}, {79, 420}},
                                              {{270, 230}, {270, 420}},
                                              {{30, 100}, {620, 100}},
                                              {{30, 223}, {620, 223}},
                                              {{30, 300}, {620, 300}},
                                              {{30, 423}, {620, 423}}}));
    EXPECT_EQ(s.arrows, concat({verticalArrows(52, 25, 225), verticalArrows(297, 25, 225),
                                verticalArrows(79, 225, 425), verticalArrows(270, 225, 425),
                                horizontalArrows(100, 25, 625), horizontalArrows(223, 25, 625),
                                horizontalArrows(300, 25, 625), horizontalArrows(423, 25, 625)}));
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

TEST(DrawCursors, PenAndTextsTakeTheCursorLayerColours)
{
    for (bool colour : {true, false}) {
        CursorState c;
        c.CursorXShown = c.CursorYShown = true;
        ReadoutInput in;
        in.ColorMode = colour;
        in.TimeScaleText = QStringLiteral("1.000ms");
        RecordingSurface s;
        DrawCursors(s, c, in);
        const QColor pen = colour ? QColor(230, 200, 150) : QBColor(0);
        const std::vector<SurfaceCall>& calls = s.calls();
        for (std::size_t i = 0; i < calls.size(); ++i) {
            if (calls[i].kind == SurfaceCall::Line) {
                EXPECT_EQ(s.foreColorAt(i), pen);
            }
            if (calls[i].kind == SurfaceCall::Text) {
                EXPECT_EQ(s.foreColorAt(i), colour ? QColor(255, 0, 255) : QBColor(7));
                EXPECT_FALSE(calls[i].opaque);
            }
        }
        const std::vector<SurfaceCall> widths = s.callsOf(SurfaceCall::LineWidth);
        ASSERT_EQ(widths.size(), 1u);
        EXPECT_EQ(widths[0].width, 1);
        const std::vector<SurfaceCall> texts = TextsOf(s);
        ASSERT_EQ(texts.size(), 2u);
        EXPECT_EQ(texts[0].text, QStringLiteral("|X1-X2|   =9.80ms"));
        EXPECT_EQ(texts[0].to, QPointF(185, 30));
        EXPECT_EQ(s.callsOf(SurfaceCall::BackColor).front().color,
                  colour ? QColor(0, 0, 0) : QColor(255, 255, 255));
    }
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
