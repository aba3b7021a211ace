#include "drawtesting.h"
#include "wave/drawgrid.h"
#include "wave/wavecolors.h"

namespace {

// Pixels of one dotted row or column: `count` dots from `first` on, `step` apart.
Path row(double y, double step, int count)
{
    Path p;
    for (int k = 0; k < count; ++k)
        p.emplace_back(25 + k * step, y);
    return p;
}

Path column(double x, double step, int count)
{
    Path p;
    for (int k = 0; k < count; ++k)
        p.emplace_back(x, 25 + k * step);
    return p;
}

void append(Path& to, const Path& more)
{
    to.insert(to.end(), more.begin(), more.end());
}

Path pixelsOf(const RecordingSurface& s)
{
    Path p;
    for (const SurfaceCall& c : s.callsOf(SurfaceCall::Pixel))
        p.push_back(c.to);
    return p;
}

Path drawGrid(double zoom, bool split, bool gridOn, RecordingSurface& s)
{
    WaveRecord r;
    r.ColorMode = true;
    r.SplitScreen = split;
    r.GridOn = gridOn;
    DrawScrGrid(WaveCanvas(s, zoom), r);
    return pixelsOf(s);
}

TEST(DrawScrGrid, FrameCrossAndMakerTextAtZoomOne)
{
    RecordingSurface s;
    drawGrid(1, false, false, s);
    const std::vector<SurfaceCall>& c = s.calls();
    ASSERT_GT(c.size(), 12u);
    EXPECT_EQ(c[0].kind, SurfaceCall::BackColor);
    EXPECT_EQ(c[0].color, QColor(0, 0, 0));
    EXPECT_EQ(c[1].color, QColor(192, 192, 192));
    EXPECT_EQ(c[2].kind, SurfaceCall::Clear);
    EXPECT_EQ(c[3].width, 2);
    const std::vector<SurfaceCall> frame(c.begin() + 4, c.begin() + 8);
    EXPECT_EQ(PathOf({frame[0]}), (Path{{25, 25}, {325, 25}}));
    EXPECT_EQ(PathOf({frame[1], frame[2], frame[3]}), (Path{{25, 25}, {25, 225}, {325, 225}, {325, 25}}));
    EXPECT_EQ(c[8].kind, SurfaceCall::LineWidth);
    EXPECT_EQ(c[8].width, 1);
    EXPECT_EQ(PathOf({c[9]}), (Path{{25, 125}, {325, 125}}));
    EXPECT_EQ(PathOf({c[10]}), (Path{{175, 25}, {175, 225}}));
    const SurfaceCall& maker = c.back();
    EXPECT_EQ(maker.text, QStringLiteral("KORVA"));
    EXPECT_EQ(maker.to, QPointF(25, 10));
    EXPECT_FALSE(maker.opaque);
    EXPECT_EQ(s.foreColorAt(c.size() - 1), QColor(255, 128, 0));
}

TEST(DrawScrGrid, BlackOnWhite)
{
    RecordingSurface s;
    WaveRecord r;
    DrawScrGrid(WaveCanvas(s, 1), r);
    EXPECT_EQ(s.calls()[0].color, QColor(255, 255, 255));
    EXPECT_EQ(s.calls()[1].color, QColor(0, 0, 0));
    EXPECT_EQ(s.foreColorAt(s.calls().size() - 1), QColor(0, 0, 0));
}

// At zoom 1 the tick loop makes one pass, i = 1. The bottom and right edges sit
// at 2i and 3i inside, the others at i and 2i.
Path ticksAtZoomOne(double v, int columnDots)
{
    Path p;
    append(p, row(26, 5, 61));
    append(p, row(27, 25, 13));
    append(p, row(124, 5, 61));
    append(p, row(123, 25, 13));
    append(p, row(126, 5, 61));
    append(p, row(127, 25, 13));
    append(p, row(223, 5, 61));
    append(p, row(222, 25, 13));
    append(p, column(26, v, columnDots));
    append(p, column(27, 25, 9));
    append(p, column(174, v, columnDots));
    append(p, column(173, 25, 9));
    append(p, column(176, v, columnDots));
    append(p, column(177, 25, 9));
    append(p, column(323, v, columnDots));
    append(p, column(322, 25, 9));
    return p;
}

TEST(DrawScrGrid, TicksAtZoomOne)
{
    RecordingSurface s;
    EXPECT_EQ(drawGrid(1, false, false, s), ticksAtZoomOne(5, 41));
    s.reset();
    EXPECT_EQ(drawGrid(1, true, false, s), ticksAtZoomOne(6.25, 33)) << "split columns are dotted every 6.25";
}

TEST(DrawScrGrid, DottedGridAtZoomOne)
{
    RecordingSurface s;
    Path expected = ticksAtZoomOne(5, 41);
    for (int k = 0; k <= 8; ++k)
        append(expected, row(25 + 25 * k, 5, 61));
    for (int k = 0; k <= 12; ++k)
        append(expected, column(25 + 25 * k, 5, 41));
    EXPECT_EQ(drawGrid(1, false, true, s), expected);
}

TEST(DrawScrGrid, SplitDottedGridAtZoomOne)
{
    RecordingSurface s;
    Path expected = ticksAtZoomOne(6.25, 33);
    append(expected, row(74, 5, 61));
    append(expected, row(176, 5, 61));
    for (int k = 0; k <= 16; ++k)
        append(expected, row(25 + 12.5 * k, 5, 61));
    for (int k = 0; k <= 12; ++k)
        append(expected, column(25 + 25 * k, 6.25, 33));
    EXPECT_EQ(drawGrid(1, true, true, s), expected);
}

struct GridCountCase {
    double zoom;
    bool split;
    bool gridOn;
    std::size_t pixels;
};

class GridPixelCountTest : public ::testing::TestWithParam<GridCountCase> {};

// 496 tick pixels a pass (464 split); the dotted grid adds 1082 (split: 122 a
// pass for the quarter rows, then 1466). At zoom 2 the tenth step of 0.1 passes
// 2 by rounding, so the loop makes ten passes; below zoom 1 it makes none. At
// zoom 0.01 the column steps of 0.05 add up past 2 after 40 dots.
TEST_P(GridPixelCountTest, PixelsPerZoom)
{
    const GridCountCase& c = GetParam();
    RecordingSurface s;
    EXPECT_EQ(drawGrid(c.zoom, c.split, c.gridOn, s).size(), c.pixels);
}

INSTANTIATE_TEST_SUITE_P(
    Zooms, GridPixelCountTest,
    ::testing::Values(GridCountCase{0.5, false, false, 0}, GridCountCase{0.5, true, false, 0},
                      GridCountCase{0.5, false, true, 1082}, GridCountCase{0.5, true, true, 1466},
                      GridCountCase{1, false, true, 496 + 1082},
                      GridCountCase{1, true, true, 464 + 122 + 1466}, GridCountCase{2, false, false, 4960},
                      GridCountCase{2, true, false, 4640}, GridCountCase{2, false, true, 4960 + 1082},
                      GridCountCase{2, true, true, 4640 + 1220 + 1466},
                      GridCountCase{0.01, false, true, 549 + 520}));

TEST(DrawScrGrid, ZoomTwoPlacesFirstPassAtTheScaledEdges)
{
    RecordingSurface s;
    const Path pixels = drawGrid(2, false, false, s);
    ASSERT_EQ(pixels.size(), 4960u);
    EXPECT_EQ(Path(pixels.begin(), pixels.begin() + 61), row(26, 10, 61));
    EXPECT_EQ(Path(pixels.begin() + 222, pixels.begin() + 283), row(423, 10, 61)); // 25 + 200z - 2i
    EXPECT_EQ(Path(pixels.begin() + 446, pixels.begin() + 487), column(623, 10, 41));
    EXPECT_EQ(Path(pixels.begin() + 487, pixels.begin() + 496), column(622, 50, 9));
    EXPECT_NEAR(pixels[4960 - 496].y(), 26.9, 1e-9) << "the last pass has i near 1.9";
}

} // namespace
